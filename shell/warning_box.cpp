#include "shell/warning_box.h"

#include "shell/shown_text.h"

#include <QMessageBox>

void warn(QWidget *parent, const QString &title, const QString &text)
{
    QMessageBox box(QMessageBox::Warning, title, forMessage(text), QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}
