// The windows on a dark desktop: every text and every icon stands out from what is behind it. On a
// screen of twice the density, where a stroke has its full colour in the middle.
#include "tests/everybody/open_windows.h"
#include "tests/everybody/window_walk.h"

#include <QAbstractButton>
#include <QHash>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPalette>

#include <cmath>

namespace {

constexpr double leastContrast = 4.5;
constexpr double leastContrastOfDisabled = 3;
constexpr double leastContrastOfIcons = 3;
constexpr double leastContrastOfFaintIcons = 1.5; // those that can't be used
constexpr int iconPart = 20;                      // one pixel in so many has to stand out

// Colours as dark desktops have them.
QPalette darkPalette()
{
    const QColor window(0x2e, 0x2e, 0x2e);
    const QColor button(0x40, 0x40, 0x40);
    QPalette palette(button, window);
    palette.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
    palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x26, 0x26));
    palette.setColor(QPalette::Highlight, QColor(0x15, 0x53, 0x9e));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, QColor(0xee, 0xee, 0xec));
        palette.setColor(QPalette::Disabled, role, QColor(0xae, 0xae, 0xae));
    }
    return palette;
}

double linear(int channel)
{
    const double part = channel / 255.0;
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(QRgb colour)
{
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) +
           0.0722 * linear(qBlue(colour));
}

double contrast(QRgb a, QRgb b)
{
    const double one = luminance(a) + 0.05;
    const double other = luminance(b) + 0.05;
    return one > other ? one / other : other / one;
}

using Colours = QHash<QRgb, int>; // how many pixels of each

Colours coloursIn(const QImage &picture, const QRect &place)
{
    Colours colours;
    const QRect inside = place.intersected(picture.rect());
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x)
            ++colours[picture.pixel(x, y)];
    }
    return colours;
}

QRgb mostFrequent(const Colours &colours)
{
    QRgb most = 0;
    for (auto colour = colours.begin(); colour != colours.end(); ++colour) {
        if (colour.value() > colours.value(most))
            most = colour.key();
    }
    return most;
}

// The text is what stands out most from what there is most of.
double contrastIn(const Colours &colours)
{
    const QRgb background = mostFrequent(colours);
    double best = 1;
    for (auto colour = colours.begin(); colour != colours.end(); ++colour)
        best = std::max(best, contrast(colour.key(), background));
    return best;
}

QImage pictureOfAll(QWidget *window)
{
    QCoreApplication::processEvents();
    return window->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// A place of a widget in the picture of its window.
QRect placeIn(const QImage &picture, const QWidget *widget, const QRect &room)
{
    const QPoint corner = widget->mapTo(widget->window(), room.topLeft());
    const qreal density = picture.devicePixelRatio();
    return {corner * density, room.size() * density};
}

QString fault(const QString &what, double ratio)
{
    return QStringLiteral("%1: %2 to 1").arg(what).arg(ratio, 0, 'f', 2);
}

QStringList faintTexts(QWidget *window)
{
    QStringList faint;
    const QImage picture = pictureOfAll(window);
    const QVector<ShownText> texts = shownTexts(window);
    for (const ShownText &shown : texts) {
        const double ratio =
            contrastIn(coloursIn(picture, placeIn(picture, shown.widget, shown.room)));
        if (ratio < (shown.enabled ? leastContrast : leastContrastOfDisabled))
            faint += fault(describe(shown.widget) + ' ' + shown.text, ratio);
    }
    return faint;
}

// Whether enough of an icon does.
bool standsOut(const Colours &colours, double least)
{
    const QRgb background = mostFrequent(colours);
    int all = 0;
    int seen = 0;
    for (auto colour = colours.begin(); colour != colours.end(); ++colour) {
        all += colour.value();
        if (contrast(colour.key(), background) >= least)
            seen += colour.value();
    }
    return seen * iconPart >= all;
}

// The icon alone, drawn on what buttons are filled with.
QImage iconOf(const QAbstractButton *button)
{
    const QSize size = button->iconSize();
    QImage picture(size * 2, QImage::Format_RGB32);
    picture.fill(button->palette().color(QPalette::Button));
    QPainter painter(&picture);
    const auto mode = button->isEnabled() ? QIcon::Normal : QIcon::Disabled;
    button->icon().paint(&painter, picture.rect(), Qt::AlignCenter, mode);
    return picture;
}

} // namespace

class ContrastTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void paletteIsReadable();
    void faintTextsAreFound();

    void textsStandOut_data() { addWindows(); }
    void textsStandOut();
    void rolesStandOut_data() { addWindows(); }
    void rolesStandOut();
    void iconsStandOut_data() { addWindows(); }
    void iconsStandOut();
    void menusStandOut();

private:
    QWidget *window() const { return windows->ofRow(); }

    std::unique_ptr<AllWindows> windows;
};

void ContrastTest::initTestCase()
{
    QApplication::setPalette(darkPalette());
    windows = std::make_unique<AllWindows>();
    QCOMPARE(qApp->devicePixelRatio(), 2.0);
}

// The program's style leaves the desktop its colours, and the test's own can be read.
void ContrastTest::paletteIsReadable()
{
    const QPalette palette = QApplication::palette();
    QCOMPARE(palette.color(QPalette::Window), darkPalette().color(QPalette::Window));
    QCOMPARE(palette.color(QPalette::Text), darkPalette().color(QPalette::Text));
    const QRgb disabled = palette.color(QPalette::Disabled, QPalette::ButtonText).rgb();
    QVERIFY(contrast(disabled, palette.color(QPalette::Button).rgb()) > leastContrastOfDisabled);
    QVERIFY(contrast(qRgb(0, 0, 0), qRgb(255, 255, 255)) > 20.9);
}

void ContrastTest::faintTextsAreFound()
{
    QLabel faint("faint");
    faint.setStyleSheet("background: #303030; color: #707070;");
    faint.show();
    QCOMPARE(faintTexts(&faint).size(), 1);
    faint.setStyleSheet("background: #303030; color: #c0c0c0;");
    QCOMPARE(faintTexts(&faint), QStringList());
    QImage empty(16, 16, QImage::Format_RGB32);
    empty.fill(Qt::darkGray);
    QVERIFY(!standsOut(coloursIn(empty, empty.rect()), leastContrastOfIcons));
}

void ContrastTest::textsStandOut()
{
    const QStringList faint = faintTexts(window());
    QVERIFY2(faint.isEmpty(), qPrintable(faint.join('\n')));
}

// Whatever a style makes of them.
void ContrastTest::rolesStandOut()
{
    const QVector<QWidget *> widgets = shownWidgets(window());
    for (const QWidget *widget : widgets) {
        const QPalette &palette = widget->palette();
        const double ratio = contrast(palette.color(widget->foregroundRole()).rgb(),
                                      palette.color(widget->backgroundRole()).rgb());
        const double least = widget->isEnabled() ? leastContrast : leastContrastOfDisabled;
        QVERIFY2(ratio >= least, qPrintable(fault(describe(widget), ratio)));
    }
}

void ContrastTest::iconsStandOut()
{
    const auto buttons = window()->findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons) {
        if (!button->isVisible() || button->icon().isNull())
            continue;
        const QImage icon = iconOf(button);
        const double least = button->isEnabled() ? leastContrastOfIcons : leastContrastOfFaintIcons;
        QVERIFY2(standsOut(coloursIn(icon, icon.rect()), least), qPrintable(describe(button)));
    }
}

void ContrastTest::menusStandOut()
{
    int seen = 0;
    const auto menus = windows->mainWindow()->findChildren<QMenu *>();
    for (QMenu *menu : menus) {
        menu->popup({0, 0});
        const QImage picture = pictureOfAll(menu);
        const auto actions = menu->actions();
        for (QAction *action : actions) {
            if (!action->isVisible() || action->isSeparator())
                continue;
            const QRect place = placeIn(picture, menu, menu->actionGeometry(action));
            const double ratio = contrastIn(coloursIn(picture, place));
            QVERIFY2(ratio >= leastContrast, qPrintable(fault(action->text(), ratio)));
            ++seen;
        }
        menu->close();
    }
    QVERIFY(seen > 10);
}

int main(int argc, char **argv)
{
    return runOnAnyScreen<ContrastTest>(argc, argv);
}

#include "contrast_test.moc"
