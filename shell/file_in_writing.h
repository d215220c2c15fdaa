// A file that takes another one's place, packed and written by a process of its own: a campaign of
// hundreds of megabytes, or of thousands of scenarios, takes longer than anybody waits for after
// each change. That process has its own view of the memory as it was, so it writes what there was
// to write whatever becomes of this one, and carries on if this one is killed. Of what this one has
// open it keeps the files of this copy alone, with their locks.
#pragma once

#include <QByteArray>
#include <QTemporaryFile>

#include <memory>

#include <sys/types.h>

struct UnpackedFile;

class FileInWriting
{
public:
    // Goes on with an open file beside `path`, in whose place `old` stands. The process waits for
    // the end of `before`, should there be one. Null if no process can be made; then nothing is
    // left of the file.
    static std::unique_ptr<FileInWriting> start(std::unique_ptr<QTemporaryFile> unfinished,
                                                const QString &path, const UnpackedFile &content,
                                                const QFile &old, const FileInWriting *before);
    // Waits for the end of the writing.
    ~FileInWriting();
    FileInWriting(const FileInWriting &) = delete;
    FileInWriting &operator=(const FileInWriting &) = delete;

    // Doesn't wait.
    bool hasEnded();
    // Waits, and answers whether the file is in its place. If not, the old one still is, and
    // nothing is left of this one.
    bool finish();
    // The same, ending the process where it is.
    bool stop();
    // The file, once it is in its place.
    std::unique_ptr<QFile> takeFile() { return std::move(m_file); }

private:
    FileInWriting(std::unique_ptr<QTemporaryFile> file, pid_t writer, int end);

    void noteTheEnd();

    std::unique_ptr<QTemporaryFile> m_file;
    const QByteArray m_unfinishedName;
    pid_t m_writer;  // 0 once it has ended
    const int m_end; // of a pipe that ends with the process
    bool m_inPlace = false;
};
