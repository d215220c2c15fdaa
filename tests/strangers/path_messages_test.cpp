// Every message and title that shows a path shows it as it is: nothing in a name is taken for the
// place of another argument, for markup or for a letter to underline.
#include "document/gzip_member.h"
#include "gamedata/locale_codec.h"
#include "scenario/scenario_info.h"
#include "tests/shell/exchange_window.h"
#include "tests/strangers/hostile_names.h"
#include "tests/support/child_process.h"
#include "tests/support/widgets.h"

#include <QScreen>
#include <QWindow>

class PathMessagesTest : public QObject, private ExchangeWindow
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(setLocaleCodec(QString())); }
    void init();
    void cleanup() { window.reset(); }

    void campaignThatIsNotThere_data() { addNames(); }
    void campaignThatIsNotThere();
    void campaignThatCannotBeWritten_data() { addNames(); }
    void campaignThatCannotBeWritten();
    void questionAboutChanges_data() { addNames(); }
    void questionAboutChanges();
    void questionAboutAFileThatHasChanged_data() { addNames(); }
    void questionAboutAFileThatHasChanged();
    void questionAboutARecoveryCopy_data() { addNames(); }
    void questionAboutARecoveryCopy();
    void titleAndMenu_data() { addNames(); }
    void titleAndMenu();
    void textsThatAreNone_data() { addNames(); }
    void textsThatAreNone();
    void textsThatCannotBeWritten_data() { addNames(); }
    void textsThatCannotBeWritten();
    void mapsOfARefresh_data() { addNames(); }
    void mapsOfARefresh();
    void mapsOfTheDialog_data() { addNames(); }
    void mapsOfTheDialog();
    void commandLine_data() { addNames(); }
    void commandLine();
    void thousandLinesFitTheScreen();

private:
    static void addNames();
    // The path of a folder of the hostile name.
    QString folderOfThatName() const;
    // Looks at a box: its text, as plain as it is.
    static NextDialog::Answer plainBox(const ExpectedBox &expected);

    QString m_name;
};

namespace {

const QString missing = "No such file or directory";
const QString folderInstead = "file to open is a directory";

// Chooses a path whatever the dialog offers. `chosen` is called before anybody uses it.
NextDialog::Answer choosing(const QString &path, const std::function<void()> &chosen = {})
{
    return [=](QWidget *widget) {
        auto *dialog = qobject_cast<QFileDialog *>(widget);
        if (!dialog) {
            widget->close();
            QFAIL("Another dialog came in the place of a file dialog.");
        }
        if (chosen)
            QObject::connect(dialog, &QFileDialog::accepted, chosen);
        childOf<QLineEdit>(dialog, "fileNameEdit")->setText(path);
        QTest::keyClick(dialog->windowHandle(), Qt::Key_Return);
    };
}

} // namespace

void PathMessagesTest::addNames()
{
    QTest::addColumn<QString>("name");
    for (const hostile::FileName &name : hostile::fileNames())
        QTest::newRow(name.title) << name.name;
}

void PathMessagesTest::init()
{
    reset();
    m_name.clear();
    for (const hostile::FileName &name : hostile::fileNames()) {
        if (QTest::currentDataTag() == QByteArray(name.title))
            m_name = name.name;
    }
}

QString PathMessagesTest::folderOfThatName() const
{
    QDir(folder->path()).mkdir(m_name);
    return path(m_name);
}

NextDialog::Answer PathMessagesTest::plainBox(const ExpectedBox &expected)
{
    return [expected](QWidget *widget) {
        const auto *box = qobject_cast<QMessageBox *>(widget);
        const Qt::TextFormat format = box ? box->textFormat() : Qt::AutoText;
        boxAnswer(expected)(widget);
        QCOMPARE(format, Qt::PlainText);
    };
}

void PathMessagesTest::campaignThatIsNotThere()
{
    NextDialog box(plainBox(warning("Cannot read file " + path(m_name) + ":\n" + missing + ".")));
    window->loadFile(path(m_name));
}

void PathMessagesTest::campaignThatCannotBeWritten()
{
    load();
    const QString target = folderOfThatName() + "/none/" + m_name;
    NextDialog box(plainBox(warning("Cannot write file " + target + ":\n" + missing + ".")));
    QVERIFY(!window->saveFile(target));
}

void PathMessagesTest::questionAboutChanges()
{
    QVERIFY(window->saveFile(path(m_name + ".e3c")));
    EditorData::info.modified = true;
    NextDialog box(
        plainBox({appTitle, "Save changes to " + m_name + "?", QMessageBox::NoIcon,
                  QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::No}));
    window->close();
    EditorData::info.modified = false;
}

void PathMessagesTest::questionAboutAFileThatHasChanged()
{
    QVERIFY(window->saveFile(path(m_name)));
    writeFile(m_name, "somebody else's");
    NextDialog box(
        plainBox({appTitle,
                  m_name + " has changed on the disk since it was opened or saved here. "
                           "Overwrite it?",
                  QMessageBox::NoIcon, QMessageBox::Yes | QMessageBox::No, QMessageBox::No}));
    trigger("actionSave");
    QCOMPARE(contents(path(m_name)), QByteArray("somebody else's"));
}

void PathMessagesTest::questionAboutARecoveryCopy()
{
    const QString recovery = RecoveryCopies::usualFolder();
    QDir(recovery).removeRecursively();
    const QString file = path(m_name + ".e3c");
    RecoveryCopies(recovery).keep("harbour", {file, {}}, {{}, {"x"}});
    const auto copies = QDir(recovery).entryInfoList({"*.e3c"}, QDir::Files);
    QCOMPARE(copies.size(), 1);
    const QString time = copies[0].lastModified().toString("yyyy-MM-dd HH:mm");
    MainWindow next(nullptr);
    NextDialog box(plainBox(
        {appTitle, "Changes to " + m_name + " were not saved. Open the copy kept on " + time + "?",
         QMessageBox::NoIcon, QMessageBox::Yes | QMessageBox::No, QMessageBox::No}));
    next.offerRecoveryCopy();
}

void PathMessagesTest::titleAndMenu()
{
    QVERIFY(show(*window));
    QVERIFY(window->saveFile(path(m_name)));
    QCOMPARE(window->windowHandle()->title(), m_name + " - " + appTitle);
    QString entry;
    for (const QAction *action : window->findChildren<QAction *>()) {
        if (action->isVisible() && action->data().toString() == path(m_name))
            entry = action->text();
    }
    QString shown = m_name;
    shown.replace("&", "&&").replace('\n', ' ').replace('\t', ' ');
    QCOMPARE(entry, "&1 " + shown);
}

void PathMessagesTest::textsThatAreNone()
{
    load();
    const QString target = writeFile(m_name + ".txt", "no texts");
    NextDialog choice(choosing(target));
    NextDialog box(plainBox(
        warning("Cannot read file " + target + " - incorrect campaign text:\nUnknown error.")));
    trigger("actionImport_Texts");
}

// The file dialog takes nothing that can't be, so the folder goes when it was chosen.
void PathMessagesTest::textsThatCannotBeWritten()
{
    load();
    const QString target = folderOfThatName() + "/texts.txt";
    NextDialog choice(choosing(target, [&] { QVERIFY(QDir().rmdir(path(m_name))); }));
    NextDialog box(plainBox(warning("Cannot write file " + target + ":\n" + missing + ".")));
    trigger("actionExport_Texts");
}

void PathMessagesTest::mapsOfARefresh()
{
    CampaignData campaign = campaignWithMaps();
    campaign.scenarios[0].mapFileName = m_name;
    campaign.scenarios[2].mapFileName = m_name + "2";
    save(campaign);
    load();
    writeFile(m_name, mapNamed("Nobodyhas", 0)); // no player can play it
    QVERIFY(QDir(folder->path()).mkdir(m_name + "2"));
    NextDialog refused(plainBox(warning("Cannot read file " + m_name + ". Map has errors.")));
    NextDialog unread(
        plainBox(warning("Cannot read file " + m_name + "2:\n" + folderInstead + ".")));
    trigger("actionRefresh_Scenario_Maps");
}

void PathMessagesTest::mapsOfTheDialog()
{
    CampaignData campaign = campaignWithMaps();
    ScenarioInfo dialog(nullptr, &campaign, 24, 0);
    bringOnShow(dialog);
    const QString target = writeFile(m_name + ".e3m", mapNamed("Nobodyhas", 0));
    {
        NextDialog choice(choosing(target));
        NextDialog box(plainBox(warning("Cannot read file " + target + ". Map has errors.")));
        clickOn(childOf<QPushButton>(&dialog, "refreshButton"));
    }
    writeFile(m_name + ".e3m", {});
    NextDialog choice(choosing(target));
    NextDialog box(plainBox(warning("Cannot read file " + target + ":\nUnknown error.")));
    clickOn(childOf<QPushButton>(&dialog, "refreshButton"));
}

void PathMessagesTest::commandLine()
{
    const auto errorOf = [this](const QStringList &words) {
        const QStringList all = QStringList{"--game", fixture.game.path()} + words;
        return QFile::decodeName(runChild(builtProgram("cmped-cli"), all).error);
    };
    const QString gone = path(m_name);
    const QString home = path("home.e3c");
    QCOMPARE(errorOf({"dump", gone}), "Error: Cannot read file " + gone + ":\n" + missing + ".\n");
    QCOMPARE(errorOf({"resave", home, gone + "/x"}),
             "Error: Cannot write file " + gone + "/x:\n" + missing + ".\n");
    QCOMPARE(errorOf({"import-texts", home, gone, path("out")}),
             "Error: Cannot read file " + gone + ":\n" + missing + ".\n");
    QCOMPARE(errorOf({"import-texts", home, home, path("out")}),
             "Error: Cannot read file " + home + " - incorrect campaign text:\nUnknown error.\n");
    QCOMPARE(errorOf({"render", home, gone + "/x.png"}),
             "Error: Cannot write file " + gone + "/x.png:\n" + missing + ".\n");
    QCOMPARE(errorOf({"extract", m_name, path("out")}),
             "Error: Can't find " + m_name + " file in lod file\n");
    QVERIFY(errorOf({m_name}).startsWith("There is no command \"" + m_name + "\"."));
}

void PathMessagesTest::thousandLinesFitTheScreen()
{
    const QString name = QString("a\n").repeated(120);
    const QSize screen = QGuiApplication::primaryScreen()->size();
    for (int depth : {1, 15}) {
        QString target = folder->path();
        for (int i = 0; i < depth; ++i)
            target += '/' + name;
        NextDialog box([&](QWidget *widget) {
            const QSize size = widget->size();
            const QString text = qobject_cast<QMessageBox *>(widget)->text();
            clickOn(qobject_cast<QMessageBox *>(widget)->button(QMessageBox::Ok));
            QVERIFY2(size.height() <= screen.height(), qPrintable(QString::number(size.height())));
            QVERIFY2(size.width() <= screen.width(), qPrintable(QString::number(size.width())));
            QVERIFY(text.startsWith("Cannot read file " + folder->path()));
            QVERIFY(text.endsWith(missing + "."));
        });
        window->loadFile(target);
    }
}

QTEST_MAIN(PathMessagesTest)
#include "path_messages_test.moc"
