// Archives that are well-formed: their index, their files and their ranks.
#include "tests/gamedata/lod_folder.h"

class LodArchiveTest : public QObject, private LodFolder
{
    Q_OBJECT

private slots:
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
