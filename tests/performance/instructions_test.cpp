// How many instructions opening a campaign, refreshing its maps, keeping its recovery copy,
// composing pictures and starting take, held within a tenth of what they took when this table was
// written. More of them is time lost unseen; fewer is good news, and the table wants the new
// figure.
//
// The counts are those of a fixed kind of processor and of libraries that choose their code for the
// oldest one: what the machine is or has installed has little part in them.
#include "tests/performance/archive_of_many.h"
#include "tests/performance/campaign_of_maps.h"
#include "tests/support/child_process.h"

#include "gamedata/game_dir.h"
#include "gamedata/game_loading.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <iterator>

namespace {

constexpr qint64 unknown = 0;

struct CountedRow
{
    const char *name;
    const char *program;
    const char *work;
    qint64 instructions;
    qint64 inWideVectors = unknown; // where the processor has them, if that makes a difference
};

constexpr CountedRow countedRows[] = {
    {"opening a campaign of eight maps", "counted_work", "open", 1581000},
    {"refreshing its maps", "counted_work", "refresh", 3527000},
    {"renewing its recovery copy", "counted_copy", "keep", 526500},
    {"reading the game's tables, 12,000 entries in its archives", "counted_work", "load", 18130000},
    {"composing a region in three looks", "counted_work", "compose", 1337000, 655000},
    {"the same in vectors that every processor has", "counted_work_narrow", "compose", 1337000},
    {"starting, from the first stage to the first paint", "counted_start", "", 118000000},
};

void copyFolder(const QString &from, const QString &to)
{
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString source = files.next();
        const QString target = to + source.mid(from.size());
        QVERIFY(QDir().mkpath(QFileInfo(target).path()));
        QVERIFY(QFile::copy(source, target));
    }
}

} // namespace

class InstructionsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void staysWithinATenth_data();
    void staysWithinATenth();

private:
    QProcessEnvironment fixedEnvironment() const;
    qint64 countOf(const QString &program, const QStringList &arguments, bool &wide);

    QTemporaryDir m_folder;
    const QString m_game = m_folder.filePath("game");
    const QString m_campaign = m_folder.filePath("campaign.e3c");
};

void InstructionsTest::initTestCase()
{
    copyFolder(sampleGame(), m_game);
    constexpr int entries = 12000;
    QVERIFY(writeArchiveOfMany(m_game + "/Data/Many.lod", entries, qint64(entries) * 900));
    setGameRoot(m_game);
    loadGame();
    QVERIFY(campaignOfMaps(8, 100 * 1024).saveTo(m_campaign).ok);

    // One font, whatever else is installed.
    QFile fonts(m_folder.filePath("fonts.conf"));
    QVERIFY(fonts.open(QIODevice::WriteOnly));
    fonts.write("<?xml version=\"1.0\"?><!DOCTYPE fontconfig SYSTEM \"fonts.dtd\"><fontconfig>"
                "<dir>/usr/share/fonts/truetype/dejavu</dir><cachedir>");
    fonts.write(QFile::encodeName(m_folder.filePath("font-cache")));
    fonts.write("</cachedir></fontconfig>");
}

QProcessEnvironment InstructionsTest::fixedEnvironment() const
{
    const QProcessEnvironment own = QProcessEnvironment::systemEnvironment();
    QProcessEnvironment environment;
    for (const char *kept : {"PATH", "LD_LIBRARY_PATH"})
        if (own.contains(kept))
            environment.insert(kept, own.value(kept));
    const char *const fixed[][2] = {
        {"LC_ALL", "C.UTF-8"},
        {"QT_QPA_PLATFORM", "offscreen"},
        {"SDL_AUDIODRIVER", "dummy"},
        {"QT_HASH_SEED", "0"},
        {"QT_NO_CPU_FEATURE", "sse3 ssse3 sse4.1 sse4.2 avx avx2"},
        {"GLIBC_TUNABLES", "glibc.cpu.hwcaps=-AVX2_Usable,-AVX_Fast_Unaligned_Load,-AVX2,-AVX,"
                           "-SSSE3,-SSE4_1,-SSE4_2,-BMI1,-BMI2,-LZCNT,-MOVBE,-ERMS,-FSRM,"
                           "-Fast_Unaligned_Copy:glibc.cpu.x86_non_temporal_threshold=0xc0000"},
    };
    for (const auto &[name, value] : fixed)
        environment.insert(name, value);
    for (const char *home :
         {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        environment.insert(home, m_folder.path());
    environment.insert("CMPED_GAME_DIR", m_game);
    environment.insert("FONTCONFIG_FILE", m_folder.filePath("fonts.conf"));
    return environment;
}

// Negative if the program didn't do its work.
qint64 InstructionsTest::countOf(const QString &program, const QStringList &arguments, bool &wide)
{
    // Once in peace: what is kept from one start to the next is there then.
    const ChildResult plain = runChild(builtProgram(program), arguments, fixedEnvironment());
    const QString counts = m_folder.filePath("counts");
    const ChildResult counted =
        runChild("valgrind",
                 QStringList{"--tool=callgrind", "--collect-atstart=no",
                             "--callgrind-out-file=" + counts, builtProgram(program)} +
                     arguments,
                 fixedEnvironment());
    wide = counted.output.contains("wide");
    QFile file(counts);
    if (!plain.started || plain.exitCode != 0 || counted.exitCode != 0 ||
        !file.open(QIODevice::ReadOnly)) {
        qWarning("%s", (plain.error + counted.error).constData());
        return -1;
    }
    for (const QByteArray &line : file.readAll().split('\n'))
        if (line.startsWith("totals: "))
            return line.mid(8).toLongLong();
    return -1;
}

void InstructionsTest::staysWithinATenth_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < int(std::size(countedRows)); ++row)
        QTest::newRow(countedRows[row].name) << row;
}

void InstructionsTest::staysWithinATenth()
{
    QFETCH(int, row);
    const CountedRow &counted = countedRows[row];
    QStringList arguments;
    if (*counted.work != '\0')
        arguments << counted.work << m_game;
    for (const char *work : {"open", "refresh", "keep"})
        if (qstrcmp(counted.work, work) == 0)
            arguments << m_campaign;
    bool wide = false;
    const qint64 instructions = countOf(counted.program, arguments, wide);
    const qint64 expected =
        wide && counted.inWideVectors != unknown ? counted.inWideVectors : counted.instructions;
    qInfo("%lld instructions, %lld in the table", instructions, expected);
    QVERIFY(instructions > 0);
    QVERIFY2(instructions <= expected + expected / 10, "more than a tenth was added");
    QVERIFY2(instructions >= expected - expected / 10,
             "more than a tenth is saved: tell the table");
}

QTEST_GUILESS_MAIN(InstructionsTest)
#include "instructions_test.moc"
