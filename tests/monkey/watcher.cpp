#include "tests/monkey/watcher.h"

#include "campaign_dialogs/convert_campaign.h"
#include "campaign_dialogs/edit_campaign.h"
#include "gamedata/editor_data.h"
#include "scenario/scenario_info.h"
#include "tests/monkey/checks.h"
#include "tests/monkey/stored_campaign.h"
#include "tests/monkey/window_state.h"

#include <QApplication>
#include <QByteArray>
#include <QDialog>

namespace {

// One that gives its document back changed or leaves it alone.
bool editsDocument(const QDialog *dialog)
{
    return qobject_cast<const ScenarioInfo *>(dialog) ||
           qobject_cast<const EditCampaign *>(dialog) ||
           qobject_cast<const ConvertCampaign *>(dialog);
}

} // namespace

void Watcher::watch(MainWindow &window)
{
    m_window = &window;
    m_lookIsDue = true;
    m_mayDifferFromFile = false;
    m_outcome = Outcome::None;
    m_words.clear();
}

void Watcher::look(QWidget *front)
{
    if (auto *dialog = qobject_cast<QDialog *>(front)) {
        m_lookIsDue = true;
        lookAtDialog(dialog);
    } else if (front == m_window) {
        failIf(faultOfCampaign(documentOf(*m_window)));
        failIf(faultOfWindow(*m_window));
        if (m_lookIsDue)
            lookAtDocument();
        m_lookIsDue = false;
    }
}

void Watcher::lookAtDialog(QDialog *dialog)
{
    const QCursor *cursor = QApplication::overrideCursor();
    if (cursor && cursor->shape() == Qt::WaitCursor)
        failIf(QStringLiteral("a dialog stands under the cursor that says to wait"));
    if (auto *scenarios = qobject_cast<ScenarioInfo *>(dialog))
        failIf(faultOfScenarioDialog(*scenarios));
    if (dialog == m_editor || !editsDocument(dialog))
        return;
    m_editor = dialog;
    m_outcome = Outcome::None;
    // One gesture may have answered another dialog and then opened this one.
    m_words = storedWords(documentOf(*m_window));
    QObject::connect(dialog, &QDialog::finished, dialog, [this](int result) {
        m_outcome = result == QDialog::Accepted ? Outcome::Accepted : Outcome::Rejected;
    });
}

void Watcher::lookAtDocument()
{
    const QByteArray words = storedWords(documentOf(*m_window));
    judgeDialog(words);
    if (!EditorData::info.modified && !fileOf(*m_window).isEmpty())
        compareWithFile(words);
    m_words = words;
}

// No other such dialog was open since the last look.
void Watcher::judgeDialog(const QByteArray &words)
{
    const Outcome outcome = m_outcome;
    m_outcome = Outcome::None;
    if (outcome == Outcome::None || m_words.isEmpty() || words == m_words)
        return;
    const QString difference = firstDifference(m_words, words);
    if (outcome == Outcome::Rejected)
        failIf(QStringLiteral("a dialog that was rejected changed the document: ") + difference);
    if (!EditorData::info.modified)
        failIf(QStringLiteral("a change isn't marked: ") + difference);
}

void Watcher::compareWithFile(const QByteArray &words)
{
    const QByteArray stored = storedWordsOfFile(fileOf(*m_window));
    if (words == stored)
        m_mayDifferFromFile = false;
    else if (stored.isEmpty())
        failIf(QStringLiteral("the document's file can't be read: ") + fileOf(*m_window));
    else if (!m_mayDifferFromFile)
        failIf(QStringLiteral("the document differs from its file: ") +
               firstDifference(words, stored));
}

void Watcher::failIf(const QString &fault) const
{
    if (!fault.isEmpty())
        m_journal.fault(fault);
}
