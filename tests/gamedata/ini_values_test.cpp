// What is asked of the game's settings, and set in them.
#include "tests/gamedata/ini_folder.h"

#include <QtTest>

#include <climits>

class IniValuesTest : public QObject, private IniFolder
{
    Q_OBJECT

private slots:
    void init() { reset(); }

    void findsTheFirstOfAName();
    void comparesNamesExactly();
    void setItemsReplacesAll();
    void convertsIntegers_data();
    void convertsIntegers();
    void missingIntegerIsTheDefault();
    void missingStringIsTheDefaultPointerItself();
    void stringAnswersOutliveChanges();
    void setStringValAddsWhatIsMissing();
};

void IniValuesTest::findsTheFirstOfAName()
{
    _Ini_ tree = settings();
    QVERIFY(!tree.GetSection("S"));
    _IniSection_ *first = tree.NewSection("S");
    QVERIFY(tree.NewSection("S") != first);
    QCOMPARE(tree.sections.size(), std::size_t(2));
    QCOMPARE(tree.GetSection("S"), first);
    QVERIFY(!first->GetItem("a"));
    _IniItem_ *item = first->NewItem("a");
    QVERIFY(first->NewItem("a") != item);
    QCOMPARE(first->items.size(), std::size_t(2));
    QCOMPARE(first->GetItem("a"), item);
}

void IniValuesTest::comparesNamesExactly()
{
    store("[Global Settings]\nLanguage=1\nSpaced =2\n");
    _Ini_ tree = settings();
    tree.Read();
    QCOMPARE(tree.GetIntVal("Global Settings", "Language", -1), 1);
    QCOMPARE(tree.GetIntVal("global settings", "Language", -1), -1);
    QCOMPARE(tree.GetIntVal("Global Settings", "language", -1), -1);
    QCOMPARE(tree.GetIntVal("Global Settings", "Spaced", -1), -1);
    QCOMPARE(tree.GetIntVal("Global Settings", "Spaced ", -1), 2);
}

void IniValuesTest::setItemsReplacesAll()
{
    _IniSection_ section;
    section.NewItem("old");
    section.SetItems("a=1\nb=2");
    QCOMPARE(section.items.size(), std::size_t(2));
    QVERIFY(!section.GetItem("old"));
    QCOMPARE(section.GetItem("b")->StringVal(), std::string("2"));
    section.SetItems("");
    QVERIFY(section.items.empty());
}

void IniValuesTest::convertsIntegers_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("expected");
    QTest::newRow("number") << QByteArray("2") << 2;
    QTest::newRow("text around") << QByteArray("2 (en)") << 2;
    QTest::newRow("negative") << QByteArray(" -1") << -1;
    QTest::newRow("no digits") << QByteArray("english") << 0;
    QTest::newRow("empty") << QByteArray("") << 0;
    QTest::newRow("digits apart") << QByteArray("1 and 2") << 12;
    QTest::newRow("minus inside") << QByteArray("1-2") << 1;
    QTest::newRow("minuses alone") << QByteArray("--") << 0;
    QTest::newRow("too large") << QByteArray("99999999999999999999") << INT_MAX;
}

void IniValuesTest::convertsIntegers()
{
    QFETCH(QByteArray, value);
    QFETCH(int, expected);
    _Ini_ tree = settings();
    tree.SetStringVal("S", "a", value.constData());
    QCOMPARE(tree.GetIntVal("S", "a", -9), expected);
    QCOMPARE(tree.GetSection("S")->GetItem("a")->IntVal(), expected);
}

void IniValuesTest::missingIntegerIsTheDefault()
{
    _Ini_ tree = settings();
    QCOMPARE(tree.GetIntVal("S", "a", -7), -7);
    tree.NewSection("S");
    QCOMPARE(tree.GetIntVal("S", "a", -7), -7);
}

void IniValuesTest::missingStringIsTheDefaultPointerItself()
{
    const char fallback[] = "fallback";
    _Ini_ tree = settings();
    QVERIFY(tree.GetStringVal("S", "a", fallback) == fallback);
    tree.NewSection("S");
    QVERIFY(tree.GetStringVal("S", "a", fallback) == fallback);
    QVERIFY(!tree.GetStringVal("S", "a", nullptr));
    tree.SetStringVal("S", "a", "fallback");
    QVERIFY(tree.GetStringVal("S", "a", fallback) != fallback);
    QCOMPARE(tree.GetStringVal("S", "a", fallback), fallback);
}

void IniValuesTest::stringAnswersOutliveChanges()
{
    _Ini_ tree = settings();
    tree.SetStringVal("S", "a", "first");
    const char *first = tree.GetStringVal("S", "a", "");
    for (int i = 0; i < 1000; ++i) {
        tree.SetStringVal("S", "a", QByteArray::number(i).constData());
        QCOMPARE(QByteArray(tree.GetStringVal("S", "a", "")), QByteArray::number(i));
    }
    tree.sections.clear();
    QCOMPARE(first, "first");
    tree.SetStringVal("S", "a", "first");
    QVERIFY(tree.GetStringVal("S", "a", "") == first); // the same answer takes no more memory
}

void IniValuesTest::setStringValAddsWhatIsMissing()
{
    store("[S]\na=1\n[T]\nb=2\n");
    _Ini_ tree = settings();
    tree.Read();
    tree.SetStringVal("S", "a", "changed");
    tree.SetStringVal("S", "c", "new");
    tree.SetStringVal("U", "d", "new section");
    QCOMPARE(shapeOf(tree), QByteArray("S{a:changed|c:new}T{b:2}U{d:new section}"));
    QCOMPARE(stored(), QByteArray("[S]\na=1\n[T]\nb=2\n")); // in memory only
}

QTEST_GUILESS_MAIN(IniValuesTest)
#include "ini_values_test.moc"
