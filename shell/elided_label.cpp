#include "shell/elided_label.h"

#include "shell/shown_text.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

void ElidedLabel::setWidestRequest(int width)
{
    m_widestRequest = width;
    updateGeometry();
}

// Of a text that is shown as it is, the label itself tells.
QSize ElidedLabel::sizeHint() const
{
    const QString line = inOneLine(text());
    if (line == text())
        return QLabel::sizeHint();
    const QMargins margins = contentsMargins();
    return {fontMetrics().horizontalAdvance(line) + margins.left() + margins.right(),
            fontMetrics().height() + margins.top() + margins.bottom()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    const QSize whole = sizeHint();
    return {qMin(whole.width(), m_widestRequest), whole.height()};
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    const QString whole = shownText() == text() ? QString() : plainToolTip(text());
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), whole, this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent *event)
{
    const QString shown = shownText();
    if (shown == text()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    style()->drawItemText(&painter, rect(), int(alignment()), palette(), isEnabled(), shown,
                          foregroundRole());
}

QString ElidedLabel::shownText() const
{
    return fontMetrics().elidedText(inOneLine(text()), Qt::ElideRight, width());
}
