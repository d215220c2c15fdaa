// A pipe in the place of a file: nobody may wait at it.
#include "tests/shell/exchange_window.h"
#include "tests/support/child_process.h"
#include "tests/support/idle_pipe.h"

#include <QTranslator>

class MainWindowPipesTest : public QObject, private ExchangeWindow
{
    Q_OBJECT

private slots:
    void init() { reset(); }
    void cleanup() { window.reset(); }

    void isNoCampaign();
    void isNoFileOfTexts();
    void isNoMap();
    void isToldInRussian();
};

namespace {

ExpectedBox refusal(const QString &name)
{
    return warning("Cannot read file " + name + ":\nNot a regular file.");
}

} // namespace

void MainWindowPipesTest::isNoCampaign()
{
    load();
    const IdlePipe pipe(path("pipe.e3c"));
    QVERIFY(pipe.isMade());
    NextDialog box(withoutHourglass(refusal(path("pipe.e3c"))));
    window->loadFile(path("pipe.e3c"));
    QVERIFY(!pipe.wasOpened());
    QCOMPARE(window->windowTitle(), "home.e3c - " + appTitle);
}

void MainWindowPipesTest::isNoFileOfTexts()
{
    load();
    const IdlePipe pipe(path("pipe.txt"));
    QVERIFY(pipe.isMade());
    ini->SetStringVal("Campaign Editor", "Path", folder->path().toUtf8().constData());
    NextDialog choice(chooseFile(
        {"Open", folder->path(), "", {"Text files (*.txt)", "All Files (*)"}}, path("pipe.txt")));
    NextDialog box(boxAnswer(refusal(path("pipe.txt"))));
    trigger("actionImport_Texts");
    QVERIFY(!pipe.wasOpened());
    QVERIFY(!EditorData::info.modified);
}

void MainWindowPipesTest::isNoMap()
{
    load();
    const IdlePipe pipe(path("one.e3m"));
    QVERIFY(pipe.isMade());
    NextDialog box(withoutHourglass(refusal("one.e3m")));
    trigger("actionRefresh_Scenario_Maps");
    QVERIFY(!pipe.wasOpened());
    QVERIFY(!EditorData::info.modified);
    QVERIFY(savedByTheWindow().scenarios[0].compressedMap == mapNamed("Ironmoors"));
}

void MainWindowPipesTest::isToldInRussian()
{
    QTranslator russian;
    QVERIFY(russian.load(builtProgram("Ravn_Data/cmp_ru.qm")));
    const IdlePipe pipe(path("pipe.e3c"));
    QVERIFY(pipe.isMade());
    load();
    QCoreApplication::installTranslator(&russian);
    const QString why = QString::fromUtf8(":\nЭто не обычный файл.");
    for (const char *told : {"Не удаётся прочитать файл ", "Не удаётся записать файл "}) {
        const QString text = QString::fromUtf8(told) + path("pipe.e3c") + why;
        NextDialog box(withoutHourglass({QString::fromUtf8("Ошибка"), text, QMessageBox::Warning}));
        if (text.contains(QString::fromUtf8("прочитать")))
            window->loadFile(path("pipe.e3c"));
        else
            QVERIFY(!window->saveFile(path("pipe.e3c")));
    }
}

QTEST_MAIN(MainWindowPipesTest)
#include "main_window_pipes_test.moc"
