// The list of a campaign's texts, and taking translations over: what is taken, what isn't and what
// is told of it.
#include "document/text_catalogue.h"
#include "document/translation/translation_file.h"
#include "document/translation/translation_import.h"

#include "gamedata/locale_codec.h"
#include "tests/document/text_campaign.h"

#include <QtTest>

using namespace text_campaign;

class TranslationImportTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void allTextsAreListed();
    void idsOutliveEveryOtherChange();
    void contextsTellWhereATextStands();
    void contextsAreOneLine();
    void settingAStoryLeavesTheOldRecordAlone();
    void emptyTextsAreNotExported();
    void textsThatNoFileCanHoldAreTold_data();
    void textsThatNoFileCanHoldAreTold();
    void everyTranslationIsTaken();
    void lineEndsFollowTheCampaign_data();
    void lineEndsFollowTheCampaign();
    void whatIsNotTakenIsTold_data();
    void whatIsNotTakenIsTold();
    void forceTakesWhatHasChanged();
    void emptyTextsAskForNothing();
    void faultsLeaveTheCampaignAlone_data();
    void faultsLeaveTheCampaignAlone();
    void longestTextsAreTaken();
    void aFileOfAnotherCampaignIsRefused();
};

namespace {

// The campaign's texts, each translated by itself in capitals.
std::vector<TranslationUnit> translations(const CampaignData &campaign)
{
    std::vector<TranslationUnit> units = unitsOf(campaign).units;
    for (TranslationUnit &unit : units)
        unit.translation = unit.source.toUpper();
    return units;
}

TranslationUnit &unitOf(std::vector<TranslationUnit> &units, const QString &id)
{
    return *std::find_if(units.begin(), units.end(),
                         [&](const TranslationUnit &unit) { return unit.id == id; });
}

QStringList told(const std::vector<TranslationNote> &notes)
{
    QStringList list;
    for (const TranslationNote &note : notes)
        list << note.id + ": " + note.what;
    return list;
}

const QStringList upperTexts{"EMBER ROAD",
                             "THREE STEPS\nIN THE DARK",
                             "BEWARE\nOF WOLVES",
                             "ONCE\nUPON",
                             "-",
                             "THEN",
                             "-",
                             "THE END",
                             "-",
                             "Nobody",
                             "No map",
                             "-",
                             "-",
                             "-",
                             "-",
                             "-",
                             "",
                             "-",
                             "-",
                             "-",
                             "-",
                             "-",
                             "-"};

} // namespace

void TranslationImportTest::init()
{
    QVERIFY(setLocaleCodec("UTF-8"));
    setTables();
}

void TranslationImportTest::allTextsAreListed()
{
    const CampaignData campaign = make();
    QStringList list;
    for (const TextPlace &place : textPlaces(campaign))
        list << idOf(place) + "|" + textAt(campaign, place);
    QCOMPARE(list, QStringList({"campaign.name|Ember Road",
                                "campaign.description|Three steps\nin the dark",
                                "scenario.1.region.text|Beware\nof wolves",
                                "scenario.1.prologue.1|Once\nupon", "scenario.1.prologue.3|Then",
                                "scenario.1.epilogue.2|The end", "scenario.3.region.text|"}));
}

void TranslationImportTest::idsOutliveEveryOtherChange()
{
    CampaignData campaign = make();
    campaign.name = "Other";
    campaign.scenarios[0].regionText = "Nobody";
    campaign.scenarios[0].prologues = {nullptr, nullptr, story("At last")};
    giveMap(campaign.scenarios[1], "Another");
    QStringList ids;
    for (const TextPlace &place : textPlaces(campaign))
        ids << idOf(place);
    QCOMPARE(ids, QStringList({"campaign.name", "campaign.description", "scenario.1.region.text",
                               "scenario.1.prologue.3", "scenario.1.epilogue.2",
                               "scenario.2.region.text", "scenario.2.prologue.1",
                               "scenario.3.region.text"}));
}

void TranslationImportTest::contextsTellWhereATextStands()
{
    CampaignData campaign = make();
    QStringList contexts;
    for (const TextPlace &place : textPlaces(campaign))
        contexts << contextOf(campaign, place);
    const QString first = "Scenario 1 (The Long Thaw, North Fen): ";
    const QString third = "Scenario 3 (Frostmere, Old Mill): ";
    QCOMPARE(contexts,
             QStringList({"The campaign's name, at most 60 letters",
                          "The campaign's description, at most 300 letters",
                          first + "right-click text, at most 600 letters", first + "prologue 1",
                          first + "prologue 3", first + "epilogue 2",
                          third + "right-click text, at most 600 letters"}));
    campaign.hasMap = false;
    QCOMPARE(contextOf(campaign, {TextKind::Prologue, 0, 1}),
             QString("Scenario 1 (The Long Thaw): prologue 2"));
    giveMap(campaign.scenarios[0], "");
    QCOMPARE(contextOf(campaign, {TextKind::Epilogue, 0, 0}), QString("Scenario 1: epilogue 1"));
}

void TranslationImportTest::contextsAreOneLine()
{
    CampaignData campaign = make();
    giveMap(campaign.scenarios[0], QString("A\r\nB\t") + QChar(0xdc80) + QChar(0x2028) + "🏰");
    QCOMPARE(contextOf(campaign, {TextKind::Prologue, 0, 0}),
             QString("Scenario 1 (A??B???🏰, North Fen): prologue 1"));
    giveMap(campaign.scenarios[0], QString(99, 'x') + "🏰");
    QCOMPARE(contextOf(campaign, {TextKind::Prologue, 0, 0}),
             "Scenario 1 (" + QString(99, 'x') + "..., North Fen): prologue 1");
}

void TranslationImportTest::settingAStoryLeavesTheOldRecordAlone()
{
    CampaignData campaign = make();
    const CampaignData copy = campaign;
    setTextAt(campaign, {TextKind::Prologue, 0, 0}, "New");
    QCOMPARE(campaign.scenarios[0].prologues[0]->text, QString("New"));
    QCOMPARE(int(campaign.scenarios[0].prologues[0]->videoId), 7);
    QCOMPARE(int(campaign.scenarios[0].prologues[0]->musicIndex), 9);
    QCOMPARE(textsOf(copy), textsOf(make()));
}

void TranslationImportTest::emptyTextsAreNotExported()
{
    CampaignData campaign = make();
    campaign.name.clear();
    campaign.scenarios[0].prologues[0] = story("");
    campaign.scenarios[0].regionText = "Beware\r\nof\rwolves";
    QStringList list;
    for (const TranslationUnit &unit : unitsOf(campaign).units)
        list << unit.id + "|" + unit.source + "|" + unit.translation;
    QCOMPARE(list, QStringList({"campaign.description|Three steps\nin the dark|",
                                "scenario.1.region.text|Beware\nof\nwolves|",
                                "scenario.1.prologue.3|Then|", "scenario.1.epilogue.2|The end|"}));
}

void TranslationImportTest::textsThatNoFileCanHoldAreTold_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("fault");
    const QString bytes = "it holds bytes that are no text in this encoding";
    const QString control = "it holds a control character";
    QTest::newRow("byte") << QString("a") + QChar(0xdce9) << bytes;
    QTest::newRow("half a pair") << QString("a") + QChar(0xd83c) << bytes;
    QTest::newRow("no character") << QString(QChar(0xffff)) << bytes;
    QTest::newRow("control character") << QString("a\x01") << control;
    QTest::newRow("zero") << QString(QChar(0)) << control;
    QTest::newRow("text") << QString("a\t\r\n\u00e9🏰") << QString();
}

void TranslationImportTest::textsThatNoFileCanHoldAreTold()
{
    QFETCH(QString, text);
    QFETCH(QString, fault);
    QCOMPARE(faultOfText(text).value_or(QString()), fault);
    CampaignData campaign = make();
    campaign.scenarios[0].prologues[2] = story(text);
    const TranslationExport result = unitsOf(campaign);
    QCOMPARE(result.error, fault.isEmpty() ? QString() : "scenario.1.prologue.3: " + fault);
    QCOMPARE(result.units.empty(), !fault.isEmpty());
}

void TranslationImportTest::everyTranslationIsTaken()
{
    CampaignData campaign = make();
    const TranslationReport report = takeTranslations(campaign, translations(campaign), false);
    QCOMPARE(told(report.faults), QStringList());
    QCOMPARE(told(report.notes), QStringList());
    QCOMPARE(report.taken, 6);
    QCOMPARE(report.texts, 6);
    QCOMPARE(textsOf(campaign), upperTexts);
}

void TranslationImportTest::lineEndsFollowTheCampaign_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("translation");
    QTest::addColumn<QString>("result");
    QTest::newRow("LF") << "a\nb"
                        << "a\nb"
                        << "x\ny"
                        << "x\ny";
    QTest::newRow("LF from CR LF") << "a\nb"
                                   << "a\r\nb"
                                   << "x\r\ny\rz"
                                   << "x\ny\nz";
    QTest::newRow("CR LF") << "a\r\nb"
                           << "a\nb"
                           << "x\ny\r\nz"
                           << "x\r\ny\r\nz";
    QTest::newRow("CR") << "a\rb"
                        << "a\nb"
                        << "x\ny"
                        << "x\ry";
    QTest::newRow("no line end") << "a"
                                 << "a"
                                 << "x\r\ny"
                                 << "x\ny";
    QTest::newRow("tabulator") << "a\tb"
                               << "a\tb"
                               << "x\ty"
                               << "x\ty";
}

void TranslationImportTest::lineEndsFollowTheCampaign()
{
    QFETCH(QString, text);
    QFETCH(QString, source);
    QFETCH(QString, translation);
    QFETCH(QString, result);
    CampaignData campaign = make();
    campaign.scenarios[0].prologues[0] = story(text);
    std::vector<TranslationUnit> units = translations(campaign);
    TranslationUnit &unit = unitOf(units, "scenario.1.prologue.1");
    unit.source = source;
    unit.translation = translation;
    QCOMPARE(told(takeTranslations(campaign, units, false).notes), QStringList());
    QCOMPARE(campaign.scenarios[0].prologues[0]->text, result);
}

void TranslationImportTest::whatIsNotTakenIsTold_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<bool>("force");
    QTest::newRow("new, the file lacks it") << "new, the file lacks it" << false;
    QTest::newRow("missing") << "missing, it isn't translated" << false;
    QTest::newRow("unfinished") << "unfinished, not taken" << false;
    QTest::newRow("unfinished, forced") << "unfinished, not taken" << true;
    QTest::newRow("changed") << "changed since, not taken" << false;
}

void TranslationImportTest::whatIsNotTakenIsTold()
{
    QFETCH(QString, what);
    QFETCH(bool, force);
    const QString id = "scenario.1.prologue.3";
    CampaignData campaign = make();
    std::vector<TranslationUnit> units = translations(campaign);
    TranslationUnit &unit = unitOf(units, id);
    if (what.startsWith("new"))
        unit.id = "scenario.2.prologue.1";
    else if (what.startsWith("missing"))
        unit.translation.clear();
    else if (what.startsWith("unfinished"))
        unit.unfinished = true;
    else
        unit.source = "Then ";
    const TranslationReport report = takeTranslations(campaign, units, force);
    QStringList notes{id + ": " + what};
    if (what.startsWith("new"))
        notes << "scenario.2.prologue.1: unknown, the campaign has no such text";
    QCOMPARE(told(report.notes), notes);
    QCOMPARE(report.taken, 5);
    QStringList texts = upperTexts;
    texts[5] = "Then";
    QCOMPARE(textsOf(campaign), texts);
}

void TranslationImportTest::forceTakesWhatHasChanged()
{
    CampaignData campaign = make();
    std::vector<TranslationUnit> units = translations(campaign);
    unitOf(units, "scenario.1.prologue.3").source = "Then again";
    const TranslationReport report = takeTranslations(campaign, units, true);
    QCOMPARE(told(report.notes),
             QStringList("scenario.1.prologue.3: changed since, taken all the same"));
    QCOMPARE(report.taken, 6);
    QCOMPARE(textsOf(campaign), upperTexts);
}

void TranslationImportTest::emptyTextsAskForNothing()
{
    CampaignData campaign = make();
    const std::vector<TranslationUnit> units = translations(campaign);
    campaign.description.clear();
    const TranslationReport report = takeTranslations(campaign, units, false);
    QCOMPARE(told(report.notes), QStringList("campaign.description: changed since, not taken"));
    QCOMPARE(report.texts, 5);
    QCOMPARE(campaign.description, QString());
}

void TranslationImportTest::faultsLeaveTheCampaignAlone_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("fault");
    const auto row = [](const char *id, const QString &text, const char *fault) {
        QTest::newRow(fault) << id << text << QString(id) + ": " + fault;
    };
    row("campaign.name", QString(61, 'x'), "it has 61 letters, at most 60 fit");
    row("campaign.description", QString(301, 'x'), "it has 301 letters, at most 300 fit");
    row("scenario.1.region.text", QString(601, 'x'), "it has 601 letters, at most 600 fit");
    row("scenario.1.prologue.1", "x\u0416y",
        "the campaign's encoding can't hold \"\u0416\" (U+0416)");
    row("scenario.1.prologue.3", "x🏰", "the campaign's encoding can't hold \"🏰\" (U+1F3F0)");
    row("scenario.1.epilogue.2", "x\x1b", "it holds a control character");
}

void TranslationImportTest::faultsLeaveTheCampaignAlone()
{
    QFETCH(QString, id);
    QFETCH(QString, text);
    QFETCH(QString, fault);
    QVERIFY(setLocaleCodec("Windows-1252"));
    CampaignData campaign = make();
    std::vector<TranslationUnit> units = translations(campaign);
    unitOf(units, id).translation = text;
    const TranslationReport report = takeTranslations(campaign, units, false);
    QCOMPARE(told(report.faults), QStringList(fault));
    QCOMPARE(textsOf(campaign), textsOf(make()));
    units.push_back(units.front());
    QCOMPARE(told(takeTranslations(campaign, units, false).faults).first(),
             QString("campaign.name: stands in the file twice"));
}

void TranslationImportTest::longestTextsAreTaken()
{
    CampaignData campaign = make();
    std::vector<TranslationUnit> units = translations(campaign);
    unitOf(units, "campaign.name").translation = QString(60, 'x');
    unitOf(units, "campaign.description").translation = QString(300, 'x');
    unitOf(units, "scenario.1.region.text").translation = QString(600, 'x');
    unitOf(units, "scenario.1.prologue.1").translation = QString(100000, 'x');
    QCOMPARE(told(takeTranslations(campaign, units, false).faults), QStringList());
    QCOMPARE(campaign.scenarios[0].prologues[0]->text.size(), 100000);
}

void TranslationImportTest::aFileOfAnotherCampaignIsRefused()
{
    CampaignData campaign = make();
    const QStringList fault{": no text of this campaign is in it"};
    QCOMPARE(told(takeTranslations(campaign, {}, true).faults), fault);
    QCOMPARE(told(takeTranslations(campaign, {{"x", "", "a", "b", false}}, true).faults), fault);
}

QTEST_GUILESS_MAIN(TranslationImportTest)
#include "translation_import_test.moc"
