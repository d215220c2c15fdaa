#include "tools/sample_game/game_folder.h"

#include "tools/sample_game/archive_writer.h"
#include "tools/sample_game/campaign_maps.h"
#include "tools/sample_game/mp3_encoder.h"
#include "tools/sample_game/pictures.h"
#include "tools/sample_game/sample_campaigns.h"
#include "tools/sample_game/sample_maps.h"
#include "tools/sample_game/settings_text.h"
#include "tools/sample_game/table_entries.h"
#include "tools/sample_game/tunes.h"

#include <QDir>
#include <QSaveFile>

namespace sample {

namespace {

constexpr int kUnpackedEvery = 4; // every so many entries of an archive stand unpacked

// Writes files below one folder and keeps the first fault.
class FolderWriter
{
public:
    explicit FolderWriter(const QString &folder) : m_folder(folder) {}

    void write(const QString &name, const QByteArray &content)
    {
        if (!m_fault.isEmpty())
            return;
        const QString path = m_folder.filePath(name);
        if (!m_folder.mkpath(QFileInfo(name).path())) {
            m_fault = QStringLiteral("%1: the folder can't be made").arg(path);
            return;
        }
        QSaveFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() ||
            !file.commit())
            m_fault = QStringLiteral("%1: %2").arg(path, file.errorString());
    }

    const QString &fault() const { return m_fault; }

private:
    QDir m_folder;
    QString m_fault;
};

QByteArray archive(const QVector<NamedFile> &files)
{
    ArchiveWriter writer;
    for (int i = 0; i < files.size(); ++i) {
        const bool unpacked = i % kUnpackedEvery == kUnpackedEvery - 1;
        writer.add(files.at(i).name, files.at(i).content,
                   unpacked ? Packing::Unpacked : Packing::Packed);
    }
    return writer.bytes();
}

QStringList namesOf(const QVector<NamedFile> &files)
{
    QStringList names;
    for (const NamedFile &file : files)
        names += QString::fromLatin1(file.name);
    return names;
}

void writeArchivesAndTables(FolderWriter &writer)
{
    const QVector<NamedFile> movies = moviePictures(movieNames().size() + addedMovieNames().size());
    const QVector<NamedFile> backgrounds = backgroundPictures();
    std::vector<TableEntry> entries = nameEntries();
    QVector<NamedFile> readyMade;
    QVector<NamedFile> computed;
    for (const CampaignMap &map : campaignMaps()) {
        entries.push_back(map.entry);
        (map.readyMade ? readyMade : computed) += map.pictures;
    }
    for (const TableEntry &entry : mediaEntries(namesOf(movies), namesOf(backgrounds)))
        entries.push_back(entry);
    for (const TableEntry &entry : gameOnlyEntries())
        entries.push_back(entry);
    writer.write(QStringLiteral("ravn.dat"), tableFile(entries));

    writer.write(
        QStringLiteral("Data/E3bitmap.lod"),
        archive(outdatedTexts() + backgrounds + QVector<NamedFile>{outdatedDashPattern()}));
    writer.write(QStringLiteral("Data/E3sprite.lod"), archive(otherFiles() + readyMade));
    writer.write(QStringLiteral("Data/Ravn.lod"), archive(computed));
    writer.write(QStringLiteral("Data/Ravn_ext.lod"),
                 archive(movies + QVector<NamedFile>{dashPattern()}));
    writer.write(QStringLiteral("Data/Ravn_lng.lod"), archive(traitTexts() + buildingTexts()));
    writer.write(QStringLiteral("Data/Ravn_l_ext.lod"), archive(editorTexts()));
}

} // namespace

QString makeGameFolder(const QString &folder)
{
    if (!QDir().mkpath(folder))
        return QStringLiteral("%1: the folder can't be made").arg(folder);
    FolderWriter writer(folder);
    writeArchivesAndTables(writer);
    writer.write(QStringLiteral("Ravn_settings.ini"), settingsFile());
    for (const Tune &tune : tunes())
        writer.write(QStringLiteral("MP3/%1.mp3").arg(QLatin1String(tune.name)),
                     mp3File(soundOf(tune), kSampleRate));
    for (const MapFile &map : mapFiles())
        writer.write(QStringLiteral("Maps/") + map.name, map.content);
    for (const NamedCampaign &campaign : sampleCampaigns())
        writer.write(QStringLiteral("Maps/") + campaign.fileName,
                     campaignFile(campaign.plan, tableSizes()));
    return writer.fault();
}

} // namespace sample
