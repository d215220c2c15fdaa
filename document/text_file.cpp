#include "document/text_file.h"

#include "gamedata/limits.h"

#include <QFile>

namespace {

constexpr qint64 smallestPiece = 4096;
constexpr qint64 largestPiece = qint64(256) * 1024;

// As much as the file seems to have left, and one byte by which its end is seen. Room for more
// would take longer than a short file itself.
qint64 nextPiece(const QFile &file, const QByteArray &bytes)
{
    return qBound(smallestPiece, file.size() - bytes.size() + 1, largestPiece);
}

} // namespace

QByteArray readTextFile(QFile &file)
{
    QByteArray bytes("");
    while (bytes.size() <= limits::textFileBytes && file.size() <= limits::textFileBytes) {
        const QByteArray piece = file.read(nextPiece(file, bytes));
        if (piece.isEmpty())
            return file.error() == QFile::NoError ? bytes : QByteArray();
        bytes += piece;
    }
    return {};
}
