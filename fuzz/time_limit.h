// How long one input may take.
#pragma once

// Ends the process, as a fault of the target, if a second of the processor's time passes in this
// object's life, or four in a build with sanitizers. The fuzzer's own limit goes by the clock on
// the wall, which runs on while others have the processor; it is left to find what waits for ever.
class TimeLimit
{
public:
    TimeLimit();
    ~TimeLimit();
    TimeLimit(const TimeLimit &) = delete;
    TimeLimit &operator=(const TimeLimit &) = delete;
};
