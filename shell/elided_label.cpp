#include "shell/status_label.h"

#include "shell/dialog_look.h"

#include <QPainter>
#include <QStyle>

StatusLabel::StatusLabel(int widestRequest) : m_widestRequest(widestRequest)
{
    setFont(editorFont());
    setTextFormat(Qt::PlainText);
}

QSize StatusLabel::minimumSizeHint() const
{
    const QSize whole = sizeHint();
    return {qMin(whole.width(), m_widestRequest), whole.height()};
}

void StatusLabel::paintEvent(QPaintEvent *event)
{
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
    if (shown == text()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    style()->drawItemText(&painter, rect(), int(alignment()), palette(), isEnabled(), shown,
                          foregroundRole());
}
