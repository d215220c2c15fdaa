// The editor's translations and built-in pictures: complete, and with room for every text.
#include "campaign_dialogs/new_campaign.h"
#include "shell/about_cmp_ed.h"
#include "tests/shell/window_fixture.h"
#include "tests/support/child_process.h"

#include <QAbstractButton>
#include <QImageReader>
#include <QLayout>
#include <QMap>
#include <QPair>
#include <QTranslator>
#include <QXmlStreamReader>

namespace {

using Messages = QMap<QPair<QString, QString>, QString>; // by context and source

// The finished translations of a file; with `all` the unfinished ones too.
Messages messagesOf(const QString &path, bool all)
{
    Messages messages;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return messages;
    QXmlStreamReader xml(&file);
    QString context;
    QString source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == "name")
            context = xml.readElementText();
        else if (xml.name() == "source")
            source = xml.readElementText();
        else if (xml.name() == "translation") {
            const bool unfinished = xml.attributes().hasAttribute("type");
            const QString text = xml.readElementText();
            if (all || (!unfinished && !text.isEmpty()))
                messages[{context, source}] = text;
        }
    }
    return messages;
}

QString sourceFile(const QString &name)
{
    return QStringLiteral(CMPED_SOURCE_DIR "/") + name;
}

// What the program asks a translation of; empty if the translators' tool fails.
Messages usedMessages()
{
    const QTemporaryDir folder;
    const QString found = folder.filePath("found.ts");
    QStringList arguments{"-silent"};
    for (const char *room : {"gamedata", "document", "shell", "campaign_dialogs", "scenario",
                             "forms", "launcher", "cli"})
        arguments << sourceFile(room);
    const ChildResult result = runChild(CMPED_LUPDATE, arguments << "-ts" << found);
    if (!result.started || result.exitCode != 0) {
        qWarning("%s", result.error.constData());
        return {};
    }
    return messagesOf(found, true);
}

} // namespace

class TranslationsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<WindowFixture>(); }

    void everyTextIsTranslated_data();
    void everyTextIsTranslated();
    void everyTranslationIsUsed_data();
    void everyTranslationIsUsed();
    void messagesOfTheLowerRoomsAreTranslated_data();
    void messagesOfTheLowerRoomsAreTranslated();
    void russianTextsHaveTheirRoom();
    void iconsAreBuiltIn_data();
    void iconsAreBuiltIn();
    void configurationLeavesPathsAlone();

private:
    std::unique_ptr<WindowFixture> fixture;
};

void TranslationsTest::everyTextIsTranslated_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("Russian") << "translations/cmp_ru.ts";
    QTest::newRow("English") << "translations/cmp_en.ts";
}

void TranslationsTest::everyTextIsTranslated()
{
    QFETCH(QString, file);
    const Messages used = usedMessages();
    QVERIFY(used.size() > 30);
    const Messages translated = messagesOf(sourceFile(file), false);
    for (auto message = used.begin(); message != used.end(); ++message) {
        const QString name = message.key().first + ": " + message.key().second;
        QVERIFY2(translated.contains(message.key()), qPrintable(name));
    }
}

void TranslationsTest::everyTranslationIsUsed_data()
{
    everyTextIsTranslated_data();
}

// Every text stands as a literal in the code or in a form, the lower rooms' too.
void TranslationsTest::everyTranslationIsUsed()
{
    QFETCH(QString, file);
    const Messages used = usedMessages();
    const Messages translated = messagesOf(sourceFile(file), true);
    QVERIFY(translated.size() > 30);
    for (auto message = translated.begin(); message != translated.end(); ++message) {
        const QString name = message.key().first + ": " + message.key().second;
        QVERIFY2(used.contains(message.key()), qPrintable(name));
    }
}

void TranslationsTest::messagesOfTheLowerRoomsAreTranslated_data()
{
    QTest::addColumn<QString>("context");
    QTest::addColumn<QString>("text");
    const char *const noTableFile = "Campaign Editor cannot be launched because Ravn.dat was not "
                                    "found. \nRavn.dat must be in Eldmark root folder.";
    const char *const noSettings =
        "Eldmark Campaign Editor cannot be launched because Ravn_settings.ini was not found. "
        "\nRavn_settings.ini must be in Eldmark root folder.";
    for (const char *text :
         {"Error", "Can't find %1 file in lod file", "Can't open file %1",
          "Unable to generate image", "Cannot write file %1:\n%2.",
          "Invalid campaign file version!\n\nFile version = %1\nCurrent version = %2",
          "Unsupported version!\n\nFile subversion = %1\nCurrent subversion = %2", noTableFile,
          noSettings, "Failed to open the sound driver."})
        QTest::newRow(text) << "MainWindow" << text;
    for (const char *text : {"Incorrect or damaged file.", "Basic", "Advanced", "Expert"})
        QTest::newRow(text) << "QObject" << text;
}

void TranslationsTest::messagesOfTheLowerRoomsAreTranslated()
{
    QFETCH(QString, context);
    QFETCH(QString, text);
    QTranslator russian;
    QVERIFY(russian.load(builtProgram("Ravn_Data/cmp_ru.qm")));
    const QString translated = russian.translate(context.toUtf8(), text.toUtf8());
    QVERIFY(!translated.isEmpty());
    QVERIFY(translated != text);
    for (const char *mark : {"%1", "%2"})
        QCOMPARE(translated.contains(mark), text.contains(mark));
}

void TranslationsTest::russianTextsHaveTheirRoom()
{
    QTranslator russian;
    QVERIFY(russian.load(builtProgram("Ravn_Data/cmp_ru.qm")));
    QCoreApplication::installTranslator(&russian);
    MainWindow window(nullptr);
    NewCampaign newCampaign(&window);
    AboutCmpEd about(&window);
    QCOMPARE(newCampaign.windowTitle(), QString::fromUtf8("Новая кампания"));
    QCOMPARE(about.windowTitle(), QString::fromUtf8("О редакторе кампаний"));
    for (QDialog *dialog : {static_cast<QDialog *>(&newCampaign), static_cast<QDialog *>(&about)}) {
        dialog->layout()->activate();
        dialog->show();
        const auto buttons = dialog->findChildren<QAbstractButton *>();
        for (const QAbstractButton *button : buttons)
            QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->text()));
        const auto labels = dialog->findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            const int needed = label->hasHeightForWidth() ? label->heightForWidth(label->width())
                                                          : label->sizeHint().height();
            QVERIFY2(label->height() >= needed || !label->pixmap(Qt::ReturnByValue).isNull(),
                     qPrintable(label->text()));
        }
    }
    QCoreApplication::removeTranslator(&russian);
}

void TranslationsTest::iconsAreBuiltIn_data()
{
    QTest::addColumn<QSize>("size");
    for (const char *name : {"new_file.svg", "open.svg", "save.svg", "edit.svg", "checked.svg"})
        QTest::newRow(name) << QSize(24, 24);
    for (const char *name : {"checkbox_checked.svg", "checkbox_unchecked.svg",
                             "checkbox_checked_disabled.svg", "checkbox_unchecked_disabled.svg",
                             "checkmark_black.svg", "checkmark_gray.svg", "checkmark_white.svg"})
        QTest::newRow(name) << QSize(16, 16);
    for (const char *name : {"combobox_indicator.svg", "combobox_indicator_disabled.svg",
                             "combobox_indicator_dark_mode.svg"})
        QTest::newRow(name) << QSize(12, 12);
    for (const char *name : {"spinbox_up_arrow.svg", "spinbox_up_arrow_disabled.svg",
                             "spinbox_down_arrow.svg", "spinbox_down_arrow_disabled.svg"})
        QTest::newRow(name) << QSize(16, 8);
    for (const char *name : {"cmped.ico", "ravn_cmped_en.png", "ravn_cmped_ru.png"})
        QTest::newRow(name) << QSize();
}

void TranslationsTest::iconsAreBuiltIn()
{
    QFETCH(QSize, size);
    QImageReader reader(QStringLiteral(":/icons/") + QTest::currentDataTag());
    const QImage image = reader.read();
    QVERIFY2(!image.isNull(), qPrintable(reader.errorString()));
    if (size.isValid())
        QCOMPARE(image.size(), size);
    // Something is painted on it.
    bool painted = false;
    for (int x = 0; x < image.width() && !painted; ++x) {
        for (int y = 0; y < image.height() && !painted; ++y)
            painted = image.pixelColor(x, y).alpha() > 0;
    }
    QVERIFY(painted);
}

void TranslationsTest::configurationLeavesPathsAlone()
{
    const QSettings configuration(":/qt/etc/qt.conf", QSettings::IniFormat);
    QVERIFY(configuration.childGroups().contains("Platforms"));
    QVERIFY(!configuration.childGroups().contains("Paths"));
}

QTEST_MAIN(TranslationsTest)
#include "translations_test.moc"
