#include "tests/support/tiny_game.h"

#include "gamedata/editor_data.h"
#include "gamedata/game_dir.h"
#include "gamedata/game_files.h"
#include "gamedata/image_cache.h"
#include "gamedata/ini_file.h"
#include "tests/support/byte_writer.h"
#include "tests/support/file_contents.h"
#include "tests/support/game_bytes.h"
#include "tests/support/packing.h"
#include "tests/support/picture_records.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QSize>
#include <QTextCodec>

#include <array>
#include <functional>

namespace tiny {

namespace {

using game_files::TableEntry;

constexpr QSize mapSize{456, 600};
constexpr int creatureCount = 186;
constexpr int artifactCount = 160;
constexpr int movieCount = 3;
constexpr int transparentIndex = 255;
constexpr int glowValue = 128;
constexpr int patternValue = 60;

using Files = QMap<QByteArray, QByteArray>;

QByteArray lines(const QByteArrayList &rows)
{
    return rows.join("\r\n");
}

QByteArray numbered(const QByteArray &prefix, int count, const QByteArray &head = {})
{
    QByteArrayList rows;
    if (!head.isEmpty())
        rows << head << head;
    for (int i = 0; i < count; ++i)
        rows << prefix + QByteArray::number(i);
    return lines(rows) + "\r\n";
}

// Creatures and artifacts need twelve columns to count.
QByteArray wide(const QByteArray &prefix, int count, int headerLines, int footerLines)
{
    QByteArrayList rows;
    for (int i = 0; i < headerLines; ++i)
        rows << "head";
    for (int i = 0; i < count; ++i)
        rows << prefix + QByteArray::number(i) + QByteArray(11, '\t');
    for (int i = 0; i < footerLines; ++i)
        rows << "";
    return lines(rows);
}

// Every pixel of this colour.
QByteArray evenPixels(const QSize &size, const QByteArray &pixel)
{
    return pixel.repeated(size.width() * size.height());
}

QByteArray bgr(const QColor &colour)
{
    return ByteWriter()
        .u8(unsigned(colour.blue()))
        .u8(unsigned(colour.green()))
        .u8(unsigned(colour.red()))
        .bytes();
}

QByteArray backgroundPicture(const QSize &size, const QColor &colour)
{
    return picture_records::plainHeader(quint32(size.width()), quint32(size.height())) +
           evenPixels(size, bgr(colour));
}

QByteArray widePicture(const QSize &size, const QColor &colour)
{
    return picture_records::p32Header(quint32(size.width()), quint32(size.height())) +
           evenPixels(size, bgr(colour) + '\0');
}

// Index i is grey i, but for the last one, which is the transparent colour.
QByteArray greyPalette()
{
    QByteArray palette;
    for (int i = 0; i < transparentIndex; ++i)
        palette.append(3, char(i));
    return palette.append('\0').append(2, char(255));
}

QByteArray palettePicture(const QSize &size, const QByteArray &palette,
                          const std::function<int(int, int)> &indexAt)
{
    ByteWriter out;
    out.raw(picture_records::plainHeader(quint32(size.width()), quint32(size.height())));
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            out.u8(unsigned(indexAt(x, y)));
    }
    return out.raw(palette).bytes();
}

void addMasks(Files &files, const QByteArray &prefix, const QSize &size, int hole)
{
    const auto all = [](int value) { return [value](int, int) { return value; }; };
    files[prefix + "f.pcx"] = palettePicture(size, greyPalette(), [hole](int x, int y) {
        return x < hole && y < hole ? transparentIndex : 0;
    });
    files[prefix + "g.pcx"] = palettePicture(size, greyPalette(), all(glowValue));
    files[prefix + "b.pcx"] = palettePicture(size, greyPalette(), all(transparentIndex));
}

QByteArray keepName(int region, int state, int colour)
{
    return "k" + QByteArray::number(region) + "s" + QByteArray::number(state) + "c" +
           QByteArray::number(colour) + ".pcx";
}

void addKeeps(Files &files)
{
    for (int region = 0; region < 2; ++region) {
        for (int state = 0; state < 3; ++state) {
            for (int colour = 0; colour < 8; ++colour) {
                const QColor look = readyMadeColour(region, state, colour);
                const QByteArray entry = QByteArray()
                                             .append(char(look.red()))
                                             .append(char(look.green()))
                                             .append(char(look.blue()));
                files[keepName(region, state, colour)] =
                    palettePicture({30, 20}, entry.repeated(256), [](int, int) { return 0; });
            }
        }
    }
}

QByteArray movieName(int video)
{
    return "movie" + QByteArray::number(video) + ".pcx";
}

void addMovies(Files &files)
{
    for (int video = 0; video < movieCount; ++video)
        files[movieName(video)] = backgroundPicture({40, 30}, movieColour(video));
}

void addTexts(Files &files, const QByteArray &title)
{
    files["CRTRAITS.TXT"] = wide("Creature ", 20, 2, 0);
    files["artraits.txt"] = wide("Artifact ", 20, 2, 2);
    files["HOTRAITS.TXT"] = numbered("Hero ", 10, "head");
    files["SSTRAITS.txt"] = numbered("Skill ", 5, "head");
    files["SPTRAITS.txt"] = "head\r\nhead\r\n" + numbered("Spell ", 5, "head");
    files["RESTYPES.txt"] = numbered("Resource ", 7);
    files["PriSkill.txt"] = numbered("Primary ", 4);
    files["JKTEXT.txt"] = numbered("Text ", 5);
    files["PlColors.txt"] = numbered("Colour ", 8);
    files["CmpMusic.txt"] = numbered("Music ", 3);
    files["CmpMovie.txt"] = numbered("Movie ", movieCount);
    files["BldgNeut.TXT"] = numbered("Neutral ", 16).replace("\r\n", "\tx\r\n") + "foot";
    files["BldgSpec.txt"] = numbered("Special ", 81);
    files["Dwelling.txt"] = numbered("Dwelling ", 140);
    QByteArray texts = numbered("Text ", 60, "head");
    texts.replace("Text 0\r\n", title + "\tmore\r\n");
    files["CmpEditr.txt"] = texts;
    files["CmpEdCmd.txt"] = numbered("Hint ", 25, "head");
}

// Every other file is packed.
QByteArray archiveOf(const Files &files)
{
    std::vector<game_files::ArchiveEntry> entries;
    for (auto file = files.begin(); file != files.end(); ++file) {
        const bool pack = entries.size() % 2 == 1;
        entries.push_back({file.key(), *file, pack ? game_files::Packed : game_files::Raw});
    }
    return game_files::archive(entries);
}

QByteArray homeLayout()
{
    return lines({"# computed", "1", "3", "20 30", "40 40", "200 300", //
                  "Alder Bay", "r0g.pcx", "r0b.pcx", "r0f.pcx",        //
                  "Birch Hill", "r1g.pcx", "r1b.pcx", "r1f.pcx",       //
                  "Cedar Fen", "r2g.pcx", "r2b.pcx", "r2f.pcx"});
}

QByteArray keepsLayout()
{
    QByteArrayList rows{"0", "2", "10 10", "100 100"};
    const std::array<QByteArray, 2> names{"West Keep", "East Keep"};
    for (int region = 0; region < 2; ++region) {
        rows << names[std::size_t(region)];
        for (int state = 0; state < 3; ++state) {
            QByteArrayList pictures;
            for (int colour = 0; colour < 8; ++colour)
                pictures << keepName(region, state, colour);
            rows << pictures.join(' ');
        }
    }
    return lines(rows);
}

// Creatures and artifacts beyond those of the text tables, up to the last.
void addLateNames(std::vector<TableEntry> &entries)
{
    for (int number = 150; number < creatureCount; ++number)
        entries.push_back({"monst" + QByteArray::number(number), {{3, "Beast"}}});
    entries.push_back({"art" + QByteArray::number(artifactCount - 1), {{1, "Caf\xe9"}}});
}

QByteArray tableFile()
{
    const QByteArray torn = QByteArray("gone.pcx ").repeated(8).trimmed();
    std::vector<TableEntry> entries{
        {"campmap3", {{0, "Two Keeps"}, {1, "backtwo.pcx"}, {8, keepsLayout()}}},
        {"campmap5", {{0, "Lost Sky"}, {1, "nosuch.pcx"}, {8, lines({"0", "0"})}}},
        {"campmap6",
         {{0, "Torn Map"},
          {1, "backtwo.pcx"},
          {8, lines({"0", "1", "0 0", "Rift", torn, torn, "gone.pcx"})}}},
        {"campmap7",
         {{0, "Blind Map"},
          {1, "backtwo.pcx"},
          {8, lines({"1", "1", "0 0", "Veil", "nog.pcx", "nob.pcx", "nof.pcx"})}}},
        {"campmap24", {{0, "Home Shores"}, {1, "backhome.pcx"}, {8, homeLayout()}}},
        {"campmap30", {{0, "Hidden Realm"}, {1, "backlarge.pcx"}, {8, lines({"2", "0"})}}},
        {"cmpbackground1", {{8, "plainone.pcx\r\nplaintwo.pcx"}}},
        {"cmpmoviepic1", {{8, lines({movieName(0), movieName(1), movieName(2)})}}},
    };
    addLateNames(entries);
    return game_files::tableFile(entries);
}

QByteArray mapHeader()
{
    return ByteWriter()
        .u32(32)
        .u32(0)
        .u8(1)
        .u32(36)
        .u8(0)
        .text("A map")
        .text({})
        .zeros(400)
        .bytes();
}

QByteArray campaignBytes(unsigned mapId, bool hasMap, int background,
                         const QVector<Scenario> &scenarios)
{
    const QByteArray map = packing::gzip(mapHeader());
    ByteWriter out;
    out.u32(10).u32(1).u8(hasMap).i32(background).u32(hasMap ? 0 : quint32(scenarios.size()));
    out.u8(mapId + 1).text("A campaign").text({}).u8(0).u8(34);
    QByteArray maps;
    for (const Scenario &scenario : scenarios) {
        out.text(scenario.map ? "a.e3m" : "").u32(scenario.map ? quint32(map.size()) : 0);
        out.zeros((scenarios.size() + 7) / 8).u8(scenario.colour).u8(1).text({});
        out.zeros(6); // prologues and epilogues
        out.u8(15).zeros((creatureCount + 7) / 8).zeros((artifactCount + 7) / 8).u8(0);
        if (scenario.map)
            maps += map;
    }
    return packing::gzip(out.bytes()) + maps;
}

} // namespace

Game::Game(const QByteArray &globalSettings, const QByteArray &title)
{
    QDir(path()).mkdir("Data");
    QDir(path()).mkdir("Maps");
    QDir(path()).mkdir("Ravn_Data");
    Files files;
    addTexts(files, title);
    addKeeps(files);
    addMovies(files);
    addMasks(files, "r0", {40, 30}, 0);
    addMasks(files, "r1", {40, 30}, 10);
    addMasks(files, "r2", {20, 20}, 5);
    for (const char *name : {"backhome.pcx", "backtwo.pcx", "plainone.pcx", "plaintwo.pcx"})
        files[name] = backgroundPicture(mapSize, backgroundColour(name));
    files["backlarge.pcx"] = backgroundPicture(mapSize + QSize(4, 10), Qt::darkRed);
    files["wide.pcx"] = widePicture({15, 10}, {9, 8, 7});
    files["cmpdash.pcx"] =
        palettePicture(mapSize, greyPalette(), [](int, int) { return patternValue; });
    write("Data/E3bitmap.lod", archiveOf(files));
    write("Data/Ravn_lng.lod",
          game_files::archive({{"priskill.TXT", "Attack\r\nSense\r\n", game_files::Packed}}));
    write("ravn.dat", tableFile());
    write("Ravn_settings.ini", "[Global Settings]\r\n" + globalSettings);
}

QString Game::write(const QString &name, const QByteArray &bytes) const
{
    QString target = filePath(name);
    QFile file(target);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("Cannot write %s", qPrintable(target));
    return target;
}

QByteArray Game::read(const QString &name) const
{
    return contents(filePath(name));
}

void Game::load() const
{
    setGameRoot(path());
    ini = loadRavnIni();
    loadRavnDat(ini);
    preloadArchive = new PreloadArchive;
    EditorData::codec = QTextCodec::codecForName("Windows-1252");
    EditorData::OpenLods(0, EditorData::codec);
}

QString Game::addCampaign(const QString &name, const QByteArray &bytes) const
{
    return write("Maps/" + name, bytes);
}

QByteArray campaign(unsigned mapId, const QVector<Scenario> &scenarios)
{
    return campaignBytes(mapId, true, 0, scenarios);
}

QByteArray campaignWithoutMap(int background, const QVector<Scenario> &scenarios)
{
    return campaignBytes(24, false, background, scenarios);
}

QColor backgroundColour(const QString &name)
{
    static const QMap<QString, QColor> colours{{"backhome.pcx", {10, 60, 30}},
                                               {"backtwo.pcx", {60, 30, 10}},
                                               {"plainone.pcx", {5, 5, 90}},
                                               {"plaintwo.pcx", {90, 5, 90}}};
    return colours.value(name);
}

QColor movieColour(int video)
{
    return {200 - 50 * video, 30 + 70 * video, 10 + 20 * video};
}

QColor readyMadeColour(int region, int state, int colour)
{
    return {60 * state + 20, 25 * colour + 5, 100 * region + 33};
}

QColor computedColour(int state)
{
    // The tint 193, 139, 84 under a glow of 128 and without a border.
    static const std::array<QColor, 3> looks{QColor(143, 103, 62, 175), QColor(224, 197, 169, 175),
                                             QColor(193, 139, 84, patternValue)};
    return looks[std::size_t(state)];
}

} // namespace tiny
