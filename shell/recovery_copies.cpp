#include "shell/recovery_copies.h"

#include "shell/copy_in_place.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <sys/stat.h>

namespace {

constexpr int basesTried = 100; // for copies of one second and one document

} // namespace

QString FoundCopy::documentName() const
{
    return origin.path.isEmpty() ? documentNameIn(file.base) : QFileInfo(origin.path).baseName();
}

QString RecoveryCopies::usualFolder()
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    return data.isEmpty() ? QString() : data + QStringLiteral("/recovery");
}

RecoveryCopies::RecoveryCopies(QString folder) : m_folder(std::move(folder)) {}

RecoveryCopies::~RecoveryCopies()
{
    leave();
}

void RecoveryCopies::keep(const QString &documentName, const RecoveryOrigin &origin,
                          const UnpackedFile &content)
{
    if (!makeFolder())
        return;
    const bool isNew = m_base.isEmpty();
    if (isNew && !reserveName(documentName))
        return;
    // Before the copy: one without its note would be that of a document without a file.
    if (isNew && !origin.path.isEmpty())
        writeOrigin(originPath(m_folder, m_base), origin);
    if (!m_copy->replace(content)) {
        if (isNew)
            remove();
        return;
    }
    if (isNew)
        removeOldest();
}

void RecoveryCopies::remove()
{
    if (!m_copy)
        return;
    m_copy->stop();
    removeFiles();
    forget();
}

void RecoveryCopies::leave()
{
    if (!m_copy)
        return;
    m_copy->finish();
    if (m_copy->isEmpty()) // the name of a copy that could not be written
        removeFiles();
    forget();
}

std::optional<FoundCopy> RecoveryCopies::newestToOffer() const
{
    if (m_folder.isEmpty())
        return std::nullopt;
    removeRemains(m_folder);
    const QVector<RecoveryFile> copies = recoveryFilesIn(m_folder);
    for (const RecoveryFile &copy : copies) {
        // An empty one is the name of a copy that was never written.
        if (copy.offered || copy.size == 0)
            continue;
        if (auto lock = lockedFile(copy.path))
            return FoundCopy{copy, readOrigin(originPath(m_folder, copy.base)), std::move(lock)};
    }
    return std::nullopt;
}

void RecoveryCopies::markOffered(FoundCopy &copy) const
{
    const QString marked = offeredPath(m_folder, copy.file.base);
    if (QFile::rename(copy.file.path, marked))
        copy.file.path = marked;
}

void RecoveryCopies::takeOver(FoundCopy copy)
{
    m_base = copy.file.base;
    m_path = copyPath(m_folder, m_base);
    if (!QFile::rename(copy.file.path, m_path))
        m_path = copy.file.path;
    m_copy = std::make_unique<CopyInPlace>(std::move(copy.lock), m_path);
}

bool RecoveryCopies::makeFolder() const
{
    if (m_folder.isEmpty() || !QDir().mkpath(QFileInfo(m_folder).path()))
        return false;
    const QByteArray path = QFile::encodeName(m_folder);
    mkdir(path.constData(), S_IRWXU);
    return chmod(path.constData(), S_IRWXU) == 0;
}

// Makes an empty file of a name that no copy has, so that two editors never take the same one.
bool RecoveryCopies::reserveName(const QString &documentName)
{
    const QString plain = recoveryBase(documentName);
    for (int number = 1; number <= basesTried; ++number) {
        const QString base =
            number == 1 ? plain : plain + QLatin1Char(' ') + QString::number(number);
        if (QFile::exists(offeredPath(m_folder, base)))
            continue;
        auto file = std::make_unique<QFile>(copyPath(m_folder, base));
        if (file->open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
            lockFile(*file);
            m_base = base;
            m_path = file->fileName();
            m_copy = std::make_unique<CopyInPlace>(std::move(file), m_path);
            return true;
        }
        if (!file->exists())
            return false;
    }
    return false;
}

void RecoveryCopies::removeOldest() const
{
    removeRemains(m_folder);
    int kept = 1; // the new one, which may not be written yet
    const QVector<RecoveryFile> copies = recoveryFilesIn(m_folder);
    for (const RecoveryFile &copy : copies) {
        if (copy.base == m_base || copy.size == 0 || ++kept <= copiesKept)
            continue;
        if (const auto lock = lockedFile(copy.path)) {
            QFile::remove(copy.path);
            QFile::remove(originPath(m_folder, copy.base));
        }
    }
}

void RecoveryCopies::removeFiles() const
{
    QFile::remove(m_path);
    QFile::remove(originPath(m_folder, m_base));
}

void RecoveryCopies::forget()
{
    m_copy.reset();
    m_base.clear();
    m_path.clear();
}
