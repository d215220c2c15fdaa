// The sound library, SDL2_mixer with the SDL under it, loaded while the program runs.
//
// Loaded and not linked: it brings some forty libraries along, and everything that needs no sound
// (the command line, the tests of other rooms) starts without them.
#pragma once

#include <SDL.h>
#include <SDL_mixer.h>

#include <optional>

// What the music asks of the library.
struct SoundEntryPoints
{
    decltype(&SDL_SetHint) setHint = nullptr;
    decltype(&SDL_InitSubSystem) initSubSystem = nullptr;
    decltype(&SDL_RWFromFile) openFile = nullptr;
    decltype(&Mix_OpenAudioDevice) openAudioDevice = nullptr;
    decltype(&Mix_AllocateChannels) allocateChannels = nullptr;
    decltype(&Mix_LoadMUSType_RW) loadMusic = nullptr;
    decltype(&Mix_PlayMusic) playMusic = nullptr;
    decltype(&Mix_PauseMusic) pauseMusic = nullptr;
    decltype(&Mix_ResumeMusic) resumeMusic = nullptr;
    decltype(&Mix_FreeMusic) freeMusic = nullptr;
};

// Loads the library and answers its handle, null if the system has none. It stays loaded until the
// process ends; every further call is quick. May be called from any thread.
void *loadSoundLibrary();

// Nothing if the library lacks one of them.
std::optional<SoundEntryPoints> soundEntryPoints(void *library);
