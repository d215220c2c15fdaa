// The window's title: which file it names, and how the system is told.
#include "tests/shell/window_fixture.h"

#include <QWindow>

namespace {

const QString title = "Tiny Campaign Editor";

} // namespace

class MainWindowTitleTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void titleMarksChangesOfNamedFilesOnly();
    void titleShowsTheWholeName_data();
    void titleShowsTheWholeName();

private:
    std::unique_ptr<WindowFixture> fixture;
    QString first;
};

void MainWindowTitleTest::initTestCase()
{
    fixture = std::make_unique<WindowFixture>();
}

void MainWindowTitleTest::init()
{
    fixture->reset();
    first = fixture->game.addCampaign("first.e3c", tiny::campaign(24, {{true, 1}, {false, 3}, {}}));
}

void MainWindowTitleTest::titleMarksChangesOfNamedFilesOnly()
{
    MainWindow window(nullptr);
    EditorData::info.modified = true;
    window.updateWindowTitle();
    QCOMPARE(window.windowTitle(), "Untitled.e3c - " + title);
    EditorData::info.modified = false;
    window.loadFile(first);
    QCOMPARE(window.windowTitle(), "first.e3c - " + title);
    EditorData::info.modified = true;
    window.updateWindowTitle();
    QCOMPARE(window.windowTitle(), "first.e3c* - " + title);
    window.resetWindowTitle();
    QCOMPARE(window.windowTitle(), "Untitled.e3c - " + title);
}

void MainWindowTitleTest::titleShowsTheWholeName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("Qt's place for a mark") << "a[*]b.e3c";
    QTest::newRow("two of them") << "a[*][*]b.e3c";
    QTest::newRow("two apart") << "[*]a[*].e3c";
    QTest::newRow("numbers of arguments") << "%1%2%3.e3c";
}

// As the system is told it, for windowTitle() is what Qt has yet to make that from.
void MainWindowTitleTest::titleShowsTheWholeName()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const QString path = folder.filePath(name);
    QVERIFY(QFile::copy(first, path));
    MainWindow window(nullptr);
    window.show();
    window.loadFile(path);
    QCOMPARE(window.windowHandle()->title(), name + " - " + title);
    EditorData::info.modified = true;
    window.updateWindowTitle();
    QCOMPARE(window.windowHandle()->title(), name + "* - " + title);
    EditorData::info.modified = false;
}

QTEST_MAIN(MainWindowTitleTest)
#include "main_window_title_test.moc"
