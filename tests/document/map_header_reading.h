// Headers of maps read from bytes that a test has put together.
#pragma once

#include "document/campaign_data.h"
#include "tests/document/samples.h"

#include <QDataStream>
#include <QTest>

// `pos`, which may be null, is set to where the reading has come.
inline unsigned readHeader(ScenarioData &scenario, const QByteArray &bytes, bool check, qint64 *pos)
{
    QDataStream stream(bytes);
    stream.setByteOrder(QDataStream::LittleEndian);
    const unsigned answer = scenario.ReadMapHeader(stream, check);
    if (pos)
        *pos = stream.device()->pos();
    return answer;
}

inline std::shared_ptr<MapHeader> headerOf(const QByteArray &bytes)
{
    ScenarioData scenario;
    readHeader(scenario, bytes, false, nullptr);
    return scenario.mapHeader;
}

inline void addVersions()
{
    QTest::addColumn<quint32>("version");
    QTest::addColumn<quint32>("subVersion");
    for (const quint32 version : {14u, 15u, 20u, 21u, 22u, 28u, 31u})
        QTest::newRow(qPrintable(QString("version %1").arg(version))) << version << 0u;
    for (const quint32 version : {32u, 33u}) {
        for (const quint32 sub : {0u, 1u, 2u, 3u, 4u, 5u, 6u, 7u, 8u, 4294967295u})
            QTest::newRow(qPrintable(QString("version %1.%2").arg(version).arg(sub)))
                << version << sub;
    }
}
