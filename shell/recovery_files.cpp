#include "shell/recovery_files.h"

#include "document/gzip_member.h"
#include "gamedata/escaped_utf8.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryFile>
#include <QTextCodec>

#include <algorithm>
#include <filesystem>
#include <numeric>
#include <string_view>
#include <tuple>

#include <sys/file.h>

namespace {

constexpr const char *copyEnding = ".e3c";
constexpr const char *offeredEnding = ".offered.e3c"; // no document's name has a dot in a base
constexpr const char *originEnding = ".origin";
constexpr const char *timeFormat = "yyyy-MM-dd HH-mm-ss";
constexpr int timeLength = 19;
constexpr int longestName = 80; // of a document in a base, in bytes

constexpr const char *unfinishedName = ".unfinished-XXXXXX";
constexpr int placeholderLength = 6;
constexpr qint64 secondsOfWriting = qint64(24) * 3600; // no copy takes longer
constexpr qint64 secondsUntilLocked = 60;              // at the very most, once a file is made

// Packed and written in a time that nobody notices. What is larger is left to a process of its own.
constexpr int packedAtOnce = 2 * 1024 * 1024;
constexpr qint64 writtenAtOnce = qint64(32) * 1024 * 1024;

constexpr std::string_view signsInNames = " -_()";

constexpr const char *pathKey = "file";
constexpr const char *stampKey = "state";
constexpr qint64 longestNote = 65536;

bool isInNames(uint letter)
{
    if (letter < 128 && signsInNames.find(char(letter)) != std::string_view::npos)
        return true;
    return QChar::isLetterOrNumber(letter) || QChar::isMark(letter);
}

// Where the system's encoding may lack letters, only the plain ones are sure to come back as they
// went.
QString forFileName(const QString &documentName)
{
    const bool plain = !isUtf8(*QTextCodec::codecForLocale());
    QString name;
    const auto letters = documentName.simplified().toUcs4();
    for (const uint letter : letters) {
        const bool kept = isInNames(letter) && (!plain || letter < 128);
        const QString next = kept ? QString::fromUcs4(&letter, 1) : QStringLiteral("_");
        if (name.toUtf8().size() + next.toUtf8().size() > longestName)
            break;
        name += next;
    }
    name = name.trimmed();
    return name.isEmpty() ? QStringLiteral("Untitled") : name;
}

QString inFolder(const QString &folder, const QString &base, const char *ending)
{
    return folder + QLatin1Char('/') + base + QLatin1String(ending);
}

bool writeAtOnce(QFile &file, const UnpackedFile &content)
{
    const auto write = [&](const QByteArray &piece) { return file.write(piece) == piece.size(); };
    if (!content.head.isEmpty()) {
        const QByteArray packed = packGzipMember(content.head);
        if (packed.isEmpty() || !write(packed))
            return false;
    }
    return std::all_of(content.rest.begin(), content.rest.end(), write) && file.flush() &&
           file.error() == QFileDevice::NoError;
}

void removeOrphanedOrigins(const QString &folder)
{
    const QString pattern = QLatin1Char('*') + QLatin1String(originEnding);
    const auto origins = QDir(folder).entryInfoList({pattern}, QDir::Files);
    for (const QFileInfo &origin : origins) {
        const QString base = origin.completeBaseName();
        if (!QFile::exists(copyPath(folder, base)) && !QFile::exists(offeredPath(folder, base)))
            QFile::remove(origin.filePath());
    }
}

qint64 ageOf(const QDateTime &time)
{
    return time.secsTo(QDateTime::currentDateTime());
}

// An editor locks a file as soon as it has made it, so an older one that nobody has locked is left
// of an editor that was killed. Answers it locked.
std::unique_ptr<QFile> leftFile(const QString &path, const QDateTime &time)
{
    return ageOf(time) < secondsUntilLocked ? nullptr : lockedFile(path);
}

void removeUnfinishedFiles(const QString &folder)
{
    const QString pattern =
        QString(QLatin1String(unfinishedName)).chopped(placeholderLength) + QLatin1Char('*');
    const auto files = QDir(folder).entryInfoList({pattern}, QDir::Files | QDir::Hidden);
    for (const QFileInfo &file : files) {
        // A system without locks lets nobody have a file locked, so old age does as well.
        if (ageOf(file.lastModified()) > secondsOfWriting ||
            leftFile(file.filePath(), file.lastModified()))
            QFile::remove(file.filePath());
    }
}

// Names of copies that were never written.
void removeEmptyCopies(const QString &folder)
{
    const QVector<RecoveryFile> copies = recoveryFilesIn(folder);
    for (const RecoveryFile &copy : copies) {
        if (copy.size > 0)
            continue;
        const auto file = leftFile(copy.path, copy.time);
        if (file && file->size() == 0)
            QFile::remove(copy.path);
    }
}

} // namespace

QString recoveryBase(const QString &documentName)
{
    return QDateTime::currentDateTime().toString(QLatin1String(timeFormat)) + QLatin1Char(' ') +
           forFileName(documentName);
}

QString documentNameIn(const QString &base)
{
    return base.mid(timeLength + 1);
}

QString copyPath(const QString &folder, const QString &base)
{
    return inFolder(folder, base, copyEnding);
}

QString offeredPath(const QString &folder, const QString &base)
{
    return inFolder(folder, base, offeredEnding);
}

QString originPath(const QString &folder, const QString &base)
{
    return inFolder(folder, base, originEnding);
}

QVector<RecoveryFile> recoveryFilesIn(const QString &folder)
{
    static const QRegularExpression pattern(
        QStringLiteral("^(\\d{4}-\\d\\d-\\d\\d \\d\\d-\\d\\d-\\d\\d [^.]+)(\\.offered)?\\.e3c$"));
    QVector<RecoveryFile> copies;
    const auto files = QDir(folder).entryInfoList(QDir::Files | QDir::NoSymLinks);
    for (const QFileInfo &file : files) {
        const QRegularExpressionMatch match = pattern.match(file.fileName());
        if (match.hasMatch())
            copies.append({match.captured(1), file.filePath(), file.lastModified(), file.size(),
                           !match.captured(2).isEmpty()});
    }
    std::sort(copies.begin(), copies.end(), [](const RecoveryFile &a, const RecoveryFile &b) {
        return std::tie(a.time, a.base) > std::tie(b.time, b.base);
    });
    return copies;
}

bool lockFile(const QFile &file)
{
    return flock(file.handle(), LOCK_EX | LOCK_NB) == 0;
}

// Its editor may have replaced it between the opening and the locking: then it is another file.
std::unique_ptr<QFile> lockedFile(const QString &path)
{
    auto file = std::make_unique<QFile>(path);
    if (!file->open(QIODevice::ReadWrite | QIODevice::ExistingOnly) || !lockFile(*file) ||
        stampOf(*file) != stampOf(path))
        return nullptr;
    return file;
}

bool takesLong(const UnpackedFile &content)
{
    const qint64 written =
        std::accumulate(content.rest.begin(), content.rest.end(), qint64(0),
                        [](qint64 sum, const QByteArray &piece) { return sum + piece.size(); });
    return content.head.size() > packedAtOnce || written > writtenAtOnce;
}

std::unique_ptr<QTemporaryFile> fileBeside(const QString &path)
{
    auto file = std::make_unique<QTemporaryFile>(QFileInfo(path).path() + QLatin1Char('/') +
                                                 QLatin1String(unfinishedName));
    if (!file->open())
        return nullptr;
    lockFile(*file); // a system without locks lets nobody else lock it either
    return file;
}

std::unique_ptr<QTemporaryFile> writtenBeside(const QString &path, const UnpackedFile &content)
{
    auto file = fileBeside(path);
    return file && writeAtOnce(*file, content) ? std::move(file) : nullptr;
}

bool takePlace(QTemporaryFile &file, const QString &path)
{
    std::error_code failure;
    std::filesystem::rename(QFile::encodeName(file.fileName()).toStdString(),
                            QFile::encodeName(path).toStdString(), failure);
    file.setAutoRemove(bool(failure));
    return !failure;
}

// A path is noted by its bytes, which needn't be UTF-8, nor in the encoding of the next editor.
void writeOrigin(const QString &path, const RecoveryOrigin &origin)
{
    const QByteArray name = QFile::encodeName(origin.path).toPercentEncoding("/ ");
    const QJsonObject note{{QLatin1String(pathKey), QLatin1String(name)},
                           {QLatin1String(stampKey), textOf(origin.stamp)}};
    if (const auto file = writtenBeside(path, {{}, {QJsonDocument(note).toJson()}}))
        takePlace(*file, path);
}

RecoveryOrigin readOrigin(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QJsonObject note = QJsonDocument::fromJson(file.read(longestNote)).object();
    const auto stamp = stampFrom(note[QLatin1String(stampKey)].toString());
    if (!stamp)
        return {};
    const QByteArray name = note[QLatin1String(pathKey)].toString().toLatin1();
    return {QFile::decodeName(QByteArray::fromPercentEncoding(name)), *stamp};
}

void removeRemains(const QString &folder)
{
    removeEmptyCopies(folder);
    removeOrphanedOrigins(folder);
    removeUnfinishedFiles(folder);
}
