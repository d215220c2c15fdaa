#include "shell/fusion_style_tweaks.h"

#include "shell/readable_palette.h"
#include "shell/style.h"

#include <QIcon>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionToolBar>
#include <QSvgRenderer>

#include <array>

namespace {

constexpr double headerMarginFactor = 1.5;
constexpr int toolBarDarkening = 200; // percent: half as bright

constexpr QRgb disabledLine = qRgb(190, 190, 190);
constexpr QRgb pressedFill = qRgb(197, 221, 246);
constexpr QRgb hoveredFill = qRgb(229, 241, 253);
constexpr double dotPart = 0.25; // of a radio button's width, left free on each side of its dot

bool isDark()
{
    return Style::current() == Style::dark();
}

QPen indicatorPen(const QStyleOption &option)
{
    if (isDark())
        return QPen(Qt::lightGray);
    return option.state & QStyle::State_Enabled ? QPen(Qt::black) : QPen(QColor(disabledLine));
}

QBrush indicatorBrush(const QStyleOption &option)
{
    if (!(option.state & QStyle::State_Enabled))
        return Qt::NoBrush;
    if (option.state & QStyle::State_Sunken)
        return QColor(pressedFill);
    if (option.state & QStyle::State_MouseOver)
        return QColor(hoveredFill);
    return Qt::white;
}

QSvgRenderer &checkmark(bool enabled)
{
    if (enabled) {
        static QSvgRenderer black(QStringLiteral(":/icons/checkmark_black.svg"));
        return black;
    }
    static QSvgRenderer gray(QStringLiteral(":/icons/checkmark_gray.svg"));
    return gray;
}

// Lines as filled rectangles: a pen that is scaled by one and a half covers a pixel less on some
// sides, and half of it lies outside, where an item of a list is clipped.
void drawFrame(const QRect &rect, const QColor &colour, QPainter &painter)
{
    painter.fillRect(QRect(rect.left(), rect.top(), rect.width(), 1), colour);
    painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), colour);
    painter.fillRect(QRect(rect.left(), rect.top(), 1, rect.height()), colour);
    painter.fillRect(QRect(rect.right(), rect.top(), 1, rect.height()), colour);
}

void drawCheckBox(const QStyleOption &option, QPainter &painter)
{
    painter.save();
    painter.fillRect(option.rect, indicatorBrush(option));
    drawFrame(option.rect, indicatorPen(option).color(), painter);
    if (option.state & QStyle::State_On)
        checkmark(option.state & QStyle::State_Enabled).render(&painter, option.rect);
    painter.restore();
}

void drawRadioButton(const QStyleOption &option, QPainter &painter)
{
    const QRectF circle(option.rect.x() + 0.5, option.rect.y() + 0.5, option.rect.width() - 1,
                        option.rect.height() - 1);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(indicatorPen(option));
    painter.setBrush(indicatorBrush(option));
    painter.drawEllipse(circle);
    if (option.state & QStyle::State_On) {
        const double free = circle.width() * dotPart;
        painter.setPen(Qt::NoPen);
        // Black stays readable on the white fill of the dark look too.
        painter.setBrush(option.state & QStyle::State_Enabled ? QColor(Qt::black)
                                                              : QColor(disabledLine));
        painter.drawEllipse(circle.adjusted(free, free, -free, -free));
    }
    painter.restore();
}

// Where an item would land, over the whole row and not just under its text.
void drawDropLine(const QStyleOption &option, QPainter &painter, const QWidget &widget)
{
    painter.save();
    painter.setPen(option.palette.color(QPalette::Text));
    painter.drawLine(0, option.rect.top(), widget.width(), option.rect.top());
    painter.restore();
}

QPixmap closePicture()
{
    constexpr int side = 128;
    constexpr int near = 20;
    constexpr int far = 108;
    constexpr int lineWidth = 8;
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::gray, lineWidth));
    const std::array<QLine, 6> lines{{{near, near, far, near},
                                      {far, near, far, far},
                                      {far, far, near, far},
                                      {near, far, near, near},
                                      {near, near, far, far},
                                      {near, far, far, near}}};
    painter.drawLines(lines.data(), int(lines.size()));
    return picture;
}

} // namespace

FusionStyleTweaks::FusionStyleTweaks()
    : QProxyStyle(QStyleFactory::create(QStringLiteral("fusion")))
{
}

void FusionStyleTweaks::drawControl(ControlElement element, const QStyleOption *option,
                                    QPainter *painter, const QWidget *widget) const
{
    const auto *toolBar = qstyleoption_cast<const QStyleOptionToolBar *>(option);
    if (element != CE_ToolBar || !toolBar || !isDark()) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    QStyleOptionToolBar darker(*toolBar);
    darker.palette.setBrush(QPalette::All, QPalette::Window,
                            Style::dark()->backgroundColor().darker(toolBarDarkening));
    QProxyStyle::drawControl(element, &darker, painter, widget);
}

void FusionStyleTweaks::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                      QPainter *painter, const QWidget *widget) const
{
    // A place between two items has a width without a height: a line is wanted there as well.
    const bool isDropLine =
        element == PE_IndicatorItemViewItemDrop && widget && !option->rect.isNull();
    if (element == PE_IndicatorCheckBox)
        drawCheckBox(*option, *painter);
    else if (element == PE_IndicatorRadioButton)
        drawRadioButton(*option, *painter);
    else if (isDropLine)
        drawDropLine(*option, *painter, *widget);
    else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

int FusionStyleTweaks::pixelMetric(PixelMetric metric, const QStyleOption *option,
                                   const QWidget *widget) const
{
    const int value = QProxyStyle::pixelMetric(metric, option, widget);
    return metric == PM_HeaderMargin ? int(value * headerMarginFactor) : value;
}

QIcon FusionStyleTweaks::standardIcon(StandardPixmap icon, const QStyleOption *option,
                                      const QWidget *widget) const
{
    if (icon != SP_TitleBarCloseButton)
        return QProxyStyle::standardIcon(icon, option, widget);
    static const QPixmap picture = closePicture();
    return picture;
}

int FusionStyleTweaks::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                                 QStyleHintReturn *returnData) const
{
    // Combo boxes open as lists under their field, not as menus over it.
    if (hint == SH_ComboBox_Popup)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

void FusionStyleTweaks::polish(QPalette &palette)
{
    QProxyStyle::polish(palette);
    makeDisabledTextsReadable(palette);
}
