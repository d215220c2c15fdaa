#include "cli/archive_commands.h"

#include "cli/picture_file.h"
#include "cli/record_picture.h"
#include "cli/standard_output.h"
#include "gamedata/editor_data.h"
#include "gamedata/game_loading.h"
#include "gamedata/report.h"
#include "gamedata/safe_save.h"

#include <QFileInfo>

#include <cstring>
#include <memory>

namespace {

// The name as stored; characters that would break the columns are shown as "?".
QByteArray shownName(const LodFile &file)
{
    QByteArray name(file.name, int(strnlen(file.name, sizeof file.name)));
    for (char &letter : name) {
        if (static_cast<unsigned char>(letter) < ' ')
            letter = '?';
    }
    return name;
}

} // namespace

ExitStatus runList(const QStringList & /*arguments*/)
{
    loadGame();
    StandardOutput output;
    for (const LodArchive &archive : EditorData::lod_archives) {
        const QByteArray archiveName = QFileInfo(archive.path).fileName().toLocal8Bit();
        for (const LodFile &file : archive.files) {
            output.write(shownName(file) + '\t' + archiveName + '\t' +
                         QByteArray::number(file.size) + '\n');
        }
    }
    return output.finish();
}

ExitStatus runExtract(const QStringList &arguments)
{
    const QString &name = arguments[0];
    const QString &path = arguments[1];
    loadGame();
    int size = 0;
    const std::unique_ptr<char[]> record(EditorData::getLodFileData(name, &size));
    if (!record)
        return failed(mainWindowText("Can't find %1 file in lod file").arg(name));
    if (!path.endsWith(QLatin1String(".png"), Qt::CaseInsensitive)) {
        const SaveResult result = saveFileSafely(path, {QByteArray(record.get(), size)});
        return result.ok ? exitDone : cannotWrite(path, result.error);
    }
    const QImage image = pictureOfRecord(record.get(), size);
    if (image.isNull())
        return failed(QStringLiteral("%1 is no picture.").arg(name));
    return savePicture(path, image);
}
