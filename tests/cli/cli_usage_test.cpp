// The command line itself: options, exit status, and what is said about wrong words and missing
// game files.
#include "tests/cli/cli_game.h"

#include <QFile>
#include <QtTest>

class CliUsageTest : public QObject
{
    Q_OBJECT

private slots:
    void wrongWordsEndWithStatusOne_data();
    void wrongWordsEndWithStatusOne();
    void helpNamesEveryCommand();
    void helpFitsAScreen_data();
    void helpFitsAScreen();
    void versionIsPrinted();
    void missingGameFileEndsWithStatusTwo_data();
    void missingGameFileEndsWithStatusTwo();
    void unknownGameEncodingEndsWithStatusTwo();
    void gameFolderComesFromEnvironment();
    void behindTwoDashesThereAreOnlyArguments();

private:
    CliGame m_game;
};

namespace {

QString program()
{
    return builtProgram(QStringLiteral("cmped-cli"));
}

constexpr int screenLines = 24;
constexpr int screenColumns = 80;

// The first words of the indented lines, up to the options.
QStringList commandsInHelp()
{
    QStringList commands;
    const ChildResult result = runChild(program(), {QStringLiteral("--help")});
    for (const QByteArray &line : result.output.split('\n')) {
        if (line.startsWith("  --"))
            break;
        if (line.startsWith("  "))
            commands << QString::fromUtf8(line.trimmed().split(' ').first());
    }
    return commands;
}

const char tryHelp[] = "\nTry \"cmped-cli --help\".\n";

} // namespace

void CliUsageTest::wrongWordsEndWithStatusOne_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QByteArray>("message");
    const auto row = [](const char *words, const char *message) {
        QTest::newRow(words) << QString::fromLatin1(words).split(' ', Qt::SkipEmptyParts)
                             << QByteArray(message);
    };
    row("", "A command is missing.");
    row("melt x", "There is no command \"melt\".");
    row("--colour", "Unknown option 'colour'.");
    row("--game", "Missing value after '--game'.");
    row("--encoding Klingon-8 list", "The encoding \"Klingon-8\" is unknown or can't name files.");
    row("--encoding UTF-16LE list", "The encoding \"UTF-16LE\" is unknown or can't name files.");
    row("dump", "Usage: cmped-cli [options] dump FILE");
    row("dump a b", "Usage: cmped-cli [options] dump FILE");
    row("resave a", "Usage: cmped-cli [options] resave FILE OUT");
    row("export-texts a", "Usage: cmped-cli [options] export-texts [--format NAME] FILE OUT");
    row("import-texts a b",
        "Usage: cmped-cli [options] import-texts [--format NAME] [--force] FILE TEXTS OUT");
    row("export-maps a", "Usage: cmped-cli [options] export-maps FILE DIR");
    row("refresh-maps a b", "Usage: cmped-cli [options] refresh-maps FILE DIR OUT");
    row("render a", "Usage: cmped-cli [options] render [--size N] FILE OUT.png");
    row("tables a", "Usage: cmped-cli [options] tables");
    row("list a", "Usage: cmped-cli [options] list");
    row("extract a", "Usage: cmped-cli [options] extract NAME OUT");
    row("region 0 0 0 0", "Usage: cmped-cli [options] region MAP REGION STATE COLOUR OUT.png");
    row("check", "Usage: cmped-cli [options] check FILE...");
    row("dump --colour a", "Unknown option 'colour'.");
    row("dump a --help=all", "Unknown option 'help'.");
    row("dump -- --help b", "Usage: cmped-cli [options] dump FILE");
    row("region x 0 0 0 o.png", "\"x\" is not a number.");
    row("region 0 -1 0 0 o.png", "\"-1\" is not a number.");
    row("region 0 0 4294967296 0 o.png", "\"4294967296\" is not a number.");
    row("region 0 0 0 1.5 o.png", "\"1.5\" is not a number.");
    row("region 1 0 0 0 o.png", "There is no campaign map 1.");
    row("region 4294967295 0 0 0 o.png", "There is no campaign map 4294967295.");
    row("region 24 3 0 0 o.png", "Campaign map 24 has no region 3.");
    row("region 5 0 0 0 o.png", "Campaign map 5 has no region 0.");
    row("region 24 2 3 0 o.png", "The state goes from 0 to 2, 3 is none.");
    row("region 24 2 2 8 o.png", "Colours go from 0 to 7, 8 is none.");
}

void CliUsageTest::wrongWordsEndWithStatusOne()
{
    QFETCH(QStringList, words);
    QFETCH(QByteArray, message);
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("CMPED_GAME_DIR"), m_game.path());
    const ChildResult result = runChild(program(), words, environment);
    QVERIFY(result.exitedNormally);
    QCOMPARE(result.error, message + tryHelp);
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.output, QByteArray());
}

void CliUsageTest::helpNamesEveryCommand()
{
    const ChildResult result = runChild(program(), {QStringLiteral("--help")});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.error, QByteArray());
    for (const char *line :
         {"Usage: cmped-cli [options] COMMAND", "\n  dump FILE ", "\n  resave FILE OUT ",
          "\n  check FILE... ", "\n  export-texts FILE OUT ", "\n  import-texts FILE TEXTS OUT ",
          "\n  export-maps FILE DIR ", "\n  refresh-maps FILE DIR OUT ", "\n  render FILE OUT.png ",
          "\n  tables ", "\n  list ", "\n  extract NAME OUT ",
          "\n  region MAP REGION STATE COLOUR OUT.png ", "\n  --game DIR ", "\n  --encoding NAME ",
          "\n  --help ", "\n  --version "})
        QVERIFY2(result.output.contains(line), line);
}

void CliUsageTest::helpFitsAScreen_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("words");
    QTest::newRow("cmped") << "cmped" << QStringList();
    QTest::newRow("cmped-cli") << "cmped-cli" << QStringList();
    for (const QString &command : commandsInHelp())
        QTest::newRow(qPrintable(command)) << "cmped-cli" << QStringList{command};
}

void CliUsageTest::helpFitsAScreen()
{
    QFETCH(QString, program);
    QFETCH(QStringList, words);
    const ChildResult result = runChild(builtProgram(program), words + QStringList{"--help"});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    QVERIFY2(result.output.startsWith("Usage: " + program.toUtf8() + " "), result.output);
    for (const QString &word : words)
        QVERIFY2(result.output.split('\n').first().contains(word.toUtf8()), result.output);
    const QList<QByteArray> lines = result.output.chopped(1).split('\n');
    QVERIFY2(lines.size() < screenLines, result.output); // the shell's own line follows
    for (const QByteArray &line : lines)
        QVERIFY2(line.size() <= screenColumns, line);
}

void CliUsageTest::versionIsPrinted()
{
    const ChildResult result = runChild(program(), {QStringLiteral("--version")});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, QByteArray("cmped-cli " CMPED_VERSION "\n"));
}

void CliUsageTest::missingGameFileEndsWithStatusTwo_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("settings")
        << "Ravn_settings.ini"
        << QByteArray("Error: Eldmark Campaign Editor cannot be launched because Ravn_settings.ini "
                      "was not found. \nRavn_settings.ini must be in Eldmark root folder.\n");
    QTest::newRow("table file")
        << "ravn.dat"
        << QByteArray("Error: Campaign Editor cannot be launched because Ravn.dat was not found. "
                      "\nRavn.dat must be in Eldmark root folder.\n");
    QTest::newRow("archives") << "Data/E3bitmap.lod"
                              << QByteArray("Error: Can't find CRTRAITS.TXT file in lod file\n");
}

void CliUsageTest::missingGameFileEndsWithStatusTwo()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, message);
    const CliGame game;
    QVERIFY(QFile::remove(game.filePath(file)));
    const ChildResult result = game.run({QStringLiteral("list")});
    QVERIFY(result.exitedNormally);
    QCOMPARE(result.error, message);
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.output, QByteArray());
}

void CliUsageTest::unknownGameEncodingEndsWithStatusTwo()
{
    const CliGame game;
    game.write(QStringLiteral("Ravn_settings.ini"),
               "[Global Settings]\r\nLanguage=2\r\nRavn.dat Text Encoding=Klingon-8\r\n");
    const ChildResult result = game.run({QStringLiteral("tables")});
    QCOMPARE(result.error, QByteArray("Error: Error in Ravn_Settings.ini: field \"Ravn.dat Text "
                                      "Encoding\" is invalid.\n"));
    QCOMPARE(result.exitCode, 2);
}

void CliUsageTest::gameFolderComesFromEnvironment()
{
    const CliGame game;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("CMPED_GAME_DIR"), game.path());
    const ChildResult found = runChild(program(), {QStringLiteral("list")}, environment);
    QCOMPARE(found.exitCode, 0);
    environment.insert(QStringLiteral("CMPED_GAME_DIR"), QStringLiteral("/nowhere"));
    const ChildResult lost = runChild(program(), {QStringLiteral("list")}, environment);
    QCOMPARE(lost.exitCode, 2);
    const ChildResult named = game.run({QStringLiteral("list")}, environment);
    QCOMPARE(named.output, found.output);
}

void CliUsageTest::behindTwoDashesThereAreOnlyArguments()
{
    const CliGame game;
    const ChildResult result =
        game.run({QStringLiteral("dump"), QStringLiteral("--"), QStringLiteral("--help")});
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.error,
             QByteArray("Error: Cannot read file --help:\nNo such file or directory.\n"));
}

QTEST_GUILESS_MAIN(CliUsageTest)
#include "cli_usage_test.moc"
