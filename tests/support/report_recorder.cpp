#include "tests/support/report_recorder.h"

#include "gamedata/report.h"

struct ReportRecorder::Private
{
    Reporter before;
};

ReportRecorder::ReportRecorder()
    : d(new Private)
{
    d->before = setReporter(
        {[this](const QString &title, const QString &text) { errors.append({title, text}); },
         [](int code) { throw ProcessEnd{code}; }});
}

ReportRecorder::~ReportRecorder()
{
    setReporter(std::move(d->before));
    delete d;
}
