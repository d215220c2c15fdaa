// The one box in which a dialog or a command tells a failure.
#pragma once

class QString;
class QWidget;

// One OK button, the text as it is: what a file's name holds is no markup.
void warn(QWidget *parent, const QString &title, const QString &text);
