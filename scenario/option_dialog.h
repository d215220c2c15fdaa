// What the dialogs for one row of options have in common: combo boxes that leave the right mouse
// button alone and tell their texts whole, and a window of the program's look.
#pragma once

#include <initializer_list>

class QComboBox;
class QDialog;
class QDialogButtonBox;

// To be called once the form is set up and its boxes are filled.
void setUpOptionDialog(QDialog *dialog, std::initializer_list<QComboBox *> boxes,
                       QDialogButtonBox *buttons);
