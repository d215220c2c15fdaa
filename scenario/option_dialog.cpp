#include "scenario/option_dialog.h"

#include "scenario/choice_box.h"
#include "shell/dialog_look.h"

#include <QDialog>
#include <QDialogButtonBox>

void setUpOptionDialog(QDialog *dialog, std::initializer_list<QComboBox *> boxes,
                       QDialogButtonBox *buttons)
{
    dialog->setWindowModality(Qt::ApplicationModal);
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    keepRightClicksOff(boxes, dialog);
    fixDialog(dialog);
}
