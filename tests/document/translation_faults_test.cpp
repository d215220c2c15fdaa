// Files that no translator's tool has written: what is wrong is told with its line, and soon.
#include "document/translation/csv_file.h"
#include "document/translation/translation_file.h"
#include "document/translation/xliff_file.h"

#include "gamedata/limits.h"
#include "tests/document/translation_samples.h"

#include <QtTest>

using namespace translation_samples;

class TranslationFaultsTest : public QObject
{
    Q_OBJECT

private slots:
    void faultsAreToldWithTheirLine_data();
    void faultsAreToldWithTheirLine();
    void everyShorterFileHasAnAnswer_data();
    void everyShorterFileHasAnAnswer();
    void endlessFilesEndAtTheLimit_data();
    void endlessFilesEndAtTheLimit();
    void aRowHasColumnsUpToTheLimit();
    void anElementHasAttributesUpToTheLimit();
    void elementsAreNestedUpToTheLimit();
    void xmlThatWouldTakeMinutesIsRefused_data();
    void xmlThatWouldTakeMinutesIsRefused();
};

void TranslationFaultsTest::faultsAreToldWithTheirLine_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *format, const QByteArray &bytes, const char *error) {
        QTest::newRow((QByteArray(format) + ": " + error + " in " + bytes.left(60)).constData())
            << format << bytes << error;
    };
    const char *text = "this isn't a text in quotation marks";
    row(po, "\nhello\n", "line 2: this isn't expected here");
    row(po, "msgid_plural \"a\"\n", "line 1: this isn't expected here");
    row(po, "msgid \"a\"\nmsgstr[0] \"b\"\n", "line 2: this isn't expected here");
    row(po, "msgstr \"a\"\n", "line 1: this isn't expected here");
    row(po, "msgid \"a\"\nmsgctxt \"b\"\nmsgstr \"c\"\n", "line 2: this isn't expected here");
    row(po, "\"a\"\n", qPrintable("line 1: " + QString(text)));
    row(po, "msgid a\n", qPrintable("line 1: " + QString(text)));
    row(po, "msgid \"a\n", qPrintable("line 1: " + QString(text)));
    row(po, "msgid \"a\" b\n", qPrintable("line 1: " + QString(text)));
    row(po, "msgid \"\\\"\n", qPrintable("line 1: " + QString(text)));
    row(po, "msgid \"\\q\"\n", qPrintable("line 1: " + QString(text)));
    row(po, "msgid \"\\777\"\n", qPrintable("line 1: " + QString(text)));
    row(po, "msgid \"\\x\"\n", qPrintable("line 1: " + QString(text)));
    row(po, "msgid \"a\"\n", "line 1: an entry has no msgstr");
    row(po, "msgctxt \"a\"\n", "line 1: an entry has no msgid");
    row(po, "msgid \"\xe9\"\nmsgstr \"\"\n", "line 2: this isn't UTF-8");
    row(po, "msgid \"a\"\nmsgstr \"\\355\\262\\200\"\n", "line 2: this isn't UTF-8");
    row(po, "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=KOI8-R\\n\"\n",
        "line 2: the file is in KOI8-R and not in UTF-8");

    row(xliff, "", "line 1: Premature end of document");
    row(xliff, "hello", "line 1: Start tag expected");
    row(xliff, "<TS/>", "line 1: this isn't an XLIFF file");
    row(xliff, "<xliff version=\"2.0\"/>", "line 1: this is XLIFF 2.0, only 1.2 is known");
    row(xliff, "<xliff/>", "line 1: this is XLIFF , only 1.2 is known");
    row(xliff, inUnit("x<x id=\"1\"/>"), "line 1: the element x isn't expected in a text");
    row(xliff, inUnit("x<ph id=\"1\">y</ph>"), "line 1: a placeholder isn't known");
    row(xliff, "<xliff version=\"1.2\">\n<file>\n", "line 3: Premature end of document");
    row(xliff, "\n<!DOCTYPE xliff>" + inUnit("x"), "line 2: document types aren't taken");
    row(xliff, "<xliff version=\"1.2\">\n<a><!ENTITY></a></xliff>",
        "line 2: document types aren't taken");
    row(xliff, inUnit("\xe9"), "the file isn't in UTF-8");
    row(xliff, inUnit("\xed\xb2\x80"), "the file isn't in UTF-8");

    const char *columns = "line 1: the columns id, source and translation aren't named";
    row(csv, "", columns);
    row(csv, "a,b,c\n", columns);
    row(csv, "id,source\na,x\n", columns);
    row(csv, "id,source,translation\na,x,\"y\nb,x,y\n", "line 2: a quotation mark isn't closed");
    row(csv, "id,source,translation\n\na,\"x\"z,y\n",
        "line 3: something follows a closing quotation mark");
    row(csv, "id,source,translation\na,\"x\n\n\",y\nb,\"x\"z,y\n",
        "line 5: something follows a closing quotation mark");
    row(csv, "id,source,translation\na,\xe9,y\n", "the file isn't in UTF-8");
}

void TranslationFaultsTest::faultsAreToldWithTheirLine()
{
    QFETCH(QString, format);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, error);
    const TranslationReading reading = translationFormat(format)->read(bytes);
    QVERIFY2(reading.error.startsWith(error), qPrintable(reading.error));
    QVERIFY(reading.units.empty());
}

void TranslationFaultsTest::everyShorterFileHasAnAnswer_data()
{
    QTest::addColumn<QString>("format");
    for (const QString &name : translationFormatNames())
        QTest::newRow(qPrintable(name)) << name;
}

// A file that was cut gives the first of its units, or a fault.
void TranslationFaultsTest::everyShorterFileHasAnAnswer()
{
    QFETCH(QString, format);
    const QByteArray whole = translationFormat(format)->write(someUnits);
    const QStringList all = lines(someUnits);
    int read = 0;
    for (int size = 0; size < whole.size(); ++size) {
        const TranslationReading reading = translationFormat(format)->read(whole.left(size));
        if (!reading.error.isEmpty())
            continue;
        ++read;
        const QStringList found = lines(reading.units);
        QVERIFY(found.size() <= all.size());
        for (int i = 0; i + 1 < found.size(); ++i)
            QCOMPARE(found[i], all[i]);
    }
    QVERIFY(format == xliff || read > 0);
}

void TranslationFaultsTest::endlessFilesEndAtTheLimit_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<QByteArray>("unit");
    QTest::addColumn<QByteArray>("tail");
    QTest::newRow("po") << po << QByteArray() << QByteArray("msgid \"a\"\nmsgstr \"\"\n")
                        << QByteArray();
    QTest::newRow("xliff") << xliff << QByteArray("<xliff version=\"1.2\">")
                           << QByteArray("<trans-unit/>") << QByteArray("</xliff>");
    QTest::newRow("csv") << csv << QByteArray("id,source,translation\n") << QByteArray("a\n")
                         << QByteArray();
}

void TranslationFaultsTest::endlessFilesEndAtTheLimit()
{
    QFETCH(QString, format);
    QFETCH(QByteArray, head);
    QFETCH(QByteArray, unit);
    QFETCH(QByteArray, tail);
    const int most = int(limits::translationUnits);
    const auto reading = [&](int count) {
        return translationFormat(format)->read(head + unit.repeated(count) + tail);
    };
    QCOMPARE(int(reading(most).units.size()), most);
    const QString error = reading(most + 1).error;
    QVERIFY2(error.contains(": there are too many "), qPrintable(error));
}

void TranslationFaultsTest::aRowHasColumnsUpToTheLimit()
{
    const QByteArray others = QByteArray(limits::csvColumns - 3, ',') + "\n";
    const QByteArray names = "id,source,translation" + others;
    QCOMPARE(lines(readCsv(names + "a,x,y" + others).units), QStringList("a|x|y"));
    QCOMPARE(readCsv(names + "a,x,y," + others).error,
             QString("line 2: there are too many columns"));
    QCOMPARE(readCsv(names + "a,x,y" + others.chopped(1) + ",").error,
             QString("line 2: there are too many columns"));
}

void TranslationFaultsTest::anElementHasAttributesUpToTheLimit()
{
    QByteArray attributes;
    for (int i = 1; i < limits::xliffAttributes; ++i)
        attributes += " a" + QByteArray::number(i) + "='x'";
    const QByteArray begin = "<xliff version=\"1.2\"" + attributes;
    QCOMPARE(readXliff(begin + "/>").error, QString());
    QCOMPARE(readXliff(begin + " b='x'/>").error,
             QString("line 1: an element has too many attributes"));
}

void TranslationFaultsTest::elementsAreNestedUpToTheLimit()
{
    const auto nested = [](int levels) {
        return "<xliff version=\"1.2\">" + QByteArray("<a>").repeated(levels - 1) +
               QByteArray("</a>").repeated(levels - 1) + "</xliff>";
    };
    QCOMPARE(readXliff(nested(limits::xliffLevels)).error, QString());
    QCOMPARE(readXliff(nested(limits::xliffLevels + 1)).error,
             QString("line 1: elements are nested too deeply"));
}

void TranslationFaultsTest::xmlThatWouldTakeMinutesIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("error");
    QByteArray attributes;
    QByteArray entities;
    for (int i = 0; i < 50000; ++i) {
        attributes += " a" + QByteArray::number(i) + "='>'";
        entities += "<!ENTITY a" + QByteArray::number(i + 1) + " '&a" + QByteArray::number(i) +
                    ";&a" + QByteArray::number(i) + ";'>";
    }
    QTest::newRow("attributes") << QByteArray("<xliff version=\"1.2\"" + attributes + "/>")
                                << "line 1: an element has too many attributes";
    QTest::newRow("attributes behind a comment")
        << QByteArray("<xliff version=\"1.2\"><!-- ' --><a" + attributes + "/></xliff>")
        << "line 1: an element has too many attributes";
    QTest::newRow("entities") << QByteArray("<!DOCTYPE x [" + entities + "]><xliff>&a90;</xliff>")
                              << "line 1: document types aren't taken";
    QTest::newRow("levels") << QByteArray("<xliff version=\"1.2\">") +
                                   QByteArray("<a>").repeated(1000000)
                            << "line 1: elements are nested too deeply";
    QTest::newRow("levels in a unit") << inUnit("x", QByteArray("<a>").repeated(1000000))
                                      << "line 1: elements are nested too deeply";
    QTest::newRow("levels in a text")
        << inUnit(QByteArray("<g>").repeated(1000000)) << "line 1: elements are nested too deeply";
}

void TranslationFaultsTest::xmlThatWouldTakeMinutesIsRefused()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, error);
    QCOMPARE(readXliff(bytes).error, error);
}

QTEST_GUILESS_MAIN(TranslationFaultsTest)
#include "translation_faults_test.moc"
