// Takes the place of message boxes and of the process's end while a test runs.
#pragma once

#include "gamedata/report.h"

#include <QString>
#include <QVector>

#include <functional>

// What takes the place of the end of the process: thrown out of the code under test.
struct ProcessEnd
{
    int code = 0;
};

struct RecordedError
{
    QString title;
    QString text;
};

// Installs itself as the reporter for its lifetime. An end of the process becomes a ProcessEnd
// exception, which exitCodeOf or QVERIFY_EXCEPTION_THROWN(..., ProcessEnd) sees.
class ReportRecorder
{
public:
    ReportRecorder();
    ~ReportRecorder();
    ReportRecorder(const ReportRecorder &) = delete;
    ReportRecorder &operator=(const ReportRecorder &) = delete;

    QVector<RecordedError> errors;

private:
    Reporter m_before;
};

// The exit code with which the work ended the process, -1 if it came back. Wants a ReportRecorder
// to be there.
int exitCodeOf(const std::function<void()> &work);
