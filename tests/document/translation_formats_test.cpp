// The formats of translators' files: what is written, and what is read from files of all makes.
#include "document/translation/csv_file.h"
#include "document/translation/po_file.h"
#include "document/translation/translation_file.h"
#include "document/translation/xliff_file.h"

#include "tests/document/translation_samples.h"

#include <QtTest>

using namespace translation_samples;

class TranslationFormatsTest : public QObject
{
    Q_OBJECT

private slots:
    void poIsWritten();
    void xliffIsWritten();
    void csvIsWritten();
    void formatsAreKnownByTheirNames();
    void formatsAreToldByTheEndings_data();
    void formatsAreToldByTheEndings();
    void writtenFilesReadAsTheSame_data();
    void writtenFilesReadAsTheSame();
    void foreignFilesAreRead_data();
    void foreignFilesAreRead();
};

namespace {

QByteArray utf16(const QByteArray &utf8)
{
    const QString text = QChar(0xfeff) + QString::fromUtf8(utf8);
    return QByteArray(reinterpret_cast<const char *>(text.utf16()), 2 * text.size());
}

} // namespace

void TranslationFormatsTest::poIsWritten()
{
    QCOMPARE(writtenAsPo(someUnits), QByteArray("msgid \"\"\n"
                                                "msgstr \"\"\n"
                                                "\"Project-Id-Version: campaign\\n\"\n"
                                                "\"PO-Revision-Date: \\n\"\n"
                                                "\"Last-Translator: \\n\"\n"
                                                "\"Language-Team: \\n\"\n"
                                                "\"Language: \\n\"\n"
                                                "\"MIME-Version: 1.0\\n\"\n"
                                                "\"Content-Type: text/plain; charset=UTF-8\\n\"\n"
                                                "\"Content-Transfer-Encoding: 8bit\\n\"\n"
                                                "\n"
                                                "#. The campaign's name\n"
                                                "msgctxt \"campaign.name\"\n"
                                                "msgid \"Ember Road\"\n"
                                                "msgstr \"\"\n"
                                                "\n"
                                                "#. Scenario 3 (Fen): right-click text\n"
                                                "msgctxt \"scenario.3.region.text\"\n"
                                                "msgid \"\"\n"
                                                "\"\\\"Beware\\\"\\n\"\n"
                                                "\"\\tof <wolves> & \\\\owls\\\\, ёж; 🏰\\n\"\n"
                                                "msgstr \"\"\n"
                                                "\"Gib <acht>\\n\"\n"
                                                "\"Wölfe\"\n"
                                                "\n"
                                                "#. Scenario 3 (Fen): prologue 1\n"
                                                "msgctxt \"scenario.3.prologue.1\"\n"
                                                "msgid \"\"\n"
                                                "\"\\n\"\n"
                                                "\"\\n\"\n"
                                                "\"once \"\n"
                                                "msgstr \"\\n\"\n"));
}

void TranslationFormatsTest::xliffIsWritten()
{
    QCOMPARE(
        writtenAsXliff(someUnits),
        QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                   "<xliff version=\"1.2\" xmlns=\"urn:oasis:names:tc:xliff:document:1.2\">\n"
                   "  <file original=\"campaign\" datatype=\"plaintext\" source-language=\"und\">\n"
                   "    <body>\n"
                   "      <trans-unit id=\"campaign.name\" xml:space=\"preserve\">\n"
                   "        <source>Ember Road</source>\n"
                   "        <note>The campaign's name</note>\n"
                   "      </trans-unit>\n"
                   "      <trans-unit id=\"scenario.3.region.text\" xml:space=\"preserve\">\n"
                   "        <source>&quot;Beware&quot;\n"
                   "\tof &lt;wolves&gt; &amp; \\owls\\, ёж; 🏰\n"
                   "</source>\n"
                   "        <target>Gib &lt;acht&gt;\n"
                   "Wölfe</target>\n"
                   "        <note>Scenario 3 (Fen): right-click text</note>\n"
                   "      </trans-unit>\n"
                   "      <trans-unit id=\"scenario.3.prologue.1\" xml:space=\"preserve\">\n"
                   "        <source>\n"
                   "\n"
                   "once </source>\n"
                   "        <target>\n"
                   "</target>\n"
                   "        <note>Scenario 3 (Fen): prologue 1</note>\n"
                   "      </trans-unit>\n"
                   "    </body>\n"
                   "  </file>\n"
                   "</xliff>\n"));
}

void TranslationFormatsTest::csvIsWritten()
{
    QCOMPARE(writtenAsCsv(someUnits),
             QByteArray("\xef\xbb\xbfid,context,source,translation\r\n"
                        "\"campaign.name\",\"The campaign's name\",\"Ember Road\",\"\"\r\n"
                        "\"scenario.3.region.text\",\"Scenario 3 (Fen): right-click text\","
                        "\"\"\"Beware\"\"\n\tof <wolves> & \\owls\\, ёж; 🏰\n\","
                        "\"Gib <acht>\nWölfe\"\r\n"
                        "\"scenario.3.prologue.1\",\"Scenario 3 (Fen): prologue 1\","
                        "\"\n\nonce \",\"\n\"\r\n"));
}

void TranslationFormatsTest::formatsAreKnownByTheirNames()
{
    QCOMPARE(translationFormatNames(), QStringList({"po", "xliff", "csv"}));
    for (const QString &name : translationFormatNames())
        QCOMPARE(QString(translationFormat(name)->name), name);
    QVERIFY(!translationFormat("txt"));
    QVERIFY(!translationFormat("PO"));
    QVERIFY(!translationFormat(""));
}

void TranslationFormatsTest::formatsAreToldByTheEndings_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");
    QTest::newRow("po") << "/x/a.po"
                        << "po";
    QTest::newRow("pot") << "a.pot"
                         << "po";
    QTest::newRow("xlf") << "a.b.xlf"
                         << "xliff";
    QTest::newRow("xliff") << "a.xliff"
                           << "xliff";
    QTest::newRow("csv") << "a.csv"
                         << "csv";
    QTest::newRow("capitals") << "A.CSV"
                              << "csv";
    QTest::newRow("lines") << "a.txt"
                           << "";
    QTest::newRow("no ending") << "csv"
                               << "";
    QTest::newRow("in the folder") << "a.po/b"
                                   << "";
}

void TranslationFormatsTest::formatsAreToldByTheEndings()
{
    QFETCH(QString, path);
    QFETCH(QString, name);
    const TranslationFormat *format = translationFormatOfFile(path);
    QCOMPARE(format ? QString(format->name) : QString(), name);
}

void TranslationFormatsTest::writtenFilesReadAsTheSame_data()
{
    QTest::addColumn<QString>("format");
    for (const QString &name : translationFormatNames())
        QTest::newRow(qPrintable(name)) << name;
}

void TranslationFormatsTest::writtenFilesReadAsTheSame()
{
    QFETCH(QString, format);
    const TranslationReading reading =
        translationFormat(format)->read(translationFormat(format)->write(someUnits));
    QCOMPARE(reading.error, QString());
    QCOMPARE(lines(reading.units), lines(someUnits));
}

void TranslationFormatsTest::foreignFilesAreRead_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("units");
    const auto row = [](const char *name, const char *format, const QByteArray &bytes,
                        const QStringList &units) {
        QTest::newRow((QByteArray(format) + ": " + name).constData()) << format << bytes << units;
    };

    row("no entry", po, "", {});
    row("fuzzy", po, "#, c-format, fuzzy\nmsgctxt \"a\"\nmsgid \"x\"\nmsgstr \"y\"\n", {"a|x|y?"});
    row("fuzzy for one entry", po,
        "#, fuzzy\nmsgctxt \"a\"\nmsgid \"x\"\nmsgstr \"y\"\nmsgctxt \"b\"\nmsgid \"x\"\nmsgstr "
        "\"y\"",
        {"a|x|y?", "b|x|y"});
    row("flag behind an entry", po,
        "msgctxt \"a\"\nmsgid \"x\"\nmsgstr \"y\"\n#, fuzzy\nmsgctxt \"b\"\nmsgid \"x\"\nmsgstr "
        "\"y\"",
        {"a|x|y", "b|x|y?"});
    row("obsolete", po, "#~ msgctxt \"a\"\n#~ msgid \"x\"\n#~ msgstr \"y\"\n", {});
    row("previous source", po,
        "#, fuzzy\n#| msgctxt \"o\"\n#| msgid \"old\"\nmsgctxt \"a\"\nmsgid \"x\"\nmsgstr \"y\"\n",
        {"a|x|y?"});
    row("CR LF", po, "msgctxt \"a\"\r\nmsgid \"x\"\r\n\"z\"\r\nmsgstr \"y\"\r\n", {"a|xz|y"});
    row("mark in front", po, "\xef\xbb\xbfmsgctxt \"a\"\nmsgid \"x\"\nmsgstr \"y\"\n", {"a|x|y"});
    row("blanks", po, "  msgctxt\t\"a\"\n msgid\"x\" \nmsgstr  \"\"\n \"y\"\n", {"a|x|y"});
    row("escapes", po,
        "msgctxt \"a\"\nmsgid \"\\a\\b\\f\\v\\r\\'\\?\"\nmsgstr \"\\303\\251\\xc3\\xa9\"",
        {"a|\a\b\f\v\r'?|\u00e9\u00e9"});
    row("id of Qt's tools", po, "#. ts-id a.b\nmsgid \"x\"\nmsgstr \"y\"\n", {"a.b|x|y"});
    row("no context", po, "msgid \"x\"\nmsgstr \"y\"\n", {"|x|y"});
    row("empty source with a context", po, "msgctxt \"a\"\nmsgid \"\"\nmsgstr \"y\"\n", {"a||y"});
    row("header in ASCII", po,
        "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=us-ascii\\n\"\n", {});

    row("no unit", xliff, inXliff(""), {});
    row("without a body", xliff, "<xliff version=\"1.2\"/>", {});
    row("groups", xliff,
        inXliff("<group><group><trans-unit id='a'><source>x</source></trans-unit></group></group>"),
        {"a|x|"});
    row("prefix", xliff,
        "<x:xliff xmlns:x=\"urn:oasis:names:tc:xliff:document:1.2\" version=\"1.1\"><x:trans-unit "
        "id=\"a\"><x:source>x</x:source><x:target>y</x:target></x:trans-unit></x:xliff>",
        {"a|x|y"});
    row("state new", xliff, inUnit("x", "<target state=\"new\">y</target>"), {"a|x|y?"});
    row("state needs-", xliff, inUnit("x", "<target state=\"needs-review-translation\">y</target>"),
        {"a|x|y?"});
    row("state translated", xliff, inUnit("x", "<target state=\"translated\">y</target>"),
        {"a|x|y"});
    row("not approved", xliff,
        inXliff(
            "<trans-unit id='a' approved='no'><source>x</source><target>y</target></trans-unit>"),
        {"a|x|y"});
    row("marks", xliff, inUnit("<mrk mtype=\"seg\">x<g id=\"1\">y</g></mrk>z"), {"a|xyz|"});
    row("control characters", xliff,
        inUnit("x<ph id='p' ctype='x-ch-r'>\\r</ph><ph ctype='x-ch-n'/><ph ctype='x-ch-t'/>y"),
        {"a|x\r\n\ty|"});
    row("other translations", xliff,
        inUnit("x", "<seg-source>q</seg-source><alt-trans><source>p</source><target>q</target>"
                    "</alt-trans><target>y</target>"),
        {"a|x|y"});
    row("by way of PO", xliff,
        inUnit("x", "<context-group><context context-type=\"sourcefile\">s</context><context "
                    "context-type=\"x-gettext-msgctxt\">b.c</context></context-group>"),
        {"b.c|x|"});
    row("comments and instructions", xliff,
        "<!-- <a> -->\n<?x <?><!-- -->" + inUnit("x<!-- = -->y<![CDATA[<&]]>"), {"a|xy<&|"});
    row("entities of XML", xliff, inUnit("&lt;&amp;&#233;&#x1f3f0;"), {"a|<&\u00e9🏰|"});
    row("CR LF", xliff, inUnit("x\r\ny"), {"a|x\ny|"});
    row("UTF-16", xliff, utf16(inUnit("\u00e9")), {"a|\u00e9|"});
    row("mark in front", xliff, "\xef\xbb\xbf" + inUnit("\u00e9"), {"a|\u00e9|"});

    row("names alone", csv, "id,source,translation\n", {});
    row("bare fields", csv, "id,source,translation\na,x,y\nb,x y,\n", {"a|x|y", "b|x y|"});
    row("semicolons", csv, "id;source;translation\r\na;x,1;\"y;2\"\r\n", {"a|x,1|y;2"});
    row("tabulators", csv, "id\tsource\ttranslation\na\tx;,\ty\n", {"a|x;,|y"});
    row("named separator", csv, "sep=;\r\nid;source;translation\r\na;x;y\r\n", {"a|x|y"});
    row("other columns", csv, "Note,Translation,\" ID \",,Source\nn,y,a,q,x,more\n", {"a|x|y"});
    row("quotation marks", csv, "id,source,translation\n\"a\",\"x \"\"1\"\"\",\"\"\"\"\n",
        {"a|x \"1\"|\""});
    row("quotation mark inside", csv, "id,source,translation\na,x\"1,y\n", {"a|x\"1|y"});
    row("lines inside", csv, "id,source,translation\r\na,\"x\r\n1\",\"y\n2\"\r\n",
        {"a|x\r\n1|y\n2"});
    row("CR alone", csv, "id,source,translation\ra,x,y\rb,x,y", {"a|x|y", "b|x|y"});
    row("empty lines", csv, "id,source,translation\n\na,x,y\n\n\n", {"a|x|y"});
    row("short rows", csv, "id,source,translation\na\nb,x\n", {"a||", "b|x|"});
    row("no line end", csv, "id,source,translation\na,x,\"y\"", {"a|x|y"});
    row("mark in front", csv, "\xef\xbb\xbfid,source,translation\na,x,y\n", {"a|x|y"});
    row("UTF-16", csv, utf16("id\tsource\ttranslation\na\t\u00e9\ty\n"), {"a|\u00e9|y"});
}

void TranslationFormatsTest::foreignFilesAreRead()
{
    QFETCH(QString, format);
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, units);
    const TranslationReading reading = translationFormat(format)->read(bytes);
    QCOMPARE(reading.error, QString());
    QCOMPARE(lines(reading.units), units);
}

QTEST_GUILESS_MAIN(TranslationFormatsTest)
#include "translation_formats_test.moc"
