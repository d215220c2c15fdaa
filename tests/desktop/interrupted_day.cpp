#include "tests/desktop/interrupted_day.h"

#include "tests/desktop/controls.h"
#include "tests/desktop/failure.h"
#include "tests/desktop/windows.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <random>
#include <tuple>

namespace {

const QString title = QStringLiteral(" - Eldmark Saga Campaign Editor");

// What the file holds, or that there is none.
QByteArray contentIn(const DiskState &state, const QString &name)
{
    return state.files.value(name, "none");
}

std::chrono::microseconds microseconds(double milliseconds)
{
    return std::chrono::microseconds(qRound64(milliseconds * 1000));
}

// One in each of as many equal parts of the day, somewhere in it.
std::vector<Moment> momentsOfTheDay(const DayRecord &record, int count, std::mt19937 &source)
{
    double day = 0; // milliseconds
    for (const DayEntry &entry : record)
        day += entry.milliseconds;
    std::uniform_real_distribution<double> somewhere(0, 1);
    std::vector<Moment> moments;
    int step = 0;
    double begin = 0; // of the step
    for (int i = 0; i < count; ++i) {
        const double time = day * (i + somewhere(source)) / count;
        while (step + 1 < record.size() && time >= begin + record[step].milliseconds)
            begin += record[step++].milliseconds;
        moments.push_back({step, microseconds(time - begin), {}});
    }
    return moments;
}

// As many at each step that changes something on the disk, which takes some milliseconds.
std::vector<Moment> momentsAtChanges(const DayRecord &record, int count, std::mt19937 &source,
                                     const QStringList &folders)
{
    std::vector<int> steps;
    for (int step = 1; step < record.size(); ++step) {
        if (!(record[step].disk == record[step - 1].disk))
            steps.push_back(step);
    }
    std::uniform_real_distribution<double> soon(0, 3); // milliseconds
    std::vector<Moment> moments;
    for (int i = 0; i < count && !steps.empty(); ++i) {
        const int step = steps[steps.size() * std::size_t(i) / std::size_t(count)];
        moments.push_back({step, microseconds(soon(source)), folders});
    }
    return moments;
}

} // namespace

std::vector<Moment> randomMoments(const DayRecord &record, int count, unsigned seed,
                                  const Workplace &place)
{
    std::mt19937 source(seed);
    std::vector<Moment> moments = momentsOfTheDay(record, count - count / 2, source);
    const std::vector<Moment> atChanges =
        momentsAtChanges(record, count / 2, source, {place.file({}), place.recoveryFolder()});
    moments.insert(moments.end(), atChanges.begin(), atChanges.end());
    std::sort(moments.begin(), moments.end(), [](const Moment &a, const Moment &b) {
        const bool laterA = !a.folders.isEmpty();
        const bool laterB = !b.folders.isEmpty();
        return std::tie(a.step, laterA, a.delay) < std::tie(b.step, laterB, b.delay);
    });
    return moments;
}

InterruptedDay::InterruptedDay(Workplace &place, const DayRecord &record, std::vector<Moment> ends,
                               Figures &figures, std::function<void(const QString &)> tell)
    : m_place(place), m_record(record), m_moments(std::move(ends)), m_tell(std::move(tell)),
      m_figures(figures)
{
    bool fits = std::size_t(record.size()) == m_steps.size();
    for (std::size_t i = 0; fits && i < m_steps.size(); ++i)
        fits = record[int(i)].step == QString::fromUtf8(m_steps[i].name);
    if (!fits)
        throw Failure("the record of this day", "that of another one");
}

void InterruptedDay::live()
{
    while (std::size_t(m_step) < m_steps.size())
        liveStep();
    m_end.reset();
    checkEvening();
}

QString InterruptedDay::where() const
{
    return std::size_t(m_step) < m_steps.size()
               ? QString::fromUtf8(m_steps[std::size_t(m_step)].name)
               : QStringLiteral("the evening");
}

void InterruptedDay::liveStep()
{
    if (!m_end && m_next < m_moments.size() && m_moments[m_next].step <= m_step)
        m_end = std::make_unique<SuddenEnd>(m_place.editor(), m_moments[m_next]);
    std::exception_ptr failure;
    try {
        m_steps[std::size_t(m_step)].act(m_place);
    } catch (const Failure &) {
        failure = std::current_exception();
    }
    const bool came = m_end && m_end->hasCome();
    if (came)
        m_end.reset();
    if (came && m_place.editor().wasKilled()) {
        ++m_next;
        m_step = goOnBehind(!failure);
    } else if (failure) {
        std::rethrow_exception(failure);
    } else {
        ++m_step;
    }
}

// Looks at what an end has left, starts the editor anew, and answers with which step to go on.
int InterruptedDay::goOnBehind(bool finished)
{
    const DiskState now = stateOf(m_place);
    check(now, finished);
    count(now);
    const int next = stepToGoOnWith(now);
    if (now.copy.isEmpty() && m_figures.kills % 2 == 0)
        checkThatNobodyIsAsked();
    if (!now.copy.isEmpty() && m_figures.kills % 2 == 0)
        refuse(now);
    startFor(next, now);
    return next;
}

void InterruptedDay::check(const DiskState &now, bool finished) const
{
    const DiskState &before = behind(m_step - 1).disk;
    const DiskState &after = behind(m_step).disk;
    QStringList names = before.files.keys();
    names += after.files.keys();
    names += now.files.keys();
    names.removeDuplicates();
    for (const QString &name : qAsConst(names)) {
        const QByteArray content = contentIn(now, name);
        if (content != contentIn(before, name) && content != contentIn(after, name))
            throw Failure(name + " is the old one or the new one", content);
    }
    if (now.copy != before.copy && now.copy != after.copy)
        throw Failure("the copy is the last one or the next one", now.copy);
    if (now.copy.isEmpty() && !before.copy.isEmpty() && now.files != after.files)
        throw Failure("the copy stays until the document is saved", "there is none");
    if (finished && !(now == after))
        throw Failure("what a finished step has left", "something else");
}

void InterruptedDay::count(const DiskState &now)
{
    const bool unchanged = now == behind(m_step - 1).disk;
    const bool accepted = !unchanged && now == behind(m_step).disk;
    ++m_figures.kills;
    ++(unchanged ? m_figures.unchanged : accepted ? m_figures.accepted : m_figures.between);
    m_tell(QString("kill %1: %2 (%3)")
               .arg(QString::number(m_figures.kills), where(),
                    unchanged  ? "as before it"
                    : accepted ? "as behind it"
                               : "between"));
    const QDir campaigns(m_place.file({}));
    m_figures.hidden += campaigns.entryList({".*"}, QDir::Files | QDir::Hidden).size();
}

// Behind a step that has brought about what it had to; otherwise at the last one that begins with
// nothing but the document.
int InterruptedDay::stepToGoOnWith(const DiskState &now) const
{
    const DayEntry &before = behind(m_step - 1);
    const DayEntry &after = behind(m_step);
    const bool written = now.files == after.disk.files && now.files != before.disk.files;
    const bool changed = now == after.disk && !(now == before.disk);
    if ((written || changed) && after.canGoOn())
        return m_step + 1;
    int step = m_step;
    while (!behind(step - 1).canGoOn())
        --step;
    return step;
}

// Starts the editor with the document that the step needs.
void InterruptedDay::startFor(int step, const DiskState &now)
{
    const DayEntry &last = behind(step - 1);
    if (!now.copy.isEmpty())
        openCopy(now);
    if (!now.copy.isEmpty() && last.disk.copy.isEmpty()) {
        // The file is written already, and the copy of the same is all that the end has left.
        m_place.editor().kill();
        m_place.editor().launch();
        answerOffer(now, "No");
        m_place.editor().kill();
    }
    if (last.window.isEmpty() || m_place.editor().isRunning())
        return;
    m_place.editor().start({m_place.file(last.document)});
    waitForTitle(m_place.editor(), last.document + title);
}

// The copy is asked about in one question, and then no more; it stays, to be opened by hand.
void InterruptedDay::refuse(const DiskState &now)
{
    Editor &editor = m_place.editor();
    const QString path = copyPath();
    const QString offered = path.chopped(4) + ".offered.e3c";
    editor.launch();
    answerOffer(now, "No");
    waitForTitle(editor, "Untitled.e3c" + title);
    if (!QFile::exists(offered) || QFile::exists(path))
        throw Failure("the refused copy stays", "it is gone");
    editor.kill();
    checkThatNobodyIsAsked();
    // Asked again, the author changes the answer.
    if (!QFile::rename(offered, path) || !(stateOf(m_place) == now))
        throw Failure("the refused copy is what it was", "another one");
    ++m_figures.refused;
}

void InterruptedDay::openCopy(const DiskState &now)
{
    m_place.editor().launch();
    answerOffer(now, "Yes");
    const QString document = documentIn(now);
    const bool untitled = document == QLatin1String("Untitled.e3c");
    waitForTitle(m_place.editor(), document + (untitled ? "" : "*") + title);
    if (!(stateOf(m_place) == now))
        throw Failure("the opened copy stays until its document is saved", "something else");
    ++m_figures.opened;
}

void InterruptedDay::answerOffer(const DiskState &now, const QString &button)
{
    const QDateTime time = QFileInfo(copyPath()).lastModified();
    answerBox(m_place.editor(),
              QString("Changes to %1 were not saved. Open the copy kept on %2?")
                  .arg(documentIn(now).section(".e3c", 0, 0), time.toString("yyyy-MM-dd HH:mm")),
              button, "MainWindow");
}

// A menu opens only if no question stands in front of it.
void InterruptedDay::checkThatNobodyIsAsked()
{
    Editor &editor = m_place.editor();
    editor.start();
    openMenu(editor, "File");
    waitForTitle(editor, "Untitled.e3c" + title);
    editor.kill();
    ++m_figures.unasked;
}

void InterruptedDay::checkEvening() const
{
    if (!(stateOf(m_place) == behind(m_step - 1).disk))
        throw Failure("what every day leaves", "something else");
}

// Which the copy is of.
QString InterruptedDay::documentIn(const DiskState &now) const
{
    const DayEntry &before = behind(m_step - 1);
    return now.copy == before.disk.copy ? before.document : behind(m_step).document;
}

// Of the copy that can be offered.
QString InterruptedDay::copyPath() const
{
    const auto copies = QDir(m_place.recoveryFolder()).entryInfoList({"*.e3c"}, QDir::Files);
    for (const QFileInfo &copy : copies) {
        if (copy.size() > 0 && !copy.fileName().endsWith(".offered.e3c"))
            return copy.filePath();
    }
    throw Failure("a copy of the document", "none");
}

const DayEntry &InterruptedDay::behind(int step) const
{
    return step < 0 ? m_morning : m_record[step];
}
