// Texts of strangers as windows can show them. A name from a file or of one may be a megabyte in
// one word, or a thousand lines; no line, tool tip or box may grow past the screen because of it,
// nor take seconds to be measured.
#pragma once

#include <QString>

class QTextEdit;

// As one line, for labels, lists and boxes: blanks in the place of line ends and tabulators, and an
// ellipsis where it goes on for more than any room. Ordinary names stay as they are.
QString inOneLine(const QString &text);

// As a tool tip that is no markup, whatever the text holds. Endless words may break.
QString plainToolTip(const QString &text);

// As a message box can show it: what is too much is left out of the middle.
QString forMessage(const QString &text);

// As much of a text as a control needs to show that it is longer than so many characters. The
// control takes two characters of a line end for one.
QString headOf(const QString &text, int length);

// Puts a text into an editor. A word too long to be broken, which would take the control hours,
// makes it scroll to the side instead.
void setEditedText(QTextEdit *edit, const QString &text);

// Cuts a text that has grown longer than so many UTF-16 units; the cursor goes to its end then. A
// character of two units goes whole, since no file can hold half of it.
void keepWithin(QTextEdit *edit, int length);
