// What the monkey tells of its run, line by line on standard output, for the test that started it:
//
//   step NUMBER WHAT              before each step
//   visits COUNT KIND NAME        at the end, what was reached how often
//   fault: TEXT                   what is wrong; the process ends behind it
//
// Kinds are "window", "page", "control" and "action". Tabulators part the fields of a line of
// visits.
#pragma once

#include <QMap>
#include <QPair>
#include <QString>

// How a monkey's process ends.
enum MonkeyExit
{
    monkeyIsHome = 0, // its time was over
    monkeyFoundFault = 2,
    editorEnded = 3, // the editor ended the process, as it does where a game file is missing
};

class Journal
{
public:
    void step(const QString &what);
    int steps() const { return m_steps; }

    void visit(const char *kind, const QString &name);
    int visits(const char *kind, const QString &name) const;
    void writeVisits() const;

    [[noreturn]] void fault(const QString &text) const;

private:
    int m_steps = 0;
    QMap<QPair<QString, QString>, int> m_visits; // by kind and name
};
