// The faults that each call of a save gets in turn, and what each call means to the save.
#pragma once

#include "tests/saving/fault_injector.h"

#include <QString>

#include <array>
#include <cerrno>
#include <string>
#include <vector>

struct CallFault
{
    const char *name;
    FaultKind kind;
    int error;
    const char *words; // null: the save goes well

    bool isPassing() const { return words == nullptr; }
};

// An interrupted call is to be made again, and half a count to be followed by the rest.
constexpr std::array<CallFault, 5> callFaults{{
    {"ENOSPC", FaultKind::Error, ENOSPC, "No space left on device"},
    {"EIO", FaultKind::Error, EIO, "Input/output error"},
    {"EDQUOT", FaultKind::Error, EDQUOT, "Disk quota exceeded"},
    {"EINTR", FaultKind::Error, EINTR, nullptr},
    {"half", FaultKind::Half, 0, nullptr},
}};

// Half a count means something only to calls that count.
inline bool concerns(const CallFault &fault, const std::string &call)
{
    return fault.kind != FaultKind::Half || call == "pread" || call == "pwrite" || call == "read" ||
           call == "write";
}

enum class Duty
{
    Unknown,
    Needed,   // without it nothing can be promised: the save fails
    Harmless, // the file is whole without it
    Either    // there is more than one of it
};

struct CallDuty
{
    const char *call;
    Duty duty;
};

// "open" and "fstat" are on the file that is written, on one that a killed process left, and on the
// folder.
constexpr std::array<CallDuty, 24> callDuties{{
    {"readlink", Duty::Needed},       {"stat", Duty::Needed},
    {"faccessat", Duty::Either}, // may the file be written; may a file without a name get one
    {"pread", Duty::Needed},          {"pwrite", Duty::Needed},
    {"ftruncate", Duty::Needed},      {"fchmod", Duty::Needed},
    {"fsync", Duty::Needed},          {"linkat", Duty::Needed},
    {"rename", Duty::Needed},         {"open", Duty::Either},
    {"fstat", Duty::Either},          {"fstat folder", Duty::Harmless},
    {"opendir", Duty::Harmless},      {"readdir", Duty::Harmless},
    {"closedir", Duty::Harmless},     {"flock", Duty::Harmless},
    {"fsync folder", Duty::Harmless}, {"close", Duty::Harmless},
    {"close folder", Duty::Harmless}, {"fchown", Duty::Harmless},
    {"unlink", Duty::Harmless}, // of what a killed process left
    {"getxattr", Duty::Needed},       {"fremovexattr", Duty::Needed},
}};

inline Duty dutyOf(const std::string &call)
{
    for (const CallDuty &known : callDuties) {
        if (call == known.call)
            return known.duty;
    }
    return Duty::Unknown;
}

// Behind the closing of a file that was seen off to the disk nothing can be lost any more. The
// window looks at the file then, for its list of recent ones.
inline bool isAfterwards(const std::vector<std::string> &calls, std::size_t index)
{
    bool synced = false;
    for (std::size_t i = 0; i < index; ++i) {
        synced = synced || calls[i] == "fsync";
        if (synced && (calls[i] == "close" || calls[i] == "close folder"))
            return true;
    }
    return false;
}

// What is wrong with a save's answer to a fault in one of its calls, counted from 1 on; nothing if
// it is as it should be.
inline QString wrongAnswer(const std::vector<std::string> &calls, int call, const CallFault &fault,
                           bool saved)
{
    const std::size_t index = std::size_t(call) - 1;
    const Duty duty = isAfterwards(calls, index) ? Duty::Harmless : dutyOf(calls[index]);
    if (duty == Duty::Unknown)
        return QStringLiteral("a call that nobody has thought of");
    if (!saved && (fault.isPassing() || duty == Duty::Harmless))
        return QStringLiteral("the save failed");
    if (saved && !fault.isPassing() && duty == Duty::Needed)
        return QStringLiteral("the save went on");
    return {};
}
