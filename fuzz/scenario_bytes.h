// A scenario's record by itself, as it stands in a campaign's packed header.
#pragma once

#include "document/campaign_data.h"

#include <QDataStream>

inline QByteArray bytesOfRecord(ScenarioData &scenario, CampaignData &campaign)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    scenario.WriteToStream(stream, &campaign);
    return bytes;
}
