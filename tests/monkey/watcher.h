// Holds the document against its file, its marks and itself while the monkey plays.
#pragma once

#include "tests/monkey/journal.h"

#include <QByteArray>
#include <QPointer>
#include <QString>

class MainWindow;
class QDialog;
class QWidget;

class Watcher
{
public:
    explicit Watcher(const Journal &journal) : m_journal(journal) {}

    void watch(MainWindow &window);
    // Before each step. A fault ends the process.
    void look(QWidget *front);
    // A command was given that may have changed the document.
    void noteCommand() { m_lookIsDue = true; }
    // Texts and maps that a command brought in before it failed are in the document, unmarked:
    // the editor promises that.
    void noteExchange() { m_mayDifferFromFile = true; }

private:
    enum class Outcome
    {
        None,
        Accepted,
        Rejected
    };

    void lookAtDialog(QDialog *dialog);
    void lookAtDocument();
    void judgeDialog(const QByteArray &words);
    void compareWithFile(const QByteArray &words);
    void failIf(const QString &fault) const;

    const Journal &m_journal;
    MainWindow *m_window = nullptr;
    QPointer<QDialog> m_editor; // the dialog in work that changes the document or doesn't
    Outcome m_outcome = Outcome::None;
    bool m_lookIsDue = true;
    bool m_mayDifferFromFile = false;
    QByteArray m_words; // the document when last looked at
};
