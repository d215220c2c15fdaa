// Start options in files that hold numbers nobody should write, opened and saved in the window's
// dialogs.
#include "tests/scenario/bonus_files.h"
#include "tests/support/child_process.h"

namespace {

constexpr int wentOn = 99; // exit code of a child that opened the dialog and left it

// Opens a campaign and its scenario dialog, and leaves it.
int openDialogOn(const QString &path)
{
    const WindowFixture fixture;
    MainWindow window(nullptr);
    window.loadFile(path);
    onTab(
        window, [](OptionsTab &) {}, cancel);
    return wentOn;
}

} // namespace

class BonusStrangeFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { fixture->reset(); }

    void strangeNumbersOpen_data();
    void strangeNumbersOpen();
    void aBonusOfUnknownTypeEndsTheProcess_data();
    void aBonusOfUnknownTypeEndsTheProcess();

private:
    std::unique_ptr<WindowFixture> fixture;
};

void BonusStrangeFilesTest::initTestCase()
{
    fixture = std::make_unique<WindowFixture>();
    EditorData::primarySkills = {{0, "Attack"}, {1, "Defence"}, {2, "Power"}, {3, "Lore"}};
}

// What the file has, what the page of bonuses shows of it, and what an accepted dialog makes of it.
void BonusStrangeFilesTest::strangeNumbersOpen_data()
{
    QTest::addColumn<QByteArray>("unit");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QByteArray>("accepted");
    const QString nobody = "Random hero (in town)";
    const auto bonus = [&](const char *name, const char *hex, const QString &text) {
        QTest::newRow(name) << bytes("01 c8 01") + bytes(hex) << QStringList(text)
                            << bytes("01 00 01") + bytes(hex);
    };
    bonus("a spell for player 200", "00 ffff c8", "Give  spell to " + nobody);
    bonus("creatures for player 200", "01 ffff ffff ffff", "Give 65535  to " + nobody);
    bonus("a building for player 200", "02 c8", "Build  at Main Town");
    bonus("an artifact for player 200", "03 ffff ffff", "Give  to " + nobody);
    bonus("a scroll for player 200", "04 ffff c8", "Give  Spell Scroll to " + nobody);
    bonus("skills for player 200", "05 ffff c8 00 00 c8",
          "Give +200 Attack, +200 Lore to " + nobody);
    bonus("a skill for player 200", "06 ffff c8 c8", "Give   to " + nobody);
    bonus("a resource for player 200", "07 c8 ffffffff", "Receive -1 ");
    QTest::newRow("a list that isn't there") << bytes("01 c8 00") << QStringList() << noBonus;
    QTest::newRow("player 200 and scenario 200")
        << bytes("02 01 c8 c8") << QStringList() << bytes("02 00");
    // Only who carries a hero over is judged, not from where.
    QTest::newRow("a human's scenario 200")
        << bytes("02 01 00 c8") << QStringList() << bytes("02 01 00 c8");
    QTest::newRow("player 200 and any hero") << bytes("03 01 c8 ffff") << QStringList() << noBonus;
    QTest::newRow("option type 9") << bytes("09") << QStringList() << noBonus;
    QTest::newRow("option type 255") << bytes("ff") << QStringList() << noBonus;
}

void BonusStrangeFilesTest::strangeNumbersOpen()
{
    QFETCH(QByteArray, unit);
    QFETCH(QStringList, texts);
    QFETCH(QByteArray, accepted);
    const QByteArray before = campaignWith(unit);
    const auto window = windowOn(*fixture, before);
    onTab(
        *window, [&](OptionsTab &tab) { QCOMPARE(tab.texts(), texts); }, cancel);
    QVERIFY(!EditorData::info.modified);
    onTab(
        *window,
        [&](OptionsTab &tab) {
            QCOMPARE(tab.texts(), texts);
            if (texts.isEmpty())
                return;
            QCOMPARE(tab.players()->currentIndex(), -1);
            tab.edit([](BonusControls &) {}, cancel);
            QCOMPARE(tab.texts(), texts);
        },
        ok);
    QCOMPARE(savedBy(*fixture, *window), campaignWith(accepted));
}

void BonusStrangeFilesTest::aBonusOfUnknownTypeEndsTheProcess_data()
{
    QTest::addColumn<QByteArray>("campaign");
    QTest::addColumn<int>("exitCode");
    const QByteArray unknown = unitOf(bytes("c8"));
    QTest::newRow("told in words") << campaignWith(unknown) << 1;
    QTest::newRow("behind one that is known")
        << campaignWith(bytes("01 00 02") + bytes("07 06 f4010000") + bytes("08")) << 1;
    QTest::newRow("in a scenario that isn't shown") << campaignWith(noBonus, unknown) << wentOn;
    QTest::newRow("in a scenario without a map") << campaignWith(unknown, noBonus, false) << wentOn;
}

void BonusStrangeFilesTest::aBonusOfUnknownTypeEndsTheProcess()
{
    QFETCH(QByteArray, campaign);
    QFETCH(int, exitCode);
    const QString path = fixture->game.addCampaign("unknown.e3c", campaign);
    const ChildResult child = runChild(QCoreApplication::applicationFilePath(), {"--open", path});
    QVERIFY(child.started && child.exitedNormally);
    QCOMPARE(child.exitCode, exitCode);
    QCOMPARE(contents(path), campaign);
}

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--open") == 0)
        return openDialogOn(QFile::decodeName(argv[2]));
    BonusStrangeFilesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "bonus_strange_files_test.moc"
