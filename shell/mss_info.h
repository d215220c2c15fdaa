// The music that dialogs let the user listen to.
#pragma once

#include "shell/sound_library.h"

#include <QString>

#include <array>

// One object, reached through `mss`. Its operations bear the names of the game's own sound
// library; behind them stands SDL2_mixer, which plays MP3, OGG and WAV. Sound that can't be had is
// silence: after a driver that failed, or for a file that can't be played, the calls do nothing.
// All calls come from the GUI's thread.
//
// Nothing is shut down when the object goes: the sound library ends with the process.
class MssInfo
{
public:
    // Loads the sound library and starts it (InitMgr). A system without one, or with one that
    // lacks a call, ends the process with exit code 0 and without a word.
    void LoadDll();

    // Starts the library and opens the driver: 44.1 kHz, 16 bits, stereo. A driver that fails is
    // told in one message, and the program goes on in silence.
    void InitMgr();

    // Plays a file of the game's folder "MP3" instead of what was played until now: `loopCount`
    // times, 0 for ever. Without such a file nothing is played.
    void StartMusicStream(const QString &fileName, int loopCount);

    // Nothing happens while no stream is open.
    void PauseMusic();
    void ResumeMusic();
    void StopMusic();

    // Single operations of the library. Handles are above 0; a 0 that is answered means failure,
    // and a handle that isn't open is passed over.
    int AIL_startup(); // 0 if the system has no sound
    void AIL_set_redist_directory(const char *path);
    unsigned AIL_open_digital_driver(unsigned frequency, int bits, int channels, unsigned flags);
    unsigned AIL_allocate_sample_handle(unsigned digitalDriver);
    // `path` as the system writes file names. There is one stream at a time: while it is open, the
    // answer to another is 0.
    unsigned AIL_open_stream(unsigned digitalDriver, const char *path, int streamMemory);
    void AIL_start_stream(unsigned openStream);
    void AIL_pause_stream(unsigned openStream, int on);
    void AIL_close_stream(unsigned openStream);
    // Counts from the next start on; 0 is for ever.
    void AIL_set_stream_loop_count(unsigned openStream, int count);

    static constexpr int sampleCount = 14;

    std::array<unsigned, sampleCount> samples{}; // 0 in places not taken
    unsigned stream = 0;                         // the open one, playing or paused; 0 if none
    unsigned driver = 0;                         // 0 if none
    bool initialized = false;                    // a good InitMgr has ended

private:
    bool isOpen(unsigned openStream) const { return openStream != 0 && openStream == m_openStream; }

    void *m_library = nullptr;
    SoundEntryPoints m_entryPoints;
    Mix_Music *m_music = nullptr; // of the open stream; freed by AIL_close_stream
    unsigned m_openStream = 0;
    unsigned m_lastStream = 0; // handles aren't given twice
    int m_loopCount = 1;
};

// Null but between the start of the program and its end.
extern MssInfo *mss;
