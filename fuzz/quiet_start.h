// What every target does once before its first input.
#pragma once

// Messages of the readers go nowhere, an end of the process is a fault of the target: the readers
// under test must come back with an answer.
void startQuietly();

// Tables of a small game without its files: the widths of a campaign's bit arrays, three campaign
// maps of which 24 has three regions, some heroes.
void fillSmallTables();
