#include "tests/desktop/controls.h"

#include "tests/desktop/ready_controls.h"

#include <QJsonArray>

namespace {

constexpr QPoint corner(2, 2); // of the screen, where nothing is

// Turns the wheel until the entry is on show. One turn at a time: how far it goes isn't known.
QJsonObject bringIntoView(Editor &editor, const QJsonObject &question)
{
    constexpr int wheelUp = 4;
    constexpr int wheelDown = 5;
    QJsonObject seen = readyEntry(editor, question);
    while (const int side = entryOf(seen)["side"].toInt()) {
        const QJsonValue before = entryOf(seen)["point"];
        editor.click(place(seen["point"]), side < 0 ? wheelUp : wheelDown);
        seen = editor.waitFor(question, "the wheel scrolls the list", [&](const QJsonObject &now) {
            return entryOf(now)["point"] != before;
        });
    }
    return seen;
}

void selectEntry(Editor &editor, const QJsonObject &question)
{
    const QJsonObject seen = bringIntoView(editor, question);
    editor.click(place(entryOf(seen)["point"]));
    editor.waitFor(question, "the entry is selected",
                   [](const QJsonObject &now) { return entryOf(now)["current"].toBool(); });
}

void waitForFocus(Editor &editor, const QString &control)
{
    editor.waitFor({{"object", control}}, control + " takes the keys",
                   [](const QJsonObject &seen) { return isReady(seen) && seen["focus"].toBool(); });
}

// Walks to the entry of an open list by keys: where the mouse stands must not matter.
void walkTo(Editor &editor, const QJsonObject &question)
{
    const QString box = question["object"].toString();
    for (;;) {
        const QJsonObject seen = editor.waitFor(
            question, box + " shows its list with the entry",
            [](const QJsonObject &now) { return now["open"].toBool() && now.contains("item"); });
        const int from = seen["current"].toInt();
        const int way = entryOf(seen)["row"].toInt() - from;
        if (way == 0)
            return;
        editor.screen().press(way > 0 ? "Down" : "Up", qAbs(way));
        editor.waitFor(question, "keys walk through the list of " + box,
                       [from](const QJsonObject &now) { return now["current"] != from; });
    }
}

} // namespace

void waitForText(Editor &editor, const QString &control, const QString &text)
{
    editor.waitFor(
        {{"object", control}}, control + " shows: " + text,
        [&](const QJsonObject &seen) { return seen["found"] == 1 && seen["text"] == text; });
}

void waitForEntries(Editor &editor, const QString &control, const QStringList &entries)
{
    editor.waitFor({{"object", control}, {"items", true}},
                   control + " shows: " + entries.join(" / "), [&](const QJsonObject &seen) {
                       return seen["items"].toArray() == QJsonArray::fromStringList(entries);
                   });
}

void waitForTicks(Editor &editor, const QString &list, int count)
{
    editor.waitFor({{"object", list}}, QString("%1 has %2 ticks").arg(list, QString::number(count)),
                   [count](const QJsonObject &seen) { return seen["ticks"] == count; });
}

void waitUntilEnabled(Editor &editor, const QString &control, bool enabled)
{
    editor.waitFor({{"object", control}}, control + (enabled ? " can be used" : " is grey"),
                   [enabled](const QJsonObject &seen) {
                       return seen["found"] == 1 && seen["enabled"] == enabled;
                   });
}

void click(Editor &editor, const QString &control)
{
    editor.click(place(ready(editor, control)["point"]));
}

void setTick(Editor &editor, const QString &control, bool ticked)
{
    const QJsonObject seen = ready(editor, control);
    if (seen["checked"].toBool() != ticked)
        editor.click(place(seen["point"]));
    editor.waitFor({{"object", control}}, control + (ticked ? " is ticked" : " is not ticked"),
                   [ticked](const QJsonObject &now) { return now["checked"] == ticked; });
}

void typeInto(Editor &editor, const QString &control, const QString &text)
{
    click(editor, control);
    waitForFocus(editor, control);
    editor.screen().press("ctrl+a");
    editor.screen().type(text);
    waitForText(editor, control, text);
}

void choose(Editor &editor, const QString &comboBox, const QString &entry)
{
    const QJsonObject question{{"object", comboBox}, {"item", entry}};
    click(editor, comboBox);
    editor.waitFor(question, comboBox + " shows its list",
                   [](const QJsonObject &seen) { return seen["open"].toBool(); });
    editor.screen().moveMouse(corner);
    walkTo(editor, question);
    editor.screen().press("Return");
    editor.waitFor(question, comboBox + " shows: " + entry, [&](const QJsonObject &seen) {
        return !seen["open"].toBool() && isReady(seen) && seen["text"] == entry;
    });
}

void select(Editor &editor, const QString &list, const QString &entry)
{
    selectEntry(editor, {{"object", list}, {"item", entry}});
}

void selectRow(Editor &editor, const QString &list, int row)
{
    selectEntry(editor, {{"object", list}, {"row", row}});
}

void setEntryTick(Editor &editor, const QString &list, const QString &entry, bool ticked)
{
    const QJsonObject question{{"object", list}, {"item", entry}};
    const QJsonObject seen = bringIntoView(editor, question);
    if (entryOf(seen)["checked"].toBool() != ticked)
        editor.click(place(entryOf(seen)["tick"]));
    editor.waitFor(question, entry + (ticked ? " is ticked" : " is not ticked"),
                   [ticked](const QJsonObject &now) { return entryOf(now)["checked"] == ticked; });
}

void openTab(Editor &editor, const QString &tabs, const QString &tab)
{
    selectEntry(editor, {{"object", tabs}, {"item", tab}});
}

void clickRegion(Editor &editor, int region, int button, int times)
{
    const QJsonObject seen = readyEntry(editor, {{"object", "graphicsView"}, {"row", region}});
    editor.click(place(entryOf(seen)["point"]), button, times);
}

// It stands behind the hint.
void waitForRegion(Editor &editor, const QString &name)
{
    editor.waitFor(
        {{"object", "statusBar"}}, "the selected region is " + name,
        [&](const QJsonObject &seen) { return seen["text"].toString().endsWith(" | " + name); });
}
