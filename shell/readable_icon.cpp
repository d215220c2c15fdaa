#include "shell/readable_icon.h"

#include <QGuiApplication>
#include <QIcon>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

namespace {

class ShapeEngine : public QIconEngine
{
public:
    explicit ShapeEngine(const QIcon &newShape) : shape(newShape) {}
    ShapeEngine(const ShapeEngine &) = delete;
    ShapeEngine &operator=(const ShapeEngine &) = delete;

    QIconEngine *clone() const override { return new ShapeEngine(shape); }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal density = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, pixmap(rect.size() * density, mode, state));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        shape.paint(&painter, picture.rect(), Qt::AlignCenter, QIcon::Normal, state);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        painter.fillRect(picture.rect(),
                         QGuiApplication::palette().color(group, QPalette::ButtonText));
        return picture;
    }

private:
    const QIcon shape;
};

} // namespace

QIcon readableIcon(const QIcon &icon)
{
    const QPalette palette = QGuiApplication::palette();
    const bool dark = palette.color(QPalette::Button).lightness() <
                      palette.color(QPalette::ButtonText).lightness();
    return dark ? QIcon(new ShapeEngine(icon)) : icon;
}
