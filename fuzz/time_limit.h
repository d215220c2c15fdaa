// How long one input may take.
#pragma once

// Ends the process, as a fault of the target, if more than a second of the processor's time passes
// in this object's life, or more than four in a build with sanitizers; a quarter of a second later
// at the latest. One timer ticks for all inputs, so that an input costs no call of the system. The
// fuzzer's own limit goes by the clock on the wall, which runs on while others have the processor;
// it is left to find what waits for ever.
class TimeLimit
{
public:
    TimeLimit();
    ~TimeLimit();
    TimeLimit(const TimeLimit &) = delete;
    TimeLimit &operator=(const TimeLimit &) = delete;
};
