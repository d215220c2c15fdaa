// Texts of strangers in tool tips, hints and message boxes, and in the names of the game's tables.
#include "campaign_dialogs/convert_campaign.h"
#include "campaign_dialogs/edit_campaign.h"
#include "campaign_dialogs/new_campaign.h"
#include "gamedata/locale_codec.h"
#include "gamedata/report.h"
#include "scenario/ask_delete_all.h"
#include "scenario/bonus_dialog.h"
#include "scenario/scenario_info.h"
#include "scenario/starting_hero_dialog.h"
#include "shell/about_cmp_ed.h"
#include "shell/warning_box.h"
#include "tests/shell/exchange_window.h"
#include "tests/strangers/shown_texts.h"

#include <QRegularExpression>
#include <QTableWidget>
#include <QToolBar>

class ShownMessagesTest : public QObject, private ExchangeWindow
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(setLocaleCodec(QString())); }
    void init() { reset(); }
    void cleanup() { window.reset(); }

    void toolTipsOfToolBar_data() { addTexts(); }
    void toolTipsOfToolBar();
    void messages_data() { addTexts(); }
    void messages();
    void namesOfTheGameAreNoMarkup();
};

namespace {

// Markup before every name that a window shows.
void markTheGamesNames()
{
    const QString mark = hostile::mark;
    for (auto *table : {&EditorData::artifacts, &EditorData::creatures, &EditorData::heroes,
                        &EditorData::secondarySkills, &EditorData::primarySkills,
                        &EditorData::skillLevels, &EditorData::spells, &EditorData::resources,
                        &EditorData::jktext, &EditorData::musicNames, &EditorData::videoNames}) {
        for (auto &[number, name] : *table)
            name.prepend(mark);
    }
    for (auto *table : {&EditorData::editorText, &EditorData::editorCmdText}) {
        for (auto &[number, row] : *table)
            row.replaceInStrings(QRegularExpression("^"), mark);
    }
    for (QString &name : EditorData::colors)
        name.prepend(mark);
    for (auto &[number, map] : EditorData::campaignInfo) {
        map.name.prepend(mark);
        for (CampaignRegion &region : map.regions)
            region.name.prepend(mark);
    }
}

// How many labels of a window show the mark.
int checkMarkedWindow(QWidget &shown)
{
    int marked = 0;
    bringOnShow(shown);
    checkLabels(&shown);
    for (const QLabel *label : shown.findChildren<QLabel *>())
        marked += label->text().contains(hostile::mark);
    for (QWidget *widget : shown.findChildren<QWidget *>()) {
        if (widget->isVisible())
            checkToolTip(widget, widget->rect().center());
    }
    return marked;
}

} // namespace

void ShownMessagesTest::toolTipsOfToolBar()
{
    QFETCH(QString, text);
    const SoonDone soon;
    QVERIFY(show(*window));
    action(*window, "actionSave")->setToolTip(text);
    auto *bar = childOf<QToolBar>(window.get(), "toolBar");
    QWidget *button = bar->widgetForAction(action(*window, "actionSave"));
    checkToldWhole(button, button->rect().center());
    action(*window, "actionSave")->hover();
    QCoreApplication::processEvents();
    QCOMPARE(hintOf(*window), text);
    QCOMPARE(statusLabel(*window, 0)->textFormat(), Qt::PlainText);
    checkSize(window.get(), {456, 685});
}

// Of both boxes in which failures are told.
void ShownMessagesTest::messages()
{
    QFETCH(QString, text);
    const SoonDone soon;
    const auto look = [&](QWidget *widget) {
        auto *box = qobject_cast<QMessageBox *>(widget);
        const QString shown = box->text();
        const Qt::TextFormat format = box->textFormat();
        const QSize size = box->size();
        const QSize screen = QGuiApplication::primaryScreen()->size();
        clickOn(box->button(QMessageBox::Ok));
        QVERIFY(shown.startsWith("Can't find " + QString(hostile::mark)));
        QVERIFY(shown.endsWith(" file in lod file"));
        QVERIFY(!isOrdinaryLine(text) || shown.contains(text));
        QCOMPARE(format, Qt::PlainText);
        QVERIFY2(size.height() <= screen.height(), qPrintable(QString::number(size.height())));
        QVERIFY2(size.width() <= screen.width(), qPrintable(QString::number(size.width())));
    };
    const QString message = "Can't find " + text + " file in lod file";
    {
        NextDialog box(look);
        reportError("Error", message);
    }
    NextDialog box(look);
    warn(window.get(), "Error", message);
}

// The last test of all: the tables stay as they are then.
void ShownMessagesTest::namesOfTheGameAreNoMarkup()
{
    markTheGamesNames();
    CampaignData campaign = textsEverywhere(campaignWithMaps(), hostile::mark);
    save(campaign);
    window = std::make_unique<MainWindow>(nullptr);
    window->loadFile(path("home.e3c"));
    QCOMPARE(window->windowTitle(), "home.e3c - " + QString(hostile::mark) + appTitle);
    QVERIFY(checkMarkedWindow(*window) > 0);
    AboutCmpEd about(nullptr);
    QVERIFY(checkMarkedWindow(about) > 0);
    NewCampaign newCampaign(nullptr);
    checkMarkedWindow(newCampaign);
    EditCampaign properties(nullptr, &campaign);
    checkMarkedWindow(properties);
    ConvertCampaign conversion(nullptr, &campaign);
    checkMarkedWindow(conversion);
    AskDeleteAll question(nullptr);
    checkMarkedWindow(question);
    ScenarioInfo scenarios(nullptr, &campaign, 24, 2);
    QVERIFY(checkMarkedWindow(scenarios) > 0);
    BonusDialog bonus(nullptr, &campaign.scenarios[2], 24, 0, nullptr);
    checkMarkedWindow(bonus);
    QTableWidget table;
    StartingHeroDialog hero(nullptr, &campaign.scenarios[2], 24, &table, nullptr);
    checkMarkedWindow(hero);
}

QTEST_MAIN(ShownMessagesTest)
#include "shown_messages_test.moc"
