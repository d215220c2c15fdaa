// Copies of documents with changes that are in no other file yet, kept in a folder of the user's
// data in case the editor ends without saving them.
//
// A copy is a campaign file that can be opened like any other. Its name tells a person what it is:
//
//     2026-03-14 15-09-26 harbour.e3c           when its first change was made, which document
//     2026-03-14 15-09-26 harbour.offered.e3c   the same once the author has been asked about it
//     2026-03-14 15-09-26 harbour.origin        of which file it is a copy, if the document has one
//
// An editor keeps a lock (flock) on its copy, which ends with the process however that ends. Nobody
// offers, removes or replaces the copy of another editor that runs. Only the owner may look into
// the folder. Nothing here tells of a failure: where no copy can be kept, the editor works without.
#pragma once

#include "shell/recovery_files.h"

#include <QFile>

#include <memory>
#include <optional>
#include <vector>

class CopyInPlace;

// A copy that no running editor keeps. Nobody else is offered it as long as this lives.
struct FoundCopy
{
    RecoveryFile file;
    RecoveryOrigin origin;
    std::unique_ptr<QFile> lock;

    // What the document is called.
    QString documentName() const;
};

class RecoveryCopies
{
public:
    static constexpr int copiesKept = 10;

    // "recovery" below the place of the system for the program's data.
    static QString usualFolder();

    // The folder is made when the first copy is.
    explicit RecoveryCopies(QString folder = usualFolder());
    ~RecoveryCopies();
    RecoveryCopies(const RecoveryCopies &) = delete;
    RecoveryCopies &operator=(const RecoveryCopies &) = delete;

    // Makes this the copy of the document in work: a new one, or in the place of the one that
    // is kept already. A new one drives the oldest out of the folder. If it can't be written, the
    // copy stays as it was. A large one is in its place only after a while, and those of changes
    // that come faster may be passed over, but never the newest.
    void keep(const QString &documentName, const RecoveryOrigin &origin,
              const UnpackedFile &content);
    // The changes are saved, or nobody wants them: removes the document's copy.
    void remove();
    // The document ends with changes: its copy stays, and can be offered. So it does when this
    // object ends.
    void leave();

    // The newest copy that was not offered before, if there is one.
    std::optional<FoundCopy> newestToOffer() const;
    // The author has been asked about this copy: nobody asks again.
    void markOffered(FoundCopy &copy) const;
    // The copy has become the document in work. It is this editor's own from now on, and will be
    // offered again if the document ends with changes.
    void takeOver(FoundCopy copy);

private:
    bool makeFolder() const;
    bool reserveName(const QString &documentName);
    void removeOldest() const;
    void removeFiles() const;
    void forget();

    const QString m_folder;
    QString m_base; // of the copy kept now; empty if there is none
    QString m_path;
    std::unique_ptr<CopyInPlace> m_copy;
};
