// The pictures built into the program.
#pragma once

#include <QIcon>

// Makes the icons and splash pictures available under ":/icons/". They stand in a static library,
// from which the linker would leave them out unasked. Calling it again does nothing.
void initEditorResources();

// The icon of the program's windows. A window system takes all the sizes that an icon offers for
// each window, so this one offers those that title bars, lists of windows and docks show; the
// file's largest picture, which is most of its bytes, isn't among them. Each is read when it is
// asked for.
QIcon applicationIcon();
