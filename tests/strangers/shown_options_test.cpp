// Texts of strangers in the boxes and rows of start options: names of heroes and scenarios.
#include "gamedata/locale_codec.h"
#include "scenario/bonus_dialog.h"
#include "scenario/hero_crossover.h"
#include "scenario/hero_crossover_dialog.h"
#include "scenario/scenario_info.h"
#include "scenario/starting_bonus.h"
#include "scenario/starting_hero_dialog.h"
#include "scenario/starting_hero_options.h"
#include "tests/shell/exchange_window.h"
#include "tests/strangers/shown_texts.h"
#include "tests/support/longest_wait.h"

#include <QTabWidget>
#include <QTableWidget>

class ShownOptionsTest : public QObject, private ExchangeWindow
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(setLocaleCodec(QString())); }
    void init();
    void cleanup() { window.reset(); }

    void crossoverDialog_data() { addTexts(); }
    void crossoverDialog();
    void heroDialog_data() { addTexts(); }
    void heroDialog();
    void bonusDialog_data() { addTexts(); }
    void bonusDialog();
    void rows_data();
    void rows();

private:
    void checkDialog(QDialog &dialog);

    QString m_text;
    CampaignData m_campaign;
};

namespace {

constexpr int startOptionsTab = 4;

// The boxes of a dialog that offer the text.
QList<QComboBox *> boxesWithTheText(const QDialog &dialog)
{
    QList<QComboBox *> boxes;
    for (QComboBox *box : dialog.findChildren<QComboBox *>()) {
        if (textsOf(box).join('\n').contains(hostile::mark))
            boxes << box;
    }
    return boxes;
}

void selectTheText(QComboBox *box)
{
    const int row = box->findText(hostile::mark, Qt::MatchStartsWith);
    QVERIFY(row >= 0);
    box->setCurrentIndex(row);
}

} // namespace

void ShownOptionsTest::init()
{
    reset();
    QFETCH(QString, text);
    m_text = text;
    m_campaign = textsEverywhere(campaignWithMaps(), text);
}

void ShownOptionsTest::checkDialog(QDialog &dialog)
{
    bringOnShow(dialog);
    checkLabels(&dialog);
    checkSize(&dialog, {});
    const QList<QComboBox *> boxes = boxesWithTheText(dialog);
    QVERIFY(!boxes.isEmpty());
    for (QComboBox *box : boxes) {
        selectTheText(box);
        QVERIFY(!isOrdinaryLine(m_text) || box->currentText().startsWith(m_text));
        checkToolTip(box, box->rect().center());
    }
    QComboBox *first = boxes.first();
    if (!first->isVisible())
        return;
    clickOn(first);
    QTRY_VERIFY_WITH_TIMEOUT(first->view()->isVisible(), longestWait);
    checkItem(first->view(), first->model()->index(first->currentIndex(), 0));
    checkSize(first->view()->window(), {});
    first->hidePopup();
}

void ShownOptionsTest::crossoverDialog()
{
    const SoonDone soon;
    QTableWidget table;
    HeroCrossoverDialog dialog(nullptr, &m_campaign, &m_campaign.scenarios[2], 24, &table, nullptr);
    checkDialog(dialog);
}

void ShownOptionsTest::heroDialog()
{
    const SoonDone soon;
    QTableWidget table;
    StartingHeroDialog dialog(nullptr, &m_campaign.scenarios[2], 24, &table, nullptr);
    checkDialog(dialog);
}

void ShownOptionsTest::bonusDialog()
{
    const SoonDone soon;
    BonusDialog dialog(nullptr, &m_campaign.scenarios[2], 24, 0, nullptr);
    checkDialog(dialog);
}

void ShownOptionsTest::rows_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("kind"); // as it is stored
    for (const hostile::Text &text : hostile::texts()) {
        for (int kind = 1; kind <= 3; ++kind)
            QTest::addRow("%s, kind %d", text.title, kind) << text.text << kind;
    }
}

void ShownOptionsTest::rows()
{
    QFETCH(int, kind);
    ScenarioData &scenario = m_campaign.scenarios[2];
    StartingBonusSet bonuses;
    bonuses.bonuses = {{0, QVariant::fromValue(BonusSpell{1, 1})}};
    if (kind == 1)
        giveOptions(scenario, 1, bonuses);
    else if (kind == 2)
        offerCrossovers(scenario, {{0, 0}, {1, 1}});
    else
        offerHeroes(scenario, {{0, 1}});
    const SoonDone soon;
    ScenarioInfo dialog(nullptr, &m_campaign, 24, 2);
    childOf<QTabWidget>(&dialog, "tabWidget")->setCurrentIndex(startOptionsTab);
    bringOnShow(dialog);
    int told = 0;
    for (QTableWidget *table : dialog.findChildren<QTableWidget *>()) {
        for (int column = 0; table->isVisible() && column < table->columnCount(); ++column) {
            const QTableWidgetItem *item = table->item(0, column);
            if (!item || !item->text().contains(hostile::mark))
                continue;
            ++told;
            QVERIFY(!isOrdinaryLine(m_text) || item->text().contains(m_text));
            checkItem(table, table->model()->index(0, column));
        }
    }
    QCOMPARE(told, 1);
}

QTEST_MAIN(ShownOptionsTest)
#include "shown_options_test.moc"
