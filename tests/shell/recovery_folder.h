// A folder of recovery copies, whose age the tests set.
#pragma once

#include "document/gzip_member.h"
#include "shell/recovery_copies.h"
#include "tests/support/file_contents.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>

inline const RecoveryOrigin untitled;

inline bool write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

// Makes a file as old as that.
inline bool age(const QString &path, int minutes)
{
    const timespec moment{time(nullptr) - 60L * minutes, 0};
    const timespec times[] = {moment, moment};
    return utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0) == 0;
}

class RecoveryFolder
{
protected:
    // Before each test: a home in which the folder is yet to be made.
    void reset()
    {
        home = std::make_unique<QTemporaryDir>();
        folder = home->filePath("data/recovery");
    }

    QString path(const QString &name) const { return folder + '/' + name; }
    QStringList files() const
    {
        return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    // Leaves a copy with its name for content that is as old as that.
    void leaveCopy(const QString &document, int minutes, const RecoveryOrigin &origin = {})
    {
        RecoveryCopies copies(folder);
        const QStringList before = files();
        copies.keep(document, origin, {{}, {document.toUtf8()}});
        const QStringList after = files();
        for (const QString &name : after) {
            if (!before.contains(name))
                QVERIFY(age(path(name), minutes));
        }
    }

    // The content of the copy that is offered; nothing if none is. It counts as offered then.
    static QByteArray offeredBy(const RecoveryCopies &copies)
    {
        auto copy = copies.newestToOffer();
        if (!copy)
            return {};
        QByteArray bytes = contents(copy->file.path);
        copies.markOffered(*copy);
        return bytes;
    }

    std::unique_ptr<QTemporaryDir> home;
    QString folder;
};
