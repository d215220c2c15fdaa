// What a user does with the controls of the editor's windows: one function for each kind.
//
// Controls go by their names as widgets, entries by their texts. Each function waits until it can
// be done, and until it shows.
#pragma once

#include "tests/desktop/editor.h"

#include <QStringList>

void waitForText(Editor &editor, const QString &control, const QString &text);
void waitForEntries(Editor &editor, const QString &control, const QStringList &entries);
void waitForTicks(Editor &editor, const QString &list, int count);
void waitUntilEnabled(Editor &editor, const QString &control, bool enabled);

void click(Editor &editor, const QString &control);
void setTick(Editor &editor, const QString &control, bool ticked); // a check box or a radio button
void typeInto(Editor &editor, const QString &control, const QString &text); // in place of the old
void choose(Editor &editor, const QString &comboBox, const QString &entry);

// Selects an entry of a list or table; sets the tick in front of one.
void select(Editor &editor, const QString &list, const QString &entry);
void selectRow(Editor &editor, const QString &list, int row);
void setEntryTick(Editor &editor, const QString &list, const QString &entry, bool ticked);

void openTab(Editor &editor, const QString &tabs, const QString &tab);
// The regions of the campaign map go by their numbers; the status bar tells the name of one.
void clickRegion(Editor &editor, int region, int button = 1, int times = 1);
void waitForRegion(Editor &editor, const QString &name);
