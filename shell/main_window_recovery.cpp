// When a copy of the document is kept against a sudden end, and when one that is left is offered.
#include "document/gzip_member.h"
#include "gamedata/editor_data.h"
#include "shell/main_window.h"
#include "shell/wait_cursor.h"

#include <QDir>
#include <QMessageBox>

#include <optional>
#include <utility>

namespace {

constexpr const char *timeOnShow = "yyyy-MM-dd HH:mm";

// A path that means the same in whatever folder the editor is started next. What is absolute stays
// as it is: behind a link, ".." leads elsewhere than it looks.
QString absolute(const QString &path)
{
    return path.isEmpty() || QDir::isAbsolutePath(path) ? path : QDir::current().filePath(path);
}

} // namespace

// After each change, before anything is done that may end the process.
void MainWindow::keepRecoveryCopy()
{
    if (!EditorData::info.modified)
        return;
    const WaitCursor cursor; // the header of thousands of scenarios takes its time to be made
    if (const std::optional<UnpackedFile> content = campaign.unpacked())
        recoveryCopies.keep(documentName(), {absolute(currentFile), currentFileStamp}, *content);
}

void MainWindow::offerRecoveryCopy()
{
    if (EditorData::info.modified || !currentFile.isEmpty())
        return;
    std::optional<FoundCopy> copy = recoveryCopies.newestToOffer();
    if (!copy)
        return;
    const QString time = copy->file.time.toString(QLatin1String(timeOnShow));
    const int answer = ask(tr("Changes to %1 were not saved. Open the copy kept on %2?")
                               .arg(copy->documentName(), time),
                           QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes);
    if (answer == QMessageBox::NoButton)
        return;
    // Before it is opened, so that a copy which ends the process does so only once.
    recoveryCopies.markOffered(*copy);
    if (answer == QMessageBox::Yes)
        openRecoveryCopy(std::move(*copy));
}

// The document is what it was: modified, of the same file, which is asked about before it is
// overwritten if it has changed since.
void MainWindow::openRecoveryCopy(FoundCopy copy)
{
    if (!showCampaignOf(copy.file.path))
        return;
    if (!copy.origin.path.isEmpty()) {
        setCurrentFile(copy.origin.path);
        currentFileStamp = copy.origin.stamp;
    }
    EditorData::info.modified = true;
    recoveryCopies.takeOver(std::move(copy));
    updateWindowTitle();
    updateRegionLabel();
}
