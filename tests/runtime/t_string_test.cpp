// The counted string.
#include "gamedata/runtime/t_string.h"

#include <QtTest>

class TStringTest : public QObject
{
    Q_OBJECT

private slots:
    void keepsAZeroBehindItsCharacters_data();
    void keepsAZeroBehindItsCharacters();
    void isNeverWithoutABuffer();
    void cutsAndGrows();
    void growsByWhatItsBlockHeld();
    void lengthOfZeroForgetsTheCharacters();
    void holdsZeros();
    void copiesKeepTheZeroBehindThem_data();
    void copiesKeepTheZeroBehindThem();
    void concatenatesIntoOneResult();
    void concatenatesItsOwnResult();
    void comparesBytes();
};

void TStringTest::keepsAZeroBehindItsCharacters_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("capacity");
    QTest::newRow("empty") << 0 << 64;
    QTest::newRow("one") << 1 << 64;
    QTest::newRow("full block with its zero") << 63 << 64;
    QTest::newRow("zero in the next block") << 64 << 128;
}

void TStringTest::keepsAZeroBehindItsCharacters()
{
    QFETCH(int, size);
    QFETCH(int, capacity);
    TString text(QByteArray(200, 'x').constData());
    text.SetLength(size);
    QCOMPARE(text.length, size);
    QCOMPARE(text.capacity, capacity);
    QCOMPARE(text.data[size], '\0');
    QCOMPARE(QByteArray(text.c_str()), QByteArray(size, 'x'));
}

void TStringTest::isNeverWithoutABuffer()
{
    QCOMPARE(TString().c_str(), "");
    QCOMPARE(TString(static_cast<const char *>(nullptr)).c_str(), "");
    QCOMPARE(TString("").c_str(), "");
    QCOMPARE(TString("abc", 0).c_str(), "");
}

void TStringTest::cutsAndGrows()
{
    TString text("monst150");
    text.SetLength(5);
    QCOMPARE(text.c_str(), "monst");
    text.SetLength(-3);
    QCOMPARE(text.length, 0);
    QCOMPARE(text.c_str(), "");
    text.SetLength(INT_MAX);
    QCOMPARE(text.length, 0);
    text.SetLength(70);
    QCOMPARE(text.data[70], '\0');
}

void TStringTest::growsByWhatItsBlockHeld()
{
    TString text("abcdef");
    text.SetLength(3);
    QCOMPARE(text.c_str(), "abc");
    text.SetLength(6);
    QCOMPARE(QByteArray(text.data, 7), QByteArray("abc\0ef\0", 7));
}

void TStringTest::lengthOfZeroForgetsTheCharacters()
{
    TString text("abcdef");
    text.SetLength(0);
    text.SetLength(6);
    QCOMPARE(QByteArray(text.data, 7), QByteArray(7, '\0'));
}

void TStringTest::holdsZeros()
{
    const TString text("a\0b", 3);
    QCOMPARE(text.length, 3);
    QCOMPARE(text.data[2], 'b');
    QCOMPARE(text.c_str(), "a");
}

void TStringTest::copiesKeepTheZeroBehindThem_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("empty") << 0;
    QTest::newRow("short") << 5;
    QTest::newRow("a full block") << 64;
    QTest::newRow("two full blocks") << 128;
}

void TStringTest::copiesKeepTheZeroBehindThem()
{
    QFETCH(int, size);
    const QByteArray bytes(size, 'x');
    TString text(bytes.constData());
    const TString copy(text);
    text = TString("another");
    QCOMPARE(QByteArray(copy.c_str()), bytes);
    text = copy;
    TString assigned(QByteArray(60, 'y').constData());
    assigned = text;
    QCOMPARE(QByteArray(assigned.c_str()), bytes);
    const TString moved(std::move(assigned));
    QCOMPARE(QByteArray(moved.c_str()), bytes);
    TArray<TString> list;
    list.SetLength(1);
    list[0] = text;
    const TArray<TString> copies(list);
    QCOMPARE(QByteArray(copies[0].c_str()), bytes);
}

void TStringTest::concatenatesIntoOneResult()
{
    const TString left("left");
    const TString right("right");
    TString &first = left + right;
    QCOMPARE(first.c_str(), "leftright");
    QCOMPARE(&first, &TString::op_result);
    QCOMPARE((left + "-").c_str(), "left-");
    QCOMPARE(first.c_str(), "left-");
    QCOMPARE(("+" + right).c_str(), "+right");
}

void TStringTest::concatenatesItsOwnResult()
{
    const TString part("ab");
    const TString whole = part + "c" + part + part;
    QCOMPARE(whole.c_str(), "abcabab");
    QCOMPARE((TString::op_result + TString::op_result).c_str(), "abcabababcabab");
}

void TStringTest::comparesBytes()
{
    QVERIFY(TString("abc") == TString("abc"));
    QVERIFY(TString("abc") != TString("abd"));
    QVERIFY(TString("abc") != TString("ab"));
    QVERIFY(TString("a\0b", 3) != TString("a\0c", 3));
    QVERIFY(TString() == TString(""));
}

QTEST_APPLESS_MAIN(TStringTest)
#include "t_string_test.moc"
