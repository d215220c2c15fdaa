// Names of files are bytes. Those that are no UTF-8 are kept, byte for byte, from wherever they
// come; what can't be kept is refused, and no file of another name is read or written.
#include "gamedata/escaped_utf8.h"
#include "gamedata/file_name.h"
#include "gamedata/locale_codec.h"
#include "tests/shell/exchange_window.h"
#include "tests/strangers/hostile_names.h"
#include "tests/support/child_process.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QProcess>
#include <QRegularExpression>
#include <QTextCodec>

#include <csignal>
#include <filesystem>
#include <set>

namespace fs = std::filesystem;

class ByteNamesTest : public QObject, private ExchangeWindow
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { window.reset(); }

    void namesComeBack_data();
    void namesComeBack();
    void windowOpensAndSaves();
    void saveDialogWrites();
    void openDialogTakesWhatIsTyped();
    void drop_data();
    void drop();
    void commandReadsAndWrites_data();
    void commandReadsAndWrites();
    void launcherRemembers();
    void nameTheEncodingLacksIsRefused();
    void commandRefusesANameTheEncodingLacks();

private:
    std::set<std::string> filesIn(const QString &name) const;
    std::string bytePath() const { return QFile::encodeName(path(strange)).toStdString(); }
    ChildResult cli(const QStringList &words) const;

    const QString strange = "Ash" + hostile::strayByte() + "en.e3c";
};

namespace {

constexpr char strangeBytes[] = "Ash\xff"
                                "en.e3c";

QStringList recentFiles()
{
    return QSettings("cmped_info", "").value("recentFileList").toStringList();
}

} // namespace

void ByteNamesTest::init()
{
    QVERIFY(setLocaleCodec("UTF-8"));
    reset();
}

std::set<std::string> ByteNamesTest::filesIn(const QString &name) const
{
    std::set<std::string> names;
    for (const auto &entry : fs::directory_iterator(QFile::encodeName(path(name)).toStdString()))
        names.insert(entry.path().filename().native());
    return names;
}

ChildResult ByteNamesTest::cli(const QStringList &words) const
{
    return runChild(builtProgram("cmped-cli"), QStringList{"--game", fixture.game.path()} + words);
}

void ByteNamesTest::namesComeBack_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("ASCII") << QByteArray("home.e3c");
    QTest::newRow("letters") << QByteArray("\xd0\x96\xe2\x82\xac\xf0\x9f\x98\x80");
    QTest::newRow("a stray byte") << QByteArray("a\xff");
    QTest::newRow("a character torn off") << QByteArray("a\xd0");
    QTest::newRow("a code page's name") << QByteArray("\xcf\xf3\xf2\xfc.e3c");
    QTest::newRow("a surrogate") << QByteArray("a\xed\xb3\xbf");
    QTest::newRow("too long a form") << QByteArray("a\xc0\xaf");
    QTest::newRow("a byte order mark") << QByteArray("\xef\xbb\xbfhome.e3c");
    QTest::newRow("a replacement character") << QByteArray("a\xef\xbf\xbd");
}

void ByteNamesTest::namesComeBack()
{
    QFETCH(QByteArray, bytes);
    const QString name = QFile::decodeName(bytes);
    QCOMPARE(QFile::encodeName(name), bytes);
    QVERIFY(namesOneFile(name));
    // The system would be told what stands before the zero.
    QVERIFY(!namesOneFile(name + QChar(QChar::Null) + name));
}

void ByteNamesTest::windowOpensAndSaves()
{
    fs::copy(QFile::encodeName(path("home.e3c")).toStdString(), bytePath());
    window->loadFile(path(strange));
    QCOMPARE(recentFiles(), QStringList{path(strange)});
    fs::remove(bytePath());
    trigger("actionSave");
    const std::set<std::string> expected{"home.e3c", strangeBytes};
    QVERIFY(filesIn("") == expected);
    QAction *recent = nullptr;
    for (QAction *action : window->findChildren<QAction *>()) {
        if (action->isVisible() && action->text().startsWith("&1 "))
            recent = action;
    }
    QVERIFY(recent);
    window->loadFile(path("home.e3c"));
    recent = nullptr;
    for (QAction *action : window->findChildren<QAction *>()) {
        if (action->isVisible() && action->text().startsWith("&2 "))
            recent = action;
    }
    QVERIFY(recent);
    recent->trigger();
    QCOMPARE(window->windowTitle(), strange + " - " + appTitle);
}

void ByteNamesTest::saveDialogWrites()
{
    const QString inner = "in" + hostile::strayByte();
    QVERIFY(QDir(folder->path()).mkdir(inner));
    load();
    const QByteArray remembered = utf8FromText(path(inner));
    ini->SetStringVal("Campaign Editor", "Path", remembered.constData());
    NextDialog choice(chooseFile("Save As", path(inner), "home", strange));
    trigger("actionSave_As");
    QVERIFY(filesIn(inner) == std::set<std::string>{strangeBytes});
    QCOMPARE(usedFolderBytes(), remembered);
}

void ByteNamesTest::openDialogTakesWhatIsTyped()
{
    fs::rename(QFile::encodeName(path("home.e3c")).toStdString(), bytePath());
    ini->SetStringVal("Campaign Editor", "Path", folder->path().toUtf8().constData());
    NextDialog choice(chooseFile("Open Map File", folder->path(), "", strange));
    trigger("actionOpen");
    QCOMPARE(window->windowTitle(), strange + " - " + appTitle);
}

void ByteNamesTest::drop_data()
{
    QTest::addColumn<QByteArray>("name");    // on the disk
    QTest::addColumn<QByteArray>("address"); // as file managers write it
    QTest::newRow("no UTF-8") << QByteArray(strangeBytes) << QByteArray("Ash%FFen.e3c");
    QTest::newRow("percent") << QByteArray("100%FF.e3c") << QByteArray("100%25FF.e3c");
    QTest::newRow("letters") << QByteArray("\xd0\x96 x.e3c") << QByteArray("%D0%96%20x.e3c");
    QTest::newRow("question and hash") << QByteArray("a?b#c.e3c") << QByteArray("a%3Fb%23c.e3c");
}

void ByteNamesTest::drop()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, address);
    const QString target = path(QFile::decodeName(name));
    fs::rename(QFile::encodeName(path("home.e3c")).toStdString(),
               QFile::encodeName(target).toStdString());
    QMimeData data;
    data.setUrls({QUrl::fromEncoded("file://" + QFile::encodeName(folder->path()) + '/' + address,
                                    QUrl::StrictMode)});
    QVERIFY(show(*window));
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(window.get(), &enter);
    QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(window.get(), &event);
    QCOMPARE(recentFiles(), QStringList{target});
}

void ByteNamesTest::commandReadsAndWrites_data()
{
    QTest::addColumn<QStringList>("words"); // "IN", "OUT" and "DIR" stand for paths
    QTest::addColumn<bool>("writes");
    QTest::newRow("dump") << QStringList{"dump", "IN"} << false;
    QTest::newRow("resave") << QStringList{"resave", "IN", "OUT"} << true;
    QTest::newRow("export-texts") << QStringList{"export-texts", "IN", "OUT"} << true;
    QTest::newRow("import-texts") << QStringList{"import-texts", "IN", "TEXTS", "OUT"} << true;
    QTest::newRow("export-maps") << QStringList{"export-maps", "IN", "DIR"} << false;
    QTest::newRow("refresh-maps") << QStringList{"refresh-maps", "IN", "DIR", "OUT"} << true;
    QTest::newRow("render") << QStringList{"render", "IN", "OUT"} << true;
    QTest::newRow("region") << QStringList{"region", "3", "0", "0", "1", "OUT"} << true;
    QTest::newRow("extract") << QStringList{"extract", "plainone.pcx", "OUT"} << true;
    QTest::newRow("list") << QStringList{"list"} << false;
    QTest::newRow("tables") << QStringList{"tables"} << false;
}

void ByteNamesTest::commandReadsAndWrites()
{
    QFETCH(QStringList, words);
    QFETCH(bool, writes);
    const QString stray = hostile::strayByte();
    QVERIFY(QDir(folder->path()).mkdir("dir" + stray));
    fs::rename(QFile::encodeName(path("home.e3c")).toStdString(), bytePath());
    const QStringList exportWords{"export-texts", path(strange), path("texts" + stray)};
    QCOMPARE(cli(exportWords).exitCode, 0);
    QCOMPARE(cli({"export-maps", path(strange), path("dir" + stray)}).exitCode, 0);
    const std::set<std::string> before = filesIn("");
    words.replaceInStrings(QRegularExpression("^IN$"), path(strange));
    words.replaceInStrings(QRegularExpression("^OUT$"), path("out" + stray + ".png"));
    words.replaceInStrings(QRegularExpression("^DIR$"), path("dir" + stray));
    words.replaceInStrings(QRegularExpression("^TEXTS$"), path("texts" + stray));
    const ChildResult result = cli(words);
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    std::set<std::string> expected = before;
    if (writes)
        expected.insert("out\xff.png");
    QVERIFY(filesIn("") == expected);
    const std::set<std::string> maps{"one.e3m", "three.e3m"};
    QVERIFY(filesIn("dir" + stray) == maps);
}

void ByteNamesTest::launcherRemembers()
{
    fs::rename(QFile::encodeName(path("home.e3c")).toStdString(), bytePath());
    const QTemporaryDir settings;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("CMPED_GAME_DIR", fixture.game.path());
    environment.insert("XDG_CONFIG_HOME", settings.path());
    QProcess editor;
    editor.setProcessEnvironment(environment);
    editor.setWorkingDirectory(folder->path());
    editor.start(builtProgram("cmped"), {strange});
    QVERIFY(editor.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(catches(editor.processId(), SIGTERM), 60000);
    editor.terminate();
    QVERIFY(editor.waitForFinished(60000));
    const QSettings recent(settings.filePath("cmped_info.conf"), QSettings::NativeFormat);
    QCOMPARE(recent.value("recentFileList").toStringList(), QStringList{path(strange)});
}

// In Windows-1252 the first of these would become "?.e3c".
void ByteNamesTest::nameTheEncodingLacksIsRefused()
{
    const QString russian = QString::fromUtf8("\u0416.e3c");
    writeFile("?.e3c", contents(path("home.e3c")));
    load();
    QVERIFY(setLocaleCodec("Windows-1252"));
    const QString reason = QString::fromLocal8Bit(strerror(EILSEQ));
    {
        NextDialog box(
            boxAnswer(warning("Cannot write file " + path(russian) + ":\n" + reason + ".")));
        QVERIFY(!window->saveFile(path(russian)));
    }
    NextDialog box(boxAnswer(warning("Cannot read file " + path(russian) + ":\n" + reason + ".")));
    window->loadFile(path(russian));
    QCOMPARE(window->windowTitle(), "home.e3c - " + appTitle);
    const std::set<std::string> expected{"home.e3c", "?.e3c"};
    QVERIFY(filesIn("") == expected);
}

// A byte that means nothing in the encoding is none that Qt could give back.
void ByteNamesTest::commandRefusesANameTheEncodingLacks()
{
    fs::rename(QFile::encodeName(path("home.e3c")).toStdString(), bytePath());
    const ChildResult result =
        cli({"--encoding", "US-ASCII", "resave", path(strange), path("out.e3c")});
    QVERIFY(result.exitCode != 0);
    QVERIFY(!result.error.isEmpty());
    QVERIFY(filesIn("") == std::set<std::string>{strangeBytes});
}

QTEST_MAIN(ByteNamesTest)
#include "byte_names_test.moc"
