#include "document/map_place.h"

#include "document/campaign_data.h"
#include "document/inflating_device.h"
#include "gamedata/file_name.h"
#include "gamedata/followed_links.h"
#include "gamedata/limits.h"
#include "gamedata/readable_file.h"

#include <QDataStream>
#include <QFile>
#include <QFileInfo>

#include <cerrno>

#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;

// Campaigns, which are packed in the same way and begin with a version too, count from 5 to 10.
constexpr quint32 oldestMapVersion = 14;
constexpr quint32 newestMapVersion = 255;

bool isSameFolder(const fs::path &one, const fs::path &two)
{
    struct stat first = {};
    struct stat second = {};
    return stat(one.c_str(), &first) == 0 && stat(two.c_str(), &second) == 0 &&
           first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

bool isHidden(const QString &path)
{
    return QFileInfo(path).fileName().startsWith('.');
}

bool hasEndingOfMaps(const QString &path)
{
    return path.endsWith(QLatin1String(".e3m"), Qt::CaseInsensitive);
}

// Packed, with a map's version at its start and somebody to play it. Of a file that isn't packed
// nothing is certain: nearly any text would do.
bool holdsMap(QFile &file)
{
    InflatingDevice device(&file, InflatingDevice::Format::GzipMember);
    device.setLimit(limits::mapHeaderBytes);
    QDataStream stream(&device);
    stream.setByteOrder(QDataStream::LittleEndian);
    ScenarioData found;
    found.ReadMapHeader(stream, false);
    return !device.isPlain() && !device.sourceFailed() && found.mapHeader &&
           found.mapHeader->version >= oldestMapVersion &&
           found.mapHeader->version <= newestMapVersion && found.mapHeader->anyPlayers != 0;
}

bool holds(QFile &file, const QByteArray &bytes)
{
    return file.size() == bytes.size() && file.seek(0) && file.readAll() == bytes;
}

// What can't be read is nobody's to replace; what is no file is refused by the save.
bool isForeign(const QString &path, const QByteArray &bytes)
{
    struct stat status = {};
    if (hasEndingOfMaps(path) || stat(QFile::encodeName(path).constData(), &status) != 0 ||
        !S_ISREG(status.st_mode))
        return false;
    QFile file(path);
    return openToRead(file) || !(holdsMap(file) || holds(file, bytes));
}

} // namespace

MapPlace placeOfMap(const QString &folder, const QString &name)
{
    const QString path = folder + '/' + name;
    if (!namesOneFile(path))
        return {path, 0};
    const fs::path start = QFile::encodeName(path).toStdString();
    fs::path target = start;
    const int code = followLinks(target);
    if (code == ELOOP)
        return {path, ELOOP};
    if (code != 0 || target == start)
        return {path, 0};
    if (!isSameFolder(folderOf(target), folderOf(start)))
        return {path, ELOOP};
    return {folder + '/' + QFile::decodeName(target.filename().c_str()), 0};
}

MapPlace placeToWriteMap(const QString &folder, const QString &name, const QByteArray &bytes)
{
    MapPlace place = placeOfMap(folder, name);
    if (place.refusal == 0 && (isHidden(name) || isHidden(place.path)))
        place.refusal = EPERM;
    else if (place.refusal == 0 && isForeign(place.path, bytes))
        place.refusal = EEXIST;
    return place;
}
