// Writing a campaign: always version 10, subversion 1. The file's layout stands in
// campaign_reader.cpp.
#include "document/campaign_primitives.h"
#include "document/campaign_records.h"
#include "document/gzip_member.h"
#include "gamedata/editor_data.h"
#include "gamedata/limits.h"

#include <QFile>

#include <cerrno>

namespace {

constexpr quint32 subversion = 1;

// The bytes of a scenario's map: what the record promises, or less if less is there.
QByteArray mapOf(const ScenarioData &scenario)
{
    if (qint64(scenario.mapSize) >= scenario.compressedMap.size())
        return scenario.compressedMap;
    return scenario.compressedMap.left(int(scenario.mapSize));
}

// The number of records and of their bits both follow the campaign's own map, whatever the
// editor's state names: a file in which they disagree can't be read again.
class Writer
{
public:
    explicit Writer(CampaignData &campaign) : m_campaign(campaign), m_count(recordCount(campaign))
    {
    }

    std::vector<QByteArray> pieces()
    {
        QByteArray header;
        QDataStream stream(&header, QIODevice::WriteOnly);
        stream.setByteOrder(QDataStream::LittleEndian);
        writeHead(stream);
        for (unsigned int i = 0; i < m_count; ++i)
            writeRecord(stream, i);
        m_textBytes += header.size() - qint64(m_count) * prerequisiteBytes(m_count);
        if (stream.status() == QDataStream::Ok)
            m_pieces.front() = packGzipMember(header);
        return m_pieces;
    }

    // Why the pieces mustn't become a file, an error number of the system, or 0: the reader would
    // refuse so much text, and without a header the maps are lost.
    int fault() const
    {
        if (m_textBytes > limits::campaignTextBytes)
            return EFBIG;
        return m_pieces.front().isEmpty() ? ENOMEM : 0;
    }

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
        if (!map.isEmpty())
            m_pieces.push_back(map);
    }

    CampaignData &m_campaign;
    const unsigned int m_count;
    int m_previousWithMap = -1;
    qint64 m_textBytes = 0;                         // as the reader counts them
    std::vector<QByteArray> m_pieces{QByteArray()}; // the header's place
};

} // namespace

std::vector<QByteArray> CampaignData::toPieces()
{
    return Writer(*this).pieces();
}

SaveResult CampaignData::saveTo(const QString &path)
{
    return saveBy(
        [&](const std::vector<QByteArray> &pieces) { return saveFileSafely(path, pieces); });
}

// The file tells how many scenarios it has by its map's number alone, so of a campaign on a map
// that the game's tables lack no scenario was read: to write it would empty the author's file.
SaveResult CampaignData::saveBy(
    const std::function<SaveResult(const std::vector<QByteArray> &)> &write)
{
    if (hasMap && EditorData::campaignInfo.count(mapId) == 0)
        return {false, QObject::tr("The game has no campaign map %1").arg(mapId)};
    Writer writer(*this);
    const std::vector<QByteArray> pieces = writer.pieces();
    if (const int code = writer.fault())
        return {false, qt_error_string(code)};
    return write(pieces);
}

void CampaignData::WriteToFile(QFile *file)
{
    saveTo(file->fileName());
}
