#include "shell/elided_label.h"

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

QSize ElidedLabel::minimumSizeHint() const
{
    const QSize whole = sizeHint();
    return {qMin(whole.width(), m_widestRequest), whole.height()};
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    // Said to be rich, for otherwise a name with markup in it would be taken for that.
    const QString whole = shownText() == text()
                              ? QString()
                              : QStringLiteral("<qt>%1</qt>").arg(text().toHtmlEscaped());
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
    return fontMetrics().elidedText(text(), Qt::ElideRight, width());
}
