// The files in the folder of recovery copies: what they are called, who has them, how they are
// written. recovery_copies.h shows the names.
//
// Names go to and from here as "base": the name of a copy without any ending. Nothing tells of a
// failure but by its answer.
#pragma once

#include "shell/file_stamp.h"

#include <QDateTime>
#include <QString>
#include <QVector>

#include <memory>

class QFile;
class QTemporaryFile;
struct UnpackedFile;

// The file of the document that a copy is of, and its state when the document was read from it or
// saved last. Without a path the document has never been saved.
struct RecoveryOrigin
{
    QString path;
    FileStamp stamp;
};

struct RecoveryFile
{
    QString base;
    QString path;
    QDateTime time; // of its last change
    qint64 size = 0;
    bool offered = false;
};

// A new copy's base: the time of now and the document's name as far as file names can have it.
QString recoveryBase(const QString &documentName);
// The document's name in it.
QString documentNameIn(const QString &base);

QString copyPath(const QString &folder, const QString &base);
QString offeredPath(const QString &folder, const QString &base);
QString originPath(const QString &folder, const QString &base);

// The copies in a folder, newest first. What an author has put there isn't one.
QVector<RecoveryFile> recoveryFilesIn(const QString &folder);

// Locks an open file until it is closed. Nothing happens if another editor has it.
bool lockFile(const QFile &file);
// The copy of that path, open and locked; null if another editor keeps it.
std::unique_ptr<QFile> lockedFile(const QString &path);

// Whether to pack and write this would make anybody wait.
bool takesLong(const UnpackedFile &content);
// A new file beside that one, open and locked, which goes if it doesn't take a place. Null if none
// can be made.
std::unique_ptr<QTemporaryFile> fileBeside(const QString &path);
// The same with this content. Doesn't wait for the disk: a copy is for an end of the editor, and
// costs time at every change of the document. Null if it can't be written.
std::unique_ptr<QTemporaryFile> writtenBeside(const QString &path, const UnpackedFile &content);
// Puts it in the place of that file, which is the old one or the new one whatever happens to the
// process.
bool takePlace(QTemporaryFile &file, const QString &path);

void writeOrigin(const QString &path, const RecoveryOrigin &origin);
// Without a sound note of it, the copy is one of a document without a file.
RecoveryOrigin readOrigin(const QString &path);

// Removes what is left of copies that are gone, and of editors that were killed while they wrote.
void removeRemains(const QString &folder);
