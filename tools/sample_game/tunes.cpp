#include "tools/sample_game/tunes.h"

namespace sample {

const std::vector<Tune> &tunes()
{
    static const std::vector<Tune> all = {
        {"River March",
         250,
         {{Voice::Flute, 0.55,
           "D5/2 A4/1 D5/1 E5/2 F#5/2 G5/2 F#5/1 E5/1 D5/4 "
           "B4/2 D5/1 B4/1 A4/2 F#4/2 G4/1 A4/1 B4/1 C#5/1 D5/4"},
          {Voice::Strings, 0.30,
           "D4+F#4/4 A3+E4/4 G3+B3/4 D4+F#4/4 G3+B3/4 D4+F#4/4 E4+G4/2 A3+E4/2 D4+F#4/4"},
          {Voice::Bass, 0.45,
           "D3/2 A2/2 A2/2 E3/2 G2/2 D3/2 D3/2 A2/2 G2/2 D3/2 D3/2 A2/2 E3/2 A2/2 D3/2 D2/2"},
          {Voice::Drum, 0.25,
           "C3/2 -/1 C3/1 C3/2 C3/1 C3/1 C3/2 -/1 C3/1 C3/2 C3/1 C3/1 "
           "C3/2 -/1 C3/1 C3/2 C3/1 C3/1 C3/2 -/1 C3/1 C3/4"}}},
        {"Lullaby of the Reeds",
         280,
         {{Voice::Harp, 0.60,
           "E5/2 G5/1 A5/2 G5/1 E5/2 D5/1 C5/3 D5/2 E5/1 G5/2 E5/1 D5/6 "
           "E5/2 G5/1 A5/2 C6/1 B5/2 A5/1 G5/3 A5/1 G5/1 E5/1 D5/2 E5/1 C5/6"},
          {Voice::Flute, 0.22, "C4+E4/6 A3+C4/6 F3+A3/6 G3+B3/6 C4+E4/6 E4+G4/6 F3+A3/6 C4+E4/6"},
          {Voice::Bass, 0.35,
           "C3/3 G2/3 A2/3 E2/3 F2/3 C3/3 G2/3 D3/3 C3/3 G2/3 E3/3 B2/3 "
           "F2/3 G2/3 C3/6"}}},
        {"Snowbound",
         240,
         {{Voice::Bell, 0.50,
           "A5/3 E5/1 C6/2 B5/2 A5/4 -/2 G5/2 F5/3 E5/1 D5/2 F5/2 E5/6 -/2 "
           "A5/3 E5/1 C6/2 E6/2 D6/4 C6/2 B5/2 A5/8"},
          {Voice::Strings, 0.32,
           "A3+C4+E4/8 F3+A3+C4/8 D4+F4/8 A3+E4/8 A3+C4+E4/8 G3+B3+D4/8 "
           "A3+C4+E4/8"},
          {Voice::Bass, 0.30, "A2/8 F2/8 D2/8 E2/8 A2/8 G2/8 A2/8"}}},
        {"The Road East",
         220,
         {{Voice::Flute, 0.50,
           "G4/1 A4/1 B4/2 D5/2 E5/3 D5/1 B4/2 A4/1 G4/1 A4/6 -/2 "
           "B4/1 C5/1 D5/2 G5/2 F#5/3 E5/1 D5/2 E5/1 C5/1 D5/6 -/2 "
           "E5/2 D5/1 B4/1 C5/2 A4/2 B4/1 A4/1 G4/6"},
          {Voice::Harp, 0.40,
           "G3/1 D4/1 G4/1 D4/1 C4/1 E4/1 G4/1 E4/1 G3/1 D4/1 G4/1 D4/1 D3/1 A3/1 F#4/1 A3/1 "
           "G3/1 D4/1 G4/1 D4/1 D3/1 A3/1 D4/1 A3/1 C4/1 E4/1 G4/1 E4/1 D3/1 A3/1 F#4/1 A3/1 "
           "C4/1 G4/1 E4/1 G4/1 A3/1 E4/1 C4/1 E4/1 D3/1 A3/1 F#4/1 A3/1 G3/4"},
          {Voice::Bass, 0.35, "G2/4 C3/4 G2/4 D3/4 G2/4 D3/4 C3/4 D3/4 C3/4 A2/4 D3/4 G2/4"}}},
        {"Campfire",
         240,
         {{Voice::Harp, 0.60,
           "A4/1 D5/1 F5/2 E5/1 D5/1 C5/2 A4/4 -/1 A4/1 D5/1 F5/1 G5/2 F5/1 E5/1 D5/2 C5/2 "
           "D5/6 -/2 F5/2 E5/1 C5/1 D5/2 A4/2 G4/1 A4/1 C5/1 E5/1 D5/4"},
          {Voice::Strings, 0.22,
           "D4+F4/8 A3+C4/4 D4+F4/4 G3+Bb3/4 A3+E4/4 D4+F4/8 F3+A3/4 "
           "D4+F4/4 C4+E4/4 D4+F4/4"},
          {Voice::Drum, 0.18,
           "D3/2 D3/1 D3/1 D3/2 D3/2 D3/2 D3/1 D3/1 D3/2 D3/2 D3/2 D3/1 D3/1 "
           "D3/2 D3/2 D3/2 D3/1 D3/1 D3/2 D3/2 D3/4"}}},
        {"Clockwork Waltz",
         200,
         {{Voice::Bell, 0.45,
           "E5/2 G#5/1 B5/3 A5/2 F#5/1 B5/3 G#5/2 E5/1 C#5/2 E5/1 F#5/3 B4/3 "
           "E5/2 G#5/1 B5/3 C#6/2 A5/1 F#5/3 B5/1 A5/1 G#5/1 F#5/2 D#5/1 E5/6"},
          {Voice::Harp, 0.30,
           "-/1 G#4/1 B4/1 -/1 G#4/1 B4/1 -/1 A4/1 C#5/1 -/1 A4/1 B4/1 -/1 G#4/1 B4/1 "
           "-/1 E4/1 G#4/1 -/1 A4/1 C#5/1 -/1 F#4/1 A4/1 -/1 G#4/1 B4/1 -/1 G#4/1 B4/1 "
           "-/1 A4/1 C#5/1 -/1 A4/1 C#5/1 -/1 G#4/1 B4/1 -/1 A4/1 B4/1 -/1 G#4/1 B4/1 E4/3"},
          {Voice::Bass, 0.40,
           "E3/3 E3/3 F#3/3 B2/3 E3/3 C#3/3 F#3/3 B2/3 E3/3 E3/3 A2/3 F#2/3 "
           "E3/3 B2/3 E3/3 E2/3"}}},
    };
    return all;
}

} // namespace sample
