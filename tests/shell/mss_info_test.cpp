// The music as it is heard: SDL's driver "disk" writes down what is played.
#include "gamedata/game_dir.h"
#include "shell/mss_info.h"
#include "tests/support/child_process.h"
#include "tests/support/heard_sound.h"
#include "tests/support/longest_wait.h"
#include "tests/support/report_recorder.h"
#include "tests/support/tunes.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

#include <sys/stat.h>

namespace {

constexpr int chunkMilliseconds = 3;
constexpr int silence = 20000;    // frames; more than the mixer has under way
constexpr int shortFrames = 5000; // of the tunes: longer than a chunk and no multiple of one
constexpr int longFrames = 30000;
constexpr int firstMark = 1111;
constexpr int secondMark = 2222;
constexpr int forEver = 0;

// The frames from `first` to `last` of a tune.
QVector<HeardFrame> part(int mark, int first, int last)
{
    QVector<HeardFrame> frames;
    for (int i = first; i <= last; ++i)
        frames.append({i, mark});
    return frames;
}

// So many frames of a tune that is played for ever, behind the first `start` of them.
QVector<HeardFrame> rounded(int mark, int tuneFrames, int start, int count)
{
    QVector<HeardFrame> frames;
    for (int i = start; i < start + count; ++i)
        frames.append({i % tuneFrames + 1, mark});
    return frames;
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class MssInfoTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void driverIsReadyWithFourteenSamples();
    void playsATuneFromItsBeginningToItsEnd();
    void playsATuneSoManyTimes();
    void playsForEverWithCountZero();
    void pausedMusicIsSilentAndGoesOnWhereItWas();
    void stoppedMusicIsSilentForGood();
    void secondStartReplacesTheFirst();
    void startEndsAPause();
    void startedAnewAfterItsEnd();
    void nothingOpenIsPassedOver();
    void staysClosed_data();
    void staysClosed();
    void playsWhatIsThereOfATuneCutOff_data();
    void playsWhatIsThereOfATuneCutOff();
    void playsEveryKindWhateverItsName_data();
    void playsEveryKindWhateverItsName();
    void takesAbsolutePathsAndNamesOfAllLetters_data();
    void takesAbsolutePathsAndNamesOfAllLetters();
    void openingTellsItsEntryPoint();
    void secondStreamIsRefusedWhileOneIsOpen();
    void handlesThatAreNotOpenArePassedOver();

private:
    QString write(const QString &name, const QByteArray &bytes) const;

    QTemporaryDir m_game;
    HeardSound m_heard{chunkMilliseconds};
    ReportRecorder m_reports;
    MssInfo m_music;
};

QString MssInfoTest::write(const QString &name, const QByteArray &bytes) const
{
    QString path = m_game.filePath("MP3/" + name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

void MssInfoTest::initTestCase()
{
    QLoggingCategory::setFilterRules("default.debug=true");
    setGameRoot(m_game.path());
    QVERIFY(QDir(m_game.path()).mkpath("MP3/folder.mp3"));
    write("short.wav", tunes::wave({shortFrames, firstMark}));
    write("first.wav", tunes::wave({longFrames, firstMark}));
    write("second.wav", tunes::wave({longFrames, secondMark}));
    m_music.LoadDll();
}

void MssInfoTest::init()
{
    m_heard.clear();
}

void MssInfoTest::cleanup()
{
    m_music.StopMusic();
    QCOMPARE(m_music.stream, 0U);
    m_heard.clear();
    QTRY_VERIFY_WITH_TIMEOUT(m_heard.endsSilent(silence), longestWait);
    QVERIFY(m_reports.errors.isEmpty());
}

void MssInfoTest::driverIsReadyWithFourteenSamples()
{
    QVERIFY(m_music.driver != 0);
    QVERIFY(m_music.initialized);
    QCOMPARE(m_music.samples.size(), size_t(14));
    const auto &samples = m_music.samples;
    for (size_t i = 0; i < samples.size(); ++i) {
        QVERIFY(samples[i] != 0);
        QCOMPARE(std::count(samples.begin(), samples.end(), samples[i]), std::ptrdiff_t(1));
    }
    constexpr int tellOnly = -1;
    const auto library = soundEntryPoints(loadSoundLibrary());
    QVERIFY(library);
    QCOMPARE(library->allocateChannels(tellOnly), 14);
}

void MssInfoTest::playsATuneFromItsBeginningToItsEnd()
{
    m_music.StartMusicStream("short.wav", 1);
    QVERIFY(m_music.stream != 0);
    QTRY_COMPARE_WITH_TIMEOUT(m_heard.sound().size(), shortFrames, longestWait);
    QTRY_VERIFY_WITH_TIMEOUT(m_heard.endsSilent(silence), longestWait);
    QCOMPARE(m_heard.sound(), part(firstMark, 1, shortFrames));
}

void MssInfoTest::playsATuneSoManyTimes()
{
    m_music.StartMusicStream("short.wav", 3);
    QTRY_COMPARE_WITH_TIMEOUT(m_heard.sound().size(), 3 * shortFrames, longestWait);
    QTRY_VERIFY_WITH_TIMEOUT(m_heard.endsSilent(silence), longestWait);
    const QVector<HeardFrame> once = part(firstMark, 1, shortFrames);
    QCOMPARE(m_heard.sound(), once + once + once);
}

void MssInfoTest::playsForEverWithCountZero()
{
    constexpr int rounds = 20;
    m_music.StartMusicStream("short.wav", forEver);
    QTRY_VERIFY_WITH_TIMEOUT(m_heard.sound().size() > rounds * shortFrames, longestWait);
    QCOMPARE(m_heard.sound().mid(0, rounds * shortFrames),
             rounded(firstMark, shortFrames, 0, rounds * shortFrames));
}

void MssInfoTest::pausedMusicIsSilentAndGoesOnWhereItWas()
{
    m_music.StartMusicStream("first.wav", forEver);
    QTRY_VERIFY_WITH_TIMEOUT(!m_heard.sound().isEmpty(), longestWait);
    m_music.PauseMusic();
    QVERIFY(m_music.stream != 0);
    QTRY_VERIFY_WITH_TIMEOUT(m_heard.endsSilent(silence), longestWait);
    const QVector<HeardFrame> before = m_heard.sound();
    QCOMPARE(before, rounded(firstMark, longFrames, 0, before.size()));

    m_heard.clear();
    m_music.ResumeMusic();
    QTRY_VERIFY_WITH_TIMEOUT(m_heard.sound().size() > longFrames, longestWait);
    QCOMPARE(m_heard.sound().mid(0, longFrames),
             rounded(firstMark, longFrames, before.size(), longFrames));
}

void MssInfoTest::stoppedMusicIsSilentForGood()
{
    m_music.StartMusicStream("first.wav", forEver);
    QTRY_VERIFY_WITH_TIMEOUT(!m_heard.sound().isEmpty(), longestWait);
    m_music.StopMusic();
    QCOMPARE(m_music.stream, 0U);
    QTRY_VERIFY_WITH_TIMEOUT(m_heard.endsSilent(silence), longestWait);
    m_heard.clear();
    m_music.ResumeMusic();
    QTRY_VERIFY_WITH_TIMEOUT(m_heard.endsSilent(silence), longestWait);
    QVERIFY(m_heard.sound().isEmpty());
}

void MssInfoTest::secondStartReplacesTheFirst()
{
    m_music.StartMusicStream("first.wav", forEver);
    const unsigned first = m_music.stream;
    QTRY_VERIFY_WITH_TIMEOUT(!m_heard.sound().isEmpty(), longestWait);
    m_music.StartMusicStream("second.wav", 1);
    QVERIFY(m_music.stream != 0);
    QVERIFY(m_music.stream != first);
    QTRY_VERIFY_WITH_TIMEOUT(m_heard.sound().endsWith({longFrames, secondMark}), longestWait);
    QTRY_VERIFY_WITH_TIMEOUT(m_heard.endsSilent(silence), longestWait);
    const QVector<HeardFrame> heard = m_heard.sound();
    const int start = heard.indexOf({1, secondMark});
    QCOMPARE(heard.mid(start), part(secondMark, 1, longFrames));
    for (int i = 0; i < start; ++i)
        QVERIFY(heard[i].right == firstMark || heard[i].isSilent());
}

void MssInfoTest::startEndsAPause()
{
    m_music.StartMusicStream("first.wav", forEver);
    m_music.PauseMusic();
    QTRY_VERIFY_WITH_TIMEOUT(m_heard.endsSilent(silence), longestWait);
    m_heard.clear();
    m_music.StartMusicStream("second.wav", 1);
    QTRY_COMPARE_WITH_TIMEOUT(m_heard.sound().size(), longFrames, longestWait);
    QCOMPARE(m_heard.sound(), part(secondMark, 1, longFrames));
}

// A stream at its end is still open until it is closed.
void MssInfoTest::startedAnewAfterItsEnd()
{
    m_music.StartMusicStream("short.wav", 1);
    QTRY_COMPARE_WITH_TIMEOUT(m_heard.sound().size(), shortFrames, longestWait);
    QTRY_VERIFY_WITH_TIMEOUT(m_heard.endsSilent(silence), longestWait);
    QVERIFY(m_music.stream != 0);
    m_heard.clear();
    m_music.StartMusicStream("short.wav", 1);
    QTRY_COMPARE_WITH_TIMEOUT(m_heard.sound(), part(firstMark, 1, shortFrames), longestWait);
}

void MssInfoTest::nothingOpenIsPassedOver()
{
    m_music.PauseMusic();
    m_music.ResumeMusic();
    m_music.StopMusic();
    QCOMPARE(m_music.stream, 0U);
    // The pause isn't kept for the music that comes later.
    m_music.PauseMusic();
    m_music.StartMusicStream("short.wav", 1);
    QTRY_COMPARE_WITH_TIMEOUT(m_heard.sound().size(), shortFrames, longestWait);
}

void MssInfoTest::staysClosed_data()
{
    QTest::addColumn<QString>("name");
    const QByteArray wave = tunes::wave({100, firstMark});
    const QByteArray ogg = tunes::ogg(200, 440);
    QTest::newRow("missing") << "gone.mp3";
    QTest::newRow("no name: the folder of music itself") << "";
    QTest::newRow("folder") << "folder.mp3";
    QTest::newRow("device") << "/dev/zero";
    const QString pipe = m_game.filePath("MP3/pipe.mp3");
    if (!QFile::exists(pipe) && mkfifo(QFile::encodeName(pipe).constData(), 0600) != 0)
        qFatal("cannot make %s", qPrintable(pipe));
    QTest::newRow("pipe that nobody writes to") << "pipe.mp3";
    const auto damaged = [this](const char *name, const QByteArray &bytes) {
        QTest::newRow(name) << QFileInfo(write(QString(name) + ".mp3", bytes)).fileName();
    };
    damaged("empty", {});
    damaged("zeros", QByteArray(5000, '\0'));
    damaged("text", QByteArray("not a tune, just a line of words\n").repeated(100));
    damaged("WAV without sound", tunes::wave({0, firstMark}));
    damaged("WAV cut within its head", wave.left(30));
    damaged("WAV without channels", tunes::wave({100, firstMark, 0}));
    damaged("WAV of one sample a second", tunes::wave({100, firstMark, 2, 1}));
    damaged("OGG cut within its head", ogg.left(200));
    damaged("OGG overwritten", ogg.left(60) + QByteArray(ogg.size() - 60, '\x55'));
}

void MssInfoTest::staysClosed()
{
    QFETCH(QString, name);
    m_music.StartMusicStream("first.wav", forEver);
    QTRY_VERIFY_WITH_TIMEOUT(!m_heard.sound().isEmpty(), longestWait);
    m_music.StartMusicStream(name, forEver);
    QCOMPARE(m_music.stream, 0U);
    QTRY_VERIFY_WITH_TIMEOUT(m_heard.endsSilent(silence), longestWait);
}

void MssInfoTest::playsWhatIsThereOfATuneCutOff_data()
{
    QTest::addColumn<int>("frames");
    QTest::newRow("half") << shortFrames / 2;
    QTest::newRow("nothing") << 0;
}

void MssInfoTest::playsWhatIsThereOfATuneCutOff()
{
    constexpr int headBytes = 44;
    constexpr int frameBytes = 4;
    QFETCH(int, frames);
    const QByteArray whole = tunes::wave({shortFrames, firstMark});
    write("cut.wav", whole.left(headBytes + frames * frameBytes));
    m_music.StartMusicStream("cut.wav", 1);
    QTRY_VERIFY_WITH_TIMEOUT(m_heard.endsSilent(silence + shortFrames), longestWait);
    QCOMPARE(m_heard.sound(), part(firstMark, 1, frames));
    m_music.StartMusicStream("cut.wav", forEver);
    m_music.StopMusic();
    QCOMPARE(m_music.stream, 0U);
}

void MssInfoTest::playsEveryKindWhateverItsName_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("name");
    const QByteArray wave = tunes::wave({longFrames, firstMark});
    const QByteArray ogg = tunes::ogg(2000, 440);
    const QByteArray mp3 = contents(sampleGame() + "/MP3/Campfire.mp3");
    QTest::newRow("MP3") << mp3 << "tune.mp3";
    QTest::newRow("MP3 behind a strange beginning") << QByteArray(1000, 'x') + mp3 << "strange.mp3";
    QTest::newRow("WAV") << wave << "tune.wav";
    QTest::newRow("WAV named MP3") << wave << "wave.mp3";
    QTest::newRow("OGG") << ogg << "tune.ogg";
    QTest::newRow("OGG named MP3") << ogg << "ogg.mp3";
}

void MssInfoTest::playsEveryKindWhateverItsName()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);
    QVERIFY(!bytes.isEmpty());
    write(name, bytes);
    m_music.StartMusicStream(name, forEver);
    QVERIFY(m_music.stream != 0);
    QTRY_VERIFY_WITH_TIMEOUT(m_heard.sound().size() > tunes::sampleRate / 2, longestWait);
}

void MssInfoTest::takesAbsolutePathsAndNamesOfAllLetters_data()
{
    QTest::addColumn<QString>("name");
    const QByteArray wave = tunes::wave({shortFrames, firstMark});
    QTest::newRow("absolute path") << write("absolute.wav", wave);
    const QString cyrillic = QString::fromUtf8("Костёр.mp3");
    write(cyrillic, wave);
    QTest::newRow("Cyrillic") << cyrillic;
}

void MssInfoTest::takesAbsolutePathsAndNamesOfAllLetters()
{
    QFETCH(QString, name);
    m_music.StartMusicStream(name, 1);
    QTRY_COMPARE_WITH_TIMEOUT(m_heard.sound(), part(firstMark, 1, shortFrames), longestWait);
}

void MssInfoTest::openingTellsItsEntryPoint()
{
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("^FUNC:  0x[0-9a-f]+$"));
    m_music.StartMusicStream("short.wav", 1);
    QVERIFY(m_music.stream != 0);
}

void MssInfoTest::secondStreamIsRefusedWhileOneIsOpen()
{
    const QByteArray path = QFile::encodeName(m_game.filePath("MP3/short.wav"));
    const unsigned first = m_music.AIL_open_stream(m_music.driver, path.constData(), 0);
    QVERIFY(first != 0);
    QCOMPARE(m_music.AIL_open_stream(m_music.driver, path.constData(), 0), 0U);
    m_music.AIL_close_stream(first);
    QCOMPARE(m_music.AIL_open_stream(0, path.constData(), 0), 0U);
    const unsigned second = m_music.AIL_open_stream(m_music.driver, path.constData(), 0);
    QVERIFY(second != 0 && second != first);
    m_music.AIL_close_stream(second);
}

void MssInfoTest::handlesThatAreNotOpenArePassedOver()
{
    m_music.StartMusicStream("first.wav", 1);
    for (const unsigned wrong : {0U, m_music.stream - 1, m_music.stream + 1}) {
        m_music.AIL_pause_stream(wrong, 1);
        m_music.AIL_set_stream_loop_count(wrong, 5);
        m_music.AIL_start_stream(wrong);
        m_music.AIL_close_stream(wrong);
    }
    QTRY_COMPARE_WITH_TIMEOUT(m_heard.sound().size(), longFrames, longestWait);
    QTRY_VERIFY_WITH_TIMEOUT(m_heard.endsSilent(silence), longestWait);
    QCOMPARE(m_heard.sound(), part(firstMark, 1, longFrames));
}

QTEST_GUILESS_MAIN(MssInfoTest)
#include "mss_info_test.moc"
