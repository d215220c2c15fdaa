// Files that aren't those of the campaign's texts, and what of them stays in the campaign; random
// campaigns on the way out and in again.
#include "document/text_exchange.h"

#include "tests/document/text_campaign.h"

#include <QTextCodec>
#include <QtTest>

#include <random>

using namespace text_campaign;

class TextExchangeFaultsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void aWrongLineIsRefused_data();
    void aWrongLineIsRefused();
    void aMissingLineIsRefusedBeforeAnythingIsRead_data();
    void aMissingLineIsRefusedBeforeAnythingIsRead();
    void storiesOfANumberCountOnce_data();
    void storiesOfANumberCountOnce();
    void anotherCampaignsFileIsRefused();
    void everyShorterFileIsRefused();
    void damagedFilesDoNoHarm();
    void randomCampaignsComeBack();

private:
    Importer import;
};

namespace {

constexpr int storyCount = 3; // in the campaign's first scenario

// The texts of the campaign after so many stories of a wrong file were read.
QStringList textsAfter(int storiesRead)
{
    const std::array<int, storyCount> places{3, 5, 7};
    const QStringList stories{"Long\tago", "Later", "Over"};
    QStringList texts = textsOf(make());
    for (int i = 0; i < storiesRead; ++i)
        texts[places[std::size_t(i)]] = stories[i];
    return texts;
}

using Random = std::mt19937;

int below(Random &random, int limit)
{
    return int(random() % unsigned(limit));
}

QString randomText(Random &random, const QString &letters)
{
    QString text;
    for (int i = below(random, 30); i > 0; --i)
        text += letters[below(random, letters.size())];
    return text;
}

const QString wordLetters = QString::fromUtf8("aZ %1:.\"Жё—€");
const QString textLetters = wordLetters + "\n\t\r";

CampaignData randomCampaign(Random &random)
{
    CampaignData campaign;
    const int count = below(random, 12);
    campaign.initDummyCampaign(campaignMap, below(random, 2) == 0, 0, unsigned(count));
    campaign.scenarios.resize(std::size_t(count));
    campaign.name = randomText(random, textLetters);
    campaign.description = randomText(random, textLetters);
    for (ScenarioData &scenario : campaign.scenarios) {
        if (below(random, 3) != 0)
            giveMap(scenario, randomText(random, wordLetters + "\t"));
        scenario.regionText = randomText(random, textLetters);
        for (auto *stories : {&scenario.prologues, &scenario.epilogues}) {
            for (auto &entry : *stories)
                entry = below(random, 2) == 0 ? story(randomText(random, textLetters)) : nullptr;
        }
    }
    return campaign;
}

// What is left of the campaign's texts behind an export and its import.
QStringList textsBehindTheWay(CampaignData campaign)
{
    campaign.name.clear();
    campaign.description.clear();
    for (ScenarioData &scenario : campaign.scenarios) {
        if (!scenario.mapHeader)
            continue;
        scenario.regionText.remove('\r').replace('\t', '\n');
        for (auto *stories : {&scenario.prologues, &scenario.epilogues}) {
            for (auto &entry : *stories) {
                if (entry)
                    entry = story(QString(entry->text).remove('\r').replace('\n', '\t'));
            }
        }
    }
    return textsOf(campaign);
}

} // namespace

void TextExchangeFaultsTest::init()
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    text_campaign::setTables();
}

void TextExchangeFaultsTest::aWrongLineIsRefused_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("storiesRead");
    const auto row = [](const char *tag, int line, const char *text, int storiesRead) {
        QTest::newRow(tag) << line << QByteArray(text) << storiesRead;
    };
    row("name caption absent", 0, "", 0);
    row("name caption changed", 0, "Title:", 0);
    row("name caption in other letters", 0, "name:", 0);
    row("name caption with a blank", 0, "Name: ", 0);
    row("name caption with its value", 0, "Name:Ember Road", 0);
    row("description caption absent", 3, "", 0);
    row("description caption changed", 3, "Beschreibung:", 0);
    row("first scenario's name empty", 7, "", 0);
    row("first scenario's name changed", 7, "The Long Thaw \xE2\x80\x94 South Fen", 0);
    row("first scenario's name cut", 7, "The Long Thaw", 0);
    row("first scenario's name with a blank", 7, "The Long Thaw \xE2\x80\x94 North Fen ", 0);
    row("first scenario's name with a hyphen", 7, "The Long Thaw - North Fen", 0);
    row("first right-click caption absent", 9, "", 0);
    row("first right-click caption changed", 9, "Right-click Text:", 0);
    row("first prologue's caption absent", 12, "", 0);
    row("first prologue's caption changed", 12, "Epilogue:", 0);
    row("second prologue's caption absent", 15, "", 1);
    row("second prologue's caption changed", 15, "Prolog:", 1);
    row("epilogue's caption absent", 18, "", 2);
    row("epilogue's caption changed", 18, "Prologue:", 2);
    row("last scenario's name empty", 22, "", 3);
    row("last scenario's name changed", 22, "The Long Thaw \xE2\x80\x94 North Fen", 3);
    row("last right-click caption changed", 24, "Right-click text", 3);
}

void TextExchangeFaultsTest::aWrongLineIsRefused()
{
    QFETCH(int, line);
    QFETCH(QByteArray, text);
    QFETCH(int, storiesRead);
    QByteArrayList lines = translated();
    QVERIFY(lines[line] != text);
    lines[line] = text;
    CampaignData campaign = make();
    QVERIFY(!import(campaign, fileOf(lines)));
    QCOMPARE(textsOf(campaign), textsAfter(storiesRead));
}

void TextExchangeFaultsTest::aMissingLineIsRefusedBeforeAnythingIsRead_data()
{
    QTest::addColumn<int>("line");
    for (int line = 0; line < translated().size(); ++line)
        QTest::newRow(QByteArray::number(line)) << line;
}

void TextExchangeFaultsTest::aMissingLineIsRefusedBeforeAnythingIsRead()
{
    QFETCH(int, line);
    QCOMPARE(translated().size(), 27);
    QByteArrayList lines = translated();
    lines.removeAt(line);
    CampaignData campaign = make();
    QVERIFY(!import(campaign, fileOf(lines)));
    QCOMPARE(textsOf(campaign), textsAfter(0));
}

void TextExchangeFaultsTest::storiesOfANumberCountOnce_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<bool>("taken");
    QTest::addColumn<QStringList>("stories");
    QTest::newRow("below the fewest lines") << 14 << false << QStringList{"old", "old end"};
    QTest::newRow("the fewest lines") << 15 << false << QStringList{"new", "old end"};
    QTest::newRow("no text behind a caption") << 16 << true << QStringList{"new", ""};
    QTest::newRow("text at the end") << 17 << true << QStringList{"new", "new end"};
    QTest::newRow("all lines") << 18 << true << QStringList{"new", "new end"};
}

void TextExchangeFaultsTest::storiesOfANumberCountOnce()
{
    QFETCH(int, lines);
    QFETCH(bool, taken);
    CampaignData campaign;
    campaign.initDummyCampaign(campaignMap, true, 0, 0);
    campaign.name = "old name";
    giveMap(campaign.scenarios[1], "Frostmere");
    campaign.scenarios[1].prologues[2] = story("old");
    campaign.scenarios[1].epilogues[2] = story("old end");
    const QByteArrayList all{"Name:",     "new name",
                             "",          "Description:",
                             "",          "",
                             "",          "Frostmere \xE2\x80\x94 Grey Coast",
                             "",          "Right-click text:",
                             "",          "",
                             "Prologue:", "new",
                             "",          "Epilogue:",
                             "new end",   ""};
    QCOMPARE(import(campaign, fileOf(all.mid(0, lines))), taken);
    const QStringList stories{campaign.scenarios[1].prologues[2]->text,
                              campaign.scenarios[1].epilogues[2]->text};
    QTEST(stories, "stories");
    QCOMPARE(campaign.name, QString(taken ? "new name" : "old name"));
}

void TextExchangeFaultsTest::anotherCampaignsFileIsRefused()
{
    CampaignData other = make();
    std::swap(other.scenarios[0].mapHeader, other.scenarios[2].mapHeader);
    CampaignData campaign = make();
    QVERIFY(!import(campaign, exportedTexts(other)));
    other = make();
    giveMap(other.scenarios[1], "One more");
    QVERIFY(!import(campaign, exportedTexts(other)));
    QVERIFY(!import(other, exported));
    QCOMPARE(campaign.name, QString("Ember Road"));
}

void TextExchangeFaultsTest::everyShorterFileIsRefused()
{
    const QByteArray whole = fileOf(translated());
    for (int length = 0; length < whole.size(); ++length) {
        CampaignData campaign = make();
        QVERIFY2(!import(campaign, whole.left(length)), QByteArray::number(length));
        QCOMPARE(textsOf(campaign), textsAfter(0));
    }
    CampaignData campaign = make();
    QVERIFY(import(campaign, whole));
}

// No byte makes more of the campaign than its own texts.
void TextExchangeFaultsTest::damagedFilesDoNoHarm()
{
    Random random(5);
    for (int i = 0; i < 2000; ++i) {
        QByteArray bytes = fileOf(translated());
        for (int change = 1 + below(random, 4); change > 0; --change)
            bytes[below(random, bytes.size())] = char(random());
        CampaignData campaign = make();
        const bool taken = import(campaign, bytes);
        QCOMPARE(campaign.scenarios.size(), std::size_t(3));
        QCOMPARE(campaign.scenarios[1].regionText, QString("Nobody"));
        QCOMPARE(campaign.scenarios[1].prologues[0]->text, QString("No map"));
        if (!taken)
            QCOMPARE(textsOf(campaign).mid(0, 3), textsOf(make()).mid(0, 3));
    }
}

void TextExchangeFaultsTest::randomCampaignsComeBack()
{
    Random random(7);
    int texts = 0;
    for (int i = 0; i < 200; ++i) {
        CampaignData campaign = randomCampaign(random);
        const QStringList expected = textsBehindTheWay(campaign);
        const QByteArray file = exportedTexts(campaign);
        QVERIFY2(import(campaign, file), file.constData());
        QCOMPARE(textsOf(campaign), expected);
        texts += expected.size();
        // What came back stays as it is from now on.
        const QByteArray again = exportedTexts(campaign);
        QVERIFY(import(campaign, again));
        QCOMPARE(textsOf(campaign), expected);
        QCOMPARE(exportedTexts(campaign), again);
    }
    QVERIFY(texts > 5000);
}

QTEST_GUILESS_MAIN(TextExchangeFaultsTest)
#include "text_exchange_faults_test.moc"
