// A folder with a file that is to be saved, and what has become of it.
#pragma once

#include "tests/support/safe_save_support.h"

#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <memory>

#include <sys/stat.h>

class SavingPlace
{
public:
    enum Kind
    {
        New,
        Existing,
        Link,
        Leftover, // beside it stands what a killed process left
        Foreign,  // somebody else's, and of another group; anybody's own without root
        InPlace
    };

    explicit SavingPlace(Kind kind) : m_kind(kind)
    {
        bool done = m_dir.isValid();
        if (kind != New)
            done = makeFile(target(), oldBytes()) && done;
        if (kind == Link)
            done = QFile::link(QStringLiteral("target.e3c"), path()) && done;
        if (kind == Leftover)
            done = makeFile(m_dir.filePath(leftover()), "left") && done;
        if (kind == Foreign && geteuid() == 0)
            done = chown(QFile::encodeName(target()).constData(), user, group) == 0 && done;
        if (kind != New)
            done = chmod(QFile::encodeName(target()).constData(), mode) == 0 && done;
        if (!done)
            qFatal("The place can't be made");
        if (kind == InPlace)
            m_closed = std::make_unique<FolderWithoutRight>(m_dir.path());
    }

    QString folder() const { return m_dir.path(); }
    QString path() const
    {
        return m_dir.filePath(m_kind == Link ? QStringLiteral("link.e3c")
                                             : QStringLiteral("target.e3c"));
    }
    static QByteArray oldBytes() { return pattern(9000, 4); }

    // What is wrong with the folder after a save, nothing if all is well: the bytes whole, the mode
    // kept, the link still a link, and no other file.
    QString fault(bool saved, const QByteArray &bytes)
    {
        m_closed.reset();
        QStringList expected{QStringLiteral("target.e3c")};
        if (m_kind == Link)
            expected.prepend(QStringLiteral("link.e3c"));
        if (m_kind == New && !saved)
            expected.clear();
        QStringList files = filesOf(m_dir.path());
        if (m_kind == Leftover)
            files.removeOne(leftover()); // unless it couldn't be
        if (files != expected)
            return QStringLiteral("files: ") + files.join(QLatin1Char(' '));
        if (expected.isEmpty())
            return {};
        if (bytesOf(target()) != (saved ? bytes : oldBytes()))
            return QStringLiteral("not the bytes");
        struct stat status = {};
        const bool there = stat(QFile::encodeName(target()).constData(), &status) == 0;
        // Where the group couldn't be kept the mode is nothing to another one.
        const bool lostGroup = m_kind == Foreign && geteuid() == 0 && status.st_gid != group;
        if (m_kind != New && (!there || (status.st_mode & 07777) != (lostGroup ? 0600 : mode)))
            return QStringLiteral("not the mode");
        if (m_kind == Link && !QFileInfo(path()).isSymLink())
            return QStringLiteral("the link is gone");
        return {};
    }

private:
    static constexpr mode_t mode = 0640;
    static constexpr uid_t user = 1234;
    static constexpr gid_t group = 4321;

    static QString leftover() { return QStringLiteral(".cmped-save-abc123"); }

    QString target() const { return m_dir.filePath(QStringLiteral("target.e3c")); }

    const Kind m_kind;
    QTemporaryDir m_dir;
    std::unique_ptr<FolderWithoutRight> m_closed;
};

Q_DECLARE_METATYPE(SavingPlace::Kind)
