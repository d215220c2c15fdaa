// The regions of the campaign map without a mouse.
#include "scenario/scenario_info.h"
#include "tests/shell/window_fixture.h"
#include "tests/support/longest_wait.h"

#include <QAccessible>
#include <QGraphicsView>

#include <memory>

class MapKeysTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<WindowFixture>(); }
    void init() { fixture->reset(); }

    void keysLeadFromRegionToRegion_data();
    void keysLeadFromRegionToRegion();
    void keysDoWhatAPressDoes();
    void keysReachEveryRegion();
    void otherKeysLeadNowhere_data();
    void otherKeysLeadNowhere();
    void chosenRegionComesIntoView();
    void enterOpensTheChosenRegion_data();
    void enterOpensTheChosenRegion();
    void keysOnACampaignWithoutMap();
    void screenReadersHearOfTheRegion();

private:
    std::unique_ptr<WindowFixture> fixture;
};

namespace {

// Of map 24, by their places: the second lies right and down of the first, the third far down.
constexpr unsigned alderBay = 0;
constexpr unsigned birchHill = 1;
constexpr unsigned cedarFen = 2;

// The window with the keyboard on its map.
class WindowWithKeys
{
public:
    WindowWithKeys()
    {
        if (!show(window))
            QTest::qFail("The window never came.", __FILE__, __LINE__);
        mapView(window)->setFocus();
    }

    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(window.windowHandle(), Qt::Key(key), modifiers);
    }

    void select(unsigned region)
    {
        press(Qt::Key_Home);
        for (unsigned i = 0; i < region; ++i)
            press(Qt::Key_PageDown);
        QCOMPARE(EditorData::info.region, region);
    }

    MainWindow window{nullptr};
};

QVector<bool> selectionIn(MainWindow &window)
{
    QVector<bool> selection;
    const QVector<CampaignRegionItem *> regions = regionsOf(window);
    for (const CampaignRegionItem *region : regions)
        selection.append(region->isSelected);
    return selection;
}

} // namespace

void MapKeysTest::keysLeadFromRegionToRegion_data()
{
    QTest::addColumn<unsigned>("from");
    QTest::addColumn<int>("key");
    QTest::addColumn<unsigned>("to");
    QTest::newRow("right") << alderBay << int(Qt::Key_Right) << birchHill;
    QTest::newRow("left") << birchHill << int(Qt::Key_Left) << alderBay;
    QTest::newRow("down") << birchHill << int(Qt::Key_Down) << cedarFen;
    QTest::newRow("up to the nearer of two") << cedarFen << int(Qt::Key_Up) << birchHill;
    QTest::newRow("none to the left") << alderBay << int(Qt::Key_Left) << alderBay;
    QTest::newRow("none above") << alderBay << int(Qt::Key_Up) << alderBay;
    QTest::newRow("none to the right") << cedarFen << int(Qt::Key_Right) << cedarFen;
    QTest::newRow("the first") << cedarFen << int(Qt::Key_Home) << alderBay;
    QTest::newRow("the last") << alderBay << int(Qt::Key_End) << cedarFen;
    QTest::newRow("the next") << alderBay << int(Qt::Key_PageDown) << birchHill;
    QTest::newRow("the one before") << cedarFen << int(Qt::Key_PageUp) << birchHill;
    QTest::newRow("none behind the last") << cedarFen << int(Qt::Key_PageDown) << cedarFen;
    QTest::newRow("none before the first") << alderBay << int(Qt::Key_PageUp) << alderBay;
}

void MapKeysTest::keysLeadFromRegionToRegion()
{
    QFETCH(unsigned, from);
    QFETCH(int, key);
    WindowWithKeys open;
    open.select(from);
    open.press(key);
    QTEST(EditorData::info.region, "to");
}

void MapKeysTest::keysDoWhatAPressDoes()
{
    WindowWithKeys open;
    open.press(Qt::Key_End);
    QCOMPARE(selectionIn(open.window), QVector<bool>({false, false, true}));
    QCOMPARE(open.window.currentRegion, cedarFen);
    QCOMPARE(EditorData::info.currentItem, regionsOf(open.window)[2]);
    QCOMPARE(regionNameIn(open.window), QString("Cedar Fen"));
    QCOMPARE(pixelOf(regionsOf(open.window)[2], 10, 10), throughPixmap(tiny::computedColour(1)));
    QCOMPARE(pixelOf(regionsOf(open.window)[0], 20, 5), throughPixmap(tiny::computedColour(2)));
    QVERIFY(!EditorData::info.modified);
}

void MapKeysTest::keysReachEveryRegion()
{
    WindowWithKeys open;
    open.press(Qt::Key_Home);
    for (unsigned region = 0; region < 3; ++region) {
        QCOMPARE(EditorData::info.region, region);
        open.press(Qt::Key_PageDown);
    }
}

void MapKeysTest::otherKeysLeadNowhere_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("Space") << int(Qt::Key_Space) << Qt::KeyboardModifiers();
    QTest::newRow("a letter") << int(Qt::Key_A) << Qt::KeyboardModifiers();
    QTest::newRow("Ctrl+End") << int(Qt::Key_End) << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("Shift+Right") << int(Qt::Key_Right) << Qt::KeyboardModifiers(Qt::ShiftModifier);
}

void MapKeysTest::otherKeysLeadNowhere()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    WindowWithKeys open;
    open.select(birchHill);
    open.press(key, modifiers);
    QCOMPARE(EditorData::info.region, birchHill);
}

void MapKeysTest::chosenRegionComesIntoView()
{
    WindowWithKeys open;
    open.press(Qt::Key_Home);
    open.window.resize(open.window.width(), 300);
    QGraphicsView *view = mapView(open.window);
    const auto isInView = [&](unsigned region) {
        const QRect place = regionsOf(open.window)[int(region)]->sceneBoundingRect().toRect();
        return view->viewport()->rect().contains(
            QRect(view->mapFromScene(place.topLeft()), place.size()));
    };
    QTRY_VERIFY_WITH_TIMEOUT(!isInView(cedarFen), longestWait);
    open.press(Qt::Key_End);
    QVERIFY(isInView(cedarFen));
}

void MapKeysTest::enterOpensTheChosenRegion_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void MapKeysTest::enterOpensTheChosenRegion()
{
    QFETCH(int, key);
    WindowWithKeys open;
    open.press(Qt::Key_PageDown);
    const NextDialog dialog([](QWidget *shown) {
        auto *info = qobject_cast<ScenarioInfo *>(shown);
        const unsigned region = info ? info->getCurrentRegion() : 99;
        QTest::keyClick(shown->windowHandle(), Qt::Key_Escape);
        QVERIFY(!shown->isVisible());
        QCOMPARE(region, birchHill);
    });
    const bool keypad = key == Qt::Key_Enter;
    open.press(key, keypad ? Qt::KeypadModifier : Qt::NoModifier);
    QVERIFY(dialog.came());
}

void MapKeysTest::keysOnACampaignWithoutMap()
{
    WindowWithKeys open;
    open.select(cedarFen);
    open.window.loadFile(fixture->game.addCampaign(
        "keys.e3c", tiny::campaignWithoutMap(0, {tiny::Scenario(), tiny::Scenario()})));
    for (const int key : {Qt::Key_Home, Qt::Key_End, Qt::Key_Right, Qt::Key_PageDown}) {
        open.press(key);
        QCOMPARE(EditorData::info.region, 0u);
        QCOMPARE(open.window.currentRegion, 0u);
    }
}

void MapKeysTest::screenReadersHearOfTheRegion()
{
    WindowWithKeys open;
    QAccessibleInterface *map = QAccessible::queryAccessibleInterface(mapView(open.window));
    QVERIFY(map);
    QCOMPARE(map->text(QAccessible::Name), QString("Campaign map"));
    for (const char *name : {"Alder Bay", "Birch Hill", "Cedar Fen"}) {
        QCOMPARE(map->text(QAccessible::Description), QString(name));
        open.press(Qt::Key_PageDown);
    }
}

QTEST_MAIN(MapKeysTest)
#include "map_keys_test.moc"
