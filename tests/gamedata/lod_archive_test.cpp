// Archives: their index, their files, and archives that are cut or lie.
#include "gamedata/limits.h"
#include "gamedata/lod_archive.h"
#include "tests/gamedata/game_files.h"

#include <QTest>

#include <memory>

using game_files::archiveHeader;
using game_files::indexEntry;
using game_files::Packed;
using game_files::packed;
using game_files::Raw;

namespace {

constexpr int firstBody = 92 + 32; // of an archive with one entry

struct FileData
{
    bool found = false;
    QByteArray bytes;
    bool terminated = false;
};

FileData take(char *buffer, int size)
{
    const std::unique_ptr<char[]> owner(buffer);
    if (!buffer)
        return {};
    return {true, QByteArray(buffer, size), buffer[size] == '\0'};
}

} // namespace

class LodArchiveTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    QString m_path;

    LodArchive read(const QByteArray &bytes)
    {
        QFile file(m_path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("can't write the archive");
        file.close();
        return readPath();
    }

    LodArchive readPath()
    {
        QFile file(m_path);
        LodArchive archive;
        if (!file.open(QIODevice::ReadOnly))
            qFatal("can't read the archive");
        archive.Read(file, m_path);
        return archive;
    }

    static FileData fileData(const LodArchive &archive, const QString &name)
    {
        int size = -1;
        char *data = archive.getFileData(name, &size);
        return take(data, size);
    }

    // An archive whose only entry, "a.txt", has this place and these sizes.
    LodArchive oneEntry(quint32 offset, qint32 size, qint32 compressedSize, const QByteArray &body)
    {
        return read(archiveHeader(1) + indexEntry("a.txt", offset, size, compressedSize) + body);
    }

private slots:
    void init() { m_path = m_folder.path() + QStringLiteral("/Some.lod"); }

    void headerAndIndexAreRead()
    {
        const LodArchive archive = read(
            game_files::archive({{"One.txt", "first text", Raw}, {"TWO.PCX", "picture", Packed}}));
        QCOMPARE(archive.path, m_path);
        QCOMPARE(QByteArray(archive.magic, 4), QByteArray("LOD\0", 4));
        QCOMPARE(archive.version, 200U);
        QCOMPARE(archive.fileCount, 2);
        QCOMPARE(QByteArray(archive.reserved, 80), QByteArray(80, 'r'));
        QCOMPARE(archive.files.keys(), QStringList({"one.txt", "two.pcx"}));

        const LodFile one = archive.files[QStringLiteral("one.txt")];
        QCOMPARE(QByteArray(one.name), QByteArray("One.txt"));
        QCOMPARE(one.offset, 156U);
        QCOMPARE(one.size, 10);
        QCOMPARE(one.type, 7U);
        QCOMPARE(one.compressedSize, 0);
        const LodFile two = archive.files[QStringLiteral("two.pcx")];
        QCOMPARE(two.offset, 166U);
        QCOMPARE(two.size, 7);
        QCOMPARE(two.compressedSize, packed("picture").size());
    }

    void onlyPicturesAndTextsAreKept_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<bool>("kept");
        QTest::newRow("txt") << QByteArray("a.txt") << true;
        QTest::newRow("TXT") << QByteArray("A.TXT") << true;
        QTest::newRow("pcx") << QByteArray("a.pcx") << true;
        QTest::newRow("mixed case") << QByteArray("A.PcX") << true;
        QTest::newRow("no dot needed") << QByteArray("mypcx") << true;
        QTest::newRow("the ending alone") << QByteArray("txt") << true;
        QTest::newRow("def") << QByteArray("x.def") << false;
        QTest::newRow("msk") << QByteArray("x.msk") << false;
        QTest::newRow("fnt") << QByteArray("x.fnt") << false;
        QTest::newRow("ending inside") << QByteArray("a.txt.bak") << false;
        QTest::newRow("two letters") << QByteArray("xt") << false;
        QTest::newRow("empty") << QByteArray() << false;
        QTest::newRow("ending behind the zero") << QByteArray("a\0txt", 5) << false;
    }
    void onlyPicturesAndTextsAreKept()
    {
        QFETCH(QByteArray, name);
        QFETCH(bool, kept);
        const LodArchive archive = read(game_files::archive({{name, "body", Raw}}));
        QCOMPARE(archive.files.size(), kept ? 1 : 0);
        const QString key = QString::fromLatin1(name.constData());
        QCOMPARE(archive.hasFile(key), kept);
        QCOMPARE(fileData(archive, key).found, kept);
    }

    void laterEntryOfAnEqualNameReplacesTheEarlierOne()
    {
        const LodArchive archive = read(game_files::archive(
            {{"b.txt", "1", Raw}, {"A.txt", "2", Raw}, {"a.TXT", "3", Raw}, {"B.txt", "4", Raw}}));
        QCOMPARE(archive.files.size(), 2);
        QCOMPARE(fileData(archive, QStringLiteral("a.txt")).bytes, QByteArray("3"));
        QCOMPARE(fileData(archive, QStringLiteral("b.txt")).bytes, QByteArray("4"));
        QCOMPARE(QByteArray(archive.files[QStringLiteral("a.txt")].name), QByteArray("a.TXT"));
    }

    void lastOfManyEqualNamesStays()
    {
        std::vector<game_files::ArchiveEntry> entries(300);
        for (int i = 0; i < 300; ++i)
            entries[size_t(i)] = {i % 3 ? "Same.txt" : "other.pcx", QByteArray::number(i), Raw};
        const LodArchive archive = read(game_files::archive(entries));
        QCOMPARE(archive.files.size(), 2);
        QCOMPARE(fileData(archive, QStringLiteral("same.txt")).bytes, QByteArray("299"));
        QCOMPARE(fileData(archive, QStringLiteral("other.pcx")).bytes, QByteArray("297"));
    }

    void manyEntriesAreAllFound()
    {
        // More than one piece of the index.
        constexpr int count = 20000;
        QByteArray index;
        for (int i = 0; i < count; ++i) {
            const int number = (i * 7919) % count;
            index += indexEntry("F" + QByteArray::number(number) + ".txt",
                                quint32(92 + 32 * count + number % 10), 1, 0);
        }
        const LodArchive archive = read(archiveHeader(count) + index + "0123456789");
        QCOMPARE(archive.files.size(), count);
        for (const int number : {0, 1, 9, 16383, 16384, 19999})
            QCOMPARE(fileData(archive, QStringLiteral("f%1.TXT").arg(number)).bytes,
                     QByteArray::number(number % 10));
    }

    void anotherMagicLeavesTheArchiveEmpty_data()
    {
        QTest::addColumn<QByteArray>("magic");
        QTest::newRow("lower case") << QByteArray("lod\0", 4);
        QTest::newRow("no zero") << QByteArray("LODX");
        QTest::newRow("shorter text") << QByteArray("LO\0D", 4);
        QTest::newRow("zeros") << QByteArray(4, '\0');
    }
    void anotherMagicLeavesTheArchiveEmpty()
    {
        QFETCH(QByteArray, magic);
        QByteArray bytes = game_files::archive({{"a.txt", "body", Raw}});
        bytes.replace(0, 4, magic);
        const LodArchive archive = read(bytes);
        QCOMPARE(archive.path, m_path);
        QVERIFY(archive.files.isEmpty());
        QCOMPARE(archive.version, 0U);
        QCOMPARE(archive.fileCount, 0);
        QVERIFY(!archive.hasFile(QStringLiteral("a.txt")));
        QVERIFY(!fileData(archive, QStringLiteral("a.txt")).found);
    }

    void countsThatLieReadWhatIsThere_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("read");
        QTest::newRow("zero") << 0 << 0;
        QTest::newRow("negative") << -1 << 0;
        QTest::newRow("lowest") << int(INT_MIN) << 0;
        QTest::newRow("fewer") << 1 << 1;
        QTest::newRow("exact") << 2 << 2;
        QTest::newRow("more") << 3 << 2;
        QTest::newRow("absurd") << int(INT_MAX) << 2;
    }
    void countsThatLieReadWhatIsThere()
    {
        QFETCH(int, count);
        const LodArchive archive = read(archiveHeader(count) + indexEntry("a.txt", 92, 4, 0) +
                                        indexEntry("b.txt", 92, 4, 0));
        QTEST(archive.files.size(), "read");
        QCOMPARE(archive.fileCount, count);
    }

    void archiveCutAtAnyLengthGivesWhatIsThere()
    {
        const QByteArray text("some text that packs, packs, packs, packs, packs and packs");
        const QByteArray whole =
            game_files::archive({{"raw.txt", text, Raw}, {"packed.txt", text, Packed}});
        const int rawEnd = 92 + 64 + text.size();
        const int packedEnd = whole.size();
        for (int length = 0; length <= whole.size(); ++length) {
            const LodArchive archive = read(whole.left(length));
            QCOMPARE(archive.files.size(), length < 124 ? 0 : length < 156 ? 1 : 2);
            const FileData raw = fileData(archive, QStringLiteral("raw.txt"));
            QCOMPARE(raw.found, length >= rawEnd);
            QCOMPARE(raw.bytes, raw.found ? text : QByteArray());
            const FileData unpacked = fileData(archive, QStringLiteral("packed.txt"));
            QCOMPARE(unpacked.found, length >= packedEnd);
            QCOMPARE(unpacked.bytes, unpacked.found ? text : QByteArray());
        }
    }

    void nameThatFillsItsSixteenBytesIsSafe()
    {
        ByteWriter index;
        index.raw("SIXTEENBYTES.TXT").u32(firstBody).i32(4).u32(0).i32(0);
        const LodArchive archive = read(archiveHeader(1) + index.bytes() + "body");
        QCOMPARE(archive.files.keys(), QStringList("sixteenbytes.txt"));
        QCOMPARE(fileData(archive, QStringLiteral("SixteenBytes.txt")).bytes, QByteArray("body"));
        QVERIFY(!archive.hasFile(QStringLiteral("sixteenbytes.txt|")));
    }

    void filesAreFoundInAnyCaseAndEndInAZero()
    {
        const QByteArray text("line one\r\nline two");
        const LodArchive archive =
            read(game_files::archive({{"Raw.Txt", text, Raw}, {"Packed.Txt", text, Packed}}));
        for (const char *name : {"raw.txt", "RAW.TXT", "Raw.Txt", "packed.txt", "PACKED.TXT"}) {
            QVERIFY(archive.hasFile(QString::fromLatin1(name)));
            const FileData data = fileData(archive, QString::fromLatin1(name));
            QVERIFY(data.found);
            QVERIFY(data.terminated);
            QCOMPARE(data.bytes, text);
        }
        for (const char *name : {"raw.tx", "raw.txt ", "folder/raw.txt", ""}) {
            QVERIFY(!archive.hasFile(QString::fromLatin1(name)));
            QVERIFY(!fileData(archive, QString::fromLatin1(name)).found);
        }
    }

    void sizeIsOptionalAndStaysWithoutAFile()
    {
        const LodArchive archive = read(game_files::archive({{"a.txt", "body", Raw}}));
        const FileData data = take(archive.getFileData(QStringLiteral("a.txt")), 4);
        QCOMPARE(data.bytes, QByteArray("body"));
        int size = 77;
        QVERIFY(!archive.getFileData(QStringLiteral("b.txt"), &size));
        QCOMPARE(size, 77);
    }

    void storedNameThatDiffersFromItsKeyAnswersNothing()
    {
        LodArchive archive = read(game_files::archive({{"a.txt", "body", Raw}}));
        archive.files[QStringLiteral("other.txt")] = archive.files[QStringLiteral("a.txt")];
        QVERIFY(archive.hasFile(QStringLiteral("other.txt")));
        QVERIFY(!fileData(archive, QStringLiteral("other.txt")).found);
        QVERIFY(fileData(archive, QStringLiteral("a.txt")).found);
    }

    void archiveThatIsGoneAnswersNothing()
    {
        const LodArchive archive = read(game_files::archive({{"a.txt", "body", Raw}}));
        QVERIFY(QFile::remove(m_path));
        QVERIFY(archive.hasFile(QStringLiteral("a.txt")));
        QVERIFY(!fileData(archive, QStringLiteral("a.txt")).found);
    }

    void placesAndSizesAreCheckedAgainstTheFile_data()
    {
        QTest::addColumn<quint32>("offset");
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("compressedSize");
        QTest::addColumn<bool>("found");
        // The archive is 134 bytes long, ten of them a body.
        QTest::newRow("raw, all of the body") << 124U << 10 << 0 << true;
        QTest::newRow("raw, one more") << 124U << 11 << 0 << false;
        QTest::newRow("raw, one later") << 125U << 10 << 0 << false;
        QTest::newRow("raw, nothing at the end") << 134U << 0 << 0 << true;
        QTest::newRow("raw, nothing behind the end") << 135U << 0 << 0 << false;
        QTest::newRow("raw, the index itself") << 0U << 134 << 0 << true;
        QTest::newRow("raw, farthest place") << 0xFFFFFFFFU << 10 << 0 << false;
        QTest::newRow("raw, place that is negative as a signed number")
            << 0x80000000U << 10 << 0 << false;
        QTest::newRow("raw, negative size") << 124U << -1 << 0 << false;
        QTest::newRow("raw, lowest size") << 124U << int(INT_MIN) << 0 << false;
        QTest::newRow("raw, largest size") << 124U << int(INT_MAX) << 0 << false;
        QTest::newRow("packed, all of the body") << 124U << 20 << 10 << true;
        QTest::newRow("packed, one more") << 124U << 20 << 11 << false;
        QTest::newRow("packed, farthest place") << 0xFFFFFFFFU << 20 << 10 << false;
        QTest::newRow("packed, negative size") << 124U << -1 << 10 << false;
        QTest::newRow("packed, negative packed size") << 124U << 20 << -1 << false;
        QTest::newRow("packed, negative packed size, room for it raw") << 124U << 10 << -1 << false;
        QTest::newRow("packed, lowest packed size") << 124U << 20 << int(INT_MIN) << false;
        QTest::newRow("packed, largest packed size") << 124U << 20 << int(INT_MAX) << false;
        QTest::newRow("packed, no size") << 124U << 0 << 10 << true;
        QTest::newRow("packed, 1032 to 1") << 124U << 10320 << 10 << true;
        QTest::newRow("packed, above 1032 to 1") << 124U << 10321 << 10 << false;
        QTest::newRow("packed, largest size") << 124U << int(INT_MAX) << 10 << false;
    }
    void placesAndSizesAreCheckedAgainstTheFile()
    {
        QFETCH(quint32, offset);
        QFETCH(int, size);
        QFETCH(int, compressedSize);
        const LodArchive archive = oneEntry(offset, size, compressedSize, "0123456789");
        const FileData data = fileData(archive, QStringLiteral("a.txt"));
        QTEST(data.found, "found");
        QCOMPARE(data.terminated, data.found);
        QCOMPARE(data.bytes.size(), data.found ? size : 0);
    }

    void largestEntryIsStillRead()
    {
        // A file with a hole, so that no disk is filled.
        constexpr int largest = 64 * 1024 * 1024;
        QCOMPARE(limits::archiveEntryBytes, qint64(largest));
        for (const int more : {0, 1}) {
            oneEntry(firstBody, largest + more, 0, "x");
            QVERIFY(QFile::resize(m_path, qint64(largest) + 1000));
            const FileData raw = fileData(readPath(), QStringLiteral("a.txt"));
            QCOMPARE(raw.found, more == 0);

            const QByteArray body = packed(QByteArray(largest + more, '\0'));
            const LodArchive archive = oneEntry(firstBody, largest + more, body.size(), body);
            QCOMPARE(fileData(archive, QStringLiteral("a.txt")).found, more == 0);
        }
    }

    void corruptStreamGivesWhatCouldBeUnpackedAndZeros_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("size");
        QTest::addColumn<QByteArray>("expected");
        // A zlib stream of one stored block: two bytes of header, five of the block's, the text
        // and four bytes of check sum.
        const QByteArray stored = QByteArray::fromHex("7801"
                                                      "010500faff") +
                                  "Hello" + QByteArray::fromHex("058c01f5");
        const QByteArray zeros(5, '\0');
        QByteArray wrongSum = stored;
        wrongSum[15] = char(wrongSum[15] + 1);
        QByteArray wrongLength = stored;
        wrongLength[5] = '\0';
        QTest::newRow("sound") << stored << 5 << QByteArray("Hello");
        QTest::newRow("larger than said") << stored << 3 << QByteArray("Hel");
        QTest::newRow("smaller than said") << stored << 8 << "Hello" + QByteArray(3, '\0');
        QTest::newRow("garbage behind it")
            << stored + "garbage" << 8 << "Hello" + QByteArray(3, '\0');
        QTest::newRow("wrong check sum") << wrongSum << 5 << QByteArray("Hello");
        QTest::newRow("wrong block length") << wrongLength << 5 << zeros;
        QTest::newRow("no zlib header") << QByteArray("garbage that no one packed") << 5 << zeros;
        QTest::newRow("wants a dictionary") << QByteArray::fromHex("78bb00000001") << 5 << zeros;
        for (int length = 1; length < stored.size(); ++length) {
            const int text = qBound(0, length - 7, 5);
            QTest::addRow("cut to %d", length)
                << stored.left(length) << 5
                << QByteArray("Hello").left(text) + QByteArray(5 - text, '\0');
        }
    }
    void corruptStreamGivesWhatCouldBeUnpackedAndZeros()
    {
        QFETCH(QByteArray, body);
        QFETCH(int, size);
        const LodArchive archive = oneEntry(firstBody, size, body.size(), body);
        const FileData data = fileData(archive, QStringLiteral("a.txt"));
        QVERIFY(data.found);
        QVERIFY(data.terminated);
        QTEST(data.bytes, "expected");
    }

    void largePackedFileComesOutWhole()
    {
        QByteArray text;
        quint32 state = 1;
        while (text.size() < 1200000) {
            state = state * 1664525U + 1013904223U;
            text += char(state >> 24);
        }
        const LodArchive archive = read(game_files::archive({{"big.txt", text, Packed}}));
        QVERIFY(packed(text).size() > 1000000);
        QVERIFY(fileData(archive, QStringLiteral("big.txt")).bytes == text);
    }

    void unpackingStartsAtTheFilesPosition()
    {
        const QByteArray body = packed("Hello");
        read("skipped" + body);
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.seek(7));
        const FileData data = take(zlib_decompress(file, body.size(), 5), 5);
        QVERIFY(data.terminated);
        QCOMPARE(data.bytes, QByteArray("Hello"));

        QVERIFY(file.seek(7));
        QVERIFY(!take(zlib_decompress(file, -1, 5), 5).found);
        QVERIFY(!take(zlib_decompress(file, body.size(), -1), 0).found);
        QVERIFY(!take(zlib_decompress(file, 0, 1), 1).found);
        QVERIFY(!take(zlib_decompress(file, body.size() + 1, 5), 5).found);
        QVERIFY(take(zlib_decompress(file, 0, 0), 0).found);
    }

    void archivesRankByTheirBaseName_data()
    {
        QTest::addColumn<QString>("higher");
        QTest::addColumn<QString>("lower");
        QTest::addColumn<bool>("differ");
        const auto row = [](const char *higher, const char *lower, bool differ) {
            QTest::addRow("%s, %s", higher, lower)
                << QString::fromLatin1(higher) << QString::fromLatin1(lower) << differ;
        };
        row("E3sprite.lod", "E3bitmap.lod", true);
        row("Ravn.lod", "E3sprite.lod", true);
        row("Ravn_ext.lod", "Ravn.lod", true);
        row("Ravn_lng.lod", "Ravn_ext.lod", true);
        row("Ravn_l_ext.lod", "Ravn_lng.lod", true);
        row("E3bitmap.lod", "Foo.lod", false);
        row("E3sprite.lod", "Foo.lod", true);
        row("E3bitmap.lod", "ravn.lod", false);
        row("E3bitmap.lod", "RAVN_EXT.lod", false);
        row("Ravn_ext.lod", "Ravn_ext.old.lod", false);
        row("Ravn.lod", "Ravn.lod", false);
    }
    void archivesRankByTheirBaseName()
    {
        QFETCH(QString, higher);
        QFETCH(QString, lower);
        LodArchive a;
        LodArchive b;
        a.path = QStringLiteral("/game.d/Data/") + higher;
        b.path = QStringLiteral("/game.d/Data/") + lower;
        QTEST(CompLods()(a, b), "differ");
        QVERIFY(!CompLods()(b, a));
    }
};

QTEST_GUILESS_MAIN(LodArchiveTest)
#include "lod_archive_test.moc"
