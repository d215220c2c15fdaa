// Keeps what the writers of the command line put out, in the place of standard output.
#pragma once

#include <QByteArray>

// There is one at a time; all output while it lives is its own.
class RecordedOutput
{
public:
    RecordedOutput();
    ~RecordedOutput();
    RecordedOutput(const RecordedOutput &) = delete;
    RecordedOutput &operator=(const RecordedOutput &) = delete;

    QByteArray bytes() const;
};
