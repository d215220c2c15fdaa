#include "tests/desktop/files.h"

#include "tests/desktop/expected_campaign.h"
#include "tests/desktop/failure.h"
#include "tests/desktop/patience.h"
#include "tests/desktop/workplace.h"

#include <QFile>
#include <QJsonDocument>
#include <QProcess>

namespace {

constexpr int dumpLimit = 90000; // milliseconds

QJsonValue dumpOf(Workplace &place, const QString &path)
{
    QProcess tool;
    tool.start(place.parts().programs + "/cmped-cli",
               {"--game", place.gameFolder(), "--encoding", "UTF-8", "dump", path});
    const bool done = tool.waitForFinished(dumpLimit) && tool.exitCode() == 0;
    if (!done)
        throw Failure("the saved campaign is sound", tool.readAllStandardError());
    return QJsonDocument::fromJson(tool.readAllStandardOutput()).object();
}

} // namespace

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void waitForFile(Editor &editor, const QString &path, const QByteArray &content)
{
    const Patience patience;
    while (contentOf(path) != content) {
        editor.look({}); // without an editor it would never come
        if (!patience.isLeft())
            throw Failure(path + " holds:\n" + content.left(2000), contentOf(path).left(2000));
    }
}

void checkSavedCampaign(Workplace &place, const QString &file, const QString &document)
{
    const QJsonValue expected =
        expectedCampaign(place.parts().documents + '/' + document, place.gameMap({}));
    const QString difference = firstDifference(expected, dumpOf(place, place.file(file)));
    if (!difference.isEmpty())
        throw Failure(file + " holds what " + document + " tells", difference);
}
