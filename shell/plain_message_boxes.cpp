#include "shell/plain_message_boxes.h"

#include <QEvent>
#include <QMessageBox>

PlainMessageBoxes::PlainMessageBoxes(QObject *parent) : QObject(parent) {}

// A box is polished once, before it reckons how large its text makes it.
bool PlainMessageBoxes::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Polish) {
        if (auto *box = qobject_cast<QMessageBox *>(watched))
            box->setTextFormat(Qt::PlainText);
    }
    return false;
}
