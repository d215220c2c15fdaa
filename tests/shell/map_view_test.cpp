// The map on the screen: its items, selecting by the mouse, and the input that is kept away.
#include "document/campaign_data.h"
#include "gamedata/image_cache.h"
#include "tests/shell/window_fixture.h"
#include "tests/support/longest_wait.h"
#include "tests/support/report_recorder.h"

#include <QScrollBar>
#include <QStyleOptionGraphicsItem>
#include <QWheelEvent>

namespace {

// Takes events without the loop that asks a widget's parents after it.
class OpenView : public MyQGraphicsView
{
public:
    using MyQGraphicsView::mouseDoubleClickEvent;
    using MyQGraphicsView::MyQGraphicsView;
    using MyQGraphicsView::wheelEvent;
};

} // namespace

class MapViewTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { fixture->reset(); }

    void sceneHoldsBackgroundAndRegions();
    void regionPicturesFollowStateAndColour();
    void readyMadePicturesFollowStateAndColour();
    void missingBackgroundLeavesTheSceneEmpty();
    void fewerScenariosThanRegionsHaveNoMap();
    void pressSelectsTheRegionBelow_data();
    void pressSelectsTheRegionBelow();
    void middleButtonDoesNothing();
    void pressOnTheSelectedRegionUpdatesTheInfoAndDrawsNothing();
    void selectingRedrawsBothAndNoOther();
    void computedPicturesComeFromTheCache();
    void updateImageFollowsTheScenario();
    void updateImageWithoutChangeDrawsNothing();
    void noSelectionFrameIsDrawn();
    void missingPictureEndsTheProcess();
    void missingMasksEndTheProcess();
    void colourPastTheTableEndsTheProcess();
    void impossiblePictureEndsTheProcess();
    void rightDoubleClickIsIgnored();
    void wheelNeverScrolls();
    void enteringTheMapShowsItsHint();
    void scenarioBrowserIsAnEmptyPage();
    void mapBrowserHasItsForm();

private:
    std::unique_ptr<WindowFixture> fixture;
};

void MapViewTest::initTestCase()
{
    fixture = std::make_unique<WindowFixture>();
}

void MapViewTest::sceneHoldsBackgroundAndRegions()
{
    MainWindow window(nullptr);
    const auto items = mapView(window)->scene()->items(Qt::AscendingOrder);
    QCOMPARE(items.size(), 4);
    QCOMPARE(items[0]->data(256).toInt(), 0);
    QCOMPARE(items[0]->pos(), QPointF(0, 0));
    QVERIFY(!(items[0]->flags() & QGraphicsItem::ItemIsSelectable));
    const auto *background = qgraphicsitem_cast<QGraphicsPixmapItem *>(items[0]);
    QCOMPARE(background->pixmap().size(), QSize(456, 600));
    QCOMPARE(pixelOf(background, 455, 599), tiny::backgroundColour("backhome.pcx"));
    const QVector<QPointF> places{{20, 30}, {40, 40}, {200, 300}};
    for (int i = 0; i < 3; ++i) {
        const auto *region = static_cast<CampaignRegionItem *>(items[i + 1]);
        QCOMPARE(region->data(256).toInt(), 1);
        QCOMPARE(region->pos(), places[i]);
        QCOMPARE(region->zValue(), 0.0);
        QVERIFY(region->flags() & QGraphicsItem::ItemIsSelectable);
        QCOMPARE(region->regionIndex, quint32(i));
        QCOMPARE(region->campaignId, 24U);
        QCOMPARE(region->state, 2U);
        QCOMPARE(region->regionColor, 2U);
        QCOMPARE(region->isSelected, i == 0);
        QVERIFY(!region->hasScenario);
        QCOMPARE(region->mainWindow, &window);
        QCOMPARE(region->scene, mapView(window)->scene());
    }
}

void MapViewTest::regionPicturesFollowStateAndColour()
{
    const QString path = fixture->game.addCampaign(
        "look.e3c", tiny::campaign(24, {{false, 2}, {true, 2}, {false, 2}}));
    MainWindow window(nullptr);
    window.loadFile(path);
    const auto regions = regionsOf(window);
    QCOMPARE(pixelOf(regions[0], 20, 20), throughPixmap(tiny::computedColour(1)));
    QCOMPARE(pixelOf(regions[1], 20, 20), throughPixmap(tiny::computedColour(0)));
    QCOMPARE(pixelOf(regions[2], 10, 10), throughPixmap(tiny::computedColour(2)));
    QCOMPARE(pixelOf(regions[1], 5, 5).alpha(), 0);
}

void MapViewTest::readyMadePicturesFollowStateAndColour()
{
    const QString path =
        fixture->game.addCampaign("keeps.e3c", tiny::campaign(3, {{true, 4}, {true, 7}}));
    MainWindow window(nullptr);
    window.loadFile(path);
    QCOMPARE(pixelOf(regionsOf(window)[0], 0, 0), tiny::readyMadeColour(0, 1, 4));
    QCOMPARE(pixelOf(regionsOf(window)[1], 0, 0), tiny::readyMadeColour(1, 0, 7));
    window.loadFile(fixture->game.addCampaign("bare.e3c", tiny::campaign(3, {{}, {false, 6}})));
    QCOMPARE(pixelOf(regionsOf(window)[1], 29, 19), tiny::readyMadeColour(1, 2, 6));
}

void MapViewTest::missingBackgroundLeavesTheSceneEmpty()
{
    MainWindow window(nullptr);
    window.loadFile(fixture->game.addCampaign("sky.e3c", tiny::campaign(5, {})));
    QCOMPARE(window.campaignId, 5U);
    QVERIFY(mapView(window)->scene()->items().isEmpty());
    window.loadFile(fixture->game.addCampaign("keeps.e3c", tiny::campaign(3, {{}, {}})));
    QCOMPARE(regionsOf(window).size(), 2);
    window.campaignId = 250; // no such map
    window.refreshCampaignView();
    QVERIFY(mapView(window)->scene()->items().isEmpty());
    window.updateRegionLabel();
    QCOMPARE(regionNameIn(window), QString());
}

void MapViewTest::fewerScenariosThanRegionsHaveNoMap()
{
    MainWindow window(nullptr);
    window.loadFile(
        fixture->game.addCampaign("keeps.e3c", tiny::campaign(3, {{true, 1}, {true, 1}})));
    window.campaignId = 24; // three regions, two scenarios
    window.refreshCampaignView();
    const auto regions = regionsOf(window);
    QCOMPARE(regions.size(), 3);
    QVERIFY(regions[1]->hasScenario);
    QVERIFY(!regions[2]->hasScenario);
    QCOMPARE(regions[2]->regionColor, 2U);
}

void MapViewTest::pressSelectsTheRegionBelow_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("region");
    const int left = int(Qt::LeftButton);
    const int right = int(Qt::RightButton);
    QTest::newRow("a region") << QPoint(70, 65) << left << 1;
    QTest::newRow("right button") << QPoint(70, 65) << right << 1;
    QTest::newRow("where two overlap, the later") << QPoint(55, 55) << left << 1;
    QTest::newRow("third") << QPoint(210, 310) << left << 2;
    QTest::newRow("transparent corner above another region") << QPoint(45, 45) << left << 0;
    QTest::newRow("transparent corner above the background") << QPoint(202, 302) << left << -1;
    QTest::newRow("background") << QPoint(400, 500) << left << -1;
}

void MapViewTest::pressSelectsTheRegionBelow()
{
    QFETCH(QPoint, place);
    QFETCH(int, button);
    QFETCH(int, region);
    MainWindow window(nullptr);
    QVERIFY(show(window));
    const auto regions = regionsOf(window);
    // Whichever is expected, another one is selected before.
    const int before = region == 2 ? 1 : 2;
    clickOn(mapView(window)->viewport(), before == 2 ? QPoint(210, 310) : QPoint(70, 65));
    QVERIFY(regions[before]->isSelected);
    if (button == int(Qt::RightButton))
        closeNextMenu(&window);
    clickOn(mapView(window)->viewport(), place, Qt::MouseButton(button));
    const int selected = region < 0 ? before : region;
    const QStringList names{"Alder Bay", "Birch Hill", "Cedar Fen"};
    for (int i = 0; i < 3; ++i)
        QCOMPARE(regions[i]->isSelected, i == selected);
    QCOMPARE(EditorData::info.region, quint32(selected));
    QCOMPARE(EditorData::info.currentItem, regions[selected]);
    QCOMPARE(window.currentRegion, quint32(selected));
    QCOMPARE(regionNameIn(window), names[selected]);
}

void MapViewTest::middleButtonDoesNothing()
{
    MainWindow window(nullptr);
    QVERIFY(show(window));
    clickOn(mapView(window)->viewport(), QPoint(210, 310), Qt::MiddleButton);
    QVERIFY(regionsOf(window)[0]->isSelected);
    QVERIFY(!regionsOf(window)[2]->isSelected);
    QCOMPARE(EditorData::info.region, 0U);
    QVERIFY(!EditorData::info.currentItem);
}

void MapViewTest::pressOnTheSelectedRegionUpdatesTheInfoAndDrawsNothing()
{
    MainWindow window(nullptr);
    QVERIFY(show(window));
    auto *region = regionsOf(window)[0];
    const qint64 picture = region->pixmap().cacheKey();
    EditorData::info.region = 7;
    clickOn(mapView(window)->viewport(), QPoint(25, 35));
    QCOMPARE(EditorData::info.region, 0U);
    QCOMPARE(EditorData::info.currentItem, region);
    QCOMPARE(region->pixmap().cacheKey(), picture);
}

void MapViewTest::selectingRedrawsBothAndNoOther()
{
    MainWindow window(nullptr);
    QVERIFY(show(window));
    const auto regions = regionsOf(window);
    const qint64 picture = regions[1]->pixmap().cacheKey();
    clickOn(mapView(window)->viewport(), QPoint(210, 310));
    QCOMPARE(pixelOf(regions[0], 20, 20), throughPixmap(tiny::computedColour(2)));
    QCOMPARE(pixelOf(regions[2], 10, 10), throughPixmap(tiny::computedColour(1)));
    QCOMPARE(regions[1]->pixmap().cacheKey(), picture);
}

void MapViewTest::computedPicturesComeFromTheCache()
{
    preloadArchive->largeImages.clear();
    MainWindow window(nullptr);
    QCOMPARE(preloadArchive->largeImages.size(), 3);
    QImage painted(40, 30, QImage::Format_ARGB32);
    painted.fill(Qt::magenta);
    preloadArchive->saveLargeGeneratedImage(24, 0, 1, 2, painted);
    window.refreshCampaignView();
    QCOMPARE(pixelOf(regionsOf(window)[0], 0, 0), QColor(Qt::magenta));
    preloadArchive->largeImages.clear();
}

void MapViewTest::updateImageFollowsTheScenario()
{
    MainWindow window(nullptr);
    window.loadFile(fixture->game.addCampaign("keeps.e3c", tiny::campaign(3, {{}, {}})));
    auto *region = regionsOf(window)[1];
    ScenarioData scenario;
    scenario.regionColor = 6;
    QTest::ignoreMessage(QtDebugMsg, "Set current color to  6");
    region->updateImage(&scenario);
    QCOMPARE(region->regionColor, 6U);
    QCOMPARE(pixelOf(region, 0, 0), tiny::readyMadeColour(1, 2, 6));
    scenario.mapHeader = std::make_shared<MapHeader>();
    scenario.mapSize = 1;
    region->updateImage(&scenario);
    QVERIFY(region->hasScenario);
    QCOMPARE(pixelOf(region, 0, 0), tiny::readyMadeColour(1, 0, 6));
}

void MapViewTest::updateImageWithoutChangeDrawsNothing()
{
    MainWindow window(nullptr);
    auto *region = regionsOf(window)[1];
    const qint64 picture = region->pixmap().cacheKey();
    ScenarioData scenario;
    region->updateImage(&scenario);
    QCOMPARE(region->pixmap().cacheKey(), picture);
}

void MapViewTest::noSelectionFrameIsDrawn()
{
    MainWindow window(nullptr);
    auto *region = regionsOf(window)[0];
    const auto draw = [region](QStyle::State state) {
        QImage image(50, 40, QImage::Format_ARGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QStyleOptionGraphicsItem option;
        option.state = state;
        option.exposedRect = region->boundingRect();
        region->paint(&painter, &option, nullptr);
        return image;
    };
    QCOMPARE(draw(QStyle::State_Enabled | QStyle::State_Selected), draw(QStyle::State_Enabled));
}

void MapViewTest::missingPictureEndsTheProcess()
{
    const ReportRecorder recorder;
    MainWindow window(nullptr);
    const QString path = fixture->game.addCampaign("torn.e3c", tiny::campaign(6, {{}}));
    QCOMPARE(exitCodeOf([&] { window.loadFile(path); }), 1);
    QCOMPARE(recorder.errors.size(), 1);
    QCOMPARE(recorder.errors[0].title, QString("Error"));
    QCOMPARE(recorder.errors[0].text, QString("Can't find gone.pcx file in lod file"));
    QVERIFY(!QApplication::overrideCursor());
}

void MapViewTest::missingMasksEndTheProcess()
{
    const ReportRecorder recorder;
    MainWindow window(nullptr);
    const QString path = fixture->game.addCampaign("blind.e3c", tiny::campaign(7, {{}}));
    QCOMPARE(exitCodeOf([&] { window.loadFile(path); }), 1);
    QVERIFY(recorder.errors.isEmpty());
}

// The layout names no picture for it.
void MapViewTest::colourPastTheTableEndsTheProcess()
{
    const ReportRecorder recorder;
    MainWindow window(nullptr);
    const QString path =
        fixture->game.addCampaign("gaudy.e3c", tiny::campaign(3, {{true, 7}, {true, 8}}));
    QCOMPARE(exitCodeOf([&] { window.loadFile(path); }), 1);
    QCOMPARE(recorder.errors.size(), 1);
    QCOMPARE(recorder.errors[0].title, QString("Error"));
    QCOMPARE(recorder.errors[0].text, QString("Can't find  file in lod file"));
}

void MapViewTest::impossiblePictureEndsTheProcess()
{
    const ReportRecorder recorder;
    CampaignRegionItem item;
    QCOMPARE(item.regionColor, 2U);
    QCOMPARE(item.state, 0U);
    item.campaignId = 24;
    item.regionIndex = 99;
    QCOMPARE(exitCodeOf([&] { item.refreshImage(); }), 1);
    QCOMPARE(recorder.errors.size(), 1);
    QCOMPARE(recorder.errors[0].title, QString("Error"));
    QCOMPARE(recorder.errors[0].text, QString("Unable to generate image"));
}

void MapViewTest::rightDoubleClickIsIgnored()
{
    MainWindow window(nullptr);
    QVERIFY(show(window));
    closeNextMenu(&window);
    clickOn(mapView(window)->viewport(), QPoint(210, 310), Qt::RightButton);
    QVERIFY(regionsOf(window)[2]->isSelected);
    OpenView view(nullptr);
    QMouseEvent event(QEvent::MouseButtonDblClick, QPointF(210, 310), Qt::RightButton,
                      Qt::RightButton, Qt::NoModifier);
    view.mouseDoubleClickEvent(&event);
    QVERIFY(!event.isAccepted());
}

void MapViewTest::wheelNeverScrolls()
{
    MainWindow window(nullptr);
    QVERIFY(show(window));
    window.resize(window.width() - 100, window.height() - 200);
    QTRY_VERIFY_WITH_TIMEOUT(mapView(window)->verticalScrollBar()->maximum() > 0, longestWait);
    QWheelEvent event(QPointF(50, 50), QPointF(50, 50), QPoint(), QPoint(0, -240), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(mapView(window)->viewport(), &event);
    QCOMPARE(mapView(window)->verticalScrollBar()->value(), 0);
    OpenView view(nullptr);
    event.accept();
    view.wheelEvent(&event);
    QVERIFY(!event.isAccepted());
}

void MapViewTest::enteringTheMapShowsItsHint()
{
    MainWindow window(nullptr);
    action(window, "actionNew")->hover();
    QCOMPARE(hintOf(window), QString("Hint 1"));
    QEvent event(QEvent::Enter);
    event.ignore();
    QApplication::sendEvent(mapView(window), &event);
    QCOMPARE(hintOf(window), QString("Hint 0"));
    QVERIFY(event.isAccepted());
}

void MapViewTest::scenarioBrowserIsAnEmptyPage()
{
    const ScenarioBrowser page(nullptr);
    QCOMPARE(page.objectName(), QString("ScenarioBrowser"));
    QVERIFY(page.findChildren<QWidget *>().isEmpty());
}

void MapViewTest::mapBrowserHasItsForm()
{
    QLabel label;
    MapBrowser browser(nullptr, &label);
    QCOMPARE(browser.objectName(), QString("MapBrowser"));
    MyQGraphicsView *view = browser.getGraphicsView();
    QCOMPARE(view->objectName(), QString("graphicsView"));
    QCOMPARE(int(view->sizeAdjustPolicy()), 2);
    QCOMPARE(int(view->alignment()), 0x10);
    QVERIFY(qobject_cast<MyGraphicsScene *>(view->scene()));
    QCOMPARE(view->scene()->parent(), view);
    QEvent event(QEvent::Enter);
    QApplication::sendEvent(view, &event);
    QCOMPARE(label.text(), QString("Hint 0"));
}

QTEST_MAIN(MapViewTest)
#include "map_view_test.moc"
