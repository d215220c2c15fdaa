// The scenario dialog with one of the tabs for stories in front, and what its tests do there: press
// boxes and numbers, choose, type, read what is stored.
#pragma once

#include "scenario/scenario_prologue.h"
#include "tests/scenario/scenario_fixture.h"
#include "tests/scenario/shown_page.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTextEdit>

constexpr int generalTab = 0;
constexpr int prologueTab = 1;
constexpr int epilogueTab = 2;
constexpr int startOptionsTab = 4;

// The page's controls that can be used only while there is a story.
const QStringList storyControls{"videoCombobox",      "videoLabel",   "musicListWidget",
                                "musicLabel",         "messageLabel", "textEdit",
                                "selectedMusicLabel", "playMusicBtn"};

inline std::shared_ptr<CmpPrologue> story(int video, int music, const QString &text)
{
    return std::make_shared<CmpPrologue>(CmpPrologue{quint8(video), quint8(music), text});
}

inline ScenarioData::Prologues &storiesOf(ScenarioData &scenario, int tab)
{
    return tab == prologueTab ? scenario.prologues : scenario.epilogues;
}

// Two scenarios on maps with so many start options. The first has the stories "one" to "three",
// videos 1, 2, 0 and music 2, 1, 0, as prologues and as epilogues; the second none.
inline CampaignData storyCampaign(int options)
{
    CampaignData campaign = campaignOf(true, {"isle", "pass"});
    ScenarioData &first = campaign.scenarios[0];
    for (const int tab : {prologueTab, epilogueTab})
        storiesOf(first, tab) = {story(1, 2, "one"), story(2, 1, "two"), story(0, 0, "three")};
    for (ScenarioData &scenario : campaign.scenarios)
        scenario.startOptions = resourceBonuses(options);
    return campaign;
}

// The first scenario's stories as StoriesTab::stored tells them.
const QStringList allThree{"1 2 one", "2 1 two", "0 0 three"};

// The tabs as rows of data.
inline void addBothTabs()
{
    QTest::addColumn<int>("tab");
    QTest::newRow("prologue") << prologueTab;
    QTest::newRow("epilogue") << epilogueTab;
}

class StoriesTab : public OpenScenarioDialog
{
public:
    StoriesTab(CampaignData &campaign, int shownTab) : OpenScenarioDialog(campaign), tab(shownTab)
    {
        showTab(tab);
    }

    void showTab(int index)
    {
        QTabBar *bar = tabs()->tabBar();
        clickOn(bar, bar->tabRect(index).center());
        QCOMPARE(tabs()->currentIndex(), index);
    }

    ScenarioPrologue *page() { return qobject_cast<ScenarioPrologue *>(tabs()->widget(tab)); }

    template<typename Widget>
    Widget *find(const char *name)
    {
        return childOf<Widget>(page(), name);
    }

    QCheckBox *hasStory() { return find<QCheckBox>("hasPrologueCheckbox"); }
    QCheckBox *setUp() { return find<QCheckBox>("settingsCheckbox"); }
    QComboBox *videos() { return find<QComboBox>("videoCombobox"); }
    QListWidget *music() { return find<QListWidget>("musicListWidget"); }
    QTextEdit *text() { return find<QTextEdit>("textEdit"); }
    QPushButton *number(int ix)
    {
        return find<QPushButton>(qPrintable("btn" + QString::number(ix + 1)));
    }
    QString musicName() { return find<QLabel>("selectedMusicLabel")->text(); }

    // Clicks on the box in front of the text; a click far behind it would miss.
    void clickBox(QCheckBox *box) { clickOn(box, QPoint(8, box->height() / 2)); }
    void press(int ix) { clickOn(number(ix)); }
    void chooseMusic(int row)
    {
        clickOn(music()->viewport(), music()->visualItemRect(music()->item(row)).center());
    }
    // Through the keyboard: the next video, or the one before.
    void chooseNextVideo() { QTest::keyClick(videos(), Qt::Key_Down); }
    void choosePreviousVideo() { QTest::keyClick(videos(), Qt::Key_Up); }
    void type(const QString &words)
    {
        clickOn(text()->viewport());
        QTest::keyClicks(text(), words);
    }
    bool save() { return page()->saveScenarioInfo(page()->currentIndex()); }

    ScenarioData::Prologues &stories() { return storiesOf(copy().scenarios[0], tab); }

    // "VIDEO MUSIC TEXT" of each story, "-" for one that isn't there.
    QStringList stored()
    {
        QStringList told;
        for (const auto &kept : stories())
            told << (kept ? telling(kept->videoId, kept->musicIndex, kept->text) : "-");
        return told;
    }

    // What the page shows, in the same form.
    QString shown()
    {
        return telling(videos()->currentData().toInt(), music()->currentRow(),
                       text()->toPlainText());
    }

    QPixmap still() { return find<QLabel>("prologueImage")->pixmap(Qt::ReturnByValue); }

    // The colour in the middle of the still; none where nothing is shown.
    QColor stillColour()
    {
        const QImage image = still().toImage();
        if (image.isNull())
            return {};
        return image.pixelColor(image.rect().center());
    }

    // The numbers on show: "1 2".
    QString shownNumbers()
    {
        QStringList shown;
        for (int ix = 0; ix < 3; ++ix) {
            if (number(ix)->isVisible())
                shown << QString::number(ix + 1);
        }
        return shown.join(' ');
    }

    // The number that looks pressed; 0 if it isn't exactly one.
    int pressedNumber()
    {
        QList<int> pressed;
        for (int ix = 0; ix < 3; ++ix) {
            if (number(ix)->isChecked())
                pressed << ix + 1;
        }
        return pressed.size() == 1 ? pressed.first() : 0;
    }

    QStringList enabledControls()
    {
        QStringList enabled;
        for (const QString &name : storyControls) {
            if (find<QWidget>(qPrintable(name))->isEnabled())
                enabled << name;
        }
        return enabled;
    }

    const int tab;

private:
    static QString telling(int video, int music, const QString &text)
    {
        return QString::number(video) + ' ' + QString::number(music) + ' ' + text;
    }
};
