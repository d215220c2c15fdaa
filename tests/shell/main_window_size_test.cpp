// The window's size, and what of the map is seen in it.
#include "tests/shell/window_fixture.h"
#include "tests/support/longest_wait.h"

#include <QLayout>

class MainWindowSizeTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<WindowFixture>(); }
    void init() { fixture->reset(); }

    void opensWithTheWholeMapInSight();
    void smallerWindowGetsScrollBars_data();
    void smallerWindowGetsScrollBars();
    void largerWindowKeepsTheViewAtThePicture();
    void heightBelowNothingCountsAsTheWhole();
    void leavingAStateRestoresTheFirstSize_data();
    void leavingAStateRestoresTheFirstSize();
    void longHintsDoNotWidenTheWindow();
    void statusTextsShareTheRoom();

private:
    std::unique_ptr<WindowFixture> fixture;
};

void MainWindowSizeTest::opensWithTheWholeMapInSight()
{
    MainWindow window(nullptr);
    QVERIFY(show(window));
    QGraphicsView *view = mapView(window);
    QCOMPARE(view->size(), QSize(456, 600));
    QCOMPARE(view->viewport()->size(), QSize(456, 600));
    QCOMPARE(view->mapFromScene(0, 0), QPoint(0, 0));
    QCOMPARE(view->parentWidget()->size(), QSize(456, 600));
    QCOMPARE(window.centralWidget()->size(), QSize(456, 600));
    QCOMPARE(window.width(), 456);
    QVERIFY(window.height() >= 685);
    QCOMPARE(view->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(view->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    const QImage shown = window.grab().toImage();
    const QPoint corner = view->mapTo(&window, QPoint(0, 0));
    const QColor colour = tiny::backgroundColour("backhome.pcx");
    QCOMPARE(shown.pixelColor(corner), colour);
    QCOMPARE(shown.pixelColor(corner + QPoint(455, 599)), colour);
}

void MainWindowSizeTest::smallerWindowGetsScrollBars_data()
{
    QTest::addColumn<QSize>("change");
    QTest::addColumn<QSize>("view");
    QTest::addColumn<bool>("bars");
    QTest::newRow("narrower") << QSize(-56, 0) << QSize(400, 600) << true;
    QTest::newRow("lower") << QSize(0, -100) << QSize(456, 500) << true;
    QTest::newRow("both") << QSize(-106, -200) << QSize(350, 400) << true;
    QTest::newRow("narrower and higher") << QSize(-56, 50) << QSize(400, 600) << true;
    QTest::newRow("larger") << QSize(100, 100) << QSize(456, 600) << false;
}

void MainWindowSizeTest::smallerWindowGetsScrollBars()
{
    QFETCH(QSize, change);
    QFETCH(QSize, view);
    QFETCH(bool, bars);
    MainWindow window(nullptr);
    QVERIFY(show(window));
    const QSize first = window.size();
    window.resize(first + change);
    QTRY_COMPARE_WITH_TIMEOUT(mapView(window)->size(), view, longestWait);
    QCOMPARE(mapView(window)->parentWidget()->size(), view);
    const auto policy = bars ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff;
    QCOMPARE(mapView(window)->horizontalScrollBarPolicy(), policy);
    QCOMPARE(mapView(window)->verticalScrollBarPolicy(), policy);
    window.resize(first);
    QTRY_COMPARE_WITH_TIMEOUT(mapView(window)->size(), QSize(456, 600), longestWait);
    QCOMPARE(mapView(window)->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
}

void MainWindowSizeTest::largerWindowKeepsTheViewAtThePicture()
{
    MainWindow window(nullptr);
    QVERIFY(show(window));
    window.resize(900, 900);
    QTRY_COMPARE_WITH_TIMEOUT(mapView(window)->size(), QSize(456, 600), longestWait);
    // A new layout must not stretch the page either.
    window.centralWidget()->layout()->invalidate();
    window.centralWidget()->layout()->activate();
    QCOMPARE(mapView(window)->size(), QSize(456, 600));
    QCOMPARE(mapView(window)->mapFromScene(0, 0), QPoint(0, 0));
}

// A window lower than its bars leaves less than nothing to the map.
void MainWindowSizeTest::heightBelowNothingCountsAsTheWhole()
{
    MainWindow window(nullptr);
    QResizeEvent event(QSize(400, window.height() - 601), window.size());
    QApplication::sendEvent(&window, &event);
    QCOMPARE(mapView(window)->size(), QSize(400, 600));
    QCOMPARE(mapView(window)->parentWidget()->size(), QSize(400, 600));
    QResizeEvent next(QSize(400, window.height() - 599), window.size());
    QApplication::sendEvent(&window, &next);
    QCOMPARE(mapView(window)->size(), QSize(400, 1));
}

void MainWindowSizeTest::leavingAStateRestoresTheFirstSize_data()
{
    QTest::addColumn<int>("state");
    QTest::newRow("maximised") << int(Qt::WindowMaximized);
    QTest::newRow("minimised") << int(Qt::WindowMinimized);
}

void MainWindowSizeTest::leavingAStateRestoresTheFirstSize()
{
    QFETCH(int, state);
    MainWindow window(nullptr);
    QVERIFY(show(window));
    const QSize first = window.size();
    window.resize(600, 700);
    window.setWindowState(Qt::WindowState(state));
    QTRY_VERIFY_WITH_TIMEOUT(window.windowState() & Qt::WindowState(state), longestWait);
    window.setWindowState(Qt::WindowNoState);
    QTRY_COMPARE_WITH_TIMEOUT(window.size(), first, longestWait);
}

void MainWindowSizeTest::longHintsDoNotWidenTheWindow()
{
    MainWindow window(nullptr);
    QVERIFY(show(window));
    const QSize first = window.size();
    action(window, "actionNew")->setToolTip(QString("long ").repeated(60));
    action(window, "actionNew")->hover();
    QCoreApplication::processEvents();
    QCOMPARE(window.size(), first);
    QVERIFY(window.minimumSizeHint().width() <= 456);
    // A long hint leaves the region's name whole and ends in an ellipsis itself.
    const auto *region = statusLabel(window, 1);
    QVERIFY(region->width() >= region->sizeHint().width());
    QVERIFY(statusLabel(window, 0)->width() >= 300);
}

// The line between them takes no more than it needs.
void MainWindowSizeTest::statusTextsShareTheRoom()
{
    MainWindow window(nullptr);
    QVERIFY(show(window));
    const QLabel *hint = statusLabel(window, 0);
    const QLabel *region = statusLabel(window, 1);
    const int between = region->x() - hint->x() - hint->width();
    window.resize(window.width() + 400, window.height());
    QTRY_VERIFY_WITH_TIMEOUT(hint->width() + region->width() > 700, longestWait);
    QVERIFY(qAbs(hint->width() - region->width()) <= 1);
    QCOMPARE(region->x() - hint->x() - hint->width(), between);
}

QTEST_MAIN(MainWindowSizeTest)
#include "main_window_size_test.moc"
