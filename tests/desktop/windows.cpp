#include "tests/desktop/windows.h"

#include "tests/desktop/controls.h"
#include "tests/desktop/ready_controls.h"

namespace {

// A list of completions, which comes whenever the folder has been read, takes a Return for itself.
void acceptFileDialog(Editor &editor)
{
    constexpr int tries = 5;
    for (int i = 0; i < tries && editor.look({})["window"] == "QFileDialog"; ++i)
        editor.press("Return");
}

} // namespace

void waitForWindow(Editor &editor, const QString &name)
{
    editor.waitFor({}, name + " takes the input", [&](const QJsonObject &seen) {
        return seen["window"] == name && seen["active"].toBool() && seen["popup"] == QString();
    });
}

void waitForTitle(Editor &editor, const QString &title)
{
    editor.waitFor({}, "the title is " + title,
                   [&](const QJsonObject &seen) { return seen["title"] == title; });
}

void openMenu(Editor &editor, const QString &menu)
{
    const QJsonObject bar = readyEntry(editor, {{"object", "menuBar"}, {"item", menu}});
    editor.click(place(entryOf(bar)["point"]));
    editor.waitFor({}, "the menu " + menu,
                   [&](const QJsonObject &seen) { return seen["popup"] == "menu" + menu; });
}

void chooseFromMenu(Editor &editor, const QString &menu, const QString &entry)
{
    openMenu(editor, menu);
    chooseFromOpenMenu(editor, "menu" + menu, entry);
}

void chooseFromOpenMenu(Editor &editor, const QString &menu, const QString &entry)
{
    const QJsonObject seen =
        editor.waitFor({{"object", menu}, {"item", entry}}, "the menu offers: " + entry,
                       [&](const QJsonObject &now) {
                           return now["popup"] == menu && entryOf(now)["enabled"].toBool();
                       });
    editor.click(place(entryOf(seen)["point"]));
}

void answer(Editor &editor, const QString &button, const QString &windowAfter)
{
    const QString row =
        editor.look({})["window"] == "QMessageBox" ? "qt_msgbox_buttonbox" : "buttonBox";
    const QJsonObject seen = readyEntry(editor, {{"object", row}, {"item", button}});
    editor.click(place(entryOf(seen)["point"]));
    waitForWindow(editor, windowAfter);
}

void answerBox(Editor &editor, const QString &text, const QString &button,
               const QString &windowAfter)
{
    waitForWindow(editor, "QMessageBox");
    waitForText(editor, "qt_msgbox_label", text);
    answer(editor, button, windowAfter);
}

void answerFileDialog(Editor &editor, const QString &path, const QString &windowAfter)
{
    waitForWindow(editor, "QFileDialog");
    typeInto(editor, "fileNameEdit", path);
    acceptFileDialog(editor);
    waitForWindow(editor, windowAfter);
}
