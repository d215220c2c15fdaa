// What stands around the programs: their manual pages, the shells' completion, and git, which shows
// the changes of campaigns.
#include "tests/cli/cli_game.h"
#include "tests/cli/home_campaign.h"
#include "tests/support/file_contents.h"

#include <QDir>
#include <QRegularExpression>
#include <QtTest>

#include <vector>

class CliSurroundingsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void completionOffers_data();
    void completionOffers();
    void everyEncodingOfferedIsTaken();
    void pagesAreSound_data();
    void pagesAreSound();
    void pagesTellOfEveryOption_data();
    void pagesTellOfEveryOption();
    void pageTellsOfEveryCommand();
    void pageTellsOfEveryExitStatus();
    void gitIsToldOfCampaignsTheSameWayEverywhere_data();
    void gitIsToldOfCampaignsTheSameWayEverywhere();
    void gitShowsTheChangedText();
    void translatorsPageNamesWhatIsTold();

private:
    void complete(const QString &shell);

    CliGame m_game;
    QTemporaryDir m_home;                  // of the user, with a link "other" to the game
    QTemporaryDir m_folder;                // with an empty file of each kind
    QHash<QString, QStringList> m_offered; // by the shell and the line
};

namespace {

const QString source = QStringLiteral(CMPED_SOURCE_DIR);
const QStringList shells{"bash", "zsh"};

// The first words of the indented lines of a program's help that begin like this, and of no others.
QStringList wordsOfHelp(const QString &program, const QStringList &words, const QString &pattern)
{
    const ChildResult result = runChild(builtProgram(program), words + QStringList{"--help"});
    QStringList found;
    auto matches =
        QRegularExpression("^  (" + pattern + ")(?: |$)", QRegularExpression::MultilineOption)
            .globalMatch(QString::fromUtf8(result.output).section("\n\nThe ", 0, 0));
    while (matches.hasNext())
        found << matches.next().captured(1);
    found.sort();
    return found;
}

const char optionPattern[] = "--[a-z]+";

QStringList commands()
{
    return wordsOfHelp("cmped-cli", {}, "[a-z][a-z-]*");
}

// What a line is completed to.
struct Completion
{
    QString line;
    QStringList words; // sorted, folders without their slashes
};

const QStringList encodings{
    "Big5",         "EUC-KR",       "GB18030",      "ISO-8859-1",   "ISO-8859-15", "ISO-8859-2",
    "ISO-8859-5",   "KOI8-R",       "KOI8-U",       "Shift_JIS",    "UTF-8",       "Windows-1250",
    "Windows-1251", "Windows-1252", "Windows-1253", "Windows-1254", "Windows-1257"};

// Commands and options are those that the programs' own help names.
std::vector<Completion> completions()
{
    static std::vector<Completion> list;
    if (!list.empty())
        return list;
    const auto add = [&](const QString &line, const QStringList &words) {
        list.push_back({line, words});
    };
    add("cmped-cli ", commands());
    add("cmped-cli --", wordsOfHelp("cmped-cli", {}, optionPattern));
    add("cmped --", wordsOfHelp("cmped", {}, optionPattern));
    for (const QString &command : commands()) {
        QStringList words =
            wordsOfHelp("cmped-cli", {command}, optionPattern) + QStringList{"--help"};
        words.sort();
        add("cmped-cli " + command + " --", words);
    }
    add("cmped --encoding ", encodings);
    add("cmped-cli --encoding ", encodings);
    add("cmped ", {"a.e3c", "sub"});
    add("cmped --game ", {"sub"});
    add("cmped-cli --encoding KOI8", {"KOI8-R", "KOI8-U"});
    add("cmped-cli --game ", {"sub"});
    add("cmped-cli export", {"export-maps", "export-texts"});
    add("cmped-cli --game /x --encoding UTF-8 refr", {"refresh-maps"});
    add("cmped-cli dump ", {"a.e3c", "sub"});
    add("cmped-cli resave a.e3c ", {"a.e3c", "sub"});
    add("cmped-cli check a.e3c ", {"a.e3c", "b.e3m", "sub"});
    add("cmped-cli export-texts --format ", {"csv", "po", "txt", "xliff"});
    add("cmped-cli export-texts a.e3c ", {"c.po", "d.xlf", "e.csv", "f.txt", "h.pot", "sub"});
    add("cmped-cli export-texts --format po a.e3c c", {"c.po"});
    add("cmped-cli import-texts a.e3c c.po ", {"a.e3c", "sub"});
    add("cmped-cli export-maps a.e3c ", {"sub"});
    add("cmped-cli refresh-maps a.e3c ", {"sub"});
    add("cmped-cli render --size 64 a.e3c ", {"g.png", "sub"});
    add("cmped-cli extract SS", {"SSTRAITS.txt"});
    add("cmped-cli --game ~/other extract back", {"backhome.pcx", "backlarge.pcx", "backtwo.pcx"});
    add("cmped-cli region 24 0 ", {"0", "1", "2"});
    add("cmped-cli region 24 0 1 ", {"0", "1", "2", "3", "4", "5", "6", "7"});
    return list;
}

// With the programs installed, but told of no game.
QProcessEnvironment withPrograms(const QString &home)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PATH", QFileInfo(builtProgram("cmped-cli")).path() + ":" +
                                   environment.value("PATH"));
    environment.insert("HOME", home);
    environment.remove("CMPED_GAME_DIR");
    return environment;
}

QString page(const QString &program)
{
    return source + "/docs/man/" + program + ".1";
}

QString pageText(const QString &program)
{
    return QString::fromUtf8(contents(page(program)));
}

// The two lines of configuration, whatever the game's folder is called in them.
QString configurationIn(const QString &text)
{
    static const QRegularExpression lines(
        "git config (diff.cmped.textconv \"cmped-cli --game )[^ ]+"
        "( dump\")\n[ $]*(echo .*\\.gitattributes)");
    const auto match = lines.match(text);
    return match.hasMatch() ? "git config " + match.captured(1) + "DIR" + match.captured(2) + "\n" +
                                  match.captured(3)
                            : QString();
}

} // namespace

void CliSurroundingsTest::initTestCase()
{
    for (const char *name : {"a.e3c", "b.e3m", "c.po", "d.xlf", "e.csv", "f.txt", "g.png", "h.pot"})
        samples::writeFile(m_folder.filePath(name), "");
    QVERIFY(QDir(m_folder.path()).mkdir("sub"));
    QVERIFY(QFile::link(m_game.path(), m_home.filePath("other")));
    for (const QString &shell : shells)
        complete(shell);
}

// Asks a shell for all lines at once: it takes its time to start.
void CliSurroundingsTest::complete(const QString &shell)
{
    QStringList words{"-c", "cd \"$0\"; exec \"$@\"", m_folder.path(), shell};
    words << (shell == "zsh" ? "-f" : "--norc") << source + "/tests/cli/complete." + shell
          << source + "/packaging/completions";
    for (const Completion &completion : completions())
        words << completion.line;
    auto environment = withPrograms(m_home.path());
    environment.insert("CMPED_GAME_DIR", m_game.path());
    const ChildResult result = runChild("/bin/bash", words, environment);
    QVERIFY2(result.exitCode == 0, result.error);
    static const QRegularExpression end("[/ =]$"); // behind folders and options
    QStringList *offered = nullptr;
    for (QString word : QString::fromUtf8(result.output).split('\n', Qt::SkipEmptyParts)) {
        if (word.startsWith("== "))
            offered = &m_offered[shell + ": " + word.mid(3)];
        else if (offered)
            *offered << word.remove(end);
    }
    for (QStringList &list : m_offered) {
        list.sort();
        list.removeDuplicates();
    }
}

void CliSurroundingsTest::completionOffers_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QStringList>("words");
    for (const QString &shell : shells) {
        for (const Completion &completion : completions()) {
            const QString line = shell + ": " + completion.line;
            QTest::newRow(qPrintable(line)) << line << completion.words;
        }
    }
}

void CliSurroundingsTest::completionOffers()
{
    QFETCH(QString, line);
    QFETCH(QStringList, words);
    QVERIFY(!words.isEmpty());
    QCOMPARE(m_offered.value(line).join(' '), words.join(' '));
}

void CliSurroundingsTest::everyEncodingOfferedIsTaken()
{
    for (const QString &encoding : encodings) {
        const ChildResult result =
            runChild(builtProgram("cmped-cli"),
                     {"--encoding", encoding, "check", m_folder.filePath("b.e3m")});
        QVERIFY2(result.exitCode == 3, qPrintable(encoding)); // the map is empty
    }
}

void CliSurroundingsTest::pagesAreSound_data()
{
    QTest::addColumn<QString>("program");
    QTest::newRow("cmped") << "cmped";
    QTest::newRow("cmped-cli") << "cmped-cli";
}

void CliSurroundingsTest::pagesAreSound()
{
    QFETCH(QString, program);
    const ChildResult lint =
        runChild("/usr/bin/mandoc", {"-T", "lint", "-W", "warning", page(program)});
    QCOMPARE(QString::fromUtf8(lint.output), QString());
    QCOMPARE(lint.exitCode, 0);
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("MANWIDTH", "80");
    const ChildResult man =
        runChild("/usr/bin/man", {"--warnings", "--local-file", page(program)}, environment);
    QCOMPARE(QString::fromUtf8(man.error), QString());
    QCOMPARE(man.exitCode, 0);
    for (const char *section : {"NAME", "SYNOPSIS", "DESCRIPTION", "OPTIONS", "ENVIRONMENT",
                                "FILES", "EXIT STATUS", "EXAMPLES", "SEE ALSO"})
        QVERIFY2(QString::fromUtf8(man.output).contains(QString("\n%1\n").arg(section)), section);
}

void CliSurroundingsTest::pagesTellOfEveryOption_data()
{
    pagesAreSound_data();
}

void CliSurroundingsTest::pagesTellOfEveryOption()
{
    QFETCH(QString, program);
    for (const QString &option : wordsOfHelp(program, {}, optionPattern)) {
        const QString item = ".It Fl " + option.mid(1); // the macro writes one dash
        QVERIFY2(QRegularExpression("^\\" + item + "( |$)", QRegularExpression::MultilineOption)
                     .match(pageText(program))
                     .hasMatch(),
                 qPrintable(option));
    }
}

void CliSurroundingsTest::pageTellsOfEveryCommand()
{
    QStringList told;
    static const QRegularExpression command("^\\.It Cm ([a-z-]+)(.*)$",
                                            QRegularExpression::MultilineOption);
    auto matches = command.globalMatch(pageText("cmped-cli"));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        told << match.captured(1);
        for (const QString &option : wordsOfHelp("cmped-cli", {match.captured(1)}, optionPattern))
            QVERIFY2(match.captured(2).contains("Fl " + option.mid(1) + " "), qPrintable(option));
    }
    told.sort();
    QCOMPARE(told, commands());
}

void CliSurroundingsTest::pageTellsOfEveryExitStatus()
{
    const QString text = pageText("cmped-cli").section(".Sh EXIT STATUS", 1);
    for (int status = 0; status <= 3; ++status)
        QVERIFY(text.contains(QString("\n.It %1\n").arg(status)));
}

void CliSurroundingsTest::gitIsToldOfCampaignsTheSameWayEverywhere_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("README") << QString::fromUtf8(contents(source + "/README.md"));
    QTest::newRow("manual page") << pageText("cmped-cli");
}

void CliSurroundingsTest::gitIsToldOfCampaignsTheSameWayEverywhere()
{
    QFETCH(QString, text);
    QVERIFY(!configurationIn(text).isEmpty());
    QCOMPARE(configurationIn(text), configurationIn(m_game.run({"dump", "--help"}).output));
}

// With the two lines of configuration that the program's help names.
void CliSurroundingsTest::gitShowsTheChangedText()
{
    const QTemporaryDir repository;
    samples::writeFile(repository.filePath("old"), homeCampaign());
    samples::writeFile(repository.filePath("new"), homeCampaign("Beware\nof bears"));
    const QString configuration = configurationIn(m_game.run({"dump", "--help"}).output);
    QVERIFY(!configuration.isEmpty());
    const QProcessEnvironment environment = withPrograms(repository.path());
    const QString script = "set -e; cd \"$0\"; git init -q .; " +
                           QString(configuration).replace("DIR", m_game.path()) +
                           "\nmv old a.e3c; git add a.e3c\n"
                           "mv new a.e3c; git --no-pager diff --no-color --unified=0 a.e3c";
    const ChildResult result =
        runChild("/bin/bash", {"-c", script, repository.path()}, environment);
    QVERIFY2(result.exitCode == 0, result.error);
    QStringList changes;
    for (const QString &line : QString::fromUtf8(result.output).split('\n')) {
        if (line.startsWith("- ") || line.startsWith("+ "))
            changes << line.simplified();
    }
    QCOMPARE(changes, QStringList({R"(- "regionText": "Beware\nof wolves",)",
                                   R"(+ "regionText": "Beware\nof bears",)"}));
}

void CliSurroundingsTest::translatorsPageNamesWhatIsTold()
{
    const QString page = QString::fromUtf8(contents(source + "/docs/for-translators.md"));
    const QString campaign = samples::writeFile(m_home.filePath("home.e3c"), homeCampaign());
    const QString texts =
        samples::writeFile(m_home.filePath("home.po"),
                           "msgctxt \"campaign.name\"\nmsgid \"Ember Road\"\nmsgstr \"\"\n"
                           "#, fuzzy\n"
                           "msgctxt \"campaign.description\"\nmsgid \"Three steps\"\nmsgstr \"D\"\n"
                           "msgctxt \"scenario.1.region.text\"\nmsgid \"Old\"\nmsgstr \"Alt\"\n"
                           "msgctxt \"scenario.9.prologue.1\"\nmsgid \"Gone\"\nmsgstr \"Weg\"\n");
    const ChildResult result =
        m_game.run({"import-texts", campaign, texts, m_home.filePath("out.e3c")});
    QCOMPARE(result.exitCode, 0);
    QStringList lines = QString::fromUtf8(result.error).split('\n', Qt::SkipEmptyParts);
    lines.removeLast(); // how many were taken
    QCOMPARE(lines.size(), 5);
    for (const QString &line : qAsConst(lines)) {
        const QString told = line.section(": ", 2);
        QVERIFY2(page.contains("\n| `" + told + "` |"), qPrintable(told));
    }
}

QTEST_GUILESS_MAIN(CliSurroundingsTest)
#include "cli_surroundings_test.moc"
