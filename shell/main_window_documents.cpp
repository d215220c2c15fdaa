// The commands on the document as a whole: new, open, save, and the question about changes.
#include "shell/main_window.h"

#include "campaign_dialogs/new_campaign.h"
#include "gamedata/editor_data.h"
#include "gamedata/game_dir.h"
#include "gamedata/readable_file.h"
#include "gamedata/used_folder.h"
#include "shell/campaign_map_view.h"
#include "shell/shown_text.h"
#include "shell/wait_cursor.h"
#include "shell/warning_box.h"
#include "ui_MainWindow.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace {

constexpr quint32 mapOfCampaignsWithoutMap = 24;

QString mapsFolder()
{
    return getGameDir(QStringLiteral("Maps")).path();
}

} // namespace

// Neither asks about unsaved changes nor touches the modified flag.
void MainWindow::newFile()
{
    NewCampaign dialog(this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (dialog.isCampaignWithMap()) {
        campaign.initDummyCampaign(dialog.getSelectedItemId(), true, 0, 0);
        campaignId = campaign.mapId;
        ui->stackedWidget->setCurrentWidget(mapBrowser);
    } else {
        campaign.initDummyCampaign(mapOfCampaignsWithoutMap, false, dialog.getSelectedItemId(), 1);
        campaignId = mapOfCampaignsWithoutMap;
    }
    recoveryCopies.leave();
    currentRegion = 0;
    EditorData::info.region = 0;
    currentFile.clear();
    refreshCampaignView();
    updateWindowTitle();
    updateRegionLabel();
}

void MainWindow::open()
{
    const QString folder = usedFolder(getGameDir(QStringLiteral("Maps")).canonicalPath());
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Open Map File"), folder, tr("Eldmark Saga campaign (*.e3c);;All Files (*)"));
    if (path.isEmpty())
        return;
    rememberFolderOf(path);
    loadFile(path);
}

void MainWindow::loadFile(const QString &path)
{
    if (EditorData::info.modified && askSaveChanges() == QMessageBox::Cancel)
        return;
    const std::optional<FileStamp> stamp = showCampaignOf(path);
    if (!stamp) {
        keepRecoveryCopy(); // the document stays, even if its changes were not wanted any more
        return;
    }
    recoveryCopies.leave();
    setCurrentFile(path);
    currentFileStamp = *stamp;
    EditorData::info.modified = false;
    updateWindowTitle();
    updateRegionLabel();
}

// Reads a campaign and shows it. Answers what the file was like before it was read, or nothing if
// it can't be read, which a message tells.
std::optional<FileStamp> MainWindow::showCampaignOf(const QString &path)
{
    QFile file(path);
    if (const std::optional<QString> failure = openToRead(file)) {
        warn(this, tr("Error"), tr("Cannot read file %1:\n%2.").arg(path, *failure));
        return std::nullopt;
    }
    const WaitCursor cursor;
    const FileStamp stamp = stampOf(file);
    CampaignData read;
    if (!read.ReadFromFile(&file))
        return std::nullopt;
    campaign = std::move(read);
    campaignId = campaign.mapId;
    currentRegion = 0;
    refreshCampaignView();
    return stamp;
}

// Nobody's work is overwritten unasked: another program may have saved the file since.
bool MainWindow::save()
{
    if (currentFile.isEmpty())
        return saveAs();
    return mayOverwriteCurrentFile() && saveFile(currentFile);
}

bool MainWindow::mayOverwriteCurrentFile()
{
    const FileStamp now = stampOf(currentFile);
    if (!now.exists || now == currentFileStamp)
        return true;
    return ask(tr("%1 has changed on the disk since it was opened or saved here. Overwrite it?")
                   .arg(strippedName(currentFile)),
               QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

bool MainWindow::saveAs()
{
    QFileDialog dialog(this, tr("Save As"), usedFolder(mapsFolder()),
                       tr("Eldmark Saga campaign (*.e3c);;All Files (*)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("e3c"));
    dialog.selectFile(documentName());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return true;
    const QString path = dialog.selectedFiles().constFirst();
    rememberFolderOf(path);
    return saveFile(path);
}

bool MainWindow::saveFile(const QString &path)
{
    WaitCursor cursor;
    const SaveResult result = campaign.saveTo(path);
    cursor.restore();
    if (!result.ok) {
        warn(this, tr("Error"), tr("Cannot write file %1:\n%2.").arg(path, result.error));
        return false;
    }
    setCurrentFile(path);
    currentFileStamp = stampOf(result.written); // another program may have been at the file since
    EditorData::info.modified = false;
    recoveryCopies.remove();
    updateWindowTitle();
    return true;
}

void MainWindow::processInfo(QApplication *)
{
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() > 1)
        loadFile(arguments[1]);
}

QString MainWindow::documentName() const
{
    return currentFile.isEmpty() ? QStringLiteral("Untitled") : QFileInfo(currentFile).baseName();
}

QString MainWindow::strippedName(const QString &path)
{
    return QFileInfo(path).fileName();
}

// A Yes whose save dialog is then cancelled counts as Yes. One whose saving fails, or is refused
// when it asks, counts as Cancel: to go on would lose what was to be saved.
unsigned int MainWindow::askSaveChanges()
{
    const int answer =
        ask(tr("Save changes to %1?").arg(documentName()),
            QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes);
    if (answer == QMessageBox::Yes && !save())
        return QMessageBox::Cancel;
    if (answer == QMessageBox::No)
        recoveryCopies.remove();
    return unsigned(answer);
}

// Answers the button, or NoButton if the editor is ended while the question is open.
int MainWindow::ask(const QString &question, QMessageBox::StandardButtons buttons,
                    QMessageBox::StandardButton preset)
{
    QMessageBox box;
    box.setWindowTitle(cmpEditorTitle());
    box.setText(forMessage(question));
    box.setTextFormat(Qt::PlainText);
    box.setStandardButtons(buttons);
    box.setDefaultButton(preset);
    return box.exec();
}
