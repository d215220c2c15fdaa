// A start that reads the game's tables, and what it says if it can't.
#pragma once

#include "tests/gamedata/game_files.h"
#include "tests/support/report_recorder.h"

// What the start said before it ended with exit code 1; empty if it went through.
inline QString lastWordsOfStart()
{
    const ReportRecorder recorder;
    try {
        EditorData::OpenLods(0, game_files::codec());
    } catch (const ProcessEnd &end) {
        if (end.code != 1 || recorder.errors.size() != 1)
            return QStringLiteral("ended otherwise");
        return recorder.errors[0].title + QLatin1Char('|') + recorder.errors[0].text;
    }
    return QString();
}
