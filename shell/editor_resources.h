// The pictures built into the program.
#pragma once

// Makes the icons and splash pictures available under ":/icons/". They stand in a static library,
// from which the linker would leave them out unasked. Calling it again does nothing.
void initEditorResources();
