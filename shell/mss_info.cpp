#include "shell/mss_info.h"

#include "gamedata/game_dir.h"
#include "gamedata/report.h"
#include "shell/tune_file.h"

#include <QDebug>
#include <QFile>

namespace {

constexpr unsigned frequency = 44100;
constexpr int sampleBits = 16;
constexpr int channelCount = 2;
constexpr int chunkFrames = 2048; // mixed at a time; a pause is heard after at most two of them

constexpr unsigned onlyDriver = 1;
constexpr int forEver = -1; // as SDL counts

Mix_MusicType musicType(TuneKind kind)
{
    switch (kind) {
    case TuneKind::Ogg:
        return MUS_OGG;
    case TuneKind::Wave:
        return MUS_WAV;
    case TuneKind::Mp3:
        break;
    }
    return MUS_MP3;
}

} // namespace

MssInfo *mss = nullptr;

void MssInfo::LoadDll()
{
    m_library = loadSoundLibrary();
    const auto entryPoints = m_library ? soundEntryPoints(m_library) : std::nullopt;
    if (!entryPoints)
        endSilently(0);
    m_entryPoints = *entryPoints;
    InitMgr();
}

void MssInfo::InitMgr()
{
    stream = 0;
    driver = 0;
    initialized = false;
    AIL_startup();
    driver = AIL_open_digital_driver(frequency, sampleBits, channelCount, 0);
    if (driver == 0) {
        reportError(errorTitle(), mainWindowText(QT_TRANSLATE_NOOP(
                                      "MainWindow", "Failed to open the sound driver.")));
        return;
    }
    AIL_set_redist_directory(gameRoot().toUtf8().constData());
    for (unsigned &sample : samples) {
        sample = AIL_allocate_sample_handle(driver);
        if (sample == 0)
            break;
    }
    initialized = true;
}

void MssInfo::StartMusicStream(const QString &fileName, int loopCount)
{
    StopMusic();
    const QString path = getGameDir(QStringLiteral("MP3")).absoluteFilePath(fileName);
    if (!fileExists(path))
        return;
    stream = AIL_open_stream(driver, QFile::encodeName(path).constData(), 0);
    if (stream == 0)
        return;
    AIL_set_stream_loop_count(stream, loopCount);
    AIL_start_stream(stream);
}

void MssInfo::PauseMusic()
{
    if (stream != 0)
        AIL_pause_stream(stream, 1);
}

void MssInfo::ResumeMusic()
{
    if (stream != 0)
        AIL_pause_stream(stream, 0);
}

void MssInfo::StopMusic()
{
    if (stream == 0)
        return;
    AIL_close_stream(stream);
    stream = 0;
}

// SDL would take the signals that ask a process to end for itself.
int MssInfo::AIL_startup()
{
    m_entryPoints.setHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    return m_entryPoints.initSubSystem(SDL_INIT_AUDIO) == 0 ? 1 : 0;
}

// SDL2_mixer brings its decoders along and looks for none in the game's folder.
void MssInfo::AIL_set_redist_directory(const char *) {}

unsigned MssInfo::AIL_open_digital_driver(unsigned rate, int bits, int channels, unsigned)
{
    const Uint16 format = bits == sampleBits ? AUDIO_S16SYS : AUDIO_U8;
    if (m_entryPoints.openAudioDevice(int(rate), format, channels, chunkFrames, nullptr, 0) != 0)
        return 0;
    m_entryPoints.allocateChannels(0); // the mixer begins with some of its own
    return onlyDriver;
}

unsigned MssInfo::AIL_allocate_sample_handle(unsigned digitalDriver)
{
    if (digitalDriver == 0)
        return 0;
    const int taken = m_entryPoints.allocateChannels(-1);
    const int now = m_entryPoints.allocateChannels(taken + 1);
    return now > taken ? unsigned(now) : 0;
}

unsigned MssInfo::AIL_open_stream(unsigned digitalDriver, const char *path, int)
{
    qDebug() << "FUNC: " << reinterpret_cast<void *>(m_entryPoints.loadMusic);
    if (digitalDriver == 0 || m_music)
        return 0;
    const std::optional<TuneKind> kind = tuneKind(QFile::decodeName(path));
    SDL_RWops *file = kind ? m_entryPoints.openFile(path, "rb") : nullptr;
    if (!file)
        return 0;
    m_music = m_entryPoints.loadMusic(file, musicType(*kind), 1); // closes the file
    if (!m_music)
        return 0;
    m_loopCount = 1;
    m_openStream = ++m_lastStream;
    return m_openStream;
}

void MssInfo::AIL_start_stream(unsigned openStream)
{
    if (isOpen(openStream))
        m_entryPoints.playMusic(m_music, m_loopCount == 0 ? forEver : m_loopCount);
}

void MssInfo::AIL_pause_stream(unsigned openStream, int on)
{
    if (!isOpen(openStream))
        return;
    if (on)
        m_entryPoints.pauseMusic();
    else
        m_entryPoints.resumeMusic();
}

void MssInfo::AIL_close_stream(unsigned openStream)
{
    if (!isOpen(openStream))
        return;
    m_entryPoints.freeMusic(m_music); // stops it
    m_music = nullptr;
    m_openStream = 0;
}

void MssInfo::AIL_set_stream_loop_count(unsigned openStream, int count)
{
    if (isOpen(openStream))
        m_loopCount = count;
}
