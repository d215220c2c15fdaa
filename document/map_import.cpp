// Importing a map file into a scenario.
#include "document/campaign_data.h"
#include "document/inflating_device.h"
#include "gamedata/limits.h"

#include <QDataStream>
#include <QDebug>
#include <QFile>
#include <QFileInfo>

#include <memory>

namespace {

// The map's header, read where it begins; null if the file can't be read: what it would give then
// isn't the header.
std::shared_ptr<MapHeader> headerFrom(InflatingDevice &device)
{
    device.setLimit(limits::mapHeaderBytes);
    QDataStream stream(&device);
    stream.setByteOrder(QDataStream::LittleEndian);
    ScenarioData imported;
    imported.ReadMapHeader(stream, false);
    return device.sourceFailed() ? nullptr : imported.mapHeader;
}

// The file from its start, read once into its one buffer.
QByteArray readWhole(QFile &file)
{
    const qint64 size = file.size();
    if (size <= 0 || size > limits::mapBytes || !file.seek(0))
        return {};
    QByteArray bytes(int(size), Qt::Uninitialized);
    if (file.read(bytes.data(), size) != size)
        return {}; // half a map is none
    return bytes;
}

} // namespace

// All is read through one handle of its own: if the file is replaced while this goes on, the header
// is still that of the bytes.
int ScenarioData::ReadMapFromFile(QFile *file)
{
    QFile packed(file->fileName());
    if (!packed.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        qDebug() << "Scenario Read Error";
        return 0;
    }
    const auto device =
        packed.isSequential()
            ? nullptr // a pipe would be waited for
            : std::make_unique<InflatingDevice>(&packed, InflatingDevice::Format::GzipMembers);
    if (!device || device->atEnd()) {
        qDebug() << "ERR3";
        return 0;
    }
    const std::shared_ptr<MapHeader> header = headerFrom(*device);
    if (header && header->anyPlayers == 0) {
        qDebug() << "Err2";
        return -1;
    }
    const QByteArray bytes = readWhole(packed);
    if (!header || bytes.isEmpty()) {
        qDebug() << "Scenario Read Error";
        return 0;
    }
    mapFileName = QFileInfo(*file).fileName();
    mapSize = quint32(bytes.size());
    compressedMap = bytes;
    mapHeader = header;
    return 1;
}
