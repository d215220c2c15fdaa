// The small tools for texts and bits.
#include "gamedata/runtime/text_tools.h"

#include <QtTest>

#include <climits>

namespace {

using Items = QList<QByteArray>;

Items takeItems(std::vector<char *> &items)
{
    Items taken;
    for (char *item : items) {
        taken.append(QByteArray(item));
        delete[] item;
    }
    items.clear();
    return taken;
}

QList<int> dwords(QByteArray text)
{
    const TStreamPtr<TMemoryStream> stream(ConvertStrToDwords(text.data()));
    QList<int> numbers;
    int number = 0;
    if (stream->position != 0)
        numbers.append(-1);
    while (stream->Read(&number, 4))
        numbers.append(number);
    return numbers;
}

} // namespace

class TextToolsTest : public QObject
{
    Q_OBJECT

private slots:
    void versionText();
    void parsesItems_data();
    void parsesItems();
    void parseAppendsUnlessCleared();
    void parseTakesNoText();
    void parsesNames();
    void convertsDwords_data();
    void convertsDwords();
    void clearsToNumber_data();
    void clearsToNumber();
    void pointsToNewCopies();
    void readsIntegers_data();
    void readsIntegers();
    void knowsDelimiters_data();
    void knowsDelimiters();
    void findsShortFileNames_data();
    void findsShortFileNames();
    void checksFileNames_data();
    void checksFileNames();
    void roundsToDwords_data();
    void roundsToDwords();
    void copiesBitsToDwords();
    void copiesBitsToBytes();
};

void TextToolsTest::versionText()
{
    QCOMPARE(QByteArray(Get_Ravn_Version_Text()), QByteArray("1.4.2"));
    QCOMPARE(QByteArray(Ravn_Version_Text), QByteArray("1.4.2"));
    QVERIFY(Get_Ravn_Version_Text() == Ravn_Version_Text);
}

void TextToolsTest::parsesItems_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QList<QByteArray>>("expected");
    const auto row = [](const char *name, const char *text, const Items &items) {
        QTest::newRow(name) << QByteArray(text) << items;
    };
    row("nothing", "", {});
    row("lines", "one\ntwo\r\nthree", {"one", "two", "three"});
    row("empty lines", "\n\none\r\n\r\n", {"one"});
    row("blanks are ordinary", " a\tb \n ", {" a\tb ", " "});
    row("comment", "one#comment\ntwo", {"one", "two"});
    row("comment line", "#one\n#two\nthree", {"three"});
    row("hash inside a comment", "a#b#c\nd", {"a", "d"});
    row("quotes in a comment", "a#\"b\nc\nd", {"a", "c", "d"});
    row("quotes behind a comment", "a#\"b\nc\"d", {"a", "cd"});
    row("quoted", "\"one\"", {"one"});
    row("quotes end an item", "\"one\"two", {"one", "two"});
    row("quotes opened behind text", "a\"b\"", {"ab"});
    row("quoted lines", "\"one\ntwo\r\nthree\"", {"one\ntwo\r\nthree"});
    row("hash inside quotes", "\"a#b\"", {"a#b"});
    row("empty quotes", "\"\"", {});
    row("empty quotes between lines", "a\n\"\"\r\nb", {"a", "b"});
    row("empty quotes before a comment", "\"\"#c\nb", {"b"});
    row("doubled outside", "a\"\"b", {"a\"b"});
    row("doubled before text", "\"\"b", {"\"b"});
    row("doubled behind text", "a\"\"", {"a\""});
    row("doubled behind a blank", " \"\"", {" \""});
    row("tripled outside", "\"\"\"a\nb\"", {"\"a\nb"});
    row("four quotes", "\"\"\"\"", {"\""});
    row("doubled inside", "\"a\"\"b\"", {"a\"b"});
    row("doubled at the end inside", "\"a\"\"\"", {"a\""});
    row("quotes never closed", "\"a\n#b", {"a\n#b"});
    row("bytes of any encoding", "\xcf\xf0\xe8\n\xff", {"\xcf\xf0\xe8", "\xff"});
}

void TextToolsTest::parsesItems()
{
    QFETCH(QByteArray, text);
    std::vector<char *> items;
    const auto &answer = ParseToStringList(items, text.data(), true);
    QCOMPARE(&answer, &items);
    const Items taken = takeItems(items);
    QTEST(taken, "expected");
}

void TextToolsTest::parseAppendsUnlessCleared()
{
    std::vector<char *> items;
    char first[] = "a";
    char second[] = "b\nc";
    ParseToStringList(items, first, true);
    ParseToStringList(items, second, false);
    QCOMPARE(takeItems(items), (Items{"a", "b", "c"}));
    char *kept = nullptr;
    SetPointToString(kept, "kept by its owner");
    items.push_back(kept);
    ParseToStringList(items, first, true);
    QCOMPARE(takeItems(items), Items{"a"});
    QCOMPARE(QByteArray(kept), QByteArray("kept by its owner"));
    delete[] kept;
}

void TextToolsTest::parseTakesNoText()
{
    std::vector<char *> items;
    QVERIFY(ParseToStringList(items, nullptr, true).empty());
}

void TextToolsTest::parsesNames()
{
    TString text("first\r\n\r\nsecond\n third \rfourth");
    Items names;
    QList<int> numbers;
    ParseNamesArray(text, [&](TString &name, int number) {
        names.append(QByteArray(name.c_str()));
        numbers.append(number);
    });
    QCOMPARE(names, (Items{"first", "second", " third ", "fourth"}));
    QCOMPARE(numbers, (QList<int>{0, 1, 2, 3}));
    TString empty;
    ParseNamesArray(empty, [](TString &, int) { QFAIL("an empty text has no line"); });
}

void TextToolsTest::convertsDwords_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QList<int>>("expected");
    using Numbers = QList<int>;
    QTest::newRow("nothing") << QByteArray() << Numbers{};
    QTest::newRow("blanks") << QByteArray("1 2\t3  4") << Numbers{1, 2, 3, 4};
    QTest::newRow("lines") << QByteArray("1\r\n2\n\n3\n") << Numbers{1, 2, 3};
    QTest::newRow("comment") << QByteArray("1 # 2 3\n4#5\r6") << Numbers{1, 4, 6};
    QTest::newRow("hash in a comment") << QByteArray("#1#2\n3") << Numbers{3};
    QTest::newRow("minus") << QByteArray("-12x") << Numbers{-12};
    QTest::newRow("no digits") << QByteArray("abc 7") << Numbers{0, 7};
    QTest::newRow("too large") << QByteArray("99999999999") << Numbers{INT_MAX};
}

void TextToolsTest::convertsDwords()
{
    QFETCH(QByteArray, text);
    const QList<int> numbers = dwords(text);
    QTEST(numbers, "expected");
}

void TextToolsTest::clearsToNumber_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("decimal");
    QTest::addColumn<QByteArray>("hexadecimal");
    QTest::newRow("letters") << QByteArray("xyz") << QByteArray("0") << QByteArray("0");
    QTest::newRow("abc") << QByteArray("abc") << QByteArray("0") << QByteArray("abc");
    QTest::newRow("minus") << QByteArray("-12x") << QByteArray("-12") << QByteArray("12");
    QTest::newRow("mixed") << QByteArray("0xFg9-A") << QByteArray("09-") << QByteArray("0F9A");
    QTest::newRow("empty") << QByteArray("") << QByteArray("0") << QByteArray("0");
}

void TextToolsTest::clearsToNumber()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, decimal);
    QFETCH(QByteArray, hexadecimal);
    const std::string source = text.toStdString();
    QCOMPARE(ClearToNum(source, false), decimal.toStdString());
    QCOMPARE(ClearToNum(source, 0), decimal.toStdString());
    QCOMPARE(ClearToNum(source, true), hexadecimal.toStdString());
    QCOMPARE(ClearToNum(source, 2), hexadecimal.toStdString());
}

void TextToolsTest::pointsToNewCopies()
{
    char source[] = "text";
    char *slot = nullptr;
    SetPointToString(slot, source);
    QVERIFY(slot != source);
    source[0] = 'X';
    QCOMPARE(QByteArray(slot), QByteArray("text"));
    delete[] slot;
    SetPointToString(slot, TString("a\0b", 3));
    QCOMPARE(QByteArray(slot, 4), QByteArray("a\0b\0", 4));
    delete[] slot;
    SetPointToString(slot, TString());
    QCOMPARE(slot[0], '\0');
    delete[] slot;
}

void TextToolsTest::readsIntegers_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("expected");
    QTest::newRow("number") << QByteArray("42") << 42;
    QTest::newRow("negative") << QByteArray("-7") << -7;
    QTest::newRow("blanks before") << QByteArray(" \t\n+9z") << 9;
    QTest::newRow("none") << QByteArray("z9") << 0;
    QTest::newRow("empty") << QByteArray("") << 0;
    QTest::newRow("largest") << QByteArray("2147483647") << INT_MAX;
    QTest::newRow("too large") << QByteArray("2147483648") << INT_MAX;
    QTest::newRow("too small") << QByteArray("-99999999999999999999") << INT_MIN;
}

void TextToolsTest::readsIntegers()
{
    QFETCH(QByteArray, text);
    const int number = StrToInt(text.data());
    QTEST(number, "expected");
}

void TextToolsTest::knowsDelimiters_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("expected");
    QTest::newRow("member") << 1 << 1;
    QTest::newRow("other") << 0 << 0;
    QTest::newRow("the end") << 3 << 1;
    QTest::newRow("before the start") << -1 << 0;
}

void TextToolsTest::knowsDelimiters()
{
    QFETCH(int, index);
    const int answer = IsDelimiter(",;", "a;b", index);
    QTEST(answer, "expected");
}

void TextToolsTest::findsShortFileNames_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("bare") << QByteArray("map.e3m") << QByteArray("map.e3m");
    QTest::newRow("slashes") << QByteArray("/a/b.e3m") << QByteArray("b.e3m");
    QTest::newRow("backslashes") << QByteArray("C:\\a\\b.e3m") << QByteArray("b.e3m");
    QTest::newRow("mixed") << QByteArray("a\\b/c") << QByteArray("c");
    QTest::newRow("mixed the other way") << QByteArray("a/b\\c") << QByteArray("c");
    QTest::newRow("folder") << QByteArray("a/") << QByteArray("");
    QTest::newRow("empty") << QByteArray("") << QByteArray("");
}

void TextToolsTest::findsShortFileNames()
{
    QFETCH(QByteArray, path);
    QFETCH(QByteArray, expected);
    char *name = GetShortFileName(path.data());
    QCOMPARE(QByteArray(name), expected);
    QVERIFY(name == path.data() + path.size() - expected.size());
}

void TextToolsTest::checksFileNames_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("expected");
    QTest::newRow("plain") << QByteArray("Map 1.e3m") << 1;
    QTest::newRow("empty") << QByteArray("") << 1;
    QTest::newRow("quote") << QByteArray("a\"b") << 0;
    QTest::newRow("star") << QByteArray("a*b") << 0;
    QTest::newRow("slash") << QByteArray("a/b") << 0;
    QTest::newRow("colon") << QByteArray("a:b") << 0;
    QTest::newRow("less") << QByteArray("a<b") << 0;
    QTest::newRow("greater") << QByteArray("a>b") << 0;
    QTest::newRow("question mark") << QByteArray("a?b") << 0;
    QTest::newRow("backslash") << QByteArray("a\\b") << 0;
    QTest::newRow("bar") << QByteArray("a|b") << 0;
}

void TextToolsTest::checksFileNames()
{
    QFETCH(QByteArray, name);
    const int answer = IsFileNameValid(name.data());
    QTEST(answer, "expected");
}

void TextToolsTest::roundsToDwords_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("expected");
    QTest::newRow("0") << 0 << 0;
    QTest::newRow("1") << 1 << 4;
    QTest::newRow("3") << 3 << 4;
    QTest::newRow("4") << 4 << 4;
    QTest::newRow("5") << 5 << 8;
    QTest::newRow("-1") << -1 << -4;
    QTest::newRow("-4") << -4 << -4;
    QTest::newRow("-5") << -5 << -8;
    QTest::newRow("lowest") << INT_MIN << INT_MIN;
    QTest::newRow("low") << INT_MIN + 1 << INT_MIN;
    QTest::newRow("highest") << INT_MAX << 2147483644;
    QTest::newRow("high") << 2147483641 << 2147483644;
}

void TextToolsTest::roundsToDwords()
{
    QFETCH(int, size);
    const int rounded = SizeToDword(size);
    QTEST(rounded, "expected");
}

void TextToolsTest::copiesBitsToDwords()
{
    unsigned char bytes[] = {0x01, 0x80, 0xff, 0x00, 0x3c, 0xff};
    unsigned words[] = {0xffffffff, 0xffffffff, 0xffffffff};
    Bitmsk_ByteToDword(bytes, words, 8, 38);
    QCOMPARE(words[0], 0x00ff8001U);
    QCOMPARE(words[1], 0x0000003cU); // six bits of the fifth byte, the others clear
    QCOMPARE(words[2], 0xffffffffU);
    Bitmsk_ByteToDword(bytes, words, 4, 0);
    QCOMPARE(words[0], 0U);
    QCOMPARE(words[1], 0x0000003cU);
    Bitmsk_ByteToDword(bytes, words, -1, -1);
    QCOMPARE(words[1], 0x0000003cU);
}

void TextToolsTest::copiesBitsToBytes()
{
    unsigned words[] = {0x00ff8001, 0xfffffffd};
    unsigned char bytes[] = {9, 9, 9, 9, 9, 9, 9};
    Bitmsk_DwordToByte(words, bytes, 6, 34);
    const unsigned char expected[] = {0x01, 0x80, 0xff, 0x00, 0x01, 0x00, 9};
    QCOMPARE(QByteArray(reinterpret_cast<const char *>(bytes), 7),
             QByteArray(reinterpret_cast<const char *>(expected), 7));
}

QTEST_APPLESS_MAIN(TextToolsTest)
#include "text_tools_test.moc"
