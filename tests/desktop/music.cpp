#include "tests/desktop/music.h"

#include "tests/desktop/controls.h"
#include "tests/desktop/failure.h"
#include "tests/desktop/patience.h"
#include "tests/desktop/workplace.h"

namespace {

constexpr int aQuarterOfASecond = 44100 / 4; // frames
constexpr int aSecond = 44100;

} // namespace

void hearMusic(Workplace &place)
{
    HeardSound &sound = place.sound();
    sound.clear();
    click(place.editor(), "playMusicBtn");
    const Patience untilHeard;
    while (sound.sound().size() < aSecond) {
        place.editor().look({}); // without an editor it would never come
        if (!untilHeard.isLeft())
            throw Failure("a second of music is heard",
                          QString::number(sound.count()) + " frames of silence");
    }
    click(place.editor(), "playMusicBtn");
    const Patience untilSilent;
    while (!sound.endsSilent(aQuarterOfASecond)) {
        place.editor().look({});
        if (!untilSilent.isLeft())
            throw Failure("the music stops", "it plays on");
    }
}
