#include "tests/monkey/journal.h"

#include <cstdio>
#include <cstdlib>

namespace {

void writeLine(const QString &line)
{
    std::puts(line.toUtf8().constData());
    std::fflush(stdout); // a crash must not take the last steps with it
}

} // namespace

void Journal::step(const QString &what)
{
    ++m_steps;
    writeLine(QStringLiteral("step %1 %2").arg(QString::number(m_steps), what));
}

void Journal::visit(const char *kind, const QString &name)
{
    ++m_visits[{QString::fromLatin1(kind), name}];
}

int Journal::visits(const char *kind, const QString &name) const
{
    return m_visits.value({QString::fromLatin1(kind), name});
}

void Journal::writeVisits() const
{
    for (auto visit = m_visits.begin(); visit != m_visits.end(); ++visit) {
        writeLine(QStringLiteral("visits\t%1\t%2\t%3")
                      .arg(QString::number(visit.value()), visit.key().first, visit.key().second));
    }
}

void Journal::fault(const QString &text) const
{
    writeLine(QStringLiteral("fault: ") + text);
    writeVisits();
    std::_Exit(monkeyFoundFault); // what is wrong in memory must not be hidden by a crash behind it
}
