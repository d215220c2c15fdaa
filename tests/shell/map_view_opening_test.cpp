// The ways from the map on the screen into the scenario dialog.
#include "tests/shell/window_fixture.h"
#include "tests/support/longest_wait.h"

#include <QContextMenuEvent>
#include <QListWidget>
#include <QMenu>
#include <QSignalSpy>

class MapViewOpeningTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<WindowFixture>(); }
    void init() { fixture->reset(); }

    void clickBehindTheContextMenuSelects();
    void doubleClickOpensTheScenario_data();
    void doubleClickOpensTheScenario();
    void contextMenuOffersProperties_data();
    void contextMenuOffersProperties();
    void campaignWithoutMapOpensItsFirstScenario_data();
    void campaignWithoutMapOpensItsFirstScenario();
    void theViewOnlyAsks();

private:
    std::unique_ptr<WindowFixture> fixture;
};

void MapViewOpeningTest::clickBehindTheContextMenuSelects()
{
    MainWindow window(nullptr);
    QVERIFY(show(window));
    const auto regions = regionsOf(window);
    QWidget *viewport = mapView(window)->viewport();
    closeNextMenu(&window);
    QTest::mousePress(window.windowHandle(), Qt::RightButton, Qt::NoModifier,
                      viewport->mapTo(&window, QPoint(210, 310)));
    QVERIFY(regions[2]->isSelected);
    QWidget menuThatTookTheRelease;
    QTest::mouseRelease(&menuThatTookTheRelease, Qt::RightButton);
    clickOn(viewport, QPoint(70, 65));
    QVERIFY(regions[1]->isSelected);
}

void MapViewOpeningTest::doubleClickOpensTheScenario_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("selects");
    QTest::addColumn<bool>("opens");
    QTest::newRow("left") << int(Qt::LeftButton) << true << true;
    QTest::newRow("right") << int(Qt::RightButton) << true << false;
    QTest::newRow("middle") << int(Qt::MiddleButton) << false << true;
}

void MapViewOpeningTest::doubleClickOpensTheScenario()
{
    QFETCH(int, button);
    QFETCH(bool, selects);
    QFETCH(bool, opens);
    MainWindow window(nullptr);
    QVERIFY(show(window));
    QStringList opened;
    QTimer closing;
    connect(&closing, &QTimer::timeout, &window, [&opened] {
        if (QWidget *dialog = QApplication::activeModalWidget()) {
            opened << dialog->windowTitle();
            dialog->close();
        }
    });
    closing.start(1);
    const QPoint place(210, 310);
    mapView(window)->setContextMenuPolicy(
        Qt::NoContextMenu); // its menu would take the second press
    clickOn(mapView(window)->viewport(), place, Qt::MouseButton(button));
    QCOMPARE(regionsOf(window)[2]->isSelected, selects);
    QCOMPARE(opened, QStringList());
    QTest::mouseDClick(window.windowHandle(), Qt::MouseButton(button), {},
                       mapView(window)->viewport()->mapTo(&window, place));
    QCOMPARE(opened, opens ? QStringList("Scenario Properties") : QStringList());
}

void MapViewOpeningTest::contextMenuOffersProperties_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::newRow("a region") << QPoint(210, 310);
    QTest::newRow("background") << QPoint(100, 20);
}

void MapViewOpeningTest::contextMenuOffersProperties()
{
    QFETCH(QPoint, place);
    MainWindow window(nullptr);
    QVERIFY(show(window));
    QCOMPARE(mapView(window)->contextMenuPolicy(), Qt::CustomContextMenu);
    const NextDialog properties(closingDialog("Scenario Properties"));
    QStringList texts;
    QPoint shownAt;
    QTimer::singleShot(0, &window, [&] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        shownAt = menu->pos();
        const auto entries = menu->actions();
        for (const QAction *entry : entries)
            texts << entry->text();
        clickOn(menu, menu->actionGeometry(entries[0]).center());
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, place);
    QApplication::sendEvent(mapView(window)->viewport(), &event);
    QTRY_COMPARE_WITH_TIMEOUT(texts, QStringList("Properties..."), longestWait);
    QCOMPARE(shownAt, mapView(window)->viewport()->mapToGlobal(place));
    QVERIFY(properties.came());
}

void MapViewOpeningTest::campaignWithoutMapOpensItsFirstScenario_data()
{
    QTest::addColumn<QByteArray>("way");
    QTest::newRow("double click") << QByteArray("click");
    QTest::newRow("context menu") << QByteArray("menu");
    QTest::newRow("Return") << QByteArray("key");
}

// There is nothing to select on its picture.
void MapViewOpeningTest::campaignWithoutMapOpensItsFirstScenario()
{
    QFETCH(QByteArray, way);
    MainWindow window(nullptr);
    window.loadFile(fixture->game.addCampaign(
        "chain.e3c", tiny::campaignWithoutMap(1, QVector<tiny::Scenario>(3))));
    QVERIFY(show(window));
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window, longestWait));
    const QPoint place = mapView(window)->viewport()->mapTo(&window, QPoint(210, 310));
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, place);
    QCOMPARE(EditorData::info.region, 0U);
    QVERIFY(!EditorData::info.currentItem);
    int row = -1;
    const NextDialog properties([&](QWidget *dialog) {
        row = dialog->findChild<QListWidget *>("listWidget")->currentRow();
        closingDialog("Scenario Properties")(dialog);
    });
    if (way == "click") {
        QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, place);
    } else if (way == "menu") {
        QTimer::singleShot(0, &window, [] {
            QWidget *menu = QApplication::activePopupWidget();
            QTest::keyClick(menu, Qt::Key_Down);
            QTest::keyClick(menu, Qt::Key_Return);
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(210, 310));
        QApplication::sendEvent(mapView(window)->viewport(), &event);
    } else {
        QTest::keyClick(window.windowHandle(), Qt::Key_Return);
    }
    QVERIFY(properties.came());
    QCOMPARE(row, 0);
    QCOMPARE(EditorData::info.region, 0U);
}

// What is opened then, if anything, isn't the view's business.
void MapViewOpeningTest::theViewOnlyAsks()
{
    QLabel label;
    MapBrowser browser(nullptr, &label);
    MyQGraphicsView *view = browser.getGraphicsView();
    QSignalSpy asked(view, &MyQGraphicsView::propertiesRequested);
    QMouseEvent click(QEvent::MouseButtonDblClick, QPointF(1, 1), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(view->viewport(), &click);
    QCOMPARE(asked.size(), 1);
    closeNextMenu(view);
    view->showContextMenu(QPoint(1, 1));
    QCOMPARE(asked.size(), 1);
    QTimer::singleShot(0, view, [] {
        QWidget *menu = QApplication::activePopupWidget();
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
    });
    view->showContextMenu(QPoint(1, 1));
    QCOMPARE(asked.size(), 2);
}

QTEST_MAIN(MapViewOpeningTest)
#include "map_view_opening_test.moc"
