// Answers the program's errors with message boxes.
#pragma once

// Makes every reported error a critical message box without a parent, and every end of the
// process an exit. Needs the application object.
void reportWithMessageBoxes();
