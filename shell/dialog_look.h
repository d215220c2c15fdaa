// What all windows of the program have in common: their font, and dialogs of a fixed size.
#pragma once

#include <QFont>
#include <QString>

class QDialog;

// The font of the interface at 8 points; the system's own family where this one is missing.
QFont editorFont(const QString &family = QStringLiteral("MS Shell Dlg"));

// To be called once the form is set up: gives the dialog the interface's font where its form
// names one that is missing, takes the help button off its title bar, calls its lists by their
// labels and fixes its size: the form's, or more where the texts need it.
void fixDialog(QDialog *dialog);
