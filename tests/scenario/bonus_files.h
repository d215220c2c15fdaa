// What the tests of bonuses in files share: campaigns put together by hand, and the window's
// scenario dialog with its tab of start options in front.
#pragma once

#include "scenario/bonus_dialog.h"
#include "scenario/scenario_info.h"
#include "scenario/starting_bonus.h"
#include "tests/scenario/bonus_dialog_fixture.h"
#include "tests/shell/window_fixture.h"
#include "tests/support/byte_writer.h"
#include "tests/support/file_contents.h"

#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>

#include <functional>
#include <memory>

constexpr auto ok = QDialogButtonBox::Ok;
constexpr auto cancel = QDialogButtonBox::Cancel;

// No bonus, for the first player.
inline const QByteArray noBonus = QByteArray("\1\0\0", 3);

inline QByteArray bytes(const char *hex)
{
    return QByteArray::fromHex(hex);
}

// A unit of start options with one bonus for the first player.
inline QByteArray unitOf(const QByteArray &bonus)
{
    return bytes("01 00 01") + bonus;
}

struct TownFlags
{
    bool generatesHero;
    unsigned type;
};

inline void writePlayer(ByteWriter &out, bool human, const TownFlags *town,
                        const QByteArrayList &heroes)
{
    out.u8(human).u8(1).u8(0).u8(0xff).u16(0x1ff).u8(0).u8(town != nullptr);
    if (town)
        out.u8(town->generatesHero).u8(town->type).zeros(3);
    out.u8(0).u8(255).u8(0).u32(quint32(heroes.size() / 2));
    for (int i = 0; i < heroes.size(); i += 2)
        out.u8(heroes[i].toUInt()).text(heroes[i + 1]);
}

// The first player has a town of type 2 that brings a hero forth, and two heroes on the map; the
// fifth has nothing. A human can play both, and nobody else.
inline QByteArray thronesMap()
{
    ByteWriter out;
    out.u32(28).u8(1).u32(36).u8(0).text("Two Thrones").text({}).u8(1).u8(0);
    const TownFlags town{true, 2};
    for (int player = 0; player < 8; ++player) {
        if (player == 0)
            writePlayer(out, true, &town, {"3", "Queen Dessa", "1", ""});
        else
            writePlayer(out, player == 4, nullptr, {});
    }
    out.u8(255).u8(255).u8(0); // victory, loss, teams
    out.zeros(20).u32(0).u8(0).zeros(31);
    return packing::gzip(out.bytes());
}

// Three scenarios on the tiny game's map 24. The first two have a map unless it is left out, and
// these start options; the first requires the second.
inline QByteArray campaignWith(const QByteArray &first, const QByteArray &second = noBonus,
                               bool firstHasMap = true)
{
    const QByteArray packed = thronesMap();
    ByteWriter out;
    out.u32(10).u32(1).u8(1).u32(0).u32(3).u8(25).text("Two Thrones").text({}).u8(0).u8(1);
    QByteArray maps;
    for (const int scenario : {0, 1, 2}) {
        const bool hasMap = scenario == 1 || (scenario == 0 && firstHasMap);
        out.text(hasMap ? "thrones.e3m" : "").u32(hasMap ? quint32(packed.size()) : 0);
        out.u8(scenario == 0 ? 2 : 0).u8(1).u8(1).text({});
        out.zeros(6);                   // prologues and epilogues
        out.u8(15).zeros(24).zeros(20); // 186 creatures, 160 artifacts
        out.raw(scenario == 0 ? first : scenario == 1 ? second : QByteArray(1, '\0'));
        if (hasMap)
            maps += packed;
    }
    return packing::gzip(out.bytes()) + maps;
}

// The tab of start options in a scenario dialog on show.
class OptionsTab
{
public:
    explicit OptionsTab(ScenarioInfo &shown) : dialog(shown)
    {
        auto *tabs = dialog.findChild<QTabWidget *>("tabWidget");
        for (int tab = 0; tab < tabs->count(); ++tab) {
            if (tabs->tabText(tab) == "Starting Options")
                clickOn(tabs->tabBar(), tabs->tabBar()->tabRect(tab).center());
        }
        if (tabs->tabText(tabs->currentIndex()) != "Starting Options")
            QTest::qFail("The tab never came.", __FILE__, __LINE__);
    }

    StartingBonus *page() { return dialog.findChild<StartingBonus *>(); }
    QTableWidget *table() { return page()->findChild<QTableWidget *>("tableWidget"); }
    QComboBox *players() { return page()->findChild<QComboBox *>("playerCombobox"); }
    QStringList texts()
    {
        QStringList rows;
        for (int row = 0; row < table()->rowCount(); ++row)
            rows << table()->item(row, 0)->text();
        return rows;
    }

    using Work = std::function<void(BonusControls &)>;

    // Opens the dialog of bonuses by a button, works in it and presses one of its own.
    void inDialog(const char *button, const Work &work, QDialogButtonBox::StandardButton last)
    {
        const NextDialog next([&](QWidget *widget) {
            auto *bonuses = qobject_cast<BonusDialog *>(widget);
            if (!bonuses) {
                widget->close();
                QFAIL("Another dialog came in the place of the dialog of bonuses.");
            }
            BonusControls controls(*bonuses);
            work(controls);
            clickOn(bonuses->findChild<QDialogButtonBox *>("buttonBox")->button(last));
        });
        clickOn(page()->findChild<QPushButton *>(button));
    }
    void add(int kind, const QStringList &choices, QDialogButtonBox::StandardButton last)
    {
        const Work work = [&](BonusControls &controls) {
            controls.clickKind(kind);
            makeChoices(controls, choices);
        };
        inDialog("addButton", work, last);
    }
    void edit(const Work &work, QDialogButtonBox::StandardButton last)
    {
        clickOn(table()->viewport(), table()->visualItemRect(table()->item(0, 0)).center());
        inDialog("editButton", work, last);
    }

    ScenarioInfo &dialog;
};

using TabWork = std::function<void(OptionsTab &)>;

// Opens the scenario dialog, works on its tab of start options and presses a button.
inline void onTab(MainWindow &window, const TabWork &work, QDialogButtonBox::StandardButton last)
{
    const NextDialog next([&](QWidget *widget) {
        auto *dialog = qobject_cast<ScenarioInfo *>(widget);
        if (!dialog) {
            widget->close();
            QFAIL("Another dialog came in the place of the scenario dialog.");
        }
        OptionsTab tab(*dialog);
        work(tab);
        clickOn(dialog->findChild<QDialogButtonBox *>("buttonBox")->button(last));
        if (dialog->isVisible())
            dialog->close();
    });
    action(window, "scenarioProperties")->trigger();
}

// A window on a campaign that stands in the game's folder.
inline std::unique_ptr<MainWindow> windowOn(const WindowFixture &fixture,
                                            const QByteArray &campaign)
{
    auto window = std::make_unique<MainWindow>(nullptr);
    window->loadFile(fixture.game.addCampaign("thrones.e3c", campaign));
    return window;
}

// Saves a window's campaign to another file and answers its bytes.
inline QByteArray savedBy(const WindowFixture &fixture, MainWindow &window)
{
    const QString path = fixture.game.filePath("Maps/saved.e3c");
    QFile::remove(path);
    window.saveFile(path);
    return contents(path);
}
