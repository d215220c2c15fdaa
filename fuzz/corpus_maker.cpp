// Writes the seed files of the fuzz targets: for each reader sound files of every kind, and
// hostile ones named for what they do. Only the bytes of the formats stand here, none of the
// program's own writers.
#include "fuzz/corpus_maker.h"

#include <QDir>
#include <QFile>

#include <zlib.h>

#include <cstdio>
#include <cstdlib>

namespace corpus {

QByteArray packed(const QByteArray &bytes, int windowBits)
{
    z_stream stream{};
    if (deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, windowBits, 8,
                     Z_DEFAULT_STRATEGY) != Z_OK)
        std::abort();
    QByteArray result(int(deflateBound(&stream, uLong(bytes.size()))), '\0');
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(bytes.constData()));
    stream.avail_in = uInt(bytes.size());
    stream.next_out = reinterpret_cast<Bytef *>(result.data());
    stream.avail_out = uInt(result.size());
    if (deflate(&stream, Z_FINISH) != Z_STREAM_END)
        std::abort();
    result.resize(int(stream.total_out));
    deflateEnd(&stream);
    return result;
}

QByteArray gzip(const QByteArray &bytes)
{
    return packed(bytes, 31);
}

QByteArray zlibStream(const QByteArray &bytes)
{
    return packed(bytes, 15);
}

} // namespace corpus

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
    writeFiles(root, QStringLiteral("archive"), corpus::archives());
    writeFiles(root, QStringLiteral("campaign"), corpus::campaigns());
    writeFiles(root, QStringLiteral("layout"), corpus::layouts());
    writeFiles(root, QStringLiteral("map_header"), corpus::maps());
    writeFiles(root, QStringLiteral("pcx"), corpus::pictures());
    writeFiles(root, QStringLiteral("settings"), corpus::settings());
    writeFiles(root, QStringLiteral("table_file"), corpus::tableFiles());
    return 0;
}
