// A campaign of three scenarios with every kind of text, and the lines of its file.
#pragma once

#include "document/campaign_data.h"
#include "document/text_exchange.h"
#include "tests/document/samples.h"

#include <QStringList>
#include <QTemporaryDir>

#include <memory>

namespace text_campaign {

constexpr unsigned campaignMap = 3;

inline void setTables()
{
    samples::setTables();
    EditorData::campaignInfo[campaignMap].regions.resize(3);
    const QStringList names{"North Fen", "Grey Coast", "Old Mill"};
    for (int i = 0; i < names.size(); ++i)
        EditorData::campaignInfo[campaignMap].regions[i].name = names[i];
}

inline std::shared_ptr<CmpPrologue> story(const QString &text)
{
    return std::make_shared<CmpPrologue>(CmpPrologue{7, 9, text});
}

inline void giveMap(ScenarioData &scenario, const QString &mapName)
{
    auto header = std::make_shared<MapHeader>();
    header->mapName = mapName;
    scenario.mapHeader = header;
    scenario.compressedMap = "packed";
    scenario.mapSize = 6;
    scenario.mapFileName = "some.e3m";
}

// The first and the third scenario have maps, the first one also two prologues and an epilogue.
inline CampaignData make()
{
    CampaignData campaign;
    campaign.initDummyCampaign(campaignMap, true, 0, 0);
    campaign.name = "Ember Road";
    campaign.description = "Three steps\nin the dark";
    giveMap(campaign.scenarios[0], "The Long Thaw");
    campaign.scenarios[0].regionText = "Beware\nof wolves";
    campaign.scenarios[0].prologues = {story("Once\nupon"), nullptr, story("Then")};
    campaign.scenarios[0].epilogues = {nullptr, story("The end"), nullptr};
    campaign.scenarios[1].regionText = "Nobody";
    campaign.scenarios[1].prologues[0] = story("No map");
    giveMap(campaign.scenarios[2], "Frostmere");
    return campaign;
}

inline const char exported[] = "Name:\r\n"
                               "\r\n"
                               "\r\n"
                               "Description:\r\n"
                               "\r\n"
                               "\r\n"
                               "\r\n"
                               "The Long Thaw \xE2\x80\x94 North Fen\r\n"
                               "\r\n"
                               "Right-click text:\r\n"
                               "Beware\tof wolves\r\n"
                               "\r\n"
                               "Prologue:\r\n"
                               "Once\tupon\r\n"
                               "\r\n"
                               "Prologue:\r\n"
                               "Then\r\n"
                               "\r\n"
                               "Epilogue:\r\n"
                               "The end\r\n"
                               "\r\n"
                               "\r\n"
                               "Frostmere \xE2\x80\x94 Old Mill\r\n"
                               "\r\n"
                               "Right-click text:\r\n"
                               "\r\n"
                               "\r\n";

// The lines of the same file with every text translated.
inline QByteArrayList translated()
{
    QByteArrayList lines = QByteArray(exported).replace("\r\n", "\n").split('\n');
    lines.removeLast(); // behind the last line end
    lines[1] = "Road\tof embers";
    lines[4] = "Steps";
    lines[10] = "Wolves\tabout";
    lines[13] = "Long\tago";
    lines[16] = "Later";
    lines[19] = "Over";
    lines[25] = "A lake";
    return lines;
}

inline QByteArray fileOf(const QByteArrayList &lines, const QByteArray &lineEnd = "\r\n")
{
    return lines.join(lineEnd) + lineEnd;
}

// Every text of a campaign that the file can change, in its order; absent stories as null.
inline QStringList textsOf(const CampaignData &campaign)
{
    QStringList texts{campaign.name, campaign.description};
    for (const ScenarioData &scenario : campaign.scenarios) {
        texts << scenario.regionText;
        for (const auto *stories : {&scenario.prologues, &scenario.epilogues}) {
            for (const auto &entry : *stories)
                texts << (entry ? entry->text : QString("-"));
        }
    }
    return texts;
}

// Imports a file of these bytes.
class Importer
{
public:
    bool operator()(CampaignData &campaign, const QByteArray &bytes) const
    {
        QFile file(samples::writeFile(m_folder.filePath("texts.txt"), bytes));
        return file.open(QIODevice::ReadOnly) && importTextsFrom(file, campaign);
    }

private:
    QTemporaryDir m_folder;
};

} // namespace text_campaign
