#include "tests/support/report_recorder.h"

#include <utility>

ReportRecorder::ReportRecorder()
    : m_before(setReporter({[this](const QString &title, const QString &text) {
                                errors.append({title, text});
                            },
                            [](int code) { throw ProcessEnd{code}; }}))
{
}

ReportRecorder::~ReportRecorder()
{
    setReporter(std::move(m_before));
}

int exitCodeOf(const std::function<void()> &work)
{
    try {
        work();
    } catch (const ProcessEnd &end) {
        return end.code;
    }
    return -1;
}
