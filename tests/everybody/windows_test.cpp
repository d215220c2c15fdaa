// What everybody needs of every window, however they see it: a name for each control, no text cut,
// nothing upon something else, the map where the mouse finds it. CTest runs it in both languages,
// at several scales and from right to left.
#include "tests/everybody/open_windows.h"
#include "tests/everybody/window_walk.h"

#include "gamedata/editor_data.h"
#include "tests/shell/window_fixture.h"
#include "tests/support/widgets.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QGraphicsView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTabBar>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

// A notebook's screen, less what a desktop keeps for its panel and a window for its title.
constexpr QSize smallScreen(1366, 768);
constexpr QSize aroundAWindow(8, 64);

QString inLines(const QStringList &faults)
{
    return faults.join(QLatin1Char('\n'));
}

// The letters behind the mark "&" in a text; "&&" is no mark.
QString keyOf(QString text)
{
    text.remove(QStringLiteral("&&"));
    const int mark = text.indexOf(QLatin1Char('&'));
    return mark < 0 ? QString() : text.mid(mark + 1, 1).toUpper();
}

// What two of have in common.
QStringList repeated(QStringList keys)
{
    QStringList twice;
    keys.removeAll(QString());
    while (!keys.isEmpty()) {
        const QString key = keys.takeFirst();
        if (keys.contains(key))
            twice += key;
    }
    return twice;
}

QStringList keysOf(const QList<QAction *> &actions)
{
    QStringList keys;
    for (const QAction *action : actions) {
        if (action->isVisible())
            keys += keyOf(action->text());
    }
    return keys;
}

QVector<QWidget *> namelessPictures(QWidget *window)
{
    QVector<QWidget *> nameless;
    const QVector<QWidget *> widgets = shownWidgets(window);
    for (QWidget *widget : widgets) {
        const auto *label = qobject_cast<QLabel *>(widget);
        if (label && !label->pixmap(Qt::ReturnByValue).isNull() && spokenName(widget).isEmpty())
            nameless += widget;
    }
    return nameless;
}

// A place where a press reaches the region, whatever lies on it; in the view's own coordinates.
QPoint placeToPress(const QGraphicsView &view, const QGraphicsItem *region)
{
    const QRect around = region->sceneBoundingRect().toAlignedRect();
    for (int y = around.top(); y <= around.bottom(); y += 3) {
        for (int x = around.left(); x <= around.right(); x += 3) {
            if (view.scene()->itemAt(QPointF(x, y), {}) == region)
                return view.mapFromScene(QPointF(x, y));
        }
    }
    return {-1, -1};
}

// What differs between two pictures of the same view, in the view's pixels.
QRectF differenceOf(const QImage &before, const QImage &after)
{
    QRect differing;
    for (int y = 0; y < before.height(); ++y) {
        for (int x = 0; x < before.width(); ++x) {
            if (before.pixel(x, y) != after.pixel(x, y))
                differing |= QRect(x, y, 1, 1);
        }
    }
    const qreal density = before.devicePixelRatio();
    return {QPointF(differing.topLeft()) / density, QSizeF(differing.size()) / density};
}

} // namespace

class WindowsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void walkFindsFaults();

    void everyControlHasAName_data() { addWindows(); }
    void everyControlHasAName();
    void labelsNameTheirControls_data() { addWindows(); }
    void labelsNameTheirControls();
    void noTwoControlsSoundAlike_data() { addWindows(); }
    void noTwoControlsSoundAlike();
    void keysOfTextsAreUnlike_data() { addWindows(); }
    void keysOfTextsAreUnlike();
    void keysOfMenusAreUnlike();
    void noTextIsCut_data() { addWindows(); }
    void noTextIsCut();
    void everythingHasAPlaceOfItsOwn_data() { addWindows(); }
    void everythingHasAPlaceOfItsOwn();
    void labelsStandBeforeTheirControls_data() { addWindows(); }
    void labelsStandBeforeTheirControls();
    void windowsFitASmallScreen_data() { addWindows(); }
    void windowsFitASmallScreen();
    void mapIsNeverMirrored();
    void regionsAreWhereTheyAreSeen();

private:
    QWidget *window() const { return windows->ofRow(); }

    std::unique_ptr<AllWindows> windows;
};

void WindowsTest::initTestCase()
{
    QCOMPARE(qApp->devicePixelRatio(), qEnvironmentVariable("QT_SCALE_FACTOR", "1").toDouble());
    windows = std::make_unique<AllWindows>();
    QCOMPARE(QApplication::isRightToLeft(), qEnvironmentVariableIsSet("CMPED_TEST_MIRRORED"));
}

// A window as none should be.
void WindowsTest::walkFindsFaults()
{
    QWidget window;
    window.resize(300, 100);
    QLabel cut("A text that is much too long for its room", &window);
    cut.setGeometry(10, 10, 60, 20);
    QPushButton nameless(&window);
    nameless.setGeometry(40, 20, 60, 20);
    QPushButton outside("outside", &window);
    outside.setGeometry(250, 60, 100, 30);
    bringOnShow(window);
    QCOMPARE(cutTexts(&window).size(), 1);
    QCOMPARE(misplacedWidgets(&window).size(), 2);
    QCOMPARE(spokenName(&nameless), QString());
    QCOMPARE(spokenName(&outside), QString("outside"));
}

void WindowsTest::everyControlHasAName()
{
    QStringList faults;
    const QVector<QWidget *> controls = focusableControls(window()) + namelessPictures(window());
    for (QWidget *control : controls) {
        const QString name = spokenName(control);
        const bool hasLetters =
            std::any_of(name.begin(), name.end(), [](QChar sign) { return sign.isLetter(); });
        if (!hasLetters || name.contains(QLatin1Char('&')))
            faults += describe(control) + " is called \"" + name + '"';
    }
    QVERIFY2(faults.isEmpty(), qPrintable(inLines(faults)));
}

void WindowsTest::labelsNameTheirControls()
{
    const QVector<QWidget *> widgets = shownWidgets(window());
    for (QWidget *widget : widgets) {
        const auto *label = qobject_cast<QLabel *>(widget);
        if (label && label->buddy())
            QCOMPARE(spokenName(label->buddy()), label->text().remove(QLatin1Char('&')));
    }
}

void WindowsTest::noTwoControlsSoundAlike()
{
    QStringList names;
    const QVector<QWidget *> controls = focusableControls(window());
    for (QWidget *control : controls)
        names += spokenGroup(control) + " > " + spokenName(control);
    const QStringList twice = repeated(names);
    QVERIFY2(twice.isEmpty(), qPrintable(inLines(twice)));
}

void WindowsTest::keysOfTextsAreUnlike()
{
    QStringList keys;
    const QVector<ShownText> texts = shownTexts(window());
    for (const ShownText &shown : texts) {
        if (qobject_cast<QAbstractButton *>(shown.widget) ||
            qobject_cast<QTabBar *>(shown.widget) || qobject_cast<QMenuBar *>(shown.widget))
            keys += keyOf(shown.text);
    }
    QCOMPARE(repeated(keys), QStringList());
}

void WindowsTest::keysOfMenusAreUnlike()
{
    QStringList shortcuts;
    QWidget *mainWindow = windows->mainWindow();
    const auto menus = mainWindow->findChildren<QMenu *>();
    QVERIFY(menus.size() >= 3);
    for (const QMenu *menu : menus) {
        QCOMPARE(repeated(keysOf(menu->actions())), QStringList());
        const auto actions = menu->actions();
        for (const QAction *action : actions)
            shortcuts += action->shortcut().toString();
    }
    QVERIFY(shortcuts.contains("Ctrl+N"));
    QCOMPARE(repeated(shortcuts), QStringList());
}

void WindowsTest::noTextIsCut()
{
    QVERIFY(!shownTexts(window()).isEmpty());
    const QStringList cut = cutTexts(window());
    QVERIFY2(cut.isEmpty(), qPrintable(inLines(cut)));
}

void WindowsTest::everythingHasAPlaceOfItsOwn()
{
    const QStringList misplaced = misplacedWidgets(window());
    QVERIFY2(misplaced.isEmpty(), qPrintable(inLines(misplaced)));
}

// To its left, or to its right where one reads from there; or above it.
void WindowsTest::labelsStandBeforeTheirControls()
{
    const bool mirrored = QApplication::isRightToLeft();
    const QVector<QWidget *> widgets = shownWidgets(window());
    for (QWidget *widget : widgets) {
        const auto *label = qobject_cast<QLabel *>(widget);
        if (!label || !label->buddy() || !label->buddy()->isVisible())
            continue;
        const QRect text(label->mapTo(window(), QPoint()), label->size());
        const QRect control(label->buddy()->mapTo(window(), QPoint()), label->buddy()->size());
        const bool before =
            mirrored ? text.left() > control.right() : text.right() < control.left();
        QVERIFY2(before || text.bottom() < control.top(), qPrintable(describe(label)));
    }
}

void WindowsTest::windowsFitASmallScreen()
{
    const QSize taken = window()->size() + aroundAWindow;
    QVERIFY2(taken.boundedTo(smallScreen) == taken,
             qPrintable(QStringLiteral("%1 by %2").arg(taken.width()).arg(taken.height())));
}

void WindowsTest::mapIsNeverMirrored()
{
    const auto *view = windows->mainWindow()->findChild<QGraphicsView *>("graphicsView");
    QCOMPARE(view->size(), QSize(456, 600));
    QCOMPARE(view->mapFromScene(QPointF(0, 0)), QPoint(0, 0));
    QCOMPARE(view->mapFromScene(QPointF(455, 599)), QPoint(455, 599));
    QVERIFY(windows->mainWindow()->rect().contains(
        QRect(view->mapTo(view->window(), QPoint()), view->size())));
}

// A click on each selects it and draws it anew, and nothing elsewhere.
void WindowsTest::regionsAreWhereTheyAreSeen()
{
    windows->hideDialogs(); // or they would keep clicks off
    auto &window = static_cast<MainWindow &>(*windows->mainWindow());
    QGraphicsView &view = *mapView(window);
    const QVector<CampaignRegionItem *> regions = regionsOf(window);
    QVERIFY(regions.size() > 5);
    const CampaignRegionItem *last = regions[0];
    clickOn(view.viewport(), placeToPress(view, last));
    for (CampaignRegionItem *region : regions) {
        const QImage before = view.grab().toImage();
        clickOn(view.viewport(), placeToPress(view, region));
        QCOMPARE(EditorData::info.region, region->regionIndex);
        const QImage after = view.grab().toImage();
        QCOMPARE(after.devicePixelRatio(), qApp->devicePixelRatio());
        const QRectF changed = differenceOf(before, after);
        const QRectF expected = region->sceneBoundingRect() | last->sceneBoundingRect();
        const QRectF around = expected.adjusted(-2, -2, 2, 2);
        QVERIFY2(region == last || around.contains(changed), qPrintable(regionNameIn(window)));
        QVERIFY(region == last || changed.width() * 2 > expected.width());
        last = region;
    }
}

int main(int argc, char **argv)
{
    return runOnAnyScreen<WindowsTest>(argc, argv);
}

#include "windows_test.moc"
