// Construction of the main window: actions, status bar, tool tips, its size and its end.
#include "shell/main_window.h"

#include "gamedata/campaign_picture.h"
#include "gamedata/editor_data.h"
#include "shell/about_cmp_ed.h"
#include "shell/campaign_map_view.h"
#include "shell/dialog_look.h"
#include "shell/drag_and_drop_handler.h"
#include "shell/elided_label.h"
#include "shell/plain_tool_tips.h"
#include "shell/region_keys.h"
#include "ui_MainWindow.h"

#include <QCloseEvent>
#include <QLabel>
#include <QMessageBox>
#include <QShortcut>
#include <QToolButton>

#include <algorithm>

namespace {

constexpr quint32 defaultCampaignMap = 24;
constexpr int hintRow = 0;
constexpr int recentFileRow = 9;

// The room that the status bar's texts may ask for, in pixels; together less than the map's width.
constexpr int hintWidth = 320;
constexpr int regionWidth = 90;

// Which row of the game's command texts explains which action.
struct ToolTipRow
{
    int row;
    QAction *Ui_MainWindow::*action;
};

constexpr std::array<ToolTipRow, 12> toolTipRows{{
    {1, &Ui_MainWindow::actionNew},
    {2, &Ui_MainWindow::actionOpen},
    {3, &Ui_MainWindow::actionSave},
    {4, &Ui_MainWindow::actionSave_As},
    {20, &Ui_MainWindow::actionExport_Texts},
    {21, &Ui_MainWindow::actionImport_Texts},
    {17, &Ui_MainWindow::actionExport_Scenario_Maps},
    {16, &Ui_MainWindow::actionRefresh_Scenario_Maps},
    {6, &Ui_MainWindow::actionExit},
    {19, &Ui_MainWindow::scenarioProperties},
    {18, &Ui_MainWindow::campaignProperties},
    {5, &Ui_MainWindow::actionAbout},
}};

QLabel *statusLine(int widestRequest)
{
    auto *line = new ElidedLabel;
    line->setWidestRequest(widestRequest);
    line->setFont(editorFont());
    return line;
}

// The length of the view along one side: what the window gained or lost since it fitted the map,
// never more than the map. A negative length counts as very large, so it is capped as well.
int viewLength(int now, int initial, int map)
{
    return int(std::min(unsigned(now - initial + map), unsigned(map)));
}

} // namespace

MainWindow::MainWindow(QWidget *parent) : QMainWindow(parent), ui(std::make_unique<Ui_MainWindow>())
{
    ui->setupUi(this);
    fitWindowToMap();
    setAcceptDrops(true);
    dropHandler = new DragAndDropHandler(this);
    installEventFilter(dropHandler);
    connect(dropHandler, &DragAndDropHandler::fileDropped, this, &MainWindow::loadFile);
    initInfo();
    initActions();
    initUI();
    initSlotsAndSignals();
    refreshCampaignView();
    updateRecentFileActions();
    campaign.initDummyCampaign(campaignId, true, 0, 0);
}

MainWindow::~MainWindow() = default;

void MainWindow::initInfo()
{
    campaignId = defaultCampaignMap;
    currentRegion = 0;
}

void MainWindow::initActions()
{
    for (QAction *&action : recentFileActions) {
        action = new QAction(tr("File"), this);
        action->setVisible(false);
        action->setToolTip(textOf(EditorData::editorCmdText, recentFileRow));
        connect(action, &QAction::hovered, this, &MainWindow::setTooltipToHintBar);
        connect(action, &QAction::triggered, this, &MainWindow::openRecentFile);
        ui->menuFile->insertAction(ui->actionExit, action);
    }
    ui->menuFile->insertSeparator(ui->actionExit);
}

void MainWindow::initUI()
{
    initialSize = size();
    hintLabel = statusLine(hintWidth);
    regionLabel = statusLine(regionWidth);
    mapBrowser = new MapBrowser(ui->stackedWidget, hintLabel);
    ui->stackedWidget->addWidget(mapBrowser);
    ui->stackedWidget->setCurrentWidget(mapBrowser);
    new RegionKeys(mapBrowser->getGraphicsView()); // which the view owns
    hintLabel->setText(textOf(EditorData::editorCmdText, hintRow));
    regionLabel->setText(QStringLiteral("Southport"));
    fillStatusBar();
    switchScrollBars(Qt::ScrollBarAlwaysOff);
    updateRegionLabel();
    resetWindowTitle();
    setToolTips();
    ui->toolBar->setContextMenuPolicy(Qt::PreventContextMenu);
    ui->menuBar->setContextMenuPolicy(Qt::PreventContextMenu);
    // The actions' own shortcuts are the keypad's Enter.
    auto *returnKey = new QShortcut(QKeySequence(QStringLiteral("Return")), this);
    connect(returnKey, &QShortcut::activated, ui->scenarioProperties, &QAction::trigger);
    auto *ctrlReturnKey = new QShortcut(QKeySequence(QStringLiteral("Ctrl+Return")), this);
    connect(ctrlReturnKey, &QShortcut::activated, ui->campaignProperties, &QAction::trigger);
}

void MainWindow::initSlotsAndSignals()
{
    connect(ui->actionNew, &QAction::triggered, this, &MainWindow::newFile);
    connect(ui->actionOpen, &QAction::triggered, this, &MainWindow::open);
    connect(ui->actionSave, &QAction::triggered, this, &MainWindow::save);
    connect(ui->actionSave_As, &QAction::triggered, this, &MainWindow::saveAs);
    connect(ui->actionExport_Texts, &QAction::triggered, this, &MainWindow::exportTexts);
    connect(ui->actionImport_Texts, &QAction::triggered, this, &MainWindow::importTexts);
    connect(ui->actionExport_Scenario_Maps, &QAction::triggered, this, &MainWindow::exportMaps);
    connect(ui->actionRefresh_Scenario_Maps, &QAction::triggered, this, &MainWindow::refreshMaps);
    connect(ui->actionExit, &QAction::triggered, this, &MainWindow::quit);
    connect(ui->scenarioProperties, &QAction::triggered, this, &MainWindow::openScenarioProperties);
    connect(ui->campaignProperties, &QAction::triggered, this, &MainWindow::openCampaignProperties);
    connect(ui->actionConvertCmp, &QAction::triggered, this, &MainWindow::openConvertCampaign);
    connect(ui->actionAbout, &QAction::triggered, this, &MainWindow::about);
    connect(mapBrowser->getGraphicsView(), &MyQGraphicsView::propertiesRequested, this,
            &MainWindow::openScenarioProperties);
    for (const ToolTipRow &row : toolTipRows)
        connect(ui.get()->*row.action, &QAction::hovered, this, &MainWindow::setTooltipToHintBar);
}

// Gives the window the room that the map takes with bars in the font at hand: the form's size,
// or more where the bars are higher. What the bars leave over goes to the status bar.
void MainWindow::fitWindowToMap()
{
    ensurePolished();
    const int bars = ui->menuBar->sizeHint().height() + ui->toolBar->sizeHint().height();
    const int lineHeight = QFontMetrics(editorFont()).height() + 6;
    const int left = height() - campaignPictureSize.height() - bars;
    const int statusHeight = std::max({lineHeight, ui->statusBar->sizeHint().height(), left});
    ui->statusBar->setFixedHeight(statusHeight);
    resize(width(), campaignPictureSize.height() + bars + statusHeight);
}

void MainWindow::fillStatusBar()
{
    auto *line = new QFrame;
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Sunken);
    ui->statusBar->addWidget(hintLabel, 1);
    ui->statusBar->addWidget(line, 0);
    ui->statusBar->addWidget(regionLabel, 1);
}

void MainWindow::setToolTips()
{
    for (const ToolTipRow &row : toolTipRows)
        (ui.get()->*row.action)->setToolTip(textOf(EditorData::editorCmdText, row.row));
    auto *plain = new PlainToolTips(this);
    const auto buttons = ui->toolBar->findChildren<QToolButton *>();
    for (QToolButton *button : buttons)
        button->installEventFilter(plain);
}

void MainWindow::switchScrollBars(Qt::ScrollBarPolicy policy)
{
    mapBrowser->getGraphicsView()->setHorizontalScrollBarPolicy(policy);
    mapBrowser->getGraphicsView()->setVerticalScrollBarPolicy(policy);
}

void MainWindow::resizeEvent(QResizeEvent *event)
{
    const QSize view(
        viewLength(event->size().width(), initialSize.width(), campaignPictureSize.width()),
        viewLength(event->size().height(), initialSize.height(), campaignPictureSize.height()));
    QMainWindow::resizeEvent(event);
    if (!mapBrowser)
        return;
    mapBrowser->getGraphicsView()->resize(view);
    mapBrowser->resize(view);
    const bool smaller = event->size().width() < initialSize.width() ||
                         event->size().height() < initialSize.height();
    switchScrollBars(smaller ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::WindowStateChange && windowState() == Qt::WindowNoState)
        resize(initialSize);
    QMainWindow::changeEvent(event);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    const bool stay = EditorData::info.modified && askSaveChanges() == QMessageBox::Cancel;
    event->setAccepted(!stay);
}

void MainWindow::quit()
{
    QCoreApplication::quit();
}

void MainWindow::about()
{
    AboutCmpEd dialog(this);
    dialog.exec();
}

void MainWindow::setTooltipToHintBar()
{
    if (const auto *action = qobject_cast<QAction *>(sender()))
        hintLabel->setText(action->toolTip());
}
