#include "shell/wait_cursor.h"

#include <QApplication>

WaitCursor::WaitCursor()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

WaitCursor::~WaitCursor()
{
    restore();
}

void WaitCursor::restore()
{
    const QCursor *now = QApplication::overrideCursor();
    if (m_set && now && now->shape() == Qt::WaitCursor)
        QApplication::restoreOverrideCursor();
    m_set = false;
}
