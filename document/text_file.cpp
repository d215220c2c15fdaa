#include "document/text_file.h"

#include "gamedata/limits.h"

#include <QFile>

namespace {

constexpr int pieceSize = 256 * 1024;

} // namespace

QByteArray readTextFile(QFile &file)
{
    QByteArray bytes("");
    while (bytes.size() <= limits::textFileBytes && file.size() <= limits::textFileBytes) {
        const QByteArray piece = file.read(pieceSize);
        if (piece.isEmpty())
            return file.error() == QFile::NoError ? bytes : QByteArray();
        bytes += piece;
    }
    return {};
}
