// Writing a picture as PNG.
#pragma once

#include "cli/command.h"

#include <QImage>

// Packs the picture in memory and replaces the file by it. Tells a failure.
ExitStatus savePicture(const QString &path, const QImage &image);
