// Loading the table file at the start, and the end of the process without it.
#include "gamedata/game_files.h"

#include "gamedata/game_dir.h"
#include "gamedata/limits.h"
#include "gamedata/runtime/dat_file.h"
#include "tests/gamedata/marking_translator.h"
#include "tests/support/byte_writer.h"
#include "tests/support/report_recorder.h"

#include <QTemporaryDir>
#include <QtTest>

class GameFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void endsWithoutTheTableFile_data();
    void endsWithoutTheTableFile();
    void saysSoInTheWindowsLanguage();
    void loadsTheTableFile();
    void looksAtNoMoreThanTheLimit();

private:
    void store(const QByteArray &bytes, qint64 size) const
    {
        QFile file(m_dir->filePath(QStringLiteral("ravn.dat")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
        QVERIFY(file.resize(size));
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void GameFilesTest::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    setGameRoot(m_dir->path());
}

void GameFilesTest::cleanup()
{
    delete std::exchange(RADF, nullptr);
}

void GameFilesTest::endsWithoutTheTableFile_data()
{
    QTest::addColumn<bool>("folder");
    QTest::newRow("missing") << false;
    QTest::newRow("a folder") << true;
}

void GameFilesTest::endsWithoutTheTableFile()
{
    QFETCH(bool, folder);
    if (folder)
        QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("ravn.dat")));
    const ReportRecorder recorder;
    QCOMPARE(exitCodeOf([] { loadRavnDat(nullptr); }), 1);
    QCOMPARE(recorder.errors.size(), 1);
    QCOMPARE(recorder.errors[0].title, QStringLiteral("Error"));
    QCOMPARE(recorder.errors[0].text,
             QStringLiteral("Campaign Editor cannot be launched because Ravn.dat was not found. "
                            "\nRavn.dat must be in Eldmark root folder."));
    QVERIFY(!RADF);
}

void GameFilesTest::saysSoInTheWindowsLanguage()
{
    const MarkingTranslator translator;
    const ReportRecorder recorder;
    QCOMPARE(exitCodeOf([] { loadRavnDat(nullptr); }), 1);
    QCOMPARE(recorder.errors.size(), 1);
    QCOMPARE(recorder.errors[0].title, QStringLiteral("MainWindow: Error"));
    QCOMPARE(recorder.errors[0].text,
             QStringLiteral("MainWindow: Campaign Editor cannot be launched because Ravn.dat was "
                            "not found. \nRavn.dat must be in Eldmark root folder."));
}

void GameFilesTest::loadsTheTableFile()
{
    const QByteArray bytes = ByteWriter()
                                 .raw("RDAT")
                                 .u32(1)
                                 .u32(1)
                                 .text("music3")
                                 .text({})
                                 .u32(1)
                                 .text("a track")
                                 .u8(0)
                                 .u32(0)
                                 .bytes();
    store(bytes, bytes.size());
    loadRavnDat(nullptr);
    QVERIFY(RADF);
    QCOMPARE(RADF->entries.length, 1);
    QCOMPARE(RADF->entries[0].id, 3);
    QCOMPARE(RADF->GetStrVal(0, 0, ""), "a track");
}

void GameFilesTest::looksAtNoMoreThanTheLimit()
{
    QCOMPARE(limits::tableFileBytes, qint64(67108864));
    // One entry up to the limit: its text fills the file but for the two counts and the flag.
    constexpr qint32 textSize = 67108864 - 12 - 4 - 4 - 9;
    const QByteArray head = ByteWriter().raw("RDAT").u32(1).u32(2).u32(0).i32(textSize).bytes();
    for (const int past : {0, 17}) {
        store(head, 67108864 + past);
        loadRavnDat(nullptr);
        QCOMPARE(RADF->entries.length, 1); // an entry behind the limit is not seen
        QCOMPARE(RADF->entries[0].text.length, textSize);
        delete std::exchange(RADF, nullptr);
    }
}

QTEST_GUILESS_MAIN(GameFilesTest)
#include "game_files_test.moc"
