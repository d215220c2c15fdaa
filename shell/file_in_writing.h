// A file that takes another one's place, packed and written by a process of its own: a campaign of
// hundreds of megabytes, or of thousands of scenarios, takes longer than anybody waits for after
// each change. That process has its own view of the memory as it was, so it writes what there was
// to write whatever becomes of this one, and carries on if this one is killed.
#pragma once

#include <QByteArray>
#include <QTemporaryFile>

#include <memory>

#include <sys/types.h>

struct UnpackedFile;

class FileInWriting : public QFile
{
public:
    // Goes on with an open file beside `path`, which nobody has to remove any more. Null if no
    // process can be made; then nothing has happened to the file.
    static std::unique_ptr<FileInWriting> start(QTemporaryFile &unfinished, const QString &path,
                                                const UnpackedFile &content);
    // Waits for the end of the writing.
    ~FileInWriting() override;
    FileInWriting(const FileInWriting &) = delete;
    FileInWriting &operator=(const FileInWriting &) = delete;

    // Waits as well, and answers whether the file is in its place. If not, the old one still is,
    // and nothing is left of this one.
    bool finish();
    // The same, ending the process where it is.
    bool stop();

    // Kept until it is known how the writing ends: the old file, locked.
    std::unique_ptr<QFile> old;

private:
    FileInWriting(QTemporaryFile &unfinished, pid_t writer);

    const QByteArray m_unfinishedName;
    pid_t m_writer; // 0 once it has ended
    bool m_inPlace = false;
};
