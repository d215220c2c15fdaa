// The file of texts: its lines as they are written, and what is taken from it.
#include "document/text_exchange.h"

#include "gamedata/limits.h"
#include "tests/document/text_campaign.h"

#include <QTextCodec>
#include <QTextStream>
#include <QtTest>

using namespace text_campaign;

class TextExchangeTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void lineFeedsBecomeTabulatorsAndBack();
    void writesEveryLine();
    void writesScenariosWithoutAMapOfTheCampaignByNumber();
    void exportChangesNothing();
    void anExportComesBackWithoutNameAndDescription();
    void takesEveryText();
    void takesAnyLineEnd_data();
    void takesAnyLineEnd();
    void emptyLinesMayHoldAnything();
    void surplusLinesAreIgnored();
    void carriageReturnsOfTextsAreLost();
    void nobodyElseSeesNewStories();
    void storiesKeepVideoAndMusic();
    void tabulatorsInNamesStay();
    void lineFeedsInNamesAreRefused();
    void filesAreInTheLocalesCodec();
    void bytesThatAreNoTextComeBack();
    void namesBeyondTheCodecComeBack();
    void byteOrderMarksTellTheEncoding_data();
    void byteOrderMarksTellTheEncoding();
    void filesPastTheLimitAreRefused_data();
    void filesPastTheLimitAreRefused();
    void endlessFilesAreRefused();

private:
    Importer import;
};

namespace {

// A codec for as long as it lives.
class LocaleCodec
{
public:
    explicit LocaleCodec(const char *name) : m_before(QTextCodec::codecForLocale())
    {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(name));
    }
    ~LocaleCodec() { QTextCodec::setCodecForLocale(m_before); }
    LocaleCodec(const LocaleCodec &) = delete;
    LocaleCodec &operator=(const LocaleCodec &) = delete;

private:
    QTextCodec *m_before;
};

// What the translated file makes of the campaign.
const QStringList translatedTexts{"Road\nof embers",
                                  "Steps", //
                                  "Wolves\nabout",
                                  "Long\tago",
                                  "-",
                                  "Later", //
                                  "-",
                                  "Over",
                                  "-", //
                                  "Nobody",
                                  "No map",
                                  "-",
                                  "-", //
                                  "-",
                                  "-",
                                  "-", //
                                  "A lake",
                                  "-",
                                  "-",
                                  "-", //
                                  "-",
                                  "-",
                                  "-"};

} // namespace

void TextExchangeTest::init()
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    text_campaign::setTables();
}

void TextExchangeTest::lineFeedsBecomeTabulatorsAndBack()
{
    QString text = "a\nb\n\nc\td\r\n";
    QString written;
    QTextStream stream(&written);
    WriteText(stream, text);
    stream.flush();
    QCOMPARE(written, QString("a\tb\t\tc\td\r\t"));
    QCOMPARE(text, QString("a\nb\n\nc\td\r\n"));
    QCOMPARE(ReadText("a\tb\t\tc\r"), QString("a\nb\n\nc\r"));
    QCOMPARE(ReadText(""), QString());
}

void TextExchangeTest::writesEveryLine()
{
    CampaignData campaign = make();
    QCOMPARE(exportedTexts(campaign), QByteArray(exported));
}

void TextExchangeTest::writesScenariosWithoutAMapOfTheCampaignByNumber()
{
    CampaignData campaign;
    campaign.initDummyCampaign(24, false, 1, 2);
    giveMap(campaign.scenarios[1], "Frostmere");
    campaign.scenarios[1].regionText = "Lake";
    const QByteArray head = "Name:\r\n\r\n\r\nDescription:\r\n\r\n\r\n";
    const QByteArray second = "\r\n1. Frostmere\r\n\r\nRight-click text:\r\nLake\r\n\r\n";
    QCOMPARE(exportedTexts(campaign), head + second);
    giveMap(campaign.scenarios[0], "Thaw");
    const QByteArray first = "\r\n0. Thaw\r\n\r\nRight-click text:\r\n\r\n\r\n";
    QCOMPARE(exportedTexts(campaign), head + first + second);
    campaign.scenarios.clear();
    QCOMPARE(exportedTexts(campaign), head);
}

void TextExchangeTest::exportChangesNothing()
{
    CampaignData campaign = make();
    exportedTexts(campaign);
    QCOMPARE(textsOf(campaign), textsOf(make()));
}

void TextExchangeTest::anExportComesBackWithoutNameAndDescription()
{
    CampaignData campaign = make();
    QVERIFY(import(campaign, exported));
    QStringList expected = textsOf(make());
    expected[0] = "";
    expected[1] = "";
    expected[3] = "Once\tupon"; // a prologue keeps its tabulators
    QCOMPARE(textsOf(campaign), expected);
    QCOMPARE(campaign.scenarios[0].regionText, QString("Beware\nof wolves"));
}

void TextExchangeTest::takesEveryText()
{
    CampaignData campaign = make();
    const auto untouched = campaign.scenarios[1].prologues[0];
    QVERIFY(import(campaign, fileOf(translated())));
    QCOMPARE(textsOf(campaign), translatedTexts);
    QCOMPARE(campaign.scenarios[1].prologues[0], untouched);
    QCOMPARE(campaign.version, 10u);
    QCOMPARE(campaign.mapId, quint8(campaignMap));
    QCOMPARE(campaign.musicId, quint8(34));
}

void TextExchangeTest::takesAnyLineEnd_data()
{
    QTest::addColumn<QByteArray>("lineEnd");
    QTest::newRow("CR LF") << QByteArray("\r\n");
    QTest::newRow("LF") << QByteArray("\n");
    QTest::newRow("CR CR LF") << QByteArray("\r\r\n");
}

void TextExchangeTest::takesAnyLineEnd()
{
    QFETCH(QByteArray, lineEnd);
    CampaignData campaign = make();
    QVERIFY(import(campaign, fileOf(translated(), lineEnd)));
    QCOMPARE(textsOf(campaign), translatedTexts);
}

void TextExchangeTest::emptyLinesMayHoldAnything()
{
    QByteArrayList lines = translated();
    for (const int line : {2, 5, 6, 8, 11, 14, 17, 20, 21, 23, 26})
        lines[line] = "Epilogue:";
    CampaignData campaign = make();
    QVERIFY(import(campaign, fileOf(lines)));
    QCOMPARE(textsOf(campaign), translatedTexts);
    // A last line counts without an end, too.
    campaign = make();
    QVERIFY(import(campaign, lines.join("\r\n")));
    QCOMPARE(textsOf(campaign), translatedTexts);
}

void TextExchangeTest::surplusLinesAreIgnored()
{
    CampaignData campaign = make();
    QVERIFY(import(campaign, fileOf(translated()) + "\r\nPrologue:\r\nMore\r\n\r\nand more"));
    QCOMPARE(textsOf(campaign), translatedTexts);
}

void TextExchangeTest::carriageReturnsOfTextsAreLost()
{
    CampaignData campaign = make();
    campaign.scenarios[0].regionText = "one\r\ntwo\rthree\r";
    campaign.scenarios[0].prologues[0] = story("one\r\ntwo\r");
    const QByteArray file = exportedTexts(campaign);
    QVERIFY(file.contains("\r\none\r\ttwo\rthree\r\r\n"));
    QVERIFY(import(campaign, file));
    QCOMPARE(campaign.scenarios[0].regionText, QString("one\ntwothree"));
    QCOMPARE(campaign.scenarios[0].prologues[0]->text, QString("one\ttwo"));
}

void TextExchangeTest::nobodyElseSeesNewStories()
{
    CampaignData campaign = make();
    const CampaignData copy = campaign; // as a dialog has one: the same records
    QVERIFY(import(campaign, fileOf(translated())));
    QCOMPARE(textsOf(copy), textsOf(make()));
    QByteArrayList lines = translated();
    lines[18] = "Prologue:";
    campaign = copy;
    QVERIFY(!import(campaign, fileOf(lines)));
    QCOMPARE(campaign.scenarios[0].prologues[2]->text, QString("Later"));
    QCOMPARE(textsOf(copy), textsOf(make()));
}

void TextExchangeTest::storiesKeepVideoAndMusic()
{
    CampaignData campaign = make();
    QVERIFY(import(campaign, fileOf(translated())));
    QCOMPARE(campaign.scenarios[0].prologues[0]->videoId, quint8(7));
    QCOMPARE(campaign.scenarios[0].prologues[0]->musicIndex, quint8(9));
    QVERIFY(!campaign.scenarios[0].prologues[1]);
}

void TextExchangeTest::tabulatorsInNamesStay()
{
    CampaignData campaign = make();
    giveMap(campaign.scenarios[2], "Frost\tmere");
    QVERIFY(import(campaign, exportedTexts(campaign)));
}

// The name in the file has a tabulator, and is compared as it stands.
void TextExchangeTest::lineFeedsInNamesAreRefused()
{
    CampaignData campaign = make();
    giveMap(campaign.scenarios[2], "Frost\nmere");
    const QByteArray file = exportedTexts(campaign);
    QVERIFY(file.contains("\r\nFrost\tmere \xE2\x80\x94 Old Mill\r\n"));
    QVERIFY(!import(campaign, file));
    QCOMPARE(campaign.name, QString("Ember Road"));
}

void TextExchangeTest::filesAreInTheLocalesCodec()
{
    const LocaleCodec codec("Windows-1251");
    CampaignData campaign = make();
    campaign.scenarios[0].regionText = QString::fromUtf8("Жди");
    const QByteArray file = exportedTexts(campaign);
    QVERIFY(file.contains("\r\n\xC6\xE4\xE8\r\n"));
    QVERIFY(file.contains("\r\nFrostmere \x97 Old Mill\r\n"));
    QVERIFY(import(campaign, QByteArray(file).replace("\xC6\xE4\xE8", "\xC4\xE0")));
    QCOMPARE(campaign.scenarios[0].regionText, QString::fromUtf8("Да"));
}

// Opened in UTF-8, a campaign in another encoding has bytes that are no text.
void TextExchangeTest::bytesThatAreNoTextComeBack()
{
    CampaignData campaign = make();
    const QString text = QString("a") + QChar(0xDCC6) + QChar(0xDCE4) + "b";
    giveMap(campaign.scenarios[0], text);
    campaign.scenarios[0].regionText = text + "\n" + text;
    campaign.scenarios[0].prologues[0] = story(text);
    const QByteArray file = exportedTexts(campaign);
    QVERIFY(file.contains("\r\na\xC6\xE4"
                          "b \xE2\x80\x94 North Fen\r\n"));
    QVERIFY(import(campaign, file));
    QCOMPARE(campaign.scenarios[0].regionText, text + "\n" + text);
    QCOMPARE(campaign.scenarios[0].prologues[0]->text, text);
}

// No dash in this one.
void TextExchangeTest::namesBeyondTheCodecComeBack()
{
    const LocaleCodec codec("KOI8-R");
    CampaignData campaign = make();
    const QByteArray file = exportedTexts(campaign);
    QVERIFY(file.contains("\r\nFrostmere ? Old Mill\r\n"));
    QVERIFY(import(campaign, file));
    QVERIFY(!import(campaign, QByteArray(file).replace("Frostmere ?", "Frostmere -")));
}

void TextExchangeTest::byteOrderMarksTellTheEncoding_data()
{
    QTest::addColumn<QByteArray>("encoding");
    QTest::addColumn<QByteArray>("mark");
    QTest::addColumn<QByteArray>("locale");
    for (const char *locale : {"UTF-8", "Windows-1251"}) {
        const auto row = [&](const char *encoding, const QByteArray &mark) {
            QTest::addRow("%s under %s", encoding, locale)
                << QByteArray(encoding) << mark << QByteArray(locale);
        };
        row("UTF-8", "\xEF\xBB\xBF");
        row("UTF-16LE", "\xFF\xFE");
        row("UTF-16BE", "\xFE\xFF");
        row("UTF-32LE", QByteArray("\xFF\xFE\0\0", 4));
        row("UTF-32BE", QByteArray("\0\0\xFE\xFF", 4));
    }
}

void TextExchangeTest::byteOrderMarksTellTheEncoding()
{
    QFETCH(QByteArray, encoding);
    QFETCH(QByteArray, mark);
    QFETCH(QByteArray, locale);
    const LocaleCodec codec(locale.constData());
    QByteArrayList lines = translated();
    lines[10] = "\xD0\x96\xD0\xB4\xD0\xB8";
    const QString text = QString::fromUtf8(fileOf(lines));
    QTextCodec::ConverterState withoutMark(QTextCodec::IgnoreHeader);
    const QByteArray bytes = QTextCodec::codecForName(encoding)->fromUnicode(
        text.constData(), text.size(), &withoutMark);
    CampaignData campaign = make();
    QVERIFY(import(campaign, mark + bytes));
    QStringList expected = translatedTexts;
    expected[2] = QString::fromUtf8("Жди");
    QCOMPARE(textsOf(campaign), expected);
}

void TextExchangeTest::filesPastTheLimitAreRefused_data()
{
    QTest::addColumn<qint64>("surplus");
    QTest::addColumn<bool>("taken");
    QTest::newRow("at the limit") << qint64(0) << true;
    QTest::newRow("past the limit") << qint64(1) << false;
    QTest::newRow("far past the limit") << (qint64(1) << 36) << false;
}

void TextExchangeTest::filesPastTheLimitAreRefused()
{
    QCOMPARE(limits::textFileBytes, qint64(67108864));
    QFETCH(qint64, surplus);
    QFETCH(bool, taken);
    QTemporaryDir folder;
    QFile file(samples::writeFile(folder.filePath("texts.txt"), fileOf(translated())));
    QVERIFY(file.resize(limits::textFileBytes + surplus));
    QVERIFY(file.open(QIODevice::ReadOnly));
    CampaignData campaign = make();
    QCOMPARE(importTextsFrom(file, campaign), taken);
    QCOMPARE(textsOf(campaign), taken ? translatedTexts : textsOf(make()));
}

void TextExchangeTest::endlessFilesAreRefused()
{
    QFile file("/dev/zero");
    QVERIFY(file.open(QIODevice::ReadOnly));
    CampaignData campaign = make();
    QVERIFY(!importTextsFrom(file, campaign));
}

QTEST_GUILESS_MAIN(TextExchangeTest)
#include "text_exchange_test.moc"
