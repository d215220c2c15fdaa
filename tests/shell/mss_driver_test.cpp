// Sound that can't be had: drivers that fail, a system without the sound library. Each in a child
// process, this program itself, which does what the music is asked for and prints what came of it.
#include "gamedata/game_dir.h"
#include "shell/mss_info.h"
#include "tests/support/child_process.h"
#include "tests/support/report_recorder.h"
#include "tests/support/tunes.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <csignal>
#include <cstdio>

#include <dlfcn.h>

namespace {

constexpr char childVariable[] = "MSS_DRIVER_TEST_CHILD";

QByteArray state(const MssInfo &music)
{
    const auto taken = std::count_if(music.samples.begin(), music.samples.end(),
                                     [](unsigned sample) { return sample != 0; });
    return QByteArray("driver ") + (music.driver ? "1" : "0") + ", samples " +
           QByteArray::number(int(taken)) + ", stream " + (music.stream ? "1" : "0") +
           ", initialized " + (music.initialized ? "1" : "0") + '\n';
}

// Starts the sound and one tune in the way of the dialogs. The sound library would take signals
// that are the program's if it were let.
int runChildsPart()
{
    const ReportRecorder reports;
    MssInfo music;
    QByteArray told = state(music);
    music.stream = 7; // left behind by nobody: starting begins anew
    music.driver = 7;
    music.initialized = true;
    const int exitCode = exitCodeOf([&music] { music.LoadDll(); });
    if (exitCode != -1)
        return 100 + exitCode;
    told += state(music);
    music.StartMusicStream("tune.wav", 0);
    told += state(music);
    music.PauseMusic();
    music.ResumeMusic();
    music.StartMusicStream("tune.wav", 1);
    music.StopMusic();
    told += state(music);
    for (const int number : {SIGINT, SIGTERM}) {
        if (catches(QCoreApplication::applicationPid(), number))
            told += "takes signal " + QByteArray::number(number) + '\n';
    }
    for (const RecordedError &error : reports.errors)
        told += (error.title + '|' + error.text + '\n').toUtf8();
    std::fputs(told.constData(), stdout);
    return 0;
}

} // namespace

class MssDriverTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void driverThatFailsIsToldOnce_data();
    void driverThatFailsIsToldOnce();
    void dummyDriverIsSilentAndContent();
    void unusableLibraryEndsTheProcessWithoutAWord_data();
    void unusableLibraryEndsTheProcessWithoutAWord();

private:
    ChildResult start(const char *variable, const QByteArray &value) const;

    QTemporaryDir m_dir;
};

void MssDriverTest::initTestCase()
{
    QVERIFY(QDir(m_dir.path()).mkpath("MP3"));
    QFile file(m_dir.filePath("MP3/tune.wav"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(tunes::wave({1000, 1}));
}

ChildResult MssDriverTest::start(const char *variable, const QByteArray &value) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(childVariable, "1");
    environment.insert("CMPED_GAME_DIR", m_dir.path());
    environment.insert(variable, QString::fromLocal8Bit(value));
    return runChild(QCoreApplication::applicationFilePath(), {}, environment);
}

void MssDriverTest::driverThatFailsIsToldOnce_data()
{
    QTest::addColumn<QByteArray>("driver");
    // One that SDL doesn't have, and one whose device isn't there.
    QTest::newRow("starting fails") << QByteArray("nosuch");
    QTest::newRow("opening fails") << QByteArray("disk");
}

void MssDriverTest::driverThatFailsIsToldOnce()
{
    QFETCH(QByteArray, driver);
    qputenv("SDL_DISKAUDIOFILE", "/nowhere/at all");
    const ChildResult result = start("SDL_AUDIODRIVER", driver);
    QVERIFY(result.exitedNormally);
    QCOMPARE(result.exitCode, 0);
    const QByteArray nothing = "driver 0, samples 0, stream 0, initialized 0\n";
    QCOMPARE(result.output, nothing.repeated(4) + "Error|Failed to open the sound driver.\n");
}

void MssDriverTest::dummyDriverIsSilentAndContent()
{
    const ChildResult result = start("SDL_AUDIODRIVER", "dummy");
    QVERIFY(result.exitedNormally);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, QByteArray("driver 0, samples 0, stream 0, initialized 0\n"
                                       "driver 1, samples 14, stream 0, initialized 1\n"
                                       "driver 1, samples 14, stream 1, initialized 1\n"
                                       "driver 1, samples 14, stream 0, initialized 1\n"));
}

void MssDriverTest::unusableLibraryEndsTheProcessWithoutAWord_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("no library at all") << QByteArray(1000, 'x');
    // Any other one will do.
    Dl_info other = {};
    QVERIFY(dladdr(reinterpret_cast<void *>(&qVersion), &other) != 0);
    QFile file(QFile::decodeName(other.dli_fname));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QTest::newRow("without the calls") << file.readAll();
}

void MssDriverTest::unusableLibraryEndsTheProcessWithoutAWord()
{
    QFETCH(QByteArray, content);
    QFile library(m_dir.filePath("libSDL2_mixer-2.0.so.0"));
    QVERIFY(library.open(QIODevice::WriteOnly));
    QCOMPARE(library.write(content), content.size());
    library.close();
    const ChildResult result = start("LD_LIBRARY_PATH", QFile::encodeName(m_dir.path()));
    QVERIFY(result.exitedNormally);
    QCOMPARE(result.exitCode, 100);
    QVERIFY(result.output.isEmpty());
}

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (qEnvironmentVariableIsSet(childVariable))
        return runChildsPart();
    MssDriverTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "mss_driver_test.moc"
