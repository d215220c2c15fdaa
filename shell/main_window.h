// The one window of the editor: it owns the campaign in work, the name of its file and the list
// of recent files, and every command on the whole document starts here.
//
// The modified flag and the selection that dialogs look at stand in EditorData::info.
#pragma once

#include "document/campaign_data.h"
#include "shell/file_stamp.h"
#include "shell/recovery_copies.h"

#include <QMainWindow>
#include <QMessageBox>
#include <QVector>

#include <array>
#include <memory>
#include <optional>

class CampaignRegionItem;
class DragAndDropHandler;
class MapBrowser;
class QAction;
class QApplication;
class QLabel;
class ScenarioInfo;
class Ui_MainWindow;

class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    static constexpr int recentFileCount = 5;

    explicit MainWindow(QWidget *parent);
    ~MainWindow() override;

    void initActions();
    void initUI();
    void initSlotsAndSignals();
    void initInfo();

    // Opens a campaign after a question about unsaved changes. The document stays as it was if
    // the file can't be read, which a message tells.
    void loadFile(const QString &path);
    // Writes the campaign. If that fails a message tells it, the document stays modified, and the
    // answer is false.
    bool saveFile(const QString &path);
    // Makes this the document's file and the first of the recent ones.
    void setCurrentFile(const QString &path);
    // Opens the campaign that the command line names.
    void processInfo(QApplication *application);
    // Asks whether the newest copy of changes that were not saved shall be opened, if there is one
    // that nobody was asked about.
    void offerRecoveryCopy();

    // Builds the scene anew from the document. All items are destroyed.
    void refreshCampaignView();
    void resetWindowTitle();
    void updateWindowTitle();
    void updateRecentFileActions();
    void updateRegionLabel();
    // The colour of a scenario's region, 2 for a region without a scenario.
    int getRegionColor(int region);
    // A path without its folders.
    QString strippedName(const QString &path);

    // Tells that a file isn't one of this campaign's texts.
    void showCmpTextReadingError(const QString &path, QFile &file);

    // Runs the dialog on the scenario of the selected region and, if it is accepted, takes its
    // campaign over; a rejected one changes nothing.
    void showScenarioPropertiesDlg();

    quint32 campaignId = 24;   // the campaign map on show
    quint32 currentRegion = 0; // the selected region

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private slots:
    void newFile();
    void open();
    void openRecentFile();
    // False if the file could not be written, or may not be overwritten; a file dialog that was
    // cancelled is no failure.
    bool save();
    bool saveAs();
    void exportTexts();
    void importTexts();
    // Next to the campaign's file, or in the current folder if it has none.
    void exportMaps();
    void refreshMaps();
    void quit();
    void openScenarioProperties();
    void openCampaignProperties();
    void openConvertCampaign();
    void about();
    void setTooltipToHintBar();

private:
    void fitWindowToMap();
    void fillStatusBar();
    void setToolTips();
    void switchScrollBars(Qt::ScrollBarPolicy policy);
    void addBackground(const QImage &picture);
    void addRegion(int index);
    unsigned int askSaveChanges();
    static int ask(const QString &question, QMessageBox::StandardButtons buttons,
                   QMessageBox::StandardButton preset);
    bool mayOverwriteCurrentFile();
    std::optional<FileStamp> showCampaignOf(const QString &path);
    void showChangedCampaign();
    // Wanted after every change that may stay, before anything else is done with it.
    void keepRecoveryCopy();
    void openRecoveryCopy(FoundCopy copy);
    // The file's name without folder and endings, "Untitled" if the campaign has none.
    QString documentName() const;
    QString documentFolder() const;

    QLabel *hintLabel = nullptr; // Qt owns these three
    QLabel *regionLabel = nullptr;
    DragAndDropHandler *dropHandler = nullptr;
    QVector<CampaignRegionItem *> regionItems; // owned by the scene, in the order of the regions
    ScenarioInfo *scenarioDialog = nullptr;    // while it is open
    CampaignData campaign;
    QString currentFile;        // empty: never saved
    FileStamp currentFileStamp; // when it was opened or saved here
    RecoveryCopies recoveryCopies;
    std::array<QAction *, recentFileCount> recentFileActions{};
    MapBrowser *mapBrowser = nullptr;
    const std::unique_ptr<Ui_MainWindow> ui;
    QSize initialSize; // of the window when the map fits exactly
};
