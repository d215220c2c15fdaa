// The one way in which the rooms without widgets speak to the user and end the process.
//
// The window answers with message boxes, the command line with standard error, tests with a
// recorder: each sets a Reporter once, at its start.
#pragma once

#include <QString>

#include <functional>

struct Reporter
{
    // Shows an error and returns when the user has seen it.
    std::function<void(const QString &title, const QString &text)> showError;
    // Leaves the process with this exit code. Must not return.
    std::function<void(int code)> leave;
};

// Replaces the reporter and returns the one before. The first one writes to standard error and
// calls std::exit.
Reporter setReporter(Reporter reporter);

// A critical message; the program goes on afterwards.
void reportError(const QString &title, const QString &text);

// A critical message titled "Error", then exit code 1. Used where a game file is missing that
// the program cannot do without.
[[noreturn]] void endWithMessage(const QString &text);

// Ends the process without a word.
[[noreturn]] void endSilently(int code);

// The translated title of every error message, "Error" in the context of the main window.
QString errorTitle();

// A text of the main window's translation context, for messages that rooms below it word. Wants
// QT_TRANSLATE_NOOP around its literal, by which the translators' tool finds it.
QString mainWindowText(const char *source);
