#include "tests/support/child_process.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>

#include <sys/resource.h>

QString builtProgram(const QString &name)
{
    return qEnvironmentVariable("CMPED_BIN") + QLatin1Char('/') + name;
}

QString sampleGame()
{
    return qEnvironmentVariable("CMPED_SAMPLE_GAME");
}

bool catches(qint64 process, int signal)
{
    QFile status(QStringLiteral("/proc/%1/status").arg(process));
    if (!status.open(QIODevice::ReadOnly))
        return false;
    const auto lines = status.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("SigCgt:"))
            return line.mid(7).trimmed().toULongLong(nullptr, 16) >> (signal - 1) & 1;
    }
    return false;
}

ChildResult runChild(const QString &program, const QStringList &arguments,
                     const QProcessEnvironment &environment, int timeoutMilliseconds)
{
    ChildResult result;
    QElapsedTimer clock;
    clock.start();
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments, QIODevice::ReadOnly);
    result.started = process.waitForStarted();
    if (!result.started)
        return result;
    const bool ended = process.waitForFinished(timeoutMilliseconds);
    result.milliseconds = clock.elapsed();
    if (!ended) {
        process.kill();
        process.waitForFinished();
        return result;
    }
    result.exitedNormally = process.exitStatus() == QProcess::NormalExit;
    result.exitCode = process.exitCode();
    result.output = process.readAllStandardOutput();
    result.error = process.readAllStandardError();
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    result.peakKilobytes = usage.ru_maxrss;
    return result;
}
