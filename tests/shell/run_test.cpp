// The whole program in a process of its own: its stages, its languages, and how it ends.
#include "tests/support/child_process.h"
#include "tests/support/tiny_game.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

namespace {

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

const QString untitled = "Untitled.e3c - Tiny Campaign Editor";

} // namespace

class RunTest : public QObject
{
    Q_OBJECT

private slots:
    void startsTheWindowAndEnds_data();
    void startsTheWindowAndEnds();
    void settingsAreWrittenWhenTheLoopEnds_data();
    void settingsAreWrittenWhenTheLoopEnds();
    void languageChoosesTranslationSplashAndCodec_data();
    void languageChoosesTranslationSplashAndCodec();
    void unknownCodecEndsTheProcess();
    void missingFileEndsTheProcess_data();
    void missingFileEndsTheProcess();
    void missingMaskEndsTheProcessWithoutAWord();
    void missingRegionPictureEndsTheProcess_data();
    void missingRegionPictureEndsTheProcess();
    void missingPreviewPictureEndsTheProcessWithoutAWord_data();
    void missingPreviewPictureEndsTheProcessWithoutAWord();
    void survivesTheLimitOnFileSizes();
    void namedFileIsOpenedBeforeTheWindowShows();
    void fileThatCantBeReadIsToldBeforeTheWindowShows();
    void secondTranslationIsInstalledBehindTheFirst();
    void missingTranslationShowsTheSourceTexts();
    void soundDriverThatFailsIsToldBeforeTheWindowShows_data();
    void soundDriverThatFailsIsToldBeforeTheWindowShows();
    void missingSoundLibraryEndsTheProcessWithoutAWord();

private:
    ChildResult start(const tiny::Game &game, const QStringList &arguments = {},
                      const QString &end = "exit", const QStringList &variable = {});
    static QStringList columns(const ChildResult &result, const QByteArray &kind);

    QTemporaryDir m_settings;
};

// `variable` is a name and a value for the program's environment.
ChildResult RunTest::start(const tiny::Game &game, const QStringList &arguments, const QString &end,
                           const QStringList &variable)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("CMPED_GAME_DIR", game.path());
    environment.insert("XDG_CONFIG_HOME", m_settings.path());
    environment.insert("XDG_DATA_HOME", m_settings.path());
    environment.insert("XDG_RUNTIME_DIR", m_settings.path());
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("RUN_PROBE_END", end);
    if (!variable.isEmpty())
        environment.insert(variable[0], variable[1]);
    return runChild(builtProgram("run_probe"), arguments, environment);
}

// The columns of the first line of a kind.
QStringList RunTest::columns(const ChildResult &result, const QByteArray &kind)
{
    const auto lines = result.output.split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(kind + '|'))
            return QString::fromUtf8(line).split('|').mid(1);
    }
    return {};
}

void RunTest::startsTheWindowAndEnds_data()
{
    QTest::addColumn<QString>("end");
    QTest::newRow("exit in the menu") << "exit";
    QTest::newRow("close button") << "close";
    QTest::newRow("a code of the event loop's own") << "code 3";
    QTest::newRow("SIGTERM") << QString::number(SIGTERM);
    QTest::newRow("SIGHUP") << QString::number(SIGHUP);
    QTest::newRow("SIGINT") << QString::number(SIGINT);
}

void RunTest::startsTheWindowAndEnds()
{
    QFETCH(QString, end);
    const tiny::Game game;
    const ChildResult result = start(game, {}, end);
    QVERIFY(result.started && result.exitedNormally);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(columns(result, "window"),
             QStringList({untitled, "File", "en hidden", "8", "0", "1", "1", "1"}));
    QVERIFY(columns(result, "box").isEmpty());
}

void RunTest::settingsAreWrittenWhenTheLoopEnds_data()
{
    startsTheWindowAndEnds_data();
}

void RunTest::settingsAreWrittenWhenTheLoopEnds()
{
    QFETCH(QString, end);
    const tiny::Game game("Language=0\r\n\r\n\r\nOther=a=b\r\n");
    QCOMPARE(start(game, {}, end).exitCode, 0);
    QCOMPARE(contents(game.filePath("Ravn_settings.ini")),
             QByteArray("[Global Settings]\r\n\r\nLanguage=0\r\nOther=ab\r\n\r\n\r\n"));
}

void RunTest::languageChoosesTranslationSplashAndCodec_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QString>("menu");
    QTest::addColumn<QString>("splash");
    QTest::addColumn<QString>("letter");
    // The English translation of this game calls the menu "Akte"; without one it is "File".
    const QString english = "Akte";
    const QString russian = QString::fromUtf8("Файл");
    const QString cyrillic = QString::fromUtf8("А");
    const QString latin = QString::fromUtf8("À");
    QTest::newRow("absent") << QByteArray() << english << "en hidden" << cyrillic;
    QTest::newRow("-1") << QByteArray("Language=-1\r\n") << english << "en hidden" << cyrillic;
    QTest::newRow("0") << QByteArray("Language=0\r\n") << english << "en hidden" << latin;
    QTest::newRow("1") << QByteArray("Language=1\r\n") << russian << "ru hidden" << cyrillic;
    QTest::newRow("2, no codec named")
        << QByteArray("Language=2\r\n") << english << "en hidden" << latin;
    QTest::newRow("2, a codec named")
        << QByteArray("Language=2\r\nRavn.dat Text Encoding=Windows-1251\r\n") << english
        << "en hidden" << cyrillic;
    QTest::newRow("5, a codec named")
        << QByteArray("Language=5\r\nRavn.dat Text Encoding=Windows-1251\r\n") << "File"
        << "en hidden" << cyrillic;
    QTest::newRow("5, an empty codec")
        << QByteArray("Language=5\r\nRavn.dat Text Encoding=\r\n") << "File"
        << "en hidden" << latin;
    QTest::newRow("1 does not look at the codec's name")
        << QByteArray("Language=1\r\nRavn.dat Text Encoding=nonsense\r\n") << russian << "ru hidden"
        << cyrillic;
}

void RunTest::languageChoosesTranslationSplashAndCodec()
{
    QFETCH(QByteArray, settings);
    QFETCH(QString, menu);
    QFETCH(QString, splash);
    QFETCH(QString, letter);
    const tiny::Game game(settings, "\xC0");
    QVERIFY(QFile::copy(builtProgram("Ravn_Data/cmp_ru.qm"), game.filePath("Ravn_Data/cmp_ru.qm")));
    QVERIFY(QFile::copy(builtProgram("other_english.qm"), game.filePath("Ravn_Data/cmp_en.qm")));
    const ChildResult result = start(game);
    QCOMPARE(result.exitCode, 0);
    const QStringList window = columns(result, "window");
    QCOMPARE(window.value(0), "Untitled.e3c - " + letter);
    QCOMPARE(window.value(1), menu);
    QCOMPARE(window.value(2), splash);
}

void RunTest::unknownCodecEndsTheProcess()
{
    const tiny::Game game("Language=2\r\nRavn.dat Text Encoding=nonsense\r\n");
    const ChildResult result = start(game);
    QVERIFY(result.exitedNormally);
    QCOMPARE(result.exitCode, 1);
    const QString text = "Error in Ravn_Settings.ini: field \"Ravn.dat Text Encoding\" is invalid.";
    QCOMPARE(columns(result, "box"), QStringList({"Error", text, "3", "1024", "0", "none"}));
    QVERIFY(columns(result, "window").isEmpty());
}

void RunTest::missingFileEndsTheProcess_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("splash");
    QTest::newRow("settings") << "Ravn_settings.ini"
                              << "Eldmark Campaign Editor cannot be launched because "
                                 "Ravn_settings.ini was not found. \\nRavn_settings.ini must be "
                                 "in Eldmark root folder."
                              << "none";
    QTest::newRow("table file") << "ravn.dat"
                                << "Campaign Editor cannot be launched because Ravn.dat was not "
                                   "found. \\nRavn.dat must be in Eldmark root folder."
                                << "none";
    QTest::newRow("archive") << "Data/E3bitmap.lod"
                             << "Can't find CRTRAITS.TXT file in lod file"
                             << "none";
}

void RunTest::missingFileEndsTheProcess()
{
    QFETCH(QString, file);
    QFETCH(QString, text);
    QFETCH(QString, splash);
    const tiny::Game game;
    const QByteArray settings = contents(game.filePath("Ravn_settings.ini"));
    QVERIFY(QFile::remove(game.filePath(file)));
    const ChildResult result = start(game);
    QVERIFY(result.exitedNormally);
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(columns(result, "box"), QStringList({"Error", text, "3", "1024", "0", splash}));
    QVERIFY(columns(result, "window").isEmpty());
    // Only the end of the event loop writes the settings.
    if (file != "Ravn_settings.ini")
        QCOMPARE(contents(game.filePath("Ravn_settings.ini")), settings);
}

void RunTest::missingMaskEndsTheProcessWithoutAWord()
{
    const tiny::Game game;
    const QString path = game.addCampaign("blind.e3c", tiny::campaign(7, {{}}));
    const ChildResult result = start(game, {path});
    QVERIFY(result.exitedNormally);
    QCOMPARE(result.exitCode, 1);
    QVERIFY(columns(result, "box").isEmpty());
    QVERIFY(columns(result, "window").isEmpty());
}

void RunTest::missingRegionPictureEndsTheProcess_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("in no archive")
        << tiny::campaign(6, {{}}) << "Can't find gone.pcx file in lod file";
    QTest::newRow("of a colour past the table")
        << tiny::campaign(3, {{}, {false, 8}}) << "Can't find  file in lod file";
}

void RunTest::missingRegionPictureEndsTheProcess()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    const tiny::Game game;
    const ChildResult result = start(game, {game.addCampaign("torn.e3c", bytes)});
    QVERIFY(result.exitedNormally);
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(columns(result, "box"), QStringList({"Error", text, "3", "1024", "0", "en visible"}));
    QVERIFY(columns(result, "window").isEmpty());
}

void RunTest::missingPreviewPictureEndsTheProcessWithoutAWord_data()
{
    QTest::addColumn<QString>("row");
    QTest::newRow("ready-made") << "3";
    QTest::newRow("computed") << "4";
}

void RunTest::missingPreviewPictureEndsTheProcessWithoutAWord()
{
    QFETCH(QString, row);
    const tiny::Game game;
    const ChildResult result = start(game, {}, "new " + row);
    QVERIFY(result.exitedNormally);
    QCOMPARE(result.exitCode, 1);
    QVERIFY(columns(result, "box").isEmpty());
    QCOMPARE(columns(result, "window").value(0), untitled);
}

void RunTest::survivesTheLimitOnFileSizes()
{
    const tiny::Game game;
    const ChildResult result = start(game, {}, QString::number(SIGXFSZ));
    QVERIFY(result.exitedNormally);
    QCOMPARE(result.exitCode, 0);
}

void RunTest::namedFileIsOpenedBeforeTheWindowShows()
{
    const tiny::Game game;
    const QString first = game.addCampaign("first.e3c", tiny::campaign(3, {{}, {}}));
    const QString second = game.addCampaign("second.e3c", tiny::campaign(3, {{}, {}}));
    const ChildResult result = start(game, {first, second});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(columns(result, "window").value(0), QString("first.e3c - Tiny Campaign Editor"));
}

void RunTest::fileThatCantBeReadIsToldBeforeTheWindowShows()
{
    const tiny::Game game;
    const QString gone = game.filePath("gone.e3c");
    const ChildResult result = start(game, {gone});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(columns(result, "box"),
             QStringList({"Error", "Cannot read file " + gone + ":\\nNo such file or directory.",
                          "2", "1024", "0", "en visible"}));
    QCOMPARE(columns(result, "window").value(0), untitled);
}

// Qt asks the translator installed last first, so a text that both files have is the second one's.
void RunTest::secondTranslationIsInstalledBehindTheFirst()
{
    const tiny::Game game("Language=1\r\n");
    QVERIFY(QFile::copy(builtProgram("Ravn_Data/cmp_ru.qm"), game.filePath("Ravn_Data/cmp_ru.qm")));
    QVERIFY(QFile::copy(builtProgram("other_english.qm"), game.filePath("Ravn_Data/qtbase_ru.qm")));
    const ChildResult result = start(game);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(columns(result, "window").value(1), QString("Akte"));
}

// Without its translations the editor shows its source texts.
void RunTest::missingTranslationShowsTheSourceTexts()
{
    const tiny::Game game("Language=1\r\n");
    const ChildResult result = start(game);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(columns(result, "window").value(1), QString("File"));
}

void RunTest::soundDriverThatFailsIsToldBeforeTheWindowShows_data()
{
    QTest::addColumn<QByteArray>("language");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("splash");
    QTest::newRow("English") << QByteArray("0") << "Error"
                             << "Failed to open the sound driver."
                             << "en visible";
    QTest::newRow("Russian") << QByteArray("1") << QString::fromUtf8("Ошибка")
                             << QString::fromUtf8("Не удалось открыть звуковой драйвер.")
                             << "ru visible";
}

void RunTest::soundDriverThatFailsIsToldBeforeTheWindowShows()
{
    QFETCH(QByteArray, language);
    QFETCH(QString, title);
    QFETCH(QString, text);
    QFETCH(QString, splash);
    const tiny::Game game("Language=" + language + "\r\n");
    QVERIFY(QFile::copy(builtProgram("Ravn_Data/cmp_ru.qm"), game.filePath("Ravn_Data/cmp_ru.qm")));
    const ChildResult result = start(game, {}, "exit", {"SDL_AUDIODRIVER", "nosuch"});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(columns(result, "box"), QStringList({title, text, "3", "1024", "0", splash}));
    QCOMPARE(result.output.count("box|"), 1);
    QCOMPARE(columns(result, "window").value(0), untitled);
}

// A file in the library's place that is no library is as good as none.
void RunTest::missingSoundLibraryEndsTheProcessWithoutAWord()
{
    const tiny::Game game;
    game.write("libSDL2_mixer-2.0.so.0", QByteArray(1000, 'x'));
    const ChildResult result = start(game, {}, "exit", {"LD_LIBRARY_PATH", game.path()});
    QVERIFY(result.exitedNormally);
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.output.isEmpty());
}

QTEST_GUILESS_MAIN(RunTest)
#include "run_test.moc"
