// What the tests of saving share: files by their bytes, long names, and folders in which a file can
// only be written in place.
#pragma once

#include "gamedata/safe_save.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

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

// A name to which nothing can be added.
inline QString longName()
{
    return QString(255, QLatin1Char('n'));
}

// Bytes that differ from place to place.
inline QByteArray pattern(int size, int seed)
{
    QByteArray bytes(size, '\0');
    for (int i = 0; i < size; ++i)
        bytes[i] = char((i * 31 + i / 251 + seed) & 0xff);
    return bytes;
}

// The folder takes no new files while this lives. Root, whom no mode binds, is nobody meanwhile.
class FolderWithoutRight
{
public:
    explicit FolderWithoutRight(const QString &folder) : m_folder(QFile::encodeName(folder))
    {
        bool done = true;
        if (m_root) {
            done = give(nobody) && setegid(nobody) == 0;
            done = chmod(m_folder.constData(), 0555) == 0 && seteuid(nobody) == 0 && done;
        } else {
            done = chmod(m_folder.constData(), 0555) == 0;
        }
        if (!done)
            qFatal("The folder can't be closed");
    }
    ~FolderWithoutRight()
    {
        bool done = true;
        if (m_root)
            done = seteuid(0) == 0 && setegid(0) == 0 && give(0);
        if (chmod(m_folder.constData(), 0755) != 0 || !done)
            qFatal("The folder can't be opened again");
    }
    FolderWithoutRight(const FolderWithoutRight &) = delete;
    FolderWithoutRight &operator=(const FolderWithoutRight &) = delete;

private:
    static constexpr uid_t nobody = 65534;

    bool give(uid_t owner) const
    {
        bool done = chown(m_folder.constData(), owner, owner) == 0;
        const QStringList names = filesOf(QFile::decodeName(m_folder));
        for (const QString &name : names)
            done = chown(m_folder + '/' + QFile::encodeName(name), owner, owner) == 0 && done;
        return done;
    }

    const QByteArray m_folder;
    const bool m_root = geteuid() == 0;
};

// Nobody gets at the folder while this lives, nor is told what is in it. Root is nobody meanwhile.
class FolderOutOfReach
{
public:
    explicit FolderOutOfReach(const QString &folder) : m_folder(QFile::encodeName(folder))
    {
        if (chmod(m_folder.constData(), 0) != 0 || (m_root && seteuid(65534) != 0))
            qFatal("The folder can't be closed");
    }
    ~FolderOutOfReach()
    {
        if ((m_root && seteuid(0) != 0) || chmod(m_folder.constData(), 0755) != 0)
            qFatal("The folder can't be opened again");
    }
    FolderOutOfReach(const FolderOutOfReach &) = delete;
    FolderOutOfReach &operator=(const FolderOutOfReach &) = delete;

private:
    const QByteArray m_folder;
    const bool m_root = geteuid() == 0;
};
