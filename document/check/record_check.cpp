// A second walk through a campaign's header and records, byte by byte, for what the reader passes
// over and what saving would change. Their layout stands in document/campaign_reader.cpp and
// document/campaign_records.cpp.
#include "document/check/record_check.h"

#include "document/campaign_data.h"
#include "document/campaign_primitives.h"
#include "document/campaign_records.h"
#include "document/inflating_device.h"
#include "gamedata/editor_data.h"
#include "gamedata/limits.h"

#include <QFile>

#include <array>

namespace {

constexpr quint8 lastOptionType = 3;
// What follows a bonus's type in the file, by the type.
constexpr std::array<quint32, 8> bonusBytes{3, 6, 1, 4, 3, 6, 4, 5};
constexpr quint32 crossoverBytes = 2;
constexpr quint32 startingHeroBytes = 3;

class RecordWalk
{
public:
    RecordWalk(QFile &file, const CampaignData &campaign, Findings &findings)
        : m_file(file), m_campaign(campaign), m_findings(findings),
          m_device(&file, InflatingDevice::Format::GzipMember), m_stream(&m_device)
    {
        m_stream.setByteOrder(QDataStream::LittleEndian);
        m_device.setLimit(limits::campaignHeaderBytes);
    }

    void run()
    {
        readHead();
        for (unsigned int i = 0; i < m_campaign.scenarios.size() && !m_cut; ++i)
            readRecord(i);
        checkEndOfRecords();
        checkMapSizes();
    }

private:
    void find(const QString &what) { m_findings.push_back({m_where, what}); }

    quint8 readByte()
    {
        const auto value = readNumber<quint8>(m_stream);
        noteCut(m_stream.status() != QDataStream::Ok);
        return value;
    }

    quint32 readInt()
    {
        const auto value = readNumber<quint32>(m_stream);
        noteCut(m_stream.status() != QDataStream::Ok);
        return value;
    }

    QByteArray read(quint32 count)
    {
        QByteArray bytes = readBytes(m_stream, count);
        noteCut(quint32(bytes.size()) < count);
        return bytes;
    }

    void noteCut(bool cut)
    {
        if (cut && !m_cut)
            find(QStringLiteral("the records end here, the rest reads as nothing"));
        m_cut = m_cut || cut;
    }

    void skipText() { read(readInt()); }

    void readFlag(const char *name)
    {
        const quint8 value = readByte();
        if (value > 1)
            find(QStringLiteral("%1 is %2, saving makes it 1").arg(QLatin1String(name)).arg(value));
    }

    void readHead()
    {
        m_version = readInt();
        if (m_version == newestCampaignVersion) {
            readInt();
            readFlag("the flag for a campaign map");
            readInt();
            m_promisedScenarios = readInt();
        }
        readByte();
        skipText();
        skipText();
        readFlag("the flag for a choice of difficulty");
        readByte();
        if (!m_campaign.hasMap && m_promisedScenarios > m_campaign.scenarios.size()) {
            find(QStringLiteral("%1 scenarios are promised, %2 there")
                     .arg(QString::number(m_promisedScenarios),
                          QString::number(m_campaign.scenarios.size())));
        }
    }

    // A bit array of which the editor keeps so many bits.
    QByteArray readBits(quint32 count, quint32 kept, const char *name)
    {
        QByteArray bytes = read((count + 7) / 8);
        for (quint32 bit = std::min(count, kept); bit < quint32(bytes.size()) * 8; ++bit) {
            if (quint8(bytes.at(int(bit / 8))) >> (bit % 8) & 1) {
                find(QStringLiteral("a bit beyond the %1 %2 is set, saving clears it")
                         .arg(QString::number(std::min(count, kept)), QLatin1String(name)));
                break;
            }
        }
        return bytes;
    }

    void readRecord(unsigned int index)
    {
        m_where = placeOf(index);
        skipText();
        m_promisedMaps.push_back(readInt());
        const auto there = quint32(m_campaign.scenarios.size());
        const quint32 promised = m_campaign.hasMap ? there : m_promisedScenarios;
        const QByteArray prerequisites = readBits(promised, there, "prerequisites");
        if (!m_campaign.hasMap)
            checkChain(index, prerequisites);
        readByte();
        readByte();
        skipText();
        readStories("prologue");
        readStories("epilogue");
        readBits(heroKeepsBits, heroKeepsBits, "things that heroes keep");
        const CrossoverBits bits = crossoverBits(m_version);
        readBits(bits.creatures, EditorData::nCreatures, "creatures");
        readBits(bits.artifacts, EditorData::nArtifacts, "artifacts");
        readOptions();
    }

    // Without a campaign map saving chains the scenarios that have maps, whatever the file says.
    void checkChain(unsigned int index, const QByteArray &prerequisites)
    {
        const bool hasMap = m_campaign.scenarios[index].mapHeader != nullptr;
        QByteArray chain(prerequisites.size(), '\0');
        if (hasMap && m_previousWithMap >= 0)
            chain[m_previousWithMap / 8] = char(1 << m_previousWithMap % 8);
        if (hasMap)
            m_previousWithMap = int(index);
        if (chain != prerequisites) {
            m_findings.push_back({placeOf(index, "prerequisites"),
                                  QStringLiteral("saving replaces them by the scenario before")});
        }
    }

    void readStories(const char *name)
    {
        for (unsigned int i = 1; i <= storyCount(m_version); ++i) {
            const quint8 present = readByte();
            if (present > 1) {
                find(QStringLiteral("%1 %2 has the mark %3, it reads as absent")
                         .arg(QLatin1String(name))
                         .arg(i)
                         .arg(present));
            }
            if (present != 1)
                continue;
            readByte();
            readByte();
            skipText();
        }
    }

    void readOptions()
    {
        const quint8 type = readByte();
        if (type == 0)
            return;
        if (type > lastOptionType) {
            find(QStringLiteral("start options of the unknown kind %1, saving drops them")
                     .arg(type));
            return;
        }
        if (type == 1)
            readByte();
        const quint8 count = readByte();
        if (type == lastOptionType && count == 0)
            find(QStringLiteral("a list of starting heroes without any, saving makes it one of "
                                "bonuses"));
        for (int i = 0; i < count && !m_cut; ++i) {
            if (type == 1)
                skipBonus();
            else
                read(type == 2 ? crossoverBytes : startingHeroBytes);
        }
    }

    void skipBonus()
    {
        const quint8 type = readByte();
        if (type < bonusBytes.size())
            read(bonusBytes[type]);
    }

    void checkEndOfRecords()
    {
        m_where = QStringLiteral("header");
        if (m_device.isPlain()) {
            find(QStringLiteral("isn't packed"));
            m_mapsBegin = m_device.delivered();
            return;
        }
        std::array<char, 16384> rest;
        qint64 behind = 0;
        while (!m_device.atEnd())
            behind += std::max(qint64(0), m_device.read(rest.data(), rest.size()));
        if (behind > 0)
            find(
                QStringLiteral("%1 bytes stand behind the records, saving drops them").arg(behind));
        m_mapsBegin = m_device.skipToMemberEnd(limits::campaignHeaderBytes);
        if (m_mapsBegin < 0)
            find(QStringLiteral("its packed bytes are damaged or cut short"));
    }

    void checkMapSizes()
    {
        qint64 end = m_mapsBegin;
        for (unsigned int i = 0; i < m_promisedMaps.size(); ++i) {
            const quint32 promised = m_promisedMaps[i];
            const int there = m_campaign.scenarios[i].compressedMap.size();
            end += promised;
            m_where = placeOf(i, "map");
            if (quint32(there) < promised)
                find(QStringLiteral("%1 bytes are promised, %2 there").arg(promised).arg(there));
        }
        m_where = QStringLiteral("file");
        if (m_mapsBegin >= 0 && end < m_file.size()) {
            find(QStringLiteral("%1 bytes stand behind its last map, saving drops them")
                     .arg(m_file.size() - end));
        }
    }

    QFile &m_file;
    const CampaignData &m_campaign;
    Findings &m_findings;
    InflatingDevice m_device;
    QDataStream m_stream;
    QString m_where = QStringLiteral("header");
    quint32 m_version = 0;
    quint32 m_promisedScenarios = 0;
    std::vector<quint32> m_promisedMaps;
    int m_previousWithMap = -1;
    qint64 m_mapsBegin = -1;
    bool m_cut = false;
};

} // namespace

void checkRecords(QFile &file, const CampaignData &campaign, Findings &findings)
{
    RecordWalk(file, campaign, findings).run();
}
