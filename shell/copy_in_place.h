// The file of a recovery copy that stands in its place, and what is on its way there. All of it is
// locked, by this editor and by the processes that write, until it is done with.
//
// Most contents are in their place at once. A large one is written by a process of its own, and one
// that has begun is let finish: changes may come faster than a copy is written, and the copy in the
// place would stay as old as the first of them. The newest content waits behind it, in a process
// too, so that it comes whatever becomes of the editor. Until it begins, a newer one takes its
// turn. There are never more than these two.
#pragma once

#include <QString>

#include <memory>

class FileInWriting;
class QFile;
struct UnpackedFile;

class CopyInPlace
{
public:
    // The file stands at `path`, open and locked.
    CopyInPlace(std::unique_ptr<QFile> file, QString path);
    // Waits for all writing.
    ~CopyInPlace();
    CopyInPlace(const CopyInPlace &) = delete;
    CopyInPlace &operator=(const CopyInPlace &) = delete;

    // The content comes last of all, now or in a while. False if it can't be written; then the copy
    // is an older one.
    bool replace(const UnpackedFile &content);
    // Waits until the newest content is in its place, or can't be written.
    void finish();
    // Ends all writing: what stands in the place stays.
    void stop();
    // What stands there is the name of a copy that isn't written yet.
    bool isEmpty() const;

private:
    bool writeBehind(const UnpackedFile &content);
    void stopWaiting();
    void settle();

    const QString m_path;
    std::unique_ptr<QFile> m_file;
    std::unique_ptr<FileInWriting> m_running;
    std::unique_ptr<FileInWriting> m_waiting; // for the end of that
};
