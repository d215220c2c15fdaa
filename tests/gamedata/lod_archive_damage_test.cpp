// Archives that are damaged: none at all, cut anywhere, with entries that can't be right.
#include "gamedata/limits.h"
#include "tests/gamedata/lod_folder.h"

class LodArchiveDamageTest : public QObject, private LodFolder
{
    Q_OBJECT

private slots:
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
};

QTEST_GUILESS_MAIN(LodArchiveDamageTest)
#include "lod_archive_damage_test.moc"
