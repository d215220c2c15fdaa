// What the start-up does between the application object and the main window.
#pragma once

#include <QPixmap>
#include <QString>

class QApplication;

// The folder of the operating system, in which a program may find itself started by accident.
// Only Windows has one; the answer is empty elsewhere.
QString getSystemPath();

// Installs the translators of the language that the settings name, chooses the codec of the
// game's texts and fills the game's tables. A codec that Qt doesn't know ends the process with a
// message. Needs `ini` and RADF.
void loadTranslations(QApplication *application);

// The picture shown while the program starts, in the language of the settings.
QPixmap splashPicture();
