// Lives through days of an author in which the editor is killed at random moments, until so many
// kills have come, and tells what every end has left.
//
// Usage: sudden_end_test PROGRAMS SAMPLE_GAME PLUGINS DOCUMENTS RECORD [KILLS [SEED]]
// RECORD is that of a day without an accident, which author_day_test writes. The moments come from
// the seed. CMPED_FAILURE_PICTURE names the picture of the screen that is taken behind a failure.
#include "tests/desktop/failure.h"
#include "tests/desktop/interrupted_day.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <cstdio>

namespace {

constexpr int usualKills = 6;

void tell(const QString &line)
{
    std::printf("%s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

void tellFailure(const Failure &failure, const QString &where)
{
    tell("FAIL: " + where);
    tell("  expected: " + failure.expected);
    tell("  seen: " + failure.seen);
}

void tellFigures(const InterruptedDay::Figures &figures, int wanted, int days, qint64 milliseconds)
{
    tell(QString("%1 of %2 kills, days: %3, seconds: %4")
             .arg(QString::number(figures.kills), QString::number(wanted), QString::number(days),
                  QString::number(milliseconds / 1000)));
    const std::pair<const char *, int> rows[] = {
        {"all as before the step in hand", figures.unchanged},
        {"all as behind it", figures.accepted},
        {"each file and the copy one or the other", figures.between},
        {"hidden files of killed saves", figures.hidden},
        {"copies offered and opened", figures.opened},
        {"copies offered and refused", figures.refused},
        {"starts with nothing to offer, nobody asked", figures.unasked},
    };
    for (const auto &[words, count] : rows)
        tell(QString("%1  %2").arg(count, 5).arg(QLatin1String(words)));
}

// False if an end left something that it should not.
bool liveOneDay(const BuiltParts &parts, const DayRecord &record, int kills, unsigned seed,
                InterruptedDay::Figures &figures)
{
    Workplace place(parts);
    InterruptedDay day(place, record, randomMoments(record, kills, seed, place), figures, tell);
    try {
        day.live();
        return true;
    } catch (const Failure &failure) {
        tellFailure(failure, day.where());
        const QString picture =
            qEnvironmentVariable("CMPED_FAILURE_PICTURE", "sudden_end_failure.png");
        if (place.screen().savePicture(picture))
            tell("  picture: " + picture);
        tell("  the editor's last words:\n" + place.editor().log());
        return false;
    }
}

// A step is met by one end at a time, and on a day that goes by faster than the recorded one the
// last moments come too late. What hasn't come on one day comes on another.
bool liveThrough(const BuiltParts &parts, const DayRecord &record, int kills, unsigned seed)
{
    QElapsedTimer timer;
    timer.start();
    InterruptedDay::Figures figures;
    bool whole = true;
    int days = 0;
    for (; whole && figures.kills < kills && days < kills; ++days)
        whole = liveOneDay(parts, record, kills - figures.kills, seed + unsigned(days), figures);
    tellFigures(figures, kills, days, timer.elapsed());
    const bool enough = figures.kills >= kills;
    if (whole && !enough)
        tell("FAIL: too few kills");
    return whole && enough;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int kills = arguments.size() > 6 ? arguments[6].toInt() : usualKills;
    const unsigned seed = arguments.size() > 7 ? arguments[7].toUInt() : 1;
    if (arguments.size() < 6 || arguments.size() > 8 || kills < 1) {
        tell("Usage: sudden_end_test PROGRAMS SAMPLE_GAME PLUGINS DOCUMENTS RECORD [KILLS [SEED]]");
        return 2;
    }
    try {
        const DayRecord record = readRecord(arguments[5]);
        const BuiltParts parts{arguments[1], arguments[2], arguments[3], arguments[4]};
        return liveThrough(parts, record, kills, seed) ? 0 : 1;
    } catch (const Failure &failure) {
        tellFailure(failure, "a place to work");
        return 1;
    }
}
