// The search for damage from the command line: which files, what is printed and how it ends.
#include "tests/cli/cli_game.h"
#include "tests/cli/home_campaign.h"

#include <QDir>
#include <QtTest>

class CliCheckTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void filesAreToldByLineAndStatus_data();
    void filesAreToldByLineAndStatus();
    void mapsNeedNoGame();
    void sampleFilesAreSoundButThoseMadeOtherwise();

private:
    CliGame m_game;
    QTemporaryDir m_folder;
};

namespace {

// As homeCampaign() has them, on tables that know no such music or videos.
const QStringList strangeNumbers{"campaign.music: the game has no music 34",
                                 "scenario.1.prologue.1: the game has no video 7",
                                 "scenario.1.prologue.1: the game has no music 9"};

QByteArray lines(const QString &file, const QStringList &findings)
{
    QString text;
    for (const QString &finding : findings)
        text += file + ": " + finding + '\n';
    return text.toUtf8();
}

} // namespace

void CliCheckTest::initTestCase()
{
    const auto write = [&](const char *name, const QByteArray &bytes) {
        samples::writeFile(m_folder.filePath(name), bytes);
    };
    write("sound.e3m", mapNamed("Ironmoors"));
    write("torn.E3M", mapNamed("Ironmoors").chopped(2));
    write("sound.e3c", tiny::campaignWithoutMap(0, {{true}, {false}}));
    write("strange.e3c", homeCampaign());
    write("no.e3c", "hello");
}

void CliCheckTest::filesAreToldByLineAndStatus_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<int>("status");
    QTest::newRow("a map") << QStringList{"sound.e3m"} << 0;
    QTest::newRow("a torn map") << QStringList{"torn.E3M"} << 3;
    QTest::newRow("a campaign") << QStringList{"strange.e3c"} << 3;
    QTest::newRow("a sound one among others") << QStringList{"sound.e3m", "torn.E3M"} << 3;
    QTest::newRow("missing") << QStringList{"gone.e3c"} << 2;
    QTest::newRow("a missing map") << QStringList{"gone.e3m"} << 2;
    QTest::newRow("no campaign") << QStringList{"no.e3c"} << 2;
    QTest::newRow("unreadable and torn")
        << QStringList{"torn.E3M", "no.e3c", "gone.e3c", "strange.e3c"} << 2;
}

void CliCheckTest::filesAreToldByLineAndStatus()
{
    QFETCH(QStringList, files);
    QFETCH(int, status);
    QByteArray output;
    QByteArray error;
    QStringList words{"check"};
    for (const QString &file : files) {
        const QString path = m_folder.filePath(file);
        words << path;
        if (file == "torn.E3M")
            output += lines(path, {"file: is cut short"});
        else if (file == "strange.e3c")
            output += lines(path, strangeNumbers);
        else if (file.startsWith("gone"))
            error += "Error: Cannot read file " + path.toUtf8() + ":\nNo such file or directory.\n";
        else if (file == "no.e3c")
            error += "Error: " + path.toUtf8() +
                     ": Invalid campaign file version!\n\n"
                     "File version = 1819043176\nCurrent version = 10\n";
    }
    const ChildResult result = m_game.run(words);
    QCOMPARE(QString::fromUtf8(result.output), QString::fromUtf8(output));
    QCOMPARE(QString::fromUtf8(result.error), QString::fromUtf8(error));
    QCOMPARE(result.exitCode, status);
}

void CliCheckTest::mapsNeedNoGame()
{
    const QStringList words{"--game", "/nowhere", "check", m_folder.filePath("sound.e3m")};
    QCOMPARE(runChild(builtProgram("cmped-cli"), words).exitCode, 0);
    const ChildResult result =
        runChild(builtProgram("cmped-cli"), words + QStringList{m_folder.filePath("sound.e3c")});
    QCOMPARE(result.exitCode, 2);
}

void CliCheckTest::sampleFilesAreSoundButThoseMadeOtherwise()
{
    const QDir maps(sampleGame() + "/Maps");
    QStringList words{"--game", sampleGame(), "check"};
    for (const QString &name : maps.entryList({"*.e3c", "*.e3m"}, QDir::Files, QDir::Name))
        words << maps.filePath(name);
    QVERIFY(words.size() > 20);
    const ChildResult result = runChild(builtProgram("cmped-cli"), words);
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(QString::fromUtf8(result.output),
             QString::fromUtf8(
                 lines(maps.filePath("Nobody Home.e3m"), {"file: nobody can play it"}) +
                 lines(maps.filePath("Plain Sailing.e3m"), {"file: isn't packed by gzip"}) +
                 lines(maps.filePath("Torn Page.e3m"), {"file: is cut short"})));
    QCOMPARE(result.exitCode, 3);
}

QTEST_GUILESS_MAIN(CliCheckTest)
#include "cli_check_test.moc"
