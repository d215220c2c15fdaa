// Importing a map file into a scenario.
#include "document/campaign_data.h"
#include "document/inflating_device.h"
#include "gamedata/limits.h"

#include <QDataStream>
#include <QDebug>
#include <QFile>
#include <QFileInfo>

#include <optional>

namespace {

// Nothing if the file can't be read; what it would give then isn't the map's header.
std::optional<unsigned int> readHeaderOf(QFile &packed, ScenarioData &scenario, bool check)
{
    packed.seek(0);
    InflatingDevice device(&packed, InflatingDevice::Format::GzipMembers);
    device.setLimit(limits::mapHeaderBytes);
    QDataStream stream(&device);
    stream.setByteOrder(QDataStream::LittleEndian);
    const unsigned int answer = scenario.ReadMapHeader(stream, check);
    return device.sourceFailed() ? std::nullopt : std::optional(answer);
}

bool unpacksToNothing(QFile &packed)
{
    packed.seek(0);
    return InflatingDevice(&packed, InflatingDevice::Format::GzipMembers).atEnd();
}

// The rest of the file, read once into its one buffer.
QByteArray readRest(QFile &file)
{
    const qint64 size = file.size() - file.pos();
    if (file.isSequential() || size <= 0 || size > limits::mapBytes)
        return {};
    QByteArray bytes(int(size), Qt::Uninitialized);
    if (file.read(bytes.data(), size) != size)
        return {}; // half a map is none
    return bytes;
}

} // namespace

int ScenarioData::ReadMapFromFile(QFile *file)
{
    QFile packed(file->fileName());
    if (!packed.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        qDebug() << "Scenario Read Error";
        return 0;
    }
    if (packed.isSequential() || unpacksToNothing(packed)) {
        qDebug() << "ERR3";
        return 0;
    }
    ScenarioData imported;
    const std::optional<unsigned int> players = readHeaderOf(packed, imported, true);
    if (players == unsigned(-1)) {
        qDebug() << "Err2";
        return -1;
    }
    const QByteArray bytes = readRest(*file);
    if (!players || bytes.isEmpty() || !readHeaderOf(packed, imported, false)) {
        qDebug() << "Scenario Read Error";
        return 0;
    }
    mapFileName = QFileInfo(*file).fileName();
    mapSize = quint32(bytes.size());
    compressedMap = bytes;
    mapHeader = imported.mapHeader;
    return 1;
}
