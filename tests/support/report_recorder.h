// Takes the place of message boxes and of the process's end while a test runs.
#pragma once

#include <QString>
#include <QVector>

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
// exception, so `QVERIFY_EXCEPTION_THROWN(..., ProcessEnd)` or a try block sees it.
class ReportRecorder
{
public:
    ReportRecorder();
    ~ReportRecorder();
    ReportRecorder(const ReportRecorder &) = delete;
    ReportRecorder &operator=(const ReportRecorder &) = delete;

    QVector<RecordedError> errors;

private:
    struct Private;
    Private *d; // owned
};
