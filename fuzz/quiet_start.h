// What every target does once before its first input.
#pragma once

// Made once, as a static of the target. From then on messages of the readers go nowhere, and an end
// of the process is a fault of the target: the readers under test must come back with an answer.
class QuietStart
{
public:
    explicit QuietStart(void (*fillTables)() = nullptr);
};

// Tables of a small game without its files: the widths of a campaign's bit arrays, three campaign
// maps of which 24 has three regions, some heroes.
void fillSmallTables();
