#include "shell/sound_library.h"

#include <dlfcn.h>

namespace {

// The binary interface that our headers describe, as the system names it.
constexpr char libraryName[] = "libSDL2_mixer-2.0.so.0";

template<typename Function>
bool resolve(void *library, const char *name, Function &function)
{
    function = reinterpret_cast<Function>(dlsym(library, name));
    return function != nullptr;
}

} // namespace

void *loadSoundLibrary()
{
    return dlopen(libraryName, RTLD_LAZY | RTLD_LOCAL);
}

// The names of SDL itself are found through the mixer, which depends on it.
std::optional<SoundEntryPoints> soundEntryPoints(void *library)
{
    SoundEntryPoints points;
    const bool complete = resolve(library, "SDL_SetHint", points.setHint) &&
                          resolve(library, "SDL_InitSubSystem", points.initSubSystem) &&
                          resolve(library, "SDL_RWFromFile", points.openFile) &&
                          resolve(library, "Mix_OpenAudioDevice", points.openAudioDevice) &&
                          resolve(library, "Mix_AllocateChannels", points.allocateChannels) &&
                          resolve(library, "Mix_LoadMUSType_RW", points.loadMusic) &&
                          resolve(library, "Mix_PlayMusic", points.playMusic) &&
                          resolve(library, "Mix_PauseMusic", points.pauseMusic) &&
                          resolve(library, "Mix_ResumeMusic", points.resumeMusic) &&
                          resolve(library, "Mix_FreeMusic", points.freeMusic);
    if (!complete)
        return std::nullopt;
    return points;
}
