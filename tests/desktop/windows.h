// What a user does with the editor's windows as a whole: menus, dialogs, message boxes. As with
// controls.h, each function waits until it can be done, and until it shows.
#pragma once

#include "tests/desktop/editor.h"

// Windows go by their names too; a message box and a file dialog are "QMessageBox", "QFileDialog".
void waitForWindow(Editor &editor, const QString &name);
void waitForTitle(Editor &editor, const QString &title);

void openMenu(Editor &editor, const QString &menu);
void chooseFromMenu(Editor &editor, const QString &menu, const QString &entry);
void chooseFromOpenMenu(Editor &editor, const QString &menu, const QString &entry);

// Presses a button of a dialog's row, "OK" for one, and waits for the window that is in front then.
void answer(Editor &editor, const QString &button, const QString &windowAfter);
// The same for a message box, which has to say this.
void answerBox(Editor &editor, const QString &text, const QString &button,
               const QString &windowAfter);
// Types a path into a file dialog and takes it.
void answerFileDialog(Editor &editor, const QString &path, const QString &windowAfter);
