// Writing a campaign: always version 10, subversion 1. The file's layout stands in
// campaign_reader.cpp.
#include "document/campaign_primitives.h"
#include "document/campaign_records.h"
#include "document/gzip_member.h"
#include "gamedata/editor_data.h"
#include "gamedata/limits.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <functional>
#include <iterator>

namespace {

constexpr quint32 subversion = 1;
constexpr qint64 portionBytes = qint64(128) * 1024; // of the header, or more by one record

// The bytes of a scenario's map: what the record promises, or less if less is there.
QByteArray mapOf(const ScenarioData &scenario)
{
    if (qint64(scenario.mapSize) >= scenario.compressedMap.size())
        return scenario.compressedMap;
    return scenario.compressedMap.left(int(scenario.mapSize));
}

// Takes the header's bytes in order, portion by portion.
using TakeHeader = std::function<void(const char *, int)>;

// The number of records and of their bits both follow the campaign's own map, whatever the
// editor's state names: a file in which they disagree can't be read again.
class Writer
{
public:
    explicit Writer(CampaignData &campaign) : m_campaign(campaign), m_count(recordCount(campaign))
    {
    }

    // Never all of a header at once: the bits of thousands of scenarios are far larger than what
    // they are packed to.
    void write(const TakeHeader &take)
    {
        QByteArray portion;
        QDataStream stream(&portion, QIODevice::WriteOnly);
        stream.setByteOrder(QDataStream::LittleEndian);
        const auto handOver = [&] {
            const qint64 size = stream.device()->pos();
            m_headerBytes += size;
            if (isWhole())
                take(portion.constData(), int(size));
            stream.device()->seek(0);
        };
        writeHead(stream);
        for (unsigned int i = 0; i < m_count; ++i) {
            writeRecord(stream, i);
            if (stream.device()->pos() >= portionBytes)
                handOver();
        }
        m_written = stream.status() == QDataStream::Ok;
        handOver();
        m_textBytes += m_headerBytes - qint64(m_count) * prerequisiteBytes(m_count);
    }

    // All of the header was handed over: no more of it than the reader takes.
    bool isWhole() const { return m_written && m_headerBytes <= limits::campaignHeaderBytes; }

    // Why this mustn't become a file, an error number of the system, or 0: the reader would refuse
    // so much text, or so much of maps.
    int fault() const
    {
        if (m_textBytes > limits::campaignTextBytes || m_mapBytes > limits::campaignMapBytes)
            return EFBIG;
        return isWhole() ? 0 : ENOMEM;
    }

    std::vector<QByteArray> &maps() { return m_maps; }

private:
    void writeHead(QDataStream &stream)
    {
        stream << newestCampaignVersion << subversion << quint8(m_campaign.hasMap)
               << m_campaign.customValue
               << quint32(m_campaign.hasMap ? m_campaign.scenarioCount : m_count)
               << quint8(m_campaign.mapId + 1);
        WriteHString4(stream, m_campaign.name);
        WriteHString4(stream, m_campaign.description);
        stream << quint8(m_campaign.difficultySelectable) << m_campaign.musicId;
    }

    void writeRecord(QDataStream &stream, unsigned int index)
    {
        ScenarioData missing;
        const bool there = index < m_campaign.scenarios.size();
        ScenarioData &scenario = there ? m_campaign.scenarios[index] : missing;
        const QByteArray map = mapOf(scenario);
        RecordContext context{scenario.prerequisites, m_count, quint32(map.size())};
        if (!m_campaign.hasMap)
            context.prerequisites = chainPrerequisites(scenario, m_previousWithMap, m_count);
        if (scenario.mapHeader)
            m_previousWithMap = int(index);
        writeScenarioRecord(stream, scenario, context);
        m_textBytes += bonusMemory(scenario);
        m_mapBytes += map.size();
        if (!map.isEmpty())
            m_maps.push_back(map);
    }

    CampaignData &m_campaign;
    const unsigned int m_count;
    int m_previousWithMap = -1;
    bool m_written = true;
    qint64 m_headerBytes = 0;
    qint64 m_textBytes = 0; // as the reader counts them
    qint64 m_mapBytes = 0;
    std::vector<QByteArray> m_maps;
};

// The file's pieces. The first of them is empty if the header couldn't be packed.
std::vector<QByteArray> packedPieces(Writer &writer)
{
    QByteArray header;
    const auto append = [&](const char *bytes, int size) {
        header.append(bytes, size);
        return true;
    };
    MemberPacker packer;
    bool well = true;
    writer.write(
        [&](const char *bytes, int size) { well = well && packer.add(bytes, size, append); });
    if (!well || !writer.isWhole() || !packer.finish(append))
        header.clear();
    header.squeeze();
    std::vector<QByteArray> pieces{header};
    std::move(writer.maps().begin(), writer.maps().end(), std::back_inserter(pieces));
    return pieces;
}

// The file tells how many scenarios it has by its map's number alone, so of a campaign on a map
// that the game's tables lack no scenario was read: to write it would empty the author's file.
bool isOnAMapOfTheGame(const CampaignData &campaign)
{
    return !campaign.hasMap || EditorData::campaignInfo.count(campaign.mapId) != 0;
}

} // namespace

std::vector<QByteArray> CampaignData::toPieces()
{
    Writer writer(*this);
    return packedPieces(writer);
}

SaveResult CampaignData::saveTo(const QString &path)
{
    if (!isOnAMapOfTheGame(*this))
        return {false, QObject::tr("The game has no campaign map %1").arg(mapId)};
    Writer writer(*this);
    const std::vector<QByteArray> pieces = packedPieces(writer);
    if (const int code = writer.fault())
        return {false, qt_error_string(code)};
    if (pieces.front().isEmpty()) // the maps without it are lost
        return {false, qt_error_string(ENOMEM)};
    return saveFileSafely(path, pieces);
}

std::optional<UnpackedFile> CampaignData::unpacked()
{
    if (!isOnAMapOfTheGame(*this))
        return std::nullopt;
    UnpackedFile file;
    Writer writer(*this);
    writer.write([&](const char *bytes, int size) { file.head.append(bytes, size); });
    if (writer.fault() != 0)
        return std::nullopt;
    file.rest = std::move(writer.maps());
    return file;
}

void CampaignData::WriteToFile(QFile *file)
{
    saveTo(file->fileName());
}
