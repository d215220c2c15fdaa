#include "gamedata/report.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace {

void writeToStandardError(const QString &title, const QString &text)
{
    const QByteArray line = (title + QLatin1String(": ") + text).toLocal8Bit();
    std::fprintf(stderr, "%s\n", line.constData());
}

Reporter &currentReporter()
{
    static Reporter reporter{writeToStandardError, [](int code) { std::exit(code); }};
    return reporter;
}

} // namespace

Reporter setReporter(Reporter reporter)
{
    return std::exchange(currentReporter(), std::move(reporter));
}

void reportError(const QString &title, const QString &text)
{
    currentReporter().showError(title, text);
}

void endWithMessage(const QString &text)
{
    reportError(errorTitle(), text);
    endSilently(1);
}

void endSilently(int code)
{
    currentReporter().leave(code);
    std::abort(); // a reporter that comes back here has broken its promise
}

QString errorTitle()
{
    return mainWindowText(QT_TRANSLATE_NOOP("MainWindow", "Error"));
}

QString mainWindowText(const char *source)
{
    return QCoreApplication::translate("MainWindow", source);
}
