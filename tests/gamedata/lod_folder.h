// An archive written from its bytes, then read.
#pragma once

#include "gamedata/lod_archive.h"
#include "tests/gamedata/game_files.h"

#include <QTest>

#include <memory>

using game_files::archiveHeader;
using game_files::indexEntry;
using game_files::Packed;
using game_files::packed;
using game_files::Raw;

constexpr int firstBody = 92 + 32; // of an archive with one entry

struct FileData
{
    bool found = false;
    QByteArray bytes;
    bool terminated = false;
};

inline FileData take(char *buffer, int size)
{
    const std::unique_ptr<char[]> owner(buffer);
    if (!buffer)
        return {};
    return {true, QByteArray(buffer, size), buffer[size] == '\0'};
}

class LodFolder
{
protected:
    LodArchive read(const QByteArray &bytes)
    {
        QFile file(m_path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("can't write the archive");
        file.close();
        return readPath();
    }

    LodArchive readPath()
    {
        QFile file(m_path);
        LodArchive archive;
        if (!file.open(QIODevice::ReadOnly))
            qFatal("can't read the archive");
        archive.Read(file, m_path);
        return archive;
    }

    static FileData fileData(const LodArchive &archive, const QString &name)
    {
        int size = -1;
        char *data = archive.getFileData(name, &size);
        return take(data, size);
    }

    // An archive whose only entry, "a.txt", has this place and these sizes.
    LodArchive oneEntry(quint32 offset, qint32 size, qint32 compressedSize, const QByteArray &body)
    {
        return read(archiveHeader(1) + indexEntry("a.txt", offset, size, compressedSize) + body);
    }

    const QTemporaryDir m_folder;
    const QString m_path = m_folder.path() + QStringLiteral("/Some.lod");
};
