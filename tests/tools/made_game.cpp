#include "tests/tools/made_game.h"

#include "tests/support/child_process.h"

#include <QFile>
#include <QTextCodec>

int regionsOf(int campaignMap)
{
    const QMap<int, int> regions = {{3, 5}, {8, 4}, {15, 7}, {24, 10}, {27, 6}, {31, 0}};
    return regions.value(campaignMap, -1);
}

qint32 numberAt(const QByteArray &bytes, int offset)
{
    ByteCursor cursor(bytes.mid(offset, 4));
    return cursor.i32();
}

QByteArray MadeGame::make()
{
    m_folder = m_made.path();
    const ChildResult run = runChild(builtProgram(QStringLiteral("make_sample_game")), {m_folder},
                                     QProcessEnvironment::systemEnvironment(), kMakerTimeout);
    if (!run.exitedNormally || run.exitCode != 0)
        return "the maker failed: " + run.error;
    return read();
}

QByteArray MadeGame::openBuilt()
{
    m_folder = qEnvironmentVariable("CMPED_SAMPLE_GAME");
    return read();
}

QByteArray MadeGame::read()
{
    for (const char *archive : kArchives) {
        bool ok = false;
        const QString name = QLatin1String(archive);
        m_archives[name] = readArchive(file(QStringLiteral("Data/%1.lod").arg(name)), ok);
        if (!ok)
            return QByteArray(archive) + " can't be read";
        for (const ArchiveEntry &found : qAsConst(m_archives[name]))
            m_entries[QString::fromLatin1(found.name).toLower()] = found.content;
    }
    bool ok = false;
    m_table = readTableFile(file(QStringLiteral("ravn.dat")), ok);
    return ok ? QByteArray() : QByteArray("ravn.dat can't be read");
}

QByteArray MadeGame::file(const QString &name) const
{
    QFile source(path(name));
    return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
}

QVector<ArchiveEntry> MadeGame::archive(const char *name) const
{
    return m_archives.value(QLatin1String(name));
}

QStringList MadeGame::rows(const QString &textTable) const
{
    return QTextCodec::codecForName("Windows-1252")
        ->toUnicode(entry(textTable))
        .split(QStringLiteral("\r\n"));
}

QVector<DatEntry> MadeGame::ofKind(const QByteArray &kind) const
{
    QVector<DatEntry> found;
    for (const DatEntry &candidate : m_table) {
        if (candidate.kind() == kind)
            found.push_back(candidate);
    }
    return found;
}

QStringList MadeGame::listOf(const DatEntry &entry, int place)
{
    const QStringList lines = QString::fromLatin1(entry.strings.value(place))
                                  .split(QStringLiteral("\r\n"), Qt::SkipEmptyParts);
    QStringList list;
    for (const QString &line : lines) {
        if (!line.startsWith(QLatin1Char('#')))
            list += line;
    }
    return list;
}

CampaignRecord MadeGame::campaign(const QString &name) const
{
    const QByteArray header = inflated(file(QStringLiteral("Maps/") + name)).content;
    const CampaignRecord start = readCampaign(header, 0, kCreatures, kArtifacts);
    return readCampaign(header, regionsOf(start.mapId), kCreatures, kArtifacts);
}
