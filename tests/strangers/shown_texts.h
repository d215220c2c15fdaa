// What the tests of strangers' texts look at in a window: labels, its size and tool tips.
#pragma once

#include "tests/scenario/hero_map.h"
#include "tests/strangers/hostile_names.h"
#include "tests/support/processor_time.h"
#include "tests/support/sanitized.h"
#include "tests/support/widgets.h"

#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QScreen>
#include <QToolTip>

inline void addTexts()
{
    QTest::addColumn<QString>("text");
    for (const hostile::Text &text : hostile::texts())
        QTest::newRow(text.title) << text.text;
}

// One that fits any line has to be there letter for letter.
inline bool isOrdinaryLine(const QString &text)
{
    return text.size() < 500 && text == text.simplified();
}

// The text wherever a campaign and its maps have one; the third scenario requires the others.
inline CampaignData textsEverywhere(CampaignData campaign, const QString &text)
{
    campaign.name = campaign.description = text;
    for (ScenarioData &scenario : campaign.scenarios) {
        MapHeader header = heroMap();
        header.mapName = text;
        header.mapDescription = text;
        for (PlayerAttributes &player : header.players) {
            player.mainHeroName = text;
            for (PlayerAttributesHeroInfo &hero : player.heroInfo)
                hero.name = text;
        }
        ::giveMap(scenario, header);
        scenario.mapFileName = text;
        scenario.regionText = text;
        for (auto &story : scenario.prologues)
            story = std::make_shared<CmpPrologue>(CmpPrologue{1, 2, text});
        scenario.epilogues = scenario.prologues;
    }
    campaign.scenarios[2].prerequisites = QBitArray(3, true);
    campaign.scenarios[2].prerequisites.clearBit(2);
    return campaign;
}

inline void checkLabels(const QWidget *window)
{
    for (const QLabel *label : window->findChildren<QLabel *>()) {
        if (!label->text().isEmpty())
            QVERIFY2(label->textFormat() == Qt::PlainText, qPrintable(label->objectName()));
    }
}

// As large as with ordinary texts, or no larger than the screen.
inline void checkSize(const QWidget *window, const QSize &usual)
{
    const QSize most = QGuiApplication::primaryScreen()->size().expandedTo(usual);
    const QSize size = window->size();
    QVERIFY2(size.width() <= most.width(), qPrintable(QString::number(size.width())));
    QVERIFY2(size.height() <= most.height(), qPrintable(QString::number(size.height())));
}

// The tool tip of a place, as it is handed to the system.
inline QString toolTipAt(QWidget *widget, const QPoint &place)
{
    QHelpEvent event(QEvent::ToolTip, place, widget->mapToGlobal(place));
    QCoreApplication::sendEvent(widget, &event);
    return QToolTip::text();
}

// No markup of it counts, and it stays a tool tip.
inline void checkToolTip(QWidget *widget, const QPoint &place)
{
    const QString tip = toolTipAt(widget, place);
    QVERIFY2(!tip.contains(hostile::mark), qPrintable(tip.left(200)));
    for (const QWidget *shown : QApplication::topLevelWidgets()) {
        if (shown->inherits("QTipLabel") && shown->isVisible())
            QVERIFY2(shown->height() <= 600 && shown->width() <= 1000,
                     qPrintable(QString::number(shown->width())));
    }
    QToolTip::hideText();
}

// A text cut in its place is told whole, as the plain text that it is.
inline void checkToldWhole(QWidget *widget, const QPoint &place)
{
    QVERIFY(toolTipAt(widget, place).contains("&lt;b&gt;Mark&lt;/b&gt;"));
    checkToolTip(widget, place);
}

// Of an item of a list or table.
inline void checkItem(QAbstractItemView *view, const QModelIndex &index)
{
    const QRect place = view->visualRect(index);
    QVERIFY2(place.height() < 60, qPrintable(QString::number(place.height())));
    checkToolTip(view->viewport(), place.intersected(view->viewport()->rect()).center());
}

// Fails a test whose texts take the program seconds to be shown.
class SoonDone
{
public:
    ~SoonDone()
    {
        const qint64 taken = m_watch.milliseconds();
        const qint64 allowed = sanitized ? 120000 : 20000;
        QVERIFY2(taken < allowed, qPrintable(QString::number(taken)));
    }

private:
    ProcessorTime m_watch;
};
