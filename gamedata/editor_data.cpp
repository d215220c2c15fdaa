#include "gamedata/editor_data.h"

#include "gamedata/game_dir.h"
#include "gamedata/limits.h"
#include "gamedata/readable_file.h"
#include "gamedata/report.h"
#include "gamedata/table_text.h"

#include <QDirIterator>
#include <QFile>
#include <QObject>

#include <algorithm>
#include <climits>
#include <memory>

LoadingInfo EditorData::info;
QTextCodec *EditorData::codec = nullptr;
unsigned EditorData::nArtifacts = 0;
unsigned EditorData::nCreatures = 0;
std::map<int, QString> EditorData::artifacts;
std::map<int, QString> EditorData::creatures;
std::vector<unsigned> EditorData::creature_ordering;
std::map<int, QString> EditorData::heroes;
std::map<int, QString> EditorData::secondarySkills;
std::map<int, QString> EditorData::primarySkills;
std::map<int, QString> EditorData::skillLevels;
std::map<int, QString> EditorData::spells;
std::map<int, QString> EditorData::resources;
std::map<int, QString> EditorData::jktext;
std::vector<LodArchive> EditorData::lod_archives;
std::map<int, CampaignInfo> EditorData::campaignInfo;
std::map<int, QString> EditorData::backgrounds;
std::vector<QString> EditorData::colors;
std::map<int, QStringList> EditorData::editorText;
std::map<int, QStringList> EditorData::editorCmdText;
std::map<int, QString> EditorData::movieImages;
std::map<int, QString> EditorData::musicNames;
std::map<int, QString> EditorData::videoNames;
std::map<int, std::map<int, QString>> EditorData::buildings;

namespace {

QStringList archivePaths(const QDir &folder)
{
    QStringList paths;
    QDirIterator iterator(folder, QDirIterator::NoIteratorFlags);
    while (iterator.hasNext()) {
        const QString path = iterator.next();
        if (path.endsWith(QLatin1String(".lod"), Qt::CaseSensitive))
            paths.append(path);
    }
    // A file system names its files in any order; a start is to be the same everywhere.
    paths.sort(Qt::CaseSensitive);
    return paths;
}

// Everything that the loaders add to instead of setting it.
void clearTables()
{
    EditorData::lod_archives.clear();
    EditorData::colors.clear();
    EditorData::campaignInfo.clear();
    EditorData::buildings.clear();
    for (auto *names :
         {&EditorData::artifacts, &EditorData::creatures, &EditorData::heroes,
          &EditorData::secondarySkills, &EditorData::primarySkills, &EditorData::spells,
          &EditorData::resources, &EditorData::jktext, &EditorData::backgrounds,
          &EditorData::movieImages, &EditorData::musicNames, &EditorData::videoNames})
        names->clear();
    EditorData::editorText.clear();
    EditorData::editorCmdText.clear();
}

void openArchives()
{
    const QStringList paths = archivePaths(getGameDir(QStringLiteral("Data")));
    for (const QString &path : paths) {
        QFile file(path);
        if (openToRead(file, QIODevice::ReadOnly | QIODevice::Unbuffered))
            continue;
        LodArchive archive;
        archive.Read(file, path);
        EditorData::lod_archives.push_back(archive);
    }
    std::stable_sort(EditorData::lod_archives.begin(), EditorData::lod_archives.end(), CompLods());
}

} // namespace

void EditorData::OpenLods(unsigned int, QTextCodec *textCodec)
{
    clearTables();
    openArchives();

    initCreatures(textCodec);
    initArtifacts(textCodec);
    initCampaignInfo(textCodec);
    initHeroes(textCodec);
    initResourceInfo(textCodec);
    readColors(textCodec);
    parseTextSimple(primarySkills, QStringLiteral("PriSkill.txt"), textCodec, false);
    parseTextSimple(jktext, QStringLiteral("JKTEXT.txt"), textCodec, true);
    skillLevels[1] = QObject::tr("Basic");
    skillLevels[2] = QObject::tr("Advanced");
    skillLevels[3] = QObject::tr("Expert");
    readBuildings(textCodec);
    readSkills(textCodec);
    readSpells(textCodec);
}

char *EditorData::getLodFileData(const QString &name, int *size)
{
    for (const LodArchive &archive : lod_archives) {
        if (char *data = archive.getFileData(name, size))
            return data;
    }
    return nullptr;
}

QStringList EditorData::readTxtFile(const QString &name, QTextCodec *textCodec)
{
    int size = 0;
    const std::unique_ptr<char[]> bytes(getLodFileData(name, &size));
    if (!bytes)
        endWithMessage(
            mainWindowText(QT_TRANSLATE_NOOP("MainWindow", "Can't find %1 file in lod file"))
                .arg(name));
    const int length = int(std::min<qint64>(size, limits::textTableBytes));
    return table_text::allLines(table_text::decoded(bytes.get(), length, textCodec));
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is agreed
void EditorData::parseTextSimple(std::map<int, QString> &target, QString name,
                                 QTextCodec *textCodec, bool dropLastLine)
{
    QStringList lines = readTxtFile(name, textCodec);
    if (dropLastLine)
        table_text::dropLast(lines, 1);
    table_text::forEachRow(lines, [&target](int row, const QString &line) { target[row] = line; });
}

const CampaignInfo &EditorData::campaignMap(unsigned int number)
{
    static const CampaignInfo none;
    const auto found =
        number <= unsigned(INT_MAX) ? campaignInfo.find(int(number)) : campaignInfo.end();
    return found == campaignInfo.end() ? none : found->second;
}

QString nameOf(const std::map<int, QString> &table, int number)
{
    const auto found = table.find(number);
    return found == table.end() ? QString() : found->second;
}

QString textOf(const std::map<int, QStringList> &table, int row, int column)
{
    const auto found = table.find(row);
    return found == table.end() ? QString() : found->second.value(column);
}

QString cmpEditorTitle()
{
    return textOf(EditorData::editorText, 0);
}
