// The commands that carry texts and maps between the campaign and files of their own.
#include "shell/main_window.h"

#include "document/map_exchange.h"
#include "document/text_exchange.h"
#include "gamedata/editor_data.h"
#include "gamedata/game_dir.h"
#include "gamedata/readable_file.h"
#include "gamedata/safe_save.h"
#include "gamedata/used_folder.h"
#include "shell/wait_cursor.h"
#include "shell/warning_box.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

#include <optional>

namespace {

constexpr int enoughToTell = 10000; // characters; a box shows fewer

QString textFilter()
{
    return MainWindow::tr("Text files (*.txt);;All Files (*)");
}

} // namespace

void MainWindow::exportTexts()
{
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Save As"), documentName(), textFilter());
    if (path.isEmpty())
        return;
    WaitCursor cursor;
    const SaveResult result = saveFileSafely(path, {exportedTexts(campaign)});
    cursor.restore();
    if (!result.ok)
        warn(this, tr("Error"), tr("Cannot write file %1:\n%2.").arg(path, result.error));
}

// Prologues and epilogues read before a fault stay in the campaign, unmarked as they are.
void MainWindow::importTexts()
{
    const QString folder = usedFolder(getGameDir(QStringLiteral("Maps")).path());
    const QString path = QFileDialog::getOpenFileName(this, tr("Open"), folder, textFilter());
    if (path.isEmpty())
        return;
    rememberFolderOf(path);
    QFile file(path);
    if (const std::optional<QString> failure = openToRead(file)) {
        warn(this, tr("Error"), tr("Cannot read file %1:\n%2.").arg(path, *failure));
        return;
    }
    WaitCursor cursor;
    const bool complete = importTextsFrom(file, campaign);
    cursor.restore();
    if (!complete) {
        keepRecoveryCopy();
        showCmpTextReadingError(path, file);
        return;
    }
    EditorData::info.modified = true;
    keepRecoveryCopy();
    updateWindowTitle();
}

void MainWindow::showCmpTextReadingError(const QString &path, QFile &file)
{
    warn(this, tr("Error"),
         tr("Cannot read file %1 - incorrect campaign text:\n%2.").arg(path, file.errorString()));
}

// Authors know this command as one that says nothing where a file can't be opened. All else stands
// in one box: a stranger's campaign may have thousands of maps that aren't written.
void MainWindow::exportMaps()
{
    WaitCursor cursor;
    QString told;
    const auto add = [&](const QString &text) {
        if (told.size() < enoughToTell)
            told += told.isEmpty() ? text : QLatin1String("\n\n") + text;
    };
    exportMapsTo(documentFolder(), campaign, currentFile, add, Unopened::PassedOver);
    cursor.restore();
    if (!told.isEmpty())
        warn(this, tr("Error"), told);
}

void MainWindow::refreshMaps()
{
    std::optional<WaitCursor> cursor(std::in_place);
    const MapRefresh result = refreshMapsFrom(documentFolder(), campaign, [&](const QString &text) {
        cursor.reset();
        warn(this, tr("Error"), text);
        cursor.emplace();
    });
    EditorData::info.modified |= result.complete;
    keepRecoveryCopy();
    cursor.reset();
    if (result.complete)
        updateWindowTitle();
}

QString MainWindow::documentFolder() const
{
    return currentFile.isEmpty() ? QDir::currentPath() : QFileInfo(currentFile).absolutePath();
}
