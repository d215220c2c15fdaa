// Campaigns read from bytes that a test has put together, and what must hold of all of them.
#pragma once

#include "document/campaign_data.h"
#include "tests/document/samples.h"

#include <QTemporaryDir>
#include <QTest>

class CampaignReading
{
protected:
    QString write(const QByteArray &bytes) const
    {
        return samples::writeFile(m_folder.filePath("c.e3c"), bytes);
    }

    std::optional<QString> read(CampaignData &campaign, const QByteArray &bytes) const
    {
        QFile file(write(bytes));
        file.open(QIODevice::ReadOnly);
        return campaign.readCampaign(&file);
    }

    const QTemporaryDir m_folder;
};

inline void addVersions()
{
    QTest::addColumn<quint32>("version");
    for (const quint32 version : {5u, 6u, 10u})
        QTest::newRow(qPrintable(QString("version %1").arg(version))) << version;
}

// What must hold of every campaign that was read, whatever its file.
inline void verifySound(CampaignData &campaign)
{
    QCOMPARE(campaign.scenarios.size(), size_t(campaign.countOfScenarios()));
    for (const ScenarioData &scenario : campaign.scenarios) {
        QCOMPARE(scenario.mapSize, quint32(scenario.compressedMap.size()));
        QCOMPARE(bool(scenario.mapHeader), scenario.mapSize > 0);
        QCOMPARE(scenario.prerequisites.size(), int(campaign.scenarios.size()));
        QCOMPARE(scenario.crossover.artifacts.size(), 150);
        QCOMPARE(scenario.crossover.creatures.size(), 147);
        QCOMPARE(scenario.crossover.heroKeeps.size(), 5);
    }
    size_t maps = 0;
    for (const ScenarioData &scenario : campaign.scenarios)
        maps += scenario.mapSize > 0 ? 1 : 0;
    QCOMPARE(campaign.toPieces().size(), maps + 1);
}
