// save_loop TARGET FIRST SECOND [TIMES]: writes the contents of two files to the target in turn, as
// the editor saves, so many times or until it is ended. Says "ready" before the first save; the
// exit status is 1 once a save fails, with the system's words on standard error.
#include "gamedata/safe_save.h"

#include <QFile>

#include <array>
#include <climits>
#include <cstdio>

namespace {

QByteArray contentsOf(const char *path)
{
    QFile file(QFile::decodeName(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc < 4)
        return 2;
    const QString target = QFile::decodeName(argv[1]);
    const std::array<QByteArray, 2> contents{contentsOf(argv[2]), contentsOf(argv[3])};
    const int times = argc > 4 ? QByteArray(argv[4]).toInt() : INT_MAX;
    for (int i = 0; i < times; ++i) {
        const QByteArray &next = contents[std::size_t(i % 2)];
        const int half = next.size() / 2;
        const SaveResult result = saveFileSafely(target, {next.left(half), next.mid(half)});
        if (!result.ok) {
            std::fprintf(stderr, "%s\n", qPrintable(result.error));
            return 1;
        }
        if (i == 0) {
            std::puts("saved");
            std::fflush(stdout);
        }
    }
    return 0;
}
