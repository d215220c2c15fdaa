// Whether a path can be handed to the system, and what is told if it names no file.
#pragma once

#include <QString>

// False for a path with a character that the locale's codec can't write, or with a zero in it: what
// the system is told then is the name of another file.
bool namesOneFile(const QString &path);

// What is told of a pipe or a device that stands where a file should.
QString notARegularFile();
