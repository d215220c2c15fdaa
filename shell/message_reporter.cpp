#include "shell/message_reporter.h"

#include "gamedata/report.h"
#include "shell/shown_text.h"

#include <QGuiApplication>
#include <QMessageBox>

#include <cstdlib>

namespace {

// A box under the hourglass of an interrupted load would look as if it couldn't be answered.
class PlainCursor
{
public:
    PlainCursor() : m_needed(QGuiApplication::overrideCursor() != nullptr)
    {
        if (m_needed)
            QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    ~PlainCursor()
    {
        if (m_needed)
            QGuiApplication::restoreOverrideCursor();
    }
    PlainCursor(const PlainCursor &) = delete;
    PlainCursor &operator=(const PlainCursor &) = delete;

private:
    const bool m_needed;
};

void showCriticalBox(const QString &title, const QString &text)
{
    const PlainCursor cursor;
    QMessageBox box(QMessageBox::Critical, title, forMessage(text));
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

} // namespace

void reportWithMessageBoxes()
{
    setReporter({showCriticalBox, [](int code) { std::exit(code); }});
}
