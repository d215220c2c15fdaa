// The text of a scenario's region, and values that the controls can't show.
#include "tests/scenario/general_tab.h"

#include <QClipboard>
#include <QComboBox>
#include <QMimeData>
#include <QTextEdit>

namespace {

QString letters(int count, char letter = 'a')
{
    return QString(count, QLatin1Char(letter));
}

} // namespace

class ScenarioGeneralTextTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<ScenarioFixture>(); }
    void init() { fixture->reset(); }

    void textsFromFilesAreNoMarkup_data();
    void textsFromFilesAreNoMarkup();
    void untouchedValuesStay_data();
    void untouchedValuesStay();
    void editedTextReplacesOneThatTheControlCannotShow();
    void textIsCutTo600_data();
    void textIsCutTo600();
    void noHalfOfACharacterIsLeft();
    void pastedTextIsPlainAndCut();

private:
    std::unique_ptr<ScenarioFixture> fixture;
};

void ScenarioGeneralTextTest::textsFromFilesAreNoMarkup_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("scenarioNameLabelMain") << "<b>map</b>";
    QTest::newRow("mapFileIdentifier") << "<i>file</i>.e3m";
}

void ScenarioGeneralTextTest::textsFromFilesAreNoMarkup()
{
    QFETCH(QString, text);
    CampaignData campaign = twoScenarios();
    campaign.scenarios[0] = scenarioWithMap("<i>file</i>.e3m", "<b>map</b>");
    GeneralTab tab(campaign);
    const auto *label = tab.find<QLabel>(QTest::currentDataTag());
    QCOMPARE(label->text(), text);
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QCOMPARE(tab.find<QLabel>("regionNameLabelMain")->textFormat(), Qt::PlainText);
}

void ScenarioGeneralTextTest::untouchedValuesStay_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("colour");
    QTest::addColumn<int>("difficulty");
    QTest::newRow("line ends of two characters") << "one\r\ntwo\r\n" << 2 << 1;
    QTest::newRow("line ends of old") << "one\rtwo" << 2 << 1;
    QTest::newRow("hard spaces") << QStringLiteral("one\u00a0two") << 2 << 1;
    QTest::newRow("marks for paragraphs") << QStringLiteral("one\u2029two\u2028") << 2 << 1;
    QTest::newRow("700 characters") << letters(700) << 2 << 1;
    QTest::newRow("markup") << "<b>one</b>" << 2 << 1;
    QTest::newRow("no such colour") << "" << 200 << 1;
    QTest::newRow("no such difficulty") << "" << 2 << 9;
}

void ScenarioGeneralTextTest::untouchedValuesStay()
{
    QFETCH(QString, text);
    QFETCH(int, colour);
    QFETCH(int, difficulty);
    CampaignData campaign = twoScenarios();
    campaign.scenarios[0].regionText = text;
    campaign.scenarios[0].regionColor = quint8(colour);
    campaign.scenarios[0].defaultDifficulty = quint8(difficulty);
    GeneralTab tab(campaign);
    QVERIFY(!tab.general()->saveScenarioInfo());
    tab.select(1);
    tab.select(0);
    const ScenarioData &scenario = tab.copy().scenarios[0];
    QCOMPARE(scenario.regionText, text);
    QCOMPARE(scenario.regionColor, quint8(colour));
    QCOMPARE(scenario.defaultDifficulty, quint8(difficulty));
    QVERIFY(tab.find<QTextEdit>("regionTextEdit")->toPlainText().size() <= 600);
}

void ScenarioGeneralTextTest::editedTextReplacesOneThatTheControlCannotShow()
{
    CampaignData campaign = twoScenarios();
    campaign.scenarios[0].regionText = "one\r\ntwo";
    campaign.scenarios[0].regionColor = 200;
    GeneralTab tab(campaign);
    QCOMPARE(tab.find<QComboBox>("regionColorCombobox")->currentIndex(), -1);
    auto *edit = tab.find<QTextEdit>("regionTextEdit");
    edit->setFocus();
    edit->moveCursor(QTextCursor::End);
    QTest::keyClick(tab.dialog.windowHandle(), 'x');
    tab.find<QComboBox>("regionColorCombobox")->setCurrentIndex(0);
    QVERIFY(tab.general()->saveScenarioInfo());
    QCOMPARE(tab.copy().scenarios[0].regionText, QString("one\ntwox"));
    QCOMPARE(tab.copy().scenarios[0].regionColor, quint8(0));
}

void ScenarioGeneralTextTest::textIsCutTo600_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("typedAt");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("cursor");
    QTest::newRow("600 at the end") << 599 << 599 << letters(599) + "b" << 600;
    QTest::newRow("600 in front") << 599 << 0 << "b" + letters(599) << 1;
    QTest::newRow("601 at the end") << 600 << 600 << letters(600) << 600;
    QTest::newRow("601 in front") << 600 << 0 << "b" + letters(599) << 600;
    QTest::newRow("601 in the middle") << 600 << 300 << letters(300) + "b" + letters(299) << 600;
}

void ScenarioGeneralTextTest::textIsCutTo600()
{
    QFETCH(int, before);
    QFETCH(int, typedAt);
    CampaignData campaign = twoScenarios();
    campaign.scenarios[0].regionText = letters(before);
    GeneralTab tab(campaign);
    auto *edit = tab.find<QTextEdit>("regionTextEdit");
    edit->setFocus();
    QTextCursor cursor = edit->textCursor();
    cursor.setPosition(typedAt);
    edit->setTextCursor(cursor);
    QTest::keyClick(tab.dialog.windowHandle(), 'b');
    QTEST(edit->toPlainText(), "after");
    QTEST(edit->textCursor().position(), "cursor");
    QVERIFY(!edit->textCursor().hasSelection());
}

void ScenarioGeneralTextTest::noHalfOfACharacterIsLeft()
{
    CampaignData campaign = twoScenarios();
    campaign.scenarios[0].regionText = letters(599);
    GeneralTab tab(campaign);
    auto *edit = tab.find<QTextEdit>("regionTextEdit");
    edit->moveCursor(QTextCursor::End);
    QApplication::clipboard()->setText("😀"); // two of QString's units
    edit->paste();
    QCOMPARE(edit->toPlainText(), letters(599));
}

void ScenarioGeneralTextTest::pastedTextIsPlainAndCut()
{
    CampaignData campaign = twoScenarios();
    campaign.scenarios[0].regionText = letters(500);
    GeneralTab tab(campaign);
    auto *edit = tab.find<QTextEdit>("regionTextEdit");
    QVERIFY(!edit->acceptRichText());
    auto *rich = new QMimeData;
    rich->setHtml("<b>" + letters(300, 'b') + "</b>");
    rich->setText(letters(300, 'b'));
    QApplication::clipboard()->setMimeData(rich);
    edit->setFocus();
    edit->moveCursor(QTextCursor::End);
    QTest::keySequence(tab.dialog.windowHandle(), QKeySequence(QKeySequence::Paste));
    QCOMPARE(edit->toPlainText(), letters(500) + letters(100, 'b'));
    QVERIFY(!edit->toHtml().contains("font-weight:600"));
    QCOMPARE(edit->textCursor().position(), 600);
    QVERIFY(tab.general()->saveScenarioInfo());
    QCOMPARE(tab.copy().scenarios[0].regionText, letters(500) + letters(100, 'b'));
}

QTEST_MAIN(ScenarioGeneralTextTest)
#include "scenario_general_text_test.moc"
