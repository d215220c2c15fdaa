#include "tests/desktop/day_record.h"

#include "tests/desktop/failure.h"
#include "tests/desktop/files.h"
#include "tests/desktop/workplace.h"

#include <QCryptographicHash>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QByteArray hashOf(const QString &path)
{
    return QCryptographicHash::hash(contentOf(path), QCryptographicHash::Sha256).toHex();
}

// One of no bytes is the name of a copy that was never written.
QByteArray copyIn(const QString &folder)
{
    QByteArray found;
    const auto copies = QDir(folder).entryInfoList({"*.e3c"}, QDir::Files);
    for (const QFileInfo &copy : copies) {
        if (copy.size() == 0 || copy.fileName().endsWith(".offered.e3c"))
            continue;
        if (!found.isEmpty())
            throw Failure("one copy of the document", copy.fileName() + " is another one");
        found = hashOf(copy.filePath());
    }
    return found;
}

// "ferry toll.e3c* - Eldmark Saga Campaign Editor"
QString documentIn(const QString &title)
{
    QString name = title.section(" - ", 0, -2);
    if (name.endsWith('*'))
        name.chop(1);
    return name;
}

QJsonObject jsonOf(const DayEntry &entry)
{
    QJsonObject files;
    for (auto file = entry.disk.files.begin(); file != entry.disk.files.end(); ++file)
        files[file.key()] = QString::fromLatin1(file.value());
    return {{"step", entry.step},
            {"milliseconds", entry.milliseconds},
            {"window", entry.window},
            {"document", entry.document},
            {"copy", QString::fromLatin1(entry.disk.copy)},
            {"files", files}};
}

DayEntry entryIn(const QJsonObject &told)
{
    DayEntry entry{told["step"].toString(),
                   told["milliseconds"].toInt(),
                   told["window"].toString(),
                   told["document"].toString(),
                   {}};
    entry.disk.copy = told["copy"].toString().toLatin1();
    const QJsonObject files = told["files"].toObject();
    for (auto file = files.begin(); file != files.end(); ++file)
        entry.disk.files[file.key()] = file.value().toString().toLatin1();
    return entry;
}

} // namespace

DiskState stateOf(const Workplace &place)
{
    DiskState state;
    const auto files = QDir(place.file({})).entryInfoList(QDir::Files | QDir::Hidden);
    for (const QFileInfo &file : files) {
        if (!file.fileName().startsWith('.'))
            state.files[file.fileName()] = hashOf(file.filePath());
        else if (!file.fileName().startsWith(".cmped-save-"))
            throw Failure("files of the author, and of saves", file.fileName());
    }
    state.copy = copyIn(place.recoveryFolder());
    return state;
}

bool DayEntry::canGoOn() const
{
    if (window.isEmpty())
        return true; // the next step starts the editor
    return window == QLatin1String("MainWindow") && (!isUntitled() || !disk.copy.isEmpty());
}

DayEntry entryBehind(const char *step, int milliseconds, const DayEntry &last, Workplace &place)
{
    DayEntry entry{QString::fromUtf8(step), milliseconds, {}, last.document, {}};
    if (place.editor().isRunning()) {
        const QJsonObject seen = place.editor().look({});
        entry.window = seen["window"].toString();
        if (entry.window == QLatin1String("MainWindow"))
            entry.document = documentIn(seen["title"].toString());
    }
    entry.disk = stateOf(place);
    return entry;
}

void writeRecord(const DayRecord &record, const QString &path)
{
    QJsonArray entries;
    for (const DayEntry &entry : record)
        entries.append(jsonOf(entry));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(entries).toJson()) <= 0 ||
        !file.flush())
        throw Failure("the day's record is written", path + ": " + file.errorString());
}

DayRecord readRecord(const QString &path)
{
    DayRecord record;
    const QJsonArray entries = QJsonDocument::fromJson(contentOf(path)).array();
    for (const QJsonValue &entry : entries)
        record.append(entryIn(entry.toObject()));
    if (record.isEmpty())
        throw Failure("the record of a day", "none in " + path);
    return record;
}
