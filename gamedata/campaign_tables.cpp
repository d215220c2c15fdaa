// Campaign maps, the lists of the combo boxes that go with a campaign, and the interface texts
// that the game's language supplies.
#include "gamedata/editor_data.h"
#include "gamedata/runtime/text_tools.h"
#include "gamedata/table_text.h"

#include <QByteArray>

#include <algorithm>

using table_text::Entry;

namespace {

constexpr int interfaceHeaderLines = 2;
constexpr int playerColours = 8;
constexpr int firstTableFileTrack = 49;
constexpr int lastTextTableVideo = 100;
constexpr int pictureLines = 3; // lines of pictures behind a region's name

bool isComment(const QString &line)
{
    return line.startsWith(QLatin1Char('#'));
}

void setPictures(CampaignRegion &region, int row, const QString &line, bool generated)
{
    if (!generated)
        region.imageNames[row] = line.split(QLatin1Char(' '));
    else if (row == 0)
        region.glowImage = line;
    else if (row == 1)
        region.borderImage = line;
    else
        region.fillImage = line;
}

// Reads the layout of one campaign map, given without its comments:
//
//   layoutType
//   regionCount
//   x y                              once for each region
//   name, and three picture lines    once for each region
//
// The picture lines of layout type 0 are lists of names, a line for each state of a region; those
// of type 1 are a glow, a border and a fill mask. Of a layout of another type only the first
// region's name is read: the rest is for the game alone. A layout that ends early leaves what it
// doesn't reach as it was, and lines behind the last region mean nothing. A number of regions that
// can't be right is cut to the lines there are. False if a position isn't two fields.
bool readLayout(CampaignInfo &map, const QStringList &lines)
{
    auto line = lines.begin();
    if (line == lines.end())
        return true;
    map.layoutType = (line++)->toInt(nullptr, 10);
    map.generated = map.layoutType == 1;
    if (line == lines.end())
        return true;
    const int stated = (line++)->toInt(nullptr, 10);
    map.regionCount = std::clamp(stated, 0, int(lines.end() - line));
    map.regions.resize(map.regionCount);

    for (CampaignRegion &region : map.regions) {
        if (line == lines.end())
            return true;
        const QStringList fields = (line++)->split(QLatin1Char(' '));
        if (fields.size() != 2)
            return false;
        region.x = fields[0].toInt(nullptr, 10);
        region.y = fields[1].toInt(nullptr, 10);
    }
    for (CampaignRegion &region : map.regions) {
        if (line == lines.end())
            return true;
        region.name = *line++;
        region.imageNames.resize(pictureLines);
        if (map.layoutType != 0 && !map.generated)
            return true;
        for (int row = 0; row < pictureLines && line != lines.end(); ++row)
            setPictures(region, row, *line++, map.generated);
    }
    return true;
}

// False if the reading of the table file's campaign entries is to end here.
bool readCampaignMap(CampaignInfo &map, const Entry &entry, QTextCodec *textCodec)
{
    map.name = entry.text(0, textCodec);
    map.backgroundName = entry.text(1, textCodec);
    QStringList lines = entry.lines(8, textCodec);
    lines.erase(std::remove_if(lines.begin(), lines.end(), isComment), lines.end());
    return readLayout(map, lines);
}

void readInterfaceTexts(std::map<int, QStringList> &target, const QString &name,
                        QTextCodec *textCodec)
{
    QStringList lines = EditorData::readTxtFile(name, textCodec);
    table_text::dropFirst(lines, interfaceHeaderLines);
    table_text::forEachRow(lines, [&target](int row, const QString &line) {
        target[row] = table_text::columns(line);
    });
}

} // namespace

void EditorData::initCampaignInfo(QTextCodec *textCodec)
{
    readMusicNames(textCodec);
    readVideoNames(textCodec);
    readMovieImageNames(textCodec);
    readInterfaceTexts(editorText, QStringLiteral("CmpEditr.txt"), textCodec);
    readInterfaceTexts(editorCmdText, QStringLiteral("CmpEdCmd.txt"), textCodec);

    for (const Entry &entry : table_text::entriesOf({"campmap"})) {
        if (entry.hasTableId() && !readCampaignMap(campaignInfo[entry.id()], entry, textCodec))
            return; // the backgrounds stay unread as well
    }

    int row = 0;
    for (const Entry &entry : table_text::entriesOf({"cmpbackground"})) {
        const QStringList names = entry.lines(8, textCodec);
        for (const QString &name : names)
            backgrounds[row++] = name;
    }
}

void EditorData::readColors(QTextCodec *textCodec)
{
    QStringList lines = readTxtFile(QStringLiteral("PlColors.txt"), textCodec);
    if (lines.size() > playerColours)
        table_text::dropLast(lines, 1);
    table_text::forEachRow(lines, [](int, const QString &line) { colors.push_back(line); });
}

void EditorData::readMusicNames(QTextCodec *textCodec)
{
    QStringList lines = readTxtFile(QStringLiteral("CmpMusic.txt"), textCodec);
    table_text::dropLast(lines, 1);
    table_text::forEachRow(lines, [](int row, const QString &line) { musicNames[row] = line; });

    // Each entry starts at the same number, so that a later one overwrites an earlier one.
    std::vector<char *> tracks;
    for (const Entry &entry : table_text::entriesOf({"music"})) {
        QByteArray text(entry.bytes(8));
        ParseToStringList(tracks, text.data(), true);
        int number = firstTableFileTrack;
        for (const char *track : tracks) {
            musicNames[number++] = QString::fromLocal8Bit(track);
            delete[] track;
        }
        tracks.clear();
    }
}

void EditorData::readVideoNames(QTextCodec *textCodec)
{
    int number = 0;
    const QStringList lines = readTxtFile(QStringLiteral("CmpMovie.txt"), textCodec);
    for (const QString &line : lines) {
        if (number > lastTextTableVideo)
            break;
        if (!table_text::isBlank(line))
            videoNames[number++] = line;
    }
    for (const Entry &entry : table_text::entriesOf({"video"})) {
        const QString name = entry.text(4, textCodec);
        if (!name.isEmpty())
            videoNames[number] = name;
        ++number; // an entry without a name leaves a gap
    }
}

void EditorData::readMovieImageNames(QTextCodec *textCodec)
{
    for (const Entry &entry : table_text::entriesOf({"cmpmoviepic"})) {
        int row = 0;
        const QStringList names = entry.lines(8, textCodec);
        for (const QString &name : names) {
            if (!isComment(name))
                movieImages[row++] = name;
        }
    }
}
