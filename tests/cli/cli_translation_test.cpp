// Texts on their way to translators and back, through the tools that these use.
#include "tests/cli/home_folder.h"
#include "tests/support/file_contents.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibraryInfo>
#include <QtTest>

class CliTranslationTest : public QObject, private HomeFolder
{
    Q_OBJECT

private slots:
    void init();
    void theFormatIsNamedOrToldByTheEnding_data();
    void theFormatIsNamedOrToldByTheEnding();
    void textsComeBackFromTheirTools_data();
    void textsComeBackFromTheirTools();
    void sampleCampaignsComeBackWhole_data();
    void sampleCampaignsComeBackWhole();
    void whatIsNotTakenIsTold();
    void changedTextsAreTakenByForce();
    void textsGoByTheCampaignsEncoding();
    void lettersThatTheEncodingLacksAreRefused();
    void textsOfAnotherEncodingAreNotExported();
    void wrongFilesAreRefused_data();
    void wrongFilesAreRefused();
    void wrongWordsEndWithStatusOne_data();
    void wrongWordsEndWithStatusOne();

private:
    // Arguments that are files' names get their folder.
    QStringList inFolder(QStringList words) const;
    ChildResult run(const QStringList &words) const { return m_game.run(inFolder(words)); }
    void runs(const QStringList &words) const { HomeFolder::runs(inFolder(words)); }
    void shell(const QByteArray &script) const;
    QStringList textsOf(const QString &name, const QStringList &options = {}) const;
};

namespace {

const QStringList capitals{"EMBER ROAD", "THREE STEPS", "BEWARE\nOF WOLVES", "ONCE\nUPON"};

const char poEntry[] = "msgctxt \"campaign.name\"\nmsgid \"Ember Road\"\nmsgstr \"%1\"\n";

// Spreadsheets, as Python's own module for their files stands for them.
const char csvScript[] = R"(python3 - <<'END'
import csv
with open('a.csv', encoding='utf-8-sig', newline='') as f:
    rows = list(csv.DictReader(f))
with open('b.csv', 'w', encoding='ENCODING', newline='') as f:
    out = csv.DictWriter(f, rows[0].keys(), delimiter='SEPARATOR', quoting=csv.QUOTING)
    out.writeheader()
    out.writerows({**row, 'translation': row['source'].upper()} for row in rows)
END
)";

QByteArray spreadsheet(const char *encoding, const char *separator, const char *quoting)
{
    return QByteArray(csvScript)
        .replace("ENCODING", encoding)
        .replace("SEPARATOR", separator)
        .replace("csv.QUOTING", QByteArray("csv.") + quoting);
}

// Linguist's own file stands between, and each text is marked as done there.
const char xliffScript[] = R"($LCONVERT -i a.xlf -of ts -o a.ts
python3 - <<'END'
import xml.etree.ElementTree as xml
tree = xml.parse('a.ts')
for message in tree.iter('message'):
    translation = message.find('translation')
    translation.attrib.clear()
    translation.text = message.find('source').text.upper()
tree.write('b.ts', encoding='utf-8')
END
$LCONVERT -i b.ts -o b.OUT
)";

QByteArray linguist(const char *ending)
{
    return QByteArray(xliffScript).replace("OUT", ending);
}

} // namespace

void CliTranslationTest::init()
{
    makeFolder();
}

QStringList CliTranslationTest::inFolder(QStringList words) const
{
    for (QString &word : words) {
        if (word.contains('.'))
            word = path(word);
    }
    return words;
}

void CliTranslationTest::shell(const QByteArray &script) const
{
    const QString lconvert = QLibraryInfo::location(QLibraryInfo::BinariesPath) + "/lconvert";
    const ChildResult result = runChild(
        "/bin/bash",
        {"-c", "set -euo pipefail; cd \"$0\"; LCONVERT=" + lconvert + "; " + script, folder()});
    QVERIFY2(result.exitCode == 0, result.error);
}

// The texts that are there to be translated, in their order.
QStringList CliTranslationTest::textsOf(const QString &name, const QStringList &options) const
{
    const ChildResult result = m_game.run(options + QStringList{"dump", path(name)});
    const QJsonObject campaign =
        QJsonDocument::fromJson(result.output).object()["campaign"].toObject();
    QStringList texts{campaign["name"].toString(), campaign["description"].toString()};
    const QJsonObject first = campaign["scenarios"].toArray()[0].toObject();
    texts << first["regionText"].toString();
    texts << first["prologues"].toArray()[0].toObject()["text"].toString();
    return texts;
}

void CliTranslationTest::theFormatIsNamedOrToldByTheEnding_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("start");
    const QByteArray po = "msgid \"\"\nmsgstr \"\"\n";
    const QByteArray xliff = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xliff ";
    const QByteArray csv = "\xef\xbb\xbfid,context,source,translation\r\n";
    QTest::newRow("po") << QStringList() << "a.po" << po;
    QTest::newRow("xlf") << QStringList() << "a.xlf" << xliff;
    QTest::newRow("csv") << QStringList() << "a.csv" << csv;
    QTest::newRow("txt") << QStringList() << "a.txt" << exported;
    QTest::newRow("other ending") << QStringList() << "a.json" << exported;
    QTest::newRow("format po") << QStringList{"--format", "po"} << "a.txt" << po;
    QTest::newRow("format xliff") << QStringList{"--format=xliff"} << "a.csv" << xliff;
    QTest::newRow("format csv") << QStringList{"--format=csv"} << "a.po" << csv;
    QTest::newRow("format txt") << QStringList{"--format", "txt"} << "a.po" << exported;
}

void CliTranslationTest::theFormatIsNamedOrToldByTheEnding()
{
    QFETCH(QStringList, options);
    QFETCH(QString, name);
    QFETCH(QByteArray, start);
    runs(QStringList{"export-texts"} + options + QStringList{"home.e3c", name});
    QVERIFY2(contents(path(name)).startsWith(start), contents(path(name)));
    // What was written is read by the same rule.
    const ChildResult result =
        run(QStringList{"import-texts", "home.e3c"} + options + QStringList{name, "out.e3c"});
    QCOMPARE(result.exitCode, 0);
    const bool lines = start == exported;
    QCOMPARE(result.error.isEmpty(), lines);
    QCOMPARE(textsOf("out.e3c").first(), QString(lines ? "" : "Ember Road"));
}

void CliTranslationTest::textsComeBackFromTheirTools_data()
{
    QTest::addColumn<QString>("outgoing");
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("imported");
    const QByteArray translate = "msgen a.po | msgfilter --keep-header tr a-z A-Z > b.po 2>log; ";
    QTest::newRow("gettext") << "a.po"
                             << translate + "msgfmt -c b.po -o b.mo; msgunfmt b.mo -o c.po"
                             << "c.po";
    QTest::newRow("msgcat") << "a.po" << translate + "msgcat --width=20 b.po -o c.po"
                            << "c.po";
    QTest::newRow("msgmerge") << "a.po" << translate + "msgmerge b.po a.po -o c.po 2>log"
                              << "c.po";
    QTest::newRow("Linguist") << "a.xlf" << linguist("xlf") << "b.xlf";
    QTest::newRow("Linguist, to PO") << "a.xlf" << linguist("po") << "b.po";
    QTest::newRow("PO, to XLIFF") << "a.po" << translate + "$LCONVERT -i b.po -o b.xlf"
                                  << "b.xlf";
    QTest::newRow("spreadsheet") << "a.csv" << spreadsheet("utf-8-sig", ",", "QUOTE_MINIMAL")
                                 << "b.csv";
    QTest::newRow("spreadsheet, semicolons")
        << "a.csv" << spreadsheet("utf-8-sig", ";", "QUOTE_MINIMAL") << "b.csv";
    QTest::newRow("spreadsheet, without a mark")
        << "a.csv" << spreadsheet("utf-8", ",", "QUOTE_ALL") << "b.csv";
    QTest::newRow("spreadsheet, UTF-16")
        << "a.csv" << spreadsheet("utf-16", "\\t", "QUOTE_MINIMAL") << "b.csv";
}

void CliTranslationTest::textsComeBackFromTheirTools()
{
    QFETCH(QString, outgoing);
    QFETCH(QByteArray, script);
    QFETCH(QString, imported);
    runs({"export-texts", "home.e3c", outgoing});
    shell(script);
    if (QTest::currentTestFailed())
        return;
    runs({"import-texts", "home.e3c", imported, "out.e3c"});
    QCOMPARE(textsOf("out.e3c"), capitals);
    QCOMPARE(textsOf("home.e3c"),
             QStringList({"Ember Road", "Three steps", "Beware\nof wolves", "Once\nupon"}));
}

void CliTranslationTest::sampleCampaignsComeBackWhole_data()
{
    QTest::addColumn<QString>("name");
    const QDir maps(sampleGame() + "/Maps");
    const QStringList names = maps.entryList({"*.e3c"}, QDir::Files);
    QVERIFY2(!names.isEmpty(), "the sample game is missing");
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << maps.filePath(name);
}

// Each text translated by itself: nothing changes.
void CliTranslationTest::sampleCampaignsComeBackWhole()
{
    QFETCH(QString, name);
    const auto onSample = [](const QStringList &words) {
        const ChildResult result =
            runChild(builtProgram("cmped-cli"), QStringList{"--game", sampleGame()} + words);
        QCOMPARE(QString::fromUtf8(result.error), QString());
        QCOMPARE(result.exitCode, 0);
    };
    onSample({"resave", name, path("same.e3c")});
    onSample({"export-texts", name, path("a.po")});
    shell("msgen a.po -o b.po");
    onSample({"import-texts", name, path("b.po"), path("out.e3c")});
    QCOMPARE(contents(path("out.e3c")), contents(path("same.e3c")));
}

void CliTranslationTest::whatIsNotTakenIsTold()
{
    write("a.po", QByteArray(poEntry).replace("%1", "Weg") +
                      "#, fuzzy\nmsgctxt \"campaign.description\"\nmsgid \"Three steps\"\n"
                      "msgstr \"Drei\"\n"
                      "msgctxt \"scenario.1.region.text\"\nmsgid \"Beware\"\nmsgstr \"Halt\"\n"
                      "msgctxt \"a\\nb\"\nmsgid \"\"\nmsgstr \"\"\n");
    const ChildResult result = run({"import-texts", "home.e3c", "a.po", "out.e3c"});
    const QString file = path("a.po");
    QCOMPARE(QString::fromUtf8(result.error).replace(file, "F"),
             QString("F: campaign.description: unfinished, not taken\n"
                     "F: scenario.1.region.text: changed since, not taken\n"
                     "F: scenario.1.prologue.1: new, the file lacks it\n"
                     "F: a?b: unknown, the campaign has no such text\n"
                     "F: 1 of 4 texts taken\n"));
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(textsOf("out.e3c"),
             QStringList({"Weg", "Three steps", "Beware\nof wolves", "Once\nupon"}));
}

void CliTranslationTest::changedTextsAreTakenByForce()
{
    write("a.po", QByteArray(poEntry).replace("Ember", "Ash").replace("%1", "Weg"));
    const ChildResult result = run({"import-texts", "--force", "home.e3c", "a.po", "out.e3c"});
    QCOMPARE(result.exitCode, 0);
    QVERIFY(
        result.error.startsWith(QString("%1: campaign.name: changed since, taken all the same\n")
                                    .arg(path("a.po"))
                                    .toUtf8()));
    QCOMPARE(textsOf("out.e3c").first(), QString("Weg"));
}

// The files are in UTF-8 whatever the campaign is in.
void CliTranslationTest::textsGoByTheCampaignsEncoding()
{
    const QStringList encoding{"--encoding", "Windows-1251"};
    write("home.e3c", homeCampaign("\xC6\xE4\xE8"));
    runs(encoding + QStringList{"export-texts", "home.e3c", "a.po"});
    const QByteArray source = "msgid \"" + QString::fromUtf8("Жди").toUtf8() + "\"\nmsgstr \"";
    const QByteArray file = contents(path("a.po"));
    QVERIFY2(file.contains(source), file);
    const QByteArray translation = QString::fromUtf8("Иди…").toUtf8();
    write("b.po", QByteArray(file).replace(source, source + translation));
    const ChildResult result =
        run(encoding + QStringList{"import-texts", "home.e3c", "b.po", "out.e3c"});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(textsOf("out.e3c", encoding)[2], QString::fromUtf8(translation));
    runs({"--encoding", "ISO-8859-1", "export-texts", "--format", "txt", "out.e3c", "c.txt"});
    QVERIFY(contents(path("c.txt")).contains("\r\n\xC8\xE4\xE8\x85\r\n")); // its bytes
}

void CliTranslationTest::lettersThatTheEncodingLacksAreRefused()
{
    write("a.po", QByteArray(poEntry).replace("%1", QString::fromUtf8("Ж").toUtf8()));
    write("out.e3c", "old");
    const ChildResult result =
        run({"--encoding", "Windows-1252", "import-texts", "home.e3c", "a.po", "out.e3c"});
    QCOMPARE(result.exitCode, 2);
    const QByteArray expected = "Error: Cannot read file " + path("a.po").toUtf8() +
                                " - incorrect campaign text:\ncampaign.name: the campaign's "
                                "encoding can't hold \"";
    QVERIFY2(result.error.startsWith(expected), result.error);
    QCOMPARE(contents(path("out.e3c")), QByteArray("old"));
}

void CliTranslationTest::textsOfAnotherEncodingAreNotExported()
{
    write("home.e3c", homeCampaign("\xC6\xE4\xE8"));
    write("a.po", "old");
    const ChildResult result = run({"export-texts", "home.e3c", "a.po"});
    QCOMPARE(QString::fromUtf8(result.error),
             "Error: Cannot export the texts of " + path("home.e3c") +
                 ":\nscenario.1.region.text: it holds bytes that are no text in this encoding; see "
                 "--encoding.\n");
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(contents(path("a.po")), QByteArray("old"));
}

void CliTranslationTest::wrongFilesAreRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    const QByteArray po = poEntry;
    QTest::newRow("no PO") << "a.po" << QByteArray("\nhello")
                           << "line 2: this isn't expected here.";
    QTest::newRow("no XLIFF") << "a.xlf" << QByteArray("<TS/>")
                              << "line 1: this isn't an XLIFF file.";
    QTest::newRow("no table") << "a.csv" << QByteArray("x")
                              << "line 1: the columns id, source and translation aren't named.";
    QTest::newRow("empty") << "a.po" << QByteArray("") << "no text of this campaign is in it.";
    QTest::newRow("too long") << "a.po" << QByteArray(po).replace("%1", QByteArray(61, 'x'))
                              << "campaign.name: it has 61 letters, at most 60 fit.";
    QTest::newRow("twice") << "a.po" << po + po << "campaign.name: stands in the file twice.";
}

void CliTranslationTest::wrongFilesAreRefused()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    write(name, bytes);
    write("out.e3c", "old");
    const ChildResult result = run({"import-texts", "home.e3c", name, "out.e3c"});
    QCOMPARE(QString::fromUtf8(result.error), "Error: Cannot read file " + path(name) +
                                                  " - incorrect campaign text:\n" + reason + "\n");
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(contents(path("out.e3c")), QByteArray("old"));
}

void CliTranslationTest::wrongWordsEndWithStatusOne_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("message");
    QTest::newRow("export") << QStringList{"export-texts", "--format", "doc", "a", "b"}
                            << "There is no format \"doc\", only po, xliff, csv, txt.";
    QTest::newRow("import") << QStringList{"import-texts", "--format=PO", "a", "b", "c"}
                            << "There is no format \"PO\", only po, xliff, csv, txt.";
    QTest::newRow("no name") << QStringList{"export-texts", "a", "b", "--format"}
                             << "Missing value after '--format'.";
    QTest::newRow("a value too many") << QStringList{"import-texts", "--force=1", "a", "b", "c"}
                                      << "Unexpected value after '--force'.";
    QTest::newRow("forced lines") << QStringList{"import-texts", "--force", "a", "b", "c"}
                                  << "A file of lines knows nothing of changes to force.";
}

void CliTranslationTest::wrongWordsEndWithStatusOne()
{
    QFETCH(QStringList, words);
    QFETCH(QString, message);
    const ChildResult result = run(words);
    QCOMPARE(QString::fromUtf8(result.error), message + "\nTry \"cmped-cli --help\".\n");
    QCOMPARE(result.exitCode, 1);
}

QTEST_GUILESS_MAIN(CliTranslationTest)
#include "cli_translation_test.moc"
