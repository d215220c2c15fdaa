// The dialog for one offer of a hero carried over.
#include "scenario/hero_crossover_dialog.h"

#include "tests/scenario/crossover_campaign.h"
#include "tests/scenario/shown_page.h"
#include "tests/support/longest_wait.h"

#include <QHelpEvent>
#include <QLabel>
#include <QString>
#include <QStyleOptionComboBox>
#include <QToolTip>
#include <QtTest>

namespace {

constexpr unsigned campaignMap = 3;

using Entries = std::vector<CmpHeroCrossover>;

// As a pointer that rests there.
void askForToolTip(QWidget *widget, const QPoint &place)
{
    QHelpEvent event(QEvent::ToolTip, place, widget->mapToGlobal(place));
    QCoreApplication::sendEvent(widget, &event);
}

// Pixels for the text of what is chosen.
int roomIn(const QComboBox *box)
{
    QStyleOptionComboBox option;
    option.initFrom(box);
    return box->style()
        ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, box)
        .width();
}

} // namespace

class HeroCrossoverDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { nameHeroesAndColours(); }
    void init();
    void cleanup() { m_dialog.reset(); }

    void controlsHaveTheirTexts();
    void windowIsModalAndFixed();
    void offersPrerequisitesThatNoOtherRowHas();
    void offersTheEditedRowsOwnSource();
    void offersAllHumans();
    void itemsCarryNumbers();
    void coloursBeyondTheTableHaveNoName();
    void openedOnTheSecondColumnTheOwnSourceIsMissing();
    void whatIsNotOfferedShowsAsNoChoice();
    void writesBothItemsOfTheRow();
    void withoutChoicesTheFirstNumbersAreStored();
    void longNamesHaveRoom();
    void endlessNamesAreToldWhole();
    void rightClicksDoNothing();
    void buttonsClose_data();
    void buttonsClose();

private:
    void nameTheFirstMap(const QString &name);
    void open(QTableWidgetItem *item = nullptr);
    void addRows(const Entries &entries);
    QComboBox *sources() { return childOf<QComboBox>(m_dialog.get(), "scenarioCombobox"); }
    QComboBox *players() { return childOf<QComboBox>(m_dialog.get(), "playerCombobox"); }

    std::unique_ptr<CrossoverCampaign> m_campaign;
    std::unique_ptr<QTableWidget> m_table;
    std::unique_ptr<HeroCrossoverDialog> m_dialog;
};

void HeroCrossoverDialogTest::init()
{
    m_campaign = std::make_unique<CrossoverCampaign>();
    m_table = std::make_unique<QTableWidget>(0, 2);
}

void HeroCrossoverDialogTest::addRows(const Entries &entries)
{
    for (const CmpHeroCrossover &option : entries) {
        const int row = m_table->rowCount();
        m_table->setRowCount(row + 1);
        for (int column = 0; column < 2; ++column) {
            auto *item = new QTableWidgetItem;
            item->setData(Qt::UserRole, QVariant::fromValue(option));
            m_table->setItem(row, column, item);
        }
    }
}

void HeroCrossoverDialogTest::open(QTableWidgetItem *item)
{
    m_dialog = std::make_unique<HeroCrossoverDialog>(nullptr, m_campaign.get(), &m_campaign->last(),
                                                     campaignMap, m_table.get(), item);
    bringOnShow(*m_dialog);
}

void HeroCrossoverDialogTest::controlsHaveTheirTexts()
{
    open();
    QCOMPARE(m_dialog->windowTitle(), QString("Edit Hero Crossover Option"));
    QCOMPARE(childOf<QLabel>(m_dialog.get(), "heroLabel")->text(), QString("Source scenario:"));
    QCOMPARE(childOf<QLabel>(m_dialog.get(), "playerLabel")->text(), QString("Player position:"));
}

void HeroCrossoverDialogTest::windowIsModalAndFixed()
{
    open();
    QCOMPARE(m_dialog->windowModality(), Qt::ApplicationModal);
    QCOMPARE(m_dialog->minimumSize(), m_dialog->maximumSize());
    QVERIFY(!m_dialog->windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
}

void HeroCrossoverDialogTest::offersPrerequisitesThatNoOtherRowHas()
{
    open();
    QCOMPARE(textsOf(sources()), QStringList({"0. Thaw", "2. Coast", "3. Ridge"}));
    addRows({{0, 2}, {5, 200}});
    open();
    QCOMPARE(textsOf(sources()), QStringList({"0. Thaw", "3. Ridge"}));
    QCOMPARE(sources()->currentIndex(), 0);
}

void HeroCrossoverDialogTest::offersTheEditedRowsOwnSource()
{
    addRows({{0, 2}, {4, 3}});
    open(m_table->item(1, 0));
    QCOMPARE(textsOf(sources()), QStringList({"0. Thaw", "3. Ridge"}));
    QCOMPARE(sources()->currentText(), QString("3. Ridge"));
    QCOMPARE(players()->currentText(), QString("Orange"));
}

void HeroCrossoverDialogTest::offersAllHumans()
{
    addRows({{0, 2}, {1, 3}}); // a player may stand in several rows
    open();
    QCOMPARE(textsOf(players()), QStringList({"Red", "Blue", "Tan", "Orange"}));
    QCOMPARE(players()->currentIndex(), 0);
}

void HeroCrossoverDialogTest::itemsCarryNumbers()
{
    open();
    QCOMPARE(sources()->itemData(1), QVariant(2));
    QCOMPARE(int(sources()->itemData(1).type()), int(QMetaType::Int));
    QCOMPARE(players()->itemData(3), QVariant(4));
    QCOMPARE(int(players()->itemData(3).type()), int(QMetaType::Int));
}

void HeroCrossoverDialogTest::coloursBeyondTheTableHaveNoName()
{
    EditorData::colors.resize(2);
    open();
    nameHeroesAndColours();
    QCOMPARE(textsOf(players()), QStringList({"Red", "Blue", "", ""}));
}

void HeroCrossoverDialogTest::openedOnTheSecondColumnTheOwnSourceIsMissing()
{
    addRows({{1, 2}});
    open(m_table->item(0, 1));
    QCOMPARE(textsOf(sources()), QStringList({"0. Thaw", "3. Ridge"}));
    QCOMPARE(sources()->currentIndex(), -1);
    QCOMPARE(players()->currentText(), QString("Blue"));
}

void HeroCrossoverDialogTest::whatIsNotOfferedShowsAsNoChoice()
{
    addRows({{200, 200}, {3, 1}});
    for (int row = 0; row < 2; ++row) {
        open(m_table->item(row, 0));
        QCOMPARE(sources()->currentIndex(), -1);
        QCOMPARE(players()->currentIndex(), -1);
    }
}

void HeroCrossoverDialogTest::writesBothItemsOfTheRow()
{
    addRows({{0, 2}, {0, 3}});
    open(m_table->item(1, 0));
    sources()->setCurrentText("0. Thaw");
    players()->setCurrentText("Tan");
    m_dialog->updateOption(m_table->item(1, 0));
    QCOMPARE(m_table->item(1, 0)->text(), QString("0. Thaw"));
    QCOMPARE(m_table->item(1, 1)->text(), QString("Player 3 (Tan)"));
    for (int column = 0; column < 2; ++column) {
        const auto option = m_table->item(1, column)->data(Qt::UserRole).value<CmpHeroCrossover>();
        QCOMPARE(int(option.sourceScenario), 0);
        QCOMPARE(int(option.player), 2);
    }
    QCOMPARE(m_table->item(0, 0)->text(), QString());
}

void HeroCrossoverDialogTest::withoutChoicesTheFirstNumbersAreStored()
{
    m_campaign->require({});
    giveMap(m_campaign->last(), MapHeader());
    addRows({{5, 5}});
    open();
    QCOMPARE(sources()->count(), 0);
    QCOMPARE(players()->count(), 0);
    m_dialog->updateOption(m_table->item(0, 0));
    const auto option = m_table->item(0, 0)->data(Qt::UserRole).value<CmpHeroCrossover>();
    QCOMPARE(int(option.player), 0);
    QCOMPARE(int(option.sourceScenario), 0);
}

void HeroCrossoverDialogTest::nameTheFirstMap(const QString &name)
{
    MapHeader header = heroMap();
    header.mapName = name;
    giveMap(m_campaign->scenarios[0], header);
}

void HeroCrossoverDialogTest::longNamesHaveRoom()
{
    nameTheFirstMap("W. W. Wormwood's Merry Menagerie of Wonders, the Third Season");
    open();
    const QString text = sources()->currentText();
    QVERIFY(text.startsWith("0. W. W. Wormwood"));
    QVERIFY(roomIn(sources()) > sources()->fontMetrics().horizontalAdvance(text));
    askForToolTip(sources(), sources()->rect().center());
    QTRY_COMPARE_WITH_TIMEOUT(QToolTip::text(), QString(), longestWait);
}

// Without the places where an endless word may break.
static QString shownToolTip()
{
    return QToolTip::text().remove(QChar(0x200B));
}

void HeroCrossoverDialogTest::endlessNamesAreToldWhole()
{
    nameTheFirstMap("<b>Marsh</b> " + QString(500, 'm'));
    open();
    QVERIFY(m_dialog->width() < 140 * m_dialog->fontMetrics().averageCharWidth());
    const QString whole = "<qt>0. &lt;b&gt;Marsh&lt;/b&gt; " + QString(500, 'm') + "</qt>";
    askForToolTip(sources(), sources()->rect().center());
    QCOMPARE(shownToolTip(), whole);
    sources()->setCurrentIndex(1);
    askForToolTip(sources(), sources()->rect().center());
    QTRY_COMPARE_WITH_TIMEOUT(QToolTip::text(), QString(), longestWait);
    clickOn(sources());
    QAbstractItemView *list = sources()->view();
    QTRY_VERIFY_WITH_TIMEOUT(list->isVisible(), longestWait);
    const auto placeOf = [&](int row) {
        const QRect place = list->visualRect(sources()->model()->index(row, 0));
        return place.intersected(list->viewport()->rect()).center();
    };
    askForToolTip(list->viewport(), placeOf(0));
    QCOMPARE(shownToolTip(), whole);
    askForToolTip(list->viewport(), placeOf(1));
    QTRY_COMPARE_WITH_TIMEOUT(QToolTip::text(), QString(), longestWait);
    sources()->hidePopup();
}

void HeroCrossoverDialogTest::rightClicksDoNothing()
{
    open();
    verifyRightClicksDoNothing(sources());
    verifyRightClicksDoNothing(players());
}

void HeroCrossoverDialogTest::buttonsClose_data()
{
    addButtonsThatClose();
}

void HeroCrossoverDialogTest::buttonsClose()
{
    open();
    verifyButtonCloses(*m_dialog);
}

QTEST_MAIN(HeroCrossoverDialogTest)
#include "hero_crossover_dialog_test.moc"
