// A picture record of unknown form as a picture.
//
// A plain record doesn't say whether it has a palette or 24 bits a pixel, but its length does: the
// header's 12 bytes, then either a byte a pixel and a palette of 768, or three bytes a pixel.
#pragma once

#include <QImage>

// Null if the record has neither length nor the 32-bit form's magic. Cyan pixels of a palette
// picture are transparent, as the editor draws them.
QImage pictureOfRecord(char *record, int size);
