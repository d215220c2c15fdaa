// The author's day with an editor that is killed again and again.
//
// Behind each end the disk is held against the record of a day without any: every file is the one
// from before the step or the one from behind it, and so is the copy of the document. The author
// then starts anew, is asked about that copy and nothing else, and goes on with what it holds. So
// what an end takes away is the dialog that was open; and what the day leaves is what it always is.
#pragma once

#include "tests/desktop/author_day.h"
#include "tests/desktop/day_record.h"
#include "tests/desktop/sudden_end.h"

#include <functional>
#include <memory>

// So many of them in their order: half of them spread over the day, half where the editor has begun
// to change what is on the disk.
std::vector<Moment> randomMoments(const DayRecord &record, int count, unsigned seed,
                                  const Workplace &place);

class InterruptedDay
{
public:
    // Of all days that are given them.
    struct Figures
    {
        int kills = 0;
        int unchanged = 0; // ends that left everything as it was before the step
        int accepted = 0;  // those that left what stands behind the step
        int between = 0;   // some of it
        int opened = 0;    // copies, by Yes
        int refused = 0;   // copies, by No
        int unasked = 0;   // starts without a copy, which ask nothing
        int hidden = 0;    // files that a killed save left beside the others
    };

    // The record is that of the same steps. Every end is told in a line, and counted.
    InterruptedDay(Workplace &place, const DayRecord &record, std::vector<Moment> ends,
                   Figures &figures, std::function<void(const QString &)> tell);

    // Throws a Failure at whatever isn't as it has to be.
    void live();

    // The step in hand, in words.
    QString where() const;

private:
    void liveStep();
    int goOnBehind(bool finished);
    void check(const DiskState &now, bool finished) const;
    int stepToGoOnWith(const DiskState &now) const;
    void count(const DiskState &now);
    void startFor(int step, const DiskState &now);
    void refuse(const DiskState &now);
    void openCopy(const DiskState &now);
    void answerOffer(const DiskState &now, const QString &button);
    void checkThatNobodyIsAsked();
    void checkEvening() const;
    QString documentIn(const DiskState &now) const;
    QString copyPath() const;
    const DayEntry &behind(int step) const; // -1: before the day

    Workplace &m_place;
    const Steps m_steps = authorsDay();
    const DayRecord m_record;
    const std::vector<Moment> m_moments;
    const std::function<void(const QString &)> m_tell;
    const DayEntry m_morning;
    Figures &m_figures;
    std::unique_ptr<SuddenEnd> m_end;
    std::size_t m_next = 0; // of the moments
    int m_step = 0;
};
