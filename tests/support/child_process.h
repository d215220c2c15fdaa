// Runs a program of the build as a child and tells how it ended.
#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

struct ChildResult
{
    bool started = false;
    bool exitedNormally = false; // not by a signal
    int exitCode = -1;
    QByteArray output;
    QByteArray error;
    qint64 peakKilobytes = 0; // largest resident size of any child so far
    qint64 milliseconds = 0;
};

// A program of the build's bin folder (CMPED_BIN) by its file name, or any other by its path.
QString builtProgram(const QString &name);

ChildResult runChild(
    const QString &program, const QStringList &arguments,
    const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment(),
    int timeoutMilliseconds = 240000);

// Whether a process answers a signal itself, as the kernel tells.
bool catches(qint64 process, int signal);

// The sample game's folder (CMPED_SAMPLE_GAME).
QString sampleGame();
