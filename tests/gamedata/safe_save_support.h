// What the tests of saving share: files by their bytes, and names too long for a second file.
#pragma once

#include "gamedata/safe_save.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

inline QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}

inline bool makeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

// Every file of a folder, hidden ones too.
inline QStringList filesOf(const QString &folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System);
}

// A name that leaves no room for the ending of a second file beside it.
inline QString longName()
{
    return QString(250, QLatin1Char('n'));
}

// Bytes that differ from place to place.
inline QByteArray pattern(int size, int seed)
{
    QByteArray bytes(size, '\0');
    for (int i = 0; i < size; ++i)
        bytes[i] = char((i * 31 + i / 251 + seed) & 0xff);
    return bytes;
}
