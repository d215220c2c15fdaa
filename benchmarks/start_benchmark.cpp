// How long the editor takes from its start to its window, on a game whose archives hold 12,000
// entries and 300 MB, against an empty main window. Goal: at most 4 times.
//
// Usage: start_benchmark SAMPLE_GAME [RUNS]
// Runs on the platform that QT_QPA_PLATFORM names; under Xvfb the figures are those of a real
// window.
#include "tests/support/byte_writer.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

namespace {

constexpr int entryCount = 12000;
constexpr qint64 archiveBytes = qint64(300) * 1024 * 1024;

void copyFolder(const QString &from, const QString &to)
{
    QDir().mkpath(to);
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString source = files.next();
        const QString target = to + source.mid(from.size());
        QDir().mkpath(QFileInfo(target).path());
        QFile::copy(source, target);
    }
}

// An index of many names over a file full of holes: only the index is read at the start.
void writeLargeArchive(const QString &path)
{
    ByteWriter out;
    out.raw("LOD").u8(0).u32(200).i32(entryCount).zeros(80);
    const quint32 entrySize = quint32(archiveBytes / entryCount);
    for (int i = 0; i < entryCount; ++i) {
        const char *extension = i % 2 ? "pcx" : "def";
        out.name16(QByteArray("entry") + QByteArray::number(i) + '.' + extension);
        out.u32(400000 + quint32(i) * entrySize).u32(entrySize).u32(0).u32(0);
    }
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(out.bytes()) != out.size() ||
        !file.resize(archiveBytes))
        qFatal("cannot write %s", qPrintable(path));
}

double monotonicMilliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

double millisecondsToFirstPaint(const QString &program, const QString &game)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("CMPED_GAME_DIR", game);
    environment.insert("SDL_AUDIODRIVER", "dummy");
    environment.insert("XDG_DATA_HOME", game);
    process.setProcessEnvironment(environment);
    const double before = monotonicMilliseconds();
    process.start(program, QStringList());
    if (!process.waitForFinished(60000) || process.exitCode() != 0)
        qFatal("%s did not end well: %s", qPrintable(program),
               process.readAllStandardError().constData());
    return process.readAllStandardOutput().toDouble() / 1e6 - before;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "Usage: start_benchmark SAMPLE_GAME [RUNS]\n");
        return 1;
    }
    const int runs = argc > 2 ? std::max(1, atoi(argv[2])) : 15;
    QTemporaryDir folder;
    const QString game = folder.path() + "/game";
    copyFolder(QDir(QString::fromLocal8Bit(argv[1])).absolutePath(), game);
    writeLargeArchive(game + "/Data/Large.lod");

    const QString bin = QCoreApplication::applicationDirPath();
    std::vector<double> editor;
    std::vector<double> empty;
    for (int i = 0; i <= runs; ++i) { // taken in turns; the first pair warms the caches
        const double emptyTime = millisecondsToFirstPaint(bin + "/empty_window_probe", game);
        const double editorTime = millisecondsToFirstPaint(bin + "/editor_probe", game);
        if (i == 0)
            continue;
        empty.push_back(emptyTime);
        editor.push_back(editorTime);
    }
    std::printf("empty window   %7.1f ms\n", median(empty));
    std::printf("editor         %7.1f ms\n", median(editor));
    std::printf("ratio          %7.2f    (goal: at most 4)\n", median(editor) / median(empty));
    return 0;
}
