// Reading a campaign file: gzip members without an index between them.
//
//   member 1      the header and every scenario's record
//   further ones  each scenario's map as it was imported, mapSize bytes, in order
//
// Member 1, unpacked (texts and bit arrays as in campaign_primitives.h):
//
//   field                              version
//   version (4)                        5, 6 or 10
//   subversion (4)                     10; 0 or 1
//   hasMap (1)                         10; set in others
//   customValue (4)                    10
//   scenarioCount (4)                  10
//   mapId + 1 (1)
//   name, description (texts)
//   difficultySelectable (1)
//   musicId (1)
//   records                            as many as the map has regions, or scenarioCount
#include "document/campaign_data.h"
#include "document/campaign_primitives.h"
#include "document/campaign_records.h"
#include "document/embedded_map.h"
#include "document/gzip_member.h"
#include "document/inflating_device.h"
#include "gamedata/editor_data.h"
#include "gamedata/limits.h"
#include "gamedata/report.h"

#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>

#include <algorithm>
#include <array>

namespace {

constexpr quint32 newestSubversion = 1;
// What gzip puts around the packed bytes, 18 bytes, without what zlib's own frame takes, 6.
constexpr qint64 frameDifference = 12;

QString damaged()
{
    return QObject::tr("Incorrect or damaged file.");
}

QString wrongVersion(quint32 version)
{
    return mainWindowText(QT_TRANSLATE_NOOP("MainWindow", "Invalid campaign file version!\n\n"
                                                          "File version = %1\n"
                                                          "Current version = %2"))
        .arg(QString::number(version), QString::number(newestCampaignVersion));
}

QString wrongSubversion(quint32 subversion)
{
    return mainWindowText(QT_TRANSLATE_NOOP("MainWindow", "Unsupported version!\n\n"
                                                          "File subversion = %1\n"
                                                          "Current subversion = %2"))
        .arg(QString::number(subversion), QString::number(newestSubversion));
}

// Reads member 1 into a campaign. Every function answers the message of a failure, or nothing.
class HeaderReader
{
public:
    HeaderReader(QFile &file, CampaignData &campaign)
        : m_file(file), m_campaign(campaign), m_device(&file, InflatingDevice::Format::GzipMember),
          m_stream(&m_device)
    {
        m_stream.setByteOrder(QDataStream::LittleEndian);
        m_device.setLimit(limits::campaignTextBytes);
    }

    std::optional<QString> read()
    {
        if (m_device.atEnd())
            return damaged();
        if (auto failure = readVersion())
            return failure;
        readFields();
        EditorData::info.campaign = m_campaign.mapId;
        EditorData::info.version = m_campaign.version;
        if (auto failure = readRecords())
            return failure;
        fitPrerequisites();
        return {};
    }

    // Where in the file the maps begin; nothing if member 1 goes on for longer than can be
    // believed, or if nobody can tell. Call it once, after read().
    std::optional<qint64> endInFile()
    {
        const qint64 length = m_device.delivered();
        if (m_device.isPlain())
            return length;
        const qint64 end = m_device.skipToMemberEnd(limits::campaignHeaderBytes);
        if (end >= 0)
            return end;
        if (m_device.isInMember())
            return {};
        const std::optional<qint64> packed = packedAgain(length);
        return packed ? std::optional(*packed + frameDifference) : std::nullopt;
    }

    // The disk kept something back, and the next save would be without it.
    bool readFailed() const { return m_readFailed || m_device.sourceFailed(); }

private:
    std::optional<QString> readVersion()
    {
        const auto version = readNumber<quint32>(m_stream);
        if (version != 5 && version != 6 && version != newestCampaignVersion)
            return wrongVersion(version);
        m_campaign.version = version;
        m_campaign.hasMap = true;
        if (version == newestCampaignVersion) {
            const auto subversion = readNumber<quint32>(m_stream);
            if (subversion > newestSubversion)
                return wrongSubversion(subversion);
            m_campaign.hasMap = readNumber<quint8>(m_stream) != 0;
        }
        m_campaign.customValue =
            version == newestCampaignVersion ? readNumber<qint32>(m_stream) : 0;
        const quint32 count = version == newestCampaignVersion ? readNumber<quint32>(m_stream) : 0;
        if (!m_campaign.hasMap && count > limits::scenarios)
            return damaged();
        m_campaign.scenarioCount = count;
        return {};
    }

    void readFields()
    {
        m_campaign.mapId = quint8(readNumber<quint8>(m_stream) - 1);
        ReadHString4(m_stream, m_campaign.name);
        ReadHString4(m_stream, m_campaign.description);
        m_campaign.difficultySelectable = readNumber<quint8>(m_stream) != 0;
        m_stream >> m_campaign.musicId;
    }

    // With a map there is a record for each region, whatever the data; without one the list ends
    // where the data does. Texts share one allowance, so that no file grows without bound.
    std::optional<QString> readRecords()
    {
        const unsigned int count = m_campaign.countOfScenarios();
        const qint64 bits = prerequisiteBytes(count);
        qint64 allowance = limits::campaignTextBytes - m_device.delivered();
        std::vector<ScenarioData> &scenarios = m_campaign.scenarios;
        bool exceeded = m_device.limitReached();
        while (scenarios.size() < count && (m_campaign.hasMap || !m_device.atEnd()) && !exceeded) {
            const qint64 before = m_device.delivered();
            m_device.setLimit(before + allowance + bits);
            ScenarioData &scenario = scenarios.emplace_back();
            scenario.ReadFromStream(m_stream, &m_campaign);
            shareWithNeighbour(scenarios);
            exceeded = m_device.limitReached();
            allowance -= std::max(qint64(0), m_device.delivered() - before - bits);
            allowance -= bonusMemory(scenario);
            exceeded = exceeded || allowance < 0;
        }
        if (exceeded)
            return damaged();
        if (!m_campaign.hasMap)
            m_campaign.scenarioCount = quint32(scenarios.size());
        return {};
    }

    // Thousands of scenarios without prerequisites needn't hold thousands of empty arrays.
    static void shareWithNeighbour(std::vector<ScenarioData> &scenarios)
    {
        if (scenarios.size() < 2)
            return;
        const QBitArray &neighbour = scenarios[scenarios.size() - 2].prerequisites;
        if (scenarios.back().prerequisites == neighbour)
            scenarios.back().prerequisites = neighbour;
    }

    void fitPrerequisites()
    {
        const int count = int(m_campaign.scenarios.size());
        for (ScenarioData &scenario : m_campaign.scenarios) {
            if (scenario.prerequisites.size() != count)
                scenario.prerequisites.resize(count);
        }
    }

    // How long the first bytes of the data would be if zlib packed them by its defaults.
    std::optional<qint64> packedAgain(qint64 length)
    {
        m_file.seek(0);
        InflatingDevice device(&m_file, InflatingDevice::Format::GzipMember);
        device.setLimit(length);
        PackedLength packed;
        std::array<char, 16384> part;
        while (!device.atEnd())
            packed.add(part.data(),
                       int(std::max(qint64(0), device.read(part.data(), part.size()))));
        m_readFailed = device.sourceFailed();
        return packed.finish();
    }

    QFile &m_file;
    CampaignData &m_campaign;
    InflatingDevice m_device;
    QDataStream m_stream;
    bool m_readFailed = false;
};

std::optional<QString> readAll(QFile &file, CampaignData &campaign)
{
    HeaderReader header(file, campaign);
    if (auto failure = header.read())
        return failure;
    if (header.readFailed())
        return damaged();
    const bool anyMaps = std::any_of(campaign.scenarios.begin(), campaign.scenarios.end(),
                                     [](const ScenarioData &s) { return s.mapSize != 0; });
    if (!anyMaps)
        return {};
    const std::optional<qint64> mapsBegin = header.endInFile();
    if (!mapsBegin || header.readFailed() ||
        !readEmbeddedMaps(file, *mapsBegin, campaign.scenarios))
        return damaged();
    return {};
}

} // namespace

std::optional<QString> CampaignData::readCampaign(QFile *file)
{
    clear();
    QFile source(file->fileName());
    if (!source.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return mainWindowText(QT_TRANSLATE_NOOP("MainWindow", "Can't open file %1"))
            .arg(file->fileName());
    const LoadingInfo before = EditorData::info;
    auto failure = readAll(source, *this);
    if (failure) {
        clear();
        EditorData::info = before; // the document in work is still the one before
    } else {
        EditorData::info.region = 0;
    }
    return failure;
}

bool CampaignData::ReadFromFile(QFile *file)
{
    const std::optional<QString> failure = readCampaign(file);
    if (!failure)
        return true;
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        QGuiApplication::restoreOverrideCursor();
    reportError(errorTitle(), *failure);
    return false;
}
