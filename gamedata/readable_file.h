// Opening a file that a user chose, or that stands where one is looked for.
#pragma once

#include <QFile>
#include <QString>

#include <optional>

// Opens a file for reading. Answers why it can't be read, or nothing. What is neither a file nor a
// link to one is refused unopened: a pipe that nobody writes to would hold the window for ever, and
// a device has no end.
std::optional<QString> openToRead(QFile &file, QIODevice::OpenMode mode = QIODevice::ReadOnly);
