// Holds docs/manual.md against the program: its pictures are those of the windows as they are, and
// it names every control, and no others, in bold.
#include "tests/tools/manual_pictures.h"

#include "shell/elided_label.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QGraphicsView>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTableWidget>
#include <QTimer>
#include <QToolButton>
#include <QXmlStreamReader>

#include <memory>

namespace {

QSet<QString> foundIn(const QString &text, const char *pattern)
{
    QSet<QString> found;
    auto matches = QRegularExpression(QLatin1String(pattern)).globalMatch(text);
    while (matches.hasNext())
        found.insert(matches.next().captured(1).simplified());
    return found;
}

// Without the mark of its key.
QString shownName(QString text)
{
    return text.remove(QLatin1Char('&'));
}

// What the window tells, rather than the name of something: it changes, or is a sentence.
bool isMessage(const QLabel *label)
{
    bool isNumber = false;
    label->text().toInt(&isNumber);
    return isNumber || label->wordWrap() || qobject_cast<const ElidedLabel *>(label);
}

bool showsIconOnly(const QAbstractButton *button)
{
    const auto *tool = qobject_cast<const QToolButton *>(button);
    return tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly;
}

// The windows' texts by which somebody finds their way, as they are on show.
class NamesOnShow
{
public:
    explicit NamesOnShow(QWidget *window) : m_window(window)
    {
        if (qobject_cast<const QDialog *>(window))
            add(window->windowTitle());
        addEach<QAbstractButton>([this](auto *button) {
            if (!showsIconOnly(button))
                add(button->text());
        });
        addEach<QGroupBox>([this](auto *group) { add(group->title()); });
        addEach<QLabel>([this](auto *label) {
            if (!isMessage(label))
                add(label->text());
        });
        addEach<QTabWidget>([this](auto *tabs) {
            for (int i = 0; i < tabs->count(); ++i)
                add(tabs->tabText(i));
        });
        addEach<QTableWidget>([this](auto *table) {
            for (int i = 0; i < table->columnCount(); ++i)
                add(table->horizontalHeaderItem(i)->text());
        });
        addEach<QMenuBar>([this](auto *bar) { addMenu(bar->actions()); });
    }

    QSet<QString> names;

    // The names of files used before, which the menu holds too, carry their paths.
    void addMenu(const QList<QAction *> &actions)
    {
        for (const QAction *action : actions) {
            if (action->isVisible() && !action->data().isValid())
                add(action->text());
            if (action->menu())
                addMenu(action->menu()->actions());
        }
    }

private:
    template<typename Widget, typename Add>
    void addEach(const Add &addTexts)
    {
        const auto widgets = m_window->findChildren<Widget *>();
        for (Widget *widget : widgets) {
            if (widget->isVisibleTo(m_window))
                addTexts(widget);
        }
    }

    void add(const QString &text)
    {
        if (!text.isEmpty())
            names.insert(shownName(text));
    }

    QWidget *m_window;
};

// The names in the menu that a right click on the map opens.
void addMenuOfMap(QWidget *window, NamesOnShow &shown)
{
    auto *view = window->findChild<QGraphicsView *>(QStringLiteral("graphicsView"));
    if (!view)
        return;
    bool came = false;
    QTimer::singleShot(0, view, [&] {
        QWidget *menu = QApplication::activePopupWidget();
        QVERIFY(menu);
        came = true;
        shown.addMenu(menu->actions());
        menu->close();
    });
    emit view->customContextMenuRequested({});
    QVERIFY(came);
}

QSet<QString> namesIn(const ManualScene &scene)
{
    const ManualWindow opened = scene.open();
    opened.window->show();
    NamesOnShow shown(opened.window.get());
    addMenuOfMap(opened.window.get(), shown);
    return shown.names;
}

QStringList sorted(const QSet<QString> &names)
{
    QStringList list = names.values();
    list.sort();
    return list;
}

} // namespace

class ManualTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void namesThePicturesThatAreThere();
    void hasThePicturesOfEveryWindow();
    void showsEveryForm();
    void pictureHasTheWindowsSize_data() { addScenes(); }
    void pictureHasTheWindowsSize();
    void namesEveryControl_data() { addScenes(); }
    void namesEveryControl();
    void namesNothingThatIsNotThere();
    void leadsToItsOwnSections();
    void namesEveryMessage_data();
    void namesEveryMessage();

private:
    std::unique_ptr<ManualFixture> fixture;
    QString manual;
    QSet<QString> bold;
};

void ManualTest::initTestCase()
{
    QFile file(QStringLiteral(CMPED_SOURCE_DIR "/docs/manual.md"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    manual = QString::fromUtf8(file.readAll());
    bold = foundIn(manual, R"(\*\*([^*]+)\*\*)");
    QVERIFY(bold.size() > 50);
    fixture = std::make_unique<ManualFixture>(manualEnglish);
}

void ManualTest::namesThePicturesThatAreThere()
{
    QSet<QString> there;
    const QDir folder(QStringLiteral(CMPED_SOURCE_DIR "/docs/manual"));
    const QStringList languages = folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &language : languages) {
        const QStringList files = QDir(folder.filePath(language)).entryList(QDir::Files);
        for (const QString &name : files)
            there.insert(language + QLatin1Char('/') + name);
    }
    QCOMPARE(sorted(foundIn(manual, R"(\]\(manual/([^)]*)\))")), sorted(there));
}

void ManualTest::hasThePicturesOfEveryWindow()
{
    QSet<QString> expected;
    for (const ManualScene &scene : manualScenes())
        expected.insert(QLatin1String(scene.name) + QStringLiteral(".png"));
    QCOMPARE(size_t(expected.size()), manualScenes().size());
    for (const char *language : {manualEnglish, manualRussian}) {
        const QStringList there =
            QFileInfo(pictureFile(language, "x")).dir().entryList(QDir::Files);
        QCOMPARE(sorted({there.begin(), there.end()}), sorted(expected));
    }
}

// So that a new dialog or page asks for a picture of its own.
void ManualTest::showsEveryForm()
{
    const QString neverOnShow = QStringLiteral("ScenarioBrowser");
    QSet<QString> shown;
    for (const ManualScene &scene : manualScenes()) {
        const ManualWindow opened = scene.open();
        QList<QWidget *> widgets = opened.window->findChildren<QWidget *>();
        widgets.append(opened.window.get());
        opened.window->show();
        for (const QWidget *widget : qAsConst(widgets)) {
            if (widget->isVisible())
                shown.insert(widget->objectName());
        }
    }
    const QDir forms(QStringLiteral(CMPED_SOURCE_DIR "/forms"));
    const QStringList files = forms.entryList({QStringLiteral("*.ui")}, QDir::Files);
    QVERIFY(files.size() > 10);
    for (const QString &name : files) {
        QFile file(forms.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QSet<QString> form = foundIn(QString::fromUtf8(file.readAll()),
                                           R"x((?m)^ <widget class="\w+" name="(\w+)")x");
        QCOMPARE(form.size(), 1);
        QVERIFY2(shown.contains(*form.begin()) || *form.begin() == neverOnShow, qPrintable(name));
    }
}

void ManualTest::pictureHasTheWindowsSize()
{
    QFETCH(int, scene);
    compareSize(manualEnglish, manualScenes().at(size_t(scene)));
}

void ManualTest::namesEveryControl()
{
    QFETCH(int, scene);
    const QSet<QString> names = namesIn(manualScenes().at(size_t(scene)));
    QVERIFY(!names.isEmpty());
    const QStringList missing = sorted(names - bold);
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QStringLiteral(" | "))));
}

// Bold is for names of controls and windows alone, so whatever stands in bold claims to be one.
void ManualTest::namesNothingThatIsNotThere()
{
    QSet<QString> names;
    for (const ManualScene &scene : manualScenes())
        names += namesIn(scene);
    const QStringList unknown = sorted(bold - names);
    QVERIFY2(unknown.isEmpty(), qPrintable(unknown.join(QStringLiteral(" | "))));
}

// A heading's anchor is its text in small letters, hyphens for spaces and no other marks.
void ManualTest::leadsToItsOwnSections()
{
    QSet<QString> anchors;
    const QSet<QString> headings = foundIn(manual, R"((?m)^#+ (.*)$)");
    for (QString heading : headings) {
        heading = heading.toLower().replace(QLatin1Char(' '), QLatin1Char('-'));
        anchors.insert(heading.remove(QRegularExpression(QStringLiteral("[^\\w-]"))));
    }
    const QSet<QString> links = foundIn(manual, R"(\]\(#([^)]*)\))");
    QVERIFY(links.size() > 5);
    const QStringList dead = sorted(links - anchors);
    QVERIFY2(dead.isEmpty(), qPrintable(dead.join(QStringLiteral(" | "))));
}

// What is translated and a sentence. Commands end in dots, but aren't.
void ManualTest::namesEveryMessage_data()
{
    QTest::addColumn<QString>("message");
    QFile file(QStringLiteral(CMPED_SOURCE_DIR "/translations/cmp_ru.ts"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    const QRegularExpression sentence(QStringLiteral("[^.][.!?]$|\\n|^(Can't|Unable|The) "));
    QSet<QString> seen;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement() || xml.name() != QLatin1String("source"))
            continue;
        const QString text = xml.readElementText();
        if (!sentence.match(text).hasMatch() || seen.contains(text))
            continue;
        seen.insert(text);
        QTest::newRow(qPrintable(text.simplified())) << text;
    }
    QVERIFY(!xml.hasError());
    QVERIFY(seen.size() > 15);
}

// With anything in the place of names and numbers.
void ManualTest::namesEveryMessage()
{
    QFETCH(QString, message);
    QStringList parts = message.simplified().split(QRegularExpression(QStringLiteral("%\\d")));
    for (QString &part : parts)
        part = QRegularExpression::escape(part);
    const QRegularExpression told(parts.join(QStringLiteral("[^|]+?")));
    QVERIFY(told.match(manual.simplified()).hasMatch());
}

QTEST_MAIN(ManualTest)
#include "manual_test.moc"
