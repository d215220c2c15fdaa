#include "tests/cli/tiny_game.h"

#include "fuzz/corpus.h"
#include "tests/support/byte_writer.h"
#include "tests/support/packing.h"

#include <QDir>
#include <QFile>
#include <QVector>

#include <cstdio>
#include <cstdlib>

namespace {

struct ArchiveFile
{
    QByteArray name;
    QByteArray bytes;
    bool packed = false;
};

QByteArray archive(const QVector<ArchiveFile> &files)
{
    constexpr int headerSize = 92;
    constexpr int entrySize = 32;
    ByteWriter index;
    index.raw(QByteArray("LOD\0", 4)).u32(200).u32(quint32(files.size())).zeros(80);
    QByteArray data;
    for (const ArchiveFile &file : files) {
        const QByteArray stored = file.packed ? packing::zlibStream(file.bytes) : file.bytes;
        index.name16(file.name).u32(quint32(headerSize + entrySize * files.size() + data.size()));
        index.u32(quint32(file.bytes.size())).u32(2);
        index.u32(file.packed ? quint32(stored.size()) : 0);
        data += stored;
    }
    return index.bytes() + data;
}

// A row of twelve columns, the first of which is the name.
QByteArray row(const QByteArray &name)
{
    return name + QByteArray("\tx").repeated(11) + "\r\n";
}

QByteArray palettePicture(int width, int height, const QByteArray &indexes,
                          const QByteArray &palette)
{
    ByteWriter record;
    record.u32(quint32(width * height)).u32(quint32(width)).u32(quint32(height)).raw(indexes);
    return record.raw(palette.leftJustified(768, '\0')).bytes();
}

QByteArray rgb(int red, int green, int blue)
{
    return QByteArray(1, char(red)) + char(green) + char(blue);
}

// Four pixels wide and high, its upper left pixel transparent.
QByteArray patch(int red, int green, int blue)
{
    QByteArray indexes(16, '\1');
    indexes[0] = '\0';
    return palettePicture(4, 4, indexes, rgb(0, 255, 255) + rgb(red, green, blue));
}

QByteArray colourPicture(int width, int height, const QByteArray &bgr)
{
    ByteWriter record;
    record.u32(quint32(3 * width * height)).u32(quint32(width)).u32(quint32(height));
    return record.raw(bgr.repeated(width * height)).bytes();
}

QByteArray widePicture(int width, int height, const QByteArray &bgrx)
{
    ByteWriter record;
    record.raw("P32F").zeros(20).u32(quint32(width)).u32(quint32(height));
    return record.raw(bgrx.repeated(width * height)).bytes();
}

QVector<ArchiveFile> textTables()
{
    const QByteArray head("head\r\nhead\r\n");
    return {
        {"CRTRAITS.TXT", head + row("Imp") + row("Wisp") + row("Ogre"), true},
        {"artraits.txt", head + row("Ring") + row("Crown") + "tail\r\ntail"},
        {"HOTRAITS.TXT", head + "Orsa\tx\r\nBrand\tx\r\n"},
        {"SSTRAITS.txt", head + "Climbing\tx\r\n"},
        {"SPTRAITS.txt", head + head + "Gust\tx\r\nCombat Spells\tx\r\nSpark\tx\r\n"},
        {"RESTYPES.txt", "Wood\r\nStone\r\n"},
        {"PriSkill.txt", "Hidden\r\n"},
        {"JKTEXT.txt", "One\r\nTwo\r\n"},
        {"BldgNeut.TXT", "Well\tx\r\ntail"},
        {"BldgSpec.txt", "Spring\r\n"},
        {"Dwelling.txt", "Nest\r\n"},
        {"CmpEditr.txt", head + "Tiny Editor\tx\r\n"},
        {"CmpEdCmd.txt", head + "Ready\tx\r\n"},
        {"CmpMovie.txt", "Dawn\r\n"},
        {"CmpMusic.txt", "March\r\n"},
        {"PlColors.txt", "Red\r\nBlue\r\n"},
    };
}

QVector<ArchiveFile> pictures()
{
    QVector<ArchiveFile> files;
    for (int state = 0; state < 3; ++state) {
        for (int colour = 0; colour < 8; ++colour)
            files.append(
                {"s" + QByteArray::number(state) + "c" + QByteArray::number(colour) + ".pcx",
                 patch(100 * state, 10 * colour, 7), true});
    }
    files.append({"back.pcx", colourPicture(460, 610, rgb(3, 2, 1)), true});
    files.append({"wide.pcx", widePicture(456, 600, rgb(7, 8, 9) + '\0'), true});
    files.append({"colour.pcx", colourPicture(5, 3, rgb(30, 20, 10))});
    files.append({"fill.pcx", patch(255, 255, 255)});
    files.append({"border.pcx", palettePicture(4, 4, QByteArray(16, '\0'), rgb(0, 255, 255))});
    files.append({"glow.pcx", patch(128, 128, 128)});
    files.append({"cmpdash.pcx",
                  palettePicture(456, 600, QByteArray(456 * 600, '\0'), rgb(60, 60, 60)), true});
    return files;
}

// Entries of the table file, their text in the place that their reader looks at.
class TableFile
{
public:
    void add(const QByteArray &name, const QByteArray &value, int place)
    {
        m_entries.text(name).text({}).u32(quint32(place + 1));
        for (int i = 0; i < place; ++i)
            m_entries.text({});
        m_entries.text(value).u8(0).u32(0);
        ++m_count;
    }
    void addMap(const QByteArray &name, const QByteArray &title, const QByteArray &background,
                const QByteArray &layout)
    {
        m_entries.text(name).text({}).u32(9).text(title).text(background);
        for (int i = 2; i < 8; ++i)
            m_entries.text({});
        m_entries.text(layout).u8(0).u32(0);
        ++m_count;
    }
    QByteArray bytes() const
    {
        return ByteWriter().raw("RDAT").u32(1).u32(m_count).raw(m_entries.bytes()).bytes();
    }

private:
    ByteWriter m_entries;
    quint32 m_count = 0;
};

QByteArray readyMadeLayout()
{
    QByteArray layout("# three regions\r\n0\r\n3\r\n10 20\r\n30 40\r\n50 60\r\n");
    for (const char *name : {"North", "Middle", "South"}) {
        layout += QByteArray(name) + "\r\n";
        for (int state = 0; state < 3; ++state) {
            QByteArray line;
            for (int colour = 0; colour < 8; ++colour)
                line +=
                    " s" + QByteArray::number(state) + "c" + QByteArray::number(colour) + ".pcx";
            layout += line.mid(1) + "\r\n";
        }
    }
    return layout;
}

QByteArray tableFile()
{
    TableFile table;
    for (int number = 150; number < 186; ++number)
        table.add("monst" + QByteArray::number(number), "Beast", 3);
    table.add("art159", "Caf\xe9", 1); // in Windows-1252
    table.addMap("campmap0", "Three Lands", "back.pcx", readyMadeLayout());
    table.addMap("campmap5", "Fog", "back.pcx",
                 "1\r\n1\r\n100 200\r\nIsle\r\nglow.pcx\r\nborder.pcx\r\nfill.pcx\r\n");
    table.addMap("campmap7", "Holes", "back.pcx",
                 "1\r\n1\r\n0 0\r\nIsle\r\nglow.pcx\r\nborder.pcx\r\nnone.pcx\r\n");
    table.addMap("campmap8", "Gone", "none.pcx", "0\r\n1\r\n0 0\r\nIsle\r\nnone.pcx\r\nx\r\ny\r\n");
    table.addMap("campmap24", "Plain", "back.pcx", "0\r\n0\r\n");
    table.add("cmpbackground1", "wide.pcx\r\nnone.pcx\r\n", 8);
    return table.bytes();
}

} // namespace

TinyGame::TinyGame()
{
    write(QStringLiteral("Ravn_settings.ini"), "[Global Settings]\r\nLanguage=0\r\n");
    write(QStringLiteral("ravn.dat"), tableFile());
    write(QStringLiteral("Data/E3bitmap.lod"), archive(textTables() + pictures()));
    write(QStringLiteral("Data/Ravn_lng.lod"),
          archive({{"priskill.TXT", "Attack\r\nSense\r\n", true}}));
}

QString TinyGame::path(const QString &name) const
{
    return m_dir.filePath(name);
}

QString TinyGame::write(const QString &name, const QByteArray &bytes) const
{
    QString target = path(name);
    QFile file(target);
    const bool written = QDir().mkpath(QFileInfo(target).path()) &&
                         file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    if (!written) {
        std::fprintf(stderr, "Cannot write %s\n", qPrintable(target));
        std::abort();
    }
    return target;
}

QByteArray TinyGame::read(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

ChildResult TinyGame::run(const QStringList &words, const QProcessEnvironment &environment) const
{
    return runChild(builtProgram(QStringLiteral("cmped-cli")),
                    QStringList{QStringLiteral("--game"), m_dir.path()} + words, environment);
}

QByteArray seedCampaign(const QByteArray &name)
{
    for (const corpus::File &file : corpus::campaigns()) {
        if (name == file.name)
            return file.bytes;
    }
    std::fprintf(stderr, "There is no seed %s\n", name.constData());
    std::abort();
}
