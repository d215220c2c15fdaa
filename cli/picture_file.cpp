#include "cli/picture_file.h"

#include "gamedata/safe_save.h"

#include <QBuffer>

ExitStatus savePicture(const QString &path, const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG"))
        return cannotWrite(path, QStringLiteral("The picture can't be packed"));
    const SaveResult result = saveFileSafely(path, {bytes});
    return result.ok ? exitDone : cannotWrite(path, result.error);
}
