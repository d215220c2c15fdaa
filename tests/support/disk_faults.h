// Disks and limits at which the writing of a file fails.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <csignal>

#include <sys/mount.h>
#include <sys/resource.h>

// No file of this process grows past so many bytes while this lives; a write past it fails.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit now = {bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &now);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    rlimit m_before = {};
    void (*m_handler)(int) = nullptr;
};

// A disk of its own, unmounted at the end. It has room for so many files and folders, its own
// folder included; 0 for as many as it likes.
class SmallDisk
{
public:
    explicit SmallDisk(int kilobytes, int files = 0)
    {
        const QByteArray options =
            "size=" + QByteArray::number(kilobytes) + "k,nr_inodes=" + QByteArray::number(files);
        m_mounted = mount("tmpfs", place().constData(), "tmpfs", 0, options.constData()) == 0;
    }
    ~SmallDisk()
    {
        if (m_mounted)
            umount(place().constData());
    }
    SmallDisk(const SmallDisk &) = delete;
    SmallDisk &operator=(const SmallDisk &) = delete;

    bool isMounted() const { return m_mounted; }
    QString path(const QString &name) const { return m_dir.filePath(name); }
    QString folder() const { return m_dir.path(); }

private:
    QByteArray place() const { return QFile::encodeName(m_dir.path()); }

    QTemporaryDir m_dir;
    bool m_mounted = false;
};
