// Lives through an author's day with the real launcher, step by step; ends at the first step that
// goes wrong, with a picture of the screen.
//
// Usage: author_day_test PROGRAMS SAMPLE_GAME PLUGINS DOCUMENTS [RECORD]
// RECORD is a file for what the day leaves behind each step; see day_record.h.
// CMPED_FAILURE_PICTURE names the picture; without it, it stands in the current folder.
#include "tests/desktop/author_day.h"
#include "tests/desktop/day_record.h"
#include "tests/desktop/failure.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <cstdio>

namespace {

void tell(const QString &line)
{
    std::printf("%s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

void tellFailure(const Failure &failure, const char *step)
{
    tell("FAIL: " + QString::fromUtf8(step));
    tell("  expected: " + failure.expected);
    tell("  seen: " + failure.seen);
}

void takePicture(Workplace &place)
{
    const QString path = qEnvironmentVariable("CMPED_FAILURE_PICTURE", "author_day_failure.png");
    if (place.screen().savePicture(path))
        tell("  picture: " + path);
}

bool liveThrough(Workplace &place, DayRecord &record)
{
    DayEntry last;
    for (const Step &step : authorsDay()) {
        QElapsedTimer timer;
        timer.start();
        try {
            step.act(place);
            last = entryBehind(step.name, int(timer.elapsed()), last, place);
            record.append(last);
        } catch (const Failure &failure) {
            tellFailure(failure, step.name);
            takePicture(place);
            tell("  the editor's last words:\n" + place.editor().log());
            return false;
        }
        tell(QString("PASS: %1 (%2 s)")
                 .arg(QString::fromUtf8(step.name),
                      QString::number(double(last.milliseconds) / 1000, 'f', 1)));
    }
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 5 || arguments.size() > 6) {
        tell("Usage: author_day_test PROGRAMS SAMPLE_GAME PLUGINS DOCUMENTS [RECORD]");
        return 2;
    }
    try {
        Workplace place({arguments[1], arguments[2], arguments[3], arguments[4]});
        DayRecord record;
        if (!liveThrough(place, record))
            return 1;
        if (arguments.size() == 6)
            writeRecord(record, arguments[5]);
        return 0;
    } catch (const Failure &failure) {
        tellFailure(failure, "a place to work");
        return 1;
    }
}
