// Faults of the system at chosen calls on the files of one folder.
//
// While there is a fault to come, nobody waits for the disk: fsync only answers, since no process
// can see what it does.
//
// A library that stands before the C library. While faults are armed it counts the calls on the
// folder, on what is below it and on what was opened there, and lets one of them go wrong. A test
// links it and arms faults itself. In a program of its own it is preloaded (LD_PRELOAD) and told by
// the environment: CMPED_FAULT_FOLDER, CMPED_FAULT_CALL, CMPED_FAULT_KIND, CMPED_FAULT_ERROR and
// CMPED_FAULT_NAMELESS as in FaultPlan, numbers in digits, and CMPED_FAULT_LOG, a file that takes
// the names of the calls, a line each, when the program ends.
#pragma once

#include <string>
#include <vector>

enum class FaultKind
{
    None,
    Error,      // the call does nothing and fails
    Half,       // reads or writes half of its bytes; nothing else than other calls
    KillBefore, // ends the process in the place of the call
    KillAfter   // and after it
};

struct FaultPlan
{
    std::string folder; // absolute
    int call = 0;       // which of the calls, from 1 on
    FaultKind kind = FaultKind::None;
    int error = 0;        // of FaultKind::Error
    bool nameless = true; // the file system has files without a name
};

// Counts anew from here on.
void armFaults(const FaultPlan &plan);
// The calls since then, in order: the C library's name for each, with " folder" behind it if it
// went to an open folder.
std::vector<std::string> disarmFaults();
