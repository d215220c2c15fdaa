// Takes a game's folder apart into inputs for the fuzz targets: game_seeds GAME FOLDER. A merge
// keeps the few of them that reach something. Large files are left out, a fuzzer is slow on them.
#include "gamedata/lod_archive.h"
#include "gamedata/runtime/dat_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <zlib.h>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int largestInput = 16384;
constexpr int mapHeaderBytes = 2048;

class Output
{
public:
    explicit Output(const QString &folder) : m_folder(folder) {}

    void write(const QString &target, const QByteArray &bytes)
    {
        if (bytes.size() > largestInput)
            return;
        QFile file(m_folder.filePath(QStringLiteral("%1/game_%2").arg(target).arg(++m_count)));
        const bool written = m_folder.mkpath(target) && file.open(QIODevice::WriteOnly) &&
                             file.write(bytes) == bytes.size();
        if (!written) {
            std::fprintf(stderr, "Cannot write %s\n", qPrintable(file.fileName()));
            std::exit(1);
        }
    }

private:
    const QDir m_folder;
    int m_count = 0;
};

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray unpacked(const QString &path, int most)
{
    QByteArray bytes(most, '\0');
    const gzFile file = gzopen(QFile::encodeName(path).constData(), "rb");
    if (!file)
        return {};
    const int got = gzread(file, bytes.data(), unsigned(most));
    gzclose(file);
    return bytes.left(qMax(0, got));
}

void takeMaps(const QDir &folder, Output &output)
{
    for (const QFileInfo &file : folder.entryInfoList(QDir::Files, QDir::Name)) {
        const QString path = file.filePath();
        if (file.suffix() == QLatin1String("e3m")) {
            output.write(QStringLiteral("map_header"), unpacked(path, mapHeaderBytes));
            output.write(QStringLiteral("map_header"), contentsOf(path));
        } else {
            for (const char *target : {"campaign", "dialog"}) {
                output.write(QLatin1String(target), unpacked(path, largestInput));
                output.write(QLatin1String(target), contentsOf(path));
            }
        }
    }
}

void takeArchive(const QString &path, Output &output)
{
    QFile file(path);
    LodArchive archive;
    if (file.open(QIODevice::ReadOnly))
        archive.Read(file, path);
    for (auto entry = archive.files.begin(); entry != archive.files.end(); ++entry) {
        int size = 0;
        const std::unique_ptr<char[]> data(archive.getFileData(entry.key(), &size));
        const QByteArray bytes(data.get(), size);
        if (entry.key().endsWith(QLatin1String(".pcx"))) {
            output.write(QStringLiteral("pcx"), bytes);
        } else {
            output.write(QStringLiteral("text_table"), bytes);
            output.write(QStringLiteral("string_list"), bytes);
        }
    }
    output.write(QStringLiteral("archive"), contentsOf(path));
}

void takeTableFile(const QString &path, Output &output)
{
    QByteArray bytes = contentsOf(path);
    output.write(QStringLiteral("table_file"), bytes);
    const TStreamPtr<TMemoryStream> stream(TMemoryStream::Create());
    stream->Write(bytes.data(), unsigned(bytes.size()));
    const std::unique_ptr<TDatFile> table(TDatFile::Create());
    table->Load(stream.get());
    for (int entry = 0; entry < table->entries.length; ++entry) {
        const TArray<TString> &strings = table->entries[entry].strings;
        for (int i = 0; i < strings.length; ++i) {
            const QByteArray text(strings[i].c_str());
            output.write(QStringLiteral("layout"), text);
            output.write(QStringLiteral("string_list"), text);
        }
    }
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 3) {
        std::fprintf(stderr, "Usage: game_seeds GAME FOLDER\n");
        return 1;
    }
    const QDir game(QString::fromLocal8Bit(argv[1]));
    Output output(QString::fromLocal8Bit(argv[2]));
    takeMaps(QDir(game.filePath(QStringLiteral("Maps"))), output);
    const QDir archives(game.filePath(QStringLiteral("Data")));
    for (const QFileInfo &file : archives.entryInfoList({QStringLiteral("*.lod")}, QDir::Files))
        takeArchive(file.filePath(), output);
    takeTableFile(game.filePath(QStringLiteral("ravn.dat")), output);
    output.write(QStringLiteral("settings"),
                 contentsOf(game.filePath(QStringLiteral("Ravn_settings.ini"))));
    return 0;
}
