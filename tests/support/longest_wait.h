// How long a test waits for something that has to come: long enough for a machine that is busy with
// other things. Qt's own five seconds are not.
#pragma once

constexpr int longestWait = 30000; // milliseconds
