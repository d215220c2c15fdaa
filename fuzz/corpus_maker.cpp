// Writes the seed files of the fuzz targets: for each reader sound files of every kind, and
// hostile ones named for what they do. Only the bytes of the formats stand here, none of the
// program's own writers.
#include "fuzz/corpus.h"

#include <QDir>
#include <QFile>

#include <cstdio>
#include <cstdlib>

namespace {

// Small enough to be cut off at every length within a second.
constexpr int largestFile = 4096;

void writeFiles(const QDir &root, const QString &target, const std::vector<corpus::File> &files)
{
    if (!root.mkpath(target))
        std::abort();
    for (const auto &[name, bytes] : files) {
        QFile file(root.filePath(target + QLatin1Char('/') + QLatin1String(name)));
        const bool written = bytes.size() <= largestFile && file.open(QIODevice::WriteOnly) &&
                             file.write(bytes) == bytes.size();
        if (!written) {
            std::fprintf(stderr, "Cannot write %s\n", qPrintable(file.fileName()));
            std::exit(1);
        }
    }
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 2) {
        std::fprintf(stderr, "Usage: corpus_maker FOLDER\n");
        return 1;
    }
    const QDir root(QString::fromLocal8Bit(argv[1]));
    for (const auto &[name, seeds] : corpus::targets())
        writeFiles(root, QLatin1String(name), seeds);
    return 0;
}
