// The file of the game's settings: its dialect, how it is read and written, and its loading at the
// start.
#include "gamedata/game_dir.h"
#include "tests/gamedata/ini_folder.h"
#include "tests/gamedata/marking_translator.h"
#include "tests/support/processor_time.h"
#include "tests/support/report_recorder.h"

#include <QtTest>

#include <sys/stat.h>

class IniFileTest : public QObject, private IniFolder
{
    Q_OBJECT

private slots:
    void init() { reset(); }

    void readsTheDialect_data();
    void readsTheDialect();
    void readsTruncatedFilesAtEveryLength();
    void readReplacesTheTree();
    void readOfNoFileGivesAnEmptyTree();
    void writesTheNormalForm_data();
    void writesTheNormalForm();
    void textsOfSectionAndItem();
    void writeCreatesAMissingFile();
    void writeFailsWithoutAWord();
    void writeFollowsALinkAndKeepsTheMode();
    void leavesAFileAloneThatItCouldntRead();
    void takesFilesUpToTheLimit_data();
    void takesFilesUpToTheLimit();
    void readsAMillionNamesAtOnce_data();
    void readsAMillionNamesAtOnce();
    void holdsNoStreamAtRest();
    void loadEndsWithoutTheFile_data();
    void loadEndsWithoutTheFile();
    void loadSaysSoInTheWindowsLanguage();
    void loadReadsTheGamesFile();
};

void IniFileTest::readsTheDialect_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("shape");
    const auto row = [](const char *name, const QByteArray &bytes, const QByteArray &shape) {
        QTest::newRow(name) << bytes << shape;
    };
    row("empty file", "", "");
    row("both line ends", "[S]\r\na=1\r\nb=2\r\n", "S{a:1|b:2}");
    row("line feeds", "[S]\na=1\nb=2\n", "S{a:1|b:2}");
    row("carriage returns", "[S]\ra=1\rb=2\r", "S{a:1|b:2}");
    row("empty lines", "[S]\r\n\r\n\r\na=1\r\n\n\nb=2\r\n\r\n", "S{a:1|b:2}");
    row("no line end at the end", "[S]\na=1\nb=2", "S{a:1|b:2}");
    row("value missing at the end", "[S]\na=", "S{a:}");
    row("line without an equals sign", "[S]\nnote\nkey=1\n", "S{notekey:1}");
    row("two of them", "[S]\nab\n\ncd\nkey=1\nnext=2", "S{abcdkey:1|next:2}");
    row("last line without one", "[S]\na=1\nnote", "S{a:1}");
    row("no gluing over sections", "[S]\nnote\n[T]\na=1", "S{}T{a:1}");
    row("second equals sign", "[S]\nk=a=b\n", "S{k:ab}");
    row("empty key", "[S]\n=v\n", "S{:v}");
    row("blanks stay", "[ S ]\na = b \n", " S {a : b }");
    row("repeated section", "[S]\na=1\n[T]\nc=3\n[S]\nb=2\n", "S{b:2}T{c:3}");
    row("repeated section without items", "[S]\na=1\n[S]", "S{}");
    row("repeated item", "[S]\na=1\nb=2\na=3\n", "S{a:3|b:2}");
    row("text before sections", "x=1\n[S]\na=1\n", "S{a:1}");
    row("body before any section", "]x=1\n", "{x:1}");
    row("section never closed", "[S]\na=1\n[T\nb=2\n", "S{a:1}");
    row("bracket in a name", "[a[b]\nc=1", "ab{c:1}");
    row("closing bracket in a body", "[S]\na=1]2\nb]=3\n", "S{a:12|b:3}");
    row("bracket in a value", "[S]\na=1[x]2=3\n", "S{a:1}x{2:3}");
    row("no comments", "[S]\n;a=1\n#b=2 ; c\n", "S{;a:1|#b:2 ; c}");
    row("name of nothing", "[]\na=1", "{a:1}");
    row("name over lines", "[a\nb]\nc=1", "a\nb{c:1}");
    row("any bytes", QByteArray("[\xd1]\n\xff=\0\x80\n", 10), QByteArray("\xd1{\xff:\0\x80}", 7));
}

void IniFileTest::readsTheDialect()
{
    QFETCH(QByteArray, bytes);
    store(bytes);
    _Ini_ read = settings();
    read.Read();
    const QByteArray shape = shapeOf(read);
    QTEST(shape, "shape");
}

void IniFileTest::readsTruncatedFilesAtEveryLength()
{
    const QByteArray bytes("[S]\r\na=1\r\n[T]\r\nlong=value");
    const QByteArray shapes[] = {"", "", "", "S{}", "S{}", "S{}", "S{}", "S{a:}", "S{a:1}"};
    for (int size = 0; size <= bytes.size(); ++size) {
        store(bytes.left(size));
        _Ini_ read = settings();
        read.Read();
        if (size < 9)
            QCOMPARE(shapeOf(read), shapes[size]);
        else
            QVERIFY(shapeOf(read).startsWith("S{a:1}"));
        QCOMPARE(read.sections.size(), size < 3 ? 0U : size < 13 ? 1U : 2U);
    }
}

void IniFileTest::readReplacesTheTree()
{
    store("[S]\na=1\n");
    _Ini_ read = settings();
    read.SetStringVal("Old", "old", "1");
    read.Read();
    QCOMPARE(shapeOf(read), QByteArray("S{a:1}"));
}

void IniFileTest::readOfNoFileGivesAnEmptyTree()
{
    _Ini_ read = settings();
    read.SetStringVal("Old", "old", "1");
    read.Read();
    QVERIFY(read.sections.empty());
}

void IniFileTest::writesTheNormalForm_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("nothing") << QByteArray("note\n") << QByteArray();
    QTest::newRow("one section") << QByteArray("[S]\na=1\n\n\nb = 2")
                                 << QByteArray("[S]\r\n\r\na=1\r\nb = 2\r\n\r\n\r\n");
    QTest::newRow("two sections") << QByteArray("[S]a=1\n[T]")
                                  << QByteArray("[S]\r\n\r\na=1\r\n\r\n\r\n[T]\r\n\r\n\r\n\r\n");
    QTest::newRow("comments") << QByteArray("; head\n[S]\n; note\na=1 ; why\n")
                              << QByteArray("[S]\r\n\r\n; notea=1 ; why\r\n\r\n\r\n");
    QTest::newRow("normal form") << QByteArray("[S]\r\n\r\na=1\r\n\r\n\r\n")
                                 << QByteArray("[S]\r\n\r\na=1\r\n\r\n\r\n");
}

void IniFileTest::writesTheNormalForm()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    store(before);
    _Ini_ read = settings();
    read.Read();
    QCOMPARE(QByteArray::fromStdString(read.CreateStr()), after);
    read.Write();
    QCOMPARE(stored(), after);
}

void IniFileTest::textsOfSectionAndItem()
{
    _Ini_ tree = settings();
    _IniSection_ *section = tree.NewSection("Campaign Editor");
    _IniItem_ *item = section->NewItem("Path");
    QCOMPARE(item->StringVal(), std::string());
    QCOMPARE(item->CreateStr(), std::string("Path=\r\n"));
    item->SetStringVal("C:\\Maps");
    QCOMPARE(item->GetKey(), std::string("Path"));
    QCOMPARE(item->StringVal(), std::string("C:\\Maps"));
    QCOMPARE(section->CreateStr(), std::string("[Campaign Editor]\r\n\r\nPath=C:\\Maps\r\n"));
    QCOMPARE(QByteArray(Ini_Version), QByteArray("0.0.0.0"));
}

void IniFileTest::writeCreatesAMissingFile()
{
    _Ini_ tree = settings();
    tree.Read();
    tree.SetStringVal("S", "a", "1");
    tree.Write();
    QCOMPARE(stored(), QByteArray("[S]\r\n\r\na=1\r\n\r\n\r\n"));
}

void IniFileTest::writeFailsWithoutAWord()
{
    const ReportRecorder recorder;
    _Ini_ tree(m_dir->filePath(QStringLiteral("no/such/folder.ini")).toStdWString());
    tree.Write();
    _Ini_ folder(m_dir->path().toStdWString());
    folder.Write();
    QVERIFY(recorder.errors.isEmpty());
    QVERIFY(QFileInfo(m_dir->path()).isDir());
    QVERIFY(QDir(m_dir->path()).isEmpty());
}

void IniFileTest::writeFollowsALinkAndKeepsTheMode()
{
    const QString real = m_dir->filePath(QStringLiteral("real.ini"));
    store("[S]\na=1\n");
    QVERIFY(QFile::rename(path(), real));
    QVERIFY(QFile::link(QStringLiteral("real.ini"), path()));
    QCOMPARE(chmod(QFile::encodeName(real).constData(), 0640), 0);
    _Ini_ tree = settings();
    tree.Read();
    tree.Write();
    QVERIFY(QFileInfo(path()).isSymLink());
    QCOMPARE(stored(), QByteArray("[S]\r\n\r\na=1\r\n\r\n\r\n"));
    struct stat status = {};
    QCOMPARE(stat(QFile::encodeName(real).constData(), &status), 0);
    QCOMPARE(status.st_mode & 07777, 0640U);
}

void IniFileTest::leavesAFileAloneThatItCouldntRead()
{
    const QByteArray large = "[S]\na=1\n" + QByteArray(4 * 1024 * 1024, ' ');
    store(large);
    _Ini_ tree = settings();
    tree.Read();
    QVERIFY(tree.sections.empty());
    tree.SetStringVal("Campaign Editor", "Path", "/home");
    tree.Write();
    QCOMPARE(stored().size(), large.size());
    store("[S]\na=1\n");
    tree.Read();
    tree.Write();
    QCOMPARE(stored(), QByteArray("[S]\r\n\r\na=1\r\n\r\n\r\n"));
}

void IniFileTest::takesFilesUpToTheLimit_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("taken");
    QTest::newRow("at the limit") << 4194304 << true;
    QTest::newRow("past it") << 4194305 << false;
}

void IniFileTest::takesFilesUpToTheLimit()
{
    QFETCH(int, size);
    QFETCH(bool, taken);
    store("[S]\na=1\n" + QByteArray(size - 8, '\n'));
    _Ini_ tree = settings();
    tree.Read();
    QCOMPARE(shapeOf(tree), QByteArray(taken ? "S{a:1}" : ""));
}

void IniFileTest::readsAMillionNamesAtOnce_data()
{
    QTest::addColumn<bool>("sections");
    QTest::newRow("sections") << true;
    QTest::newRow("items") << false;
}

void IniFileTest::readsAMillionNamesAtOnce()
{
    QFETCH(bool, sections);
    QByteArray bytes(sections ? "" : "[S]\n");
    int count = 0;
    for (; bytes.size() < 4190000; ++count)
        bytes +=
            sections ? "[" + QByteArray::number(count) + "]" : QByteArray::number(count) + "=\n";
    store(bytes);
    _Ini_ tree = settings();
    const ProcessorTime time;
    tree.Read();
    QVERIFY(time.milliseconds() < unhurriedMilliseconds); // a walk for each name takes hours
    QCOMPARE(sections ? tree.sections.size() : tree.sections.front()->items.size(),
             std::size_t(count));
}

void IniFileTest::holdsNoStreamAtRest()
{
    store("[S]\na=1\n");
    _Ini_ tree = settings();
    QVERIFY(!tree.stream);
    QCOMPARE(tree.fileName, path().toStdWString());
    tree.Read();
    QVERIFY(!tree.stream);
    tree.Write();
    QVERIFY(!tree.stream);
}

void IniFileTest::loadEndsWithoutTheFile_data()
{
    QTest::addColumn<bool>("folder");
    QTest::newRow("missing") << false;
    QTest::newRow("a folder") << true;
}

void IniFileTest::loadEndsWithoutTheFile()
{
    QFETCH(bool, folder);
    setGameRoot(m_dir->path());
    if (folder)
        QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("Ravn_settings.ini")));
    const ReportRecorder recorder;
    QCOMPARE(exitCodeOf([] { loadRavnIni(); }), 1);
    QCOMPARE(recorder.errors.size(), 1);
    QCOMPARE(recorder.errors[0].title, QStringLiteral("Error"));
    QCOMPARE(recorder.errors[0].text,
             QStringLiteral("Eldmark Campaign Editor cannot be launched because Ravn_settings.ini "
                            "was not found. \nRavn_settings.ini must be in Eldmark root folder."));
}

void IniFileTest::loadSaysSoInTheWindowsLanguage()
{
    setGameRoot(m_dir->path());
    const MarkingTranslator translator;
    const ReportRecorder recorder;
    QCOMPARE(exitCodeOf([] { loadRavnIni(); }), 1);
    QCOMPARE(recorder.errors.size(), 1);
    QCOMPARE(recorder.errors[0].title, QStringLiteral("MainWindow: Error"));
    QCOMPARE(recorder.errors[0].text,
             QStringLiteral("MainWindow: Eldmark Campaign Editor cannot be launched because "
                            "Ravn_settings.ini was not found. \nRavn_settings.ini must be in "
                            "Eldmark root folder."));
}

void IniFileTest::loadReadsTheGamesFile()
{
    setGameRoot(m_dir->path());
    store("[Global Settings]\nLanguage=2 (en)\nRavn.dat Text Encoding=Windows-1250\n");
    const std::unique_ptr<_Ini_> loaded(loadRavnIni());
    QCOMPARE(loaded->fileName, path().toStdWString());
    QCOMPARE(loaded->GetIntVal("Global Settings", "Language", -1), 2);
    QCOMPARE(loaded->GetStringVal("Global Settings", "Ravn.dat Text Encoding", ""), "Windows-1250");
    QVERIFY(!ini); // the start-up decides what the global one is
}

QTEST_GUILESS_MAIN(IniFileTest)
#include "ini_file_test.moc"
