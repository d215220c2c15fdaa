// Writer of .ico files whose entries are PNG pictures.
#pragma once

#include <QImage>
#include <QString>
#include <QVector>

namespace art {

// Pictures are square, 1 to 256 pixels. False if the file can't be written.
bool writeIcon(const QVector<QImage> &pictures, const QString &path);

} // namespace art
