// The array that holds its block: its growth, and indexes outside of it.
#include "gamedata/runtime/t_array.h"

#include <QtTest>

#include <climits>

class TArrayTest : public QObject
{
    Q_OBJECT

private slots:
    void takesIndexesOutsideAsTheNearestOne_data();
    void takesIndexesOutsideAsTheNearestOne();
    void answersAZeroFromAnEmptyArray();
    void roundsItsCapacityUpTo64Bytes_data();
    void roundsItsCapacityUpTo64Bytes();
    void zeroesNewElements();
    void keepsTheBlockWhenItShrinksInside64Bytes();
    void allocatesAnewWhenItShrinksPastABlock();
    void freesEverythingForACountOfZero();
    void refusesCountsThatNoArrayCanHold();
    void copiesAndMovesItsElements();
};

void TArrayTest::takesIndexesOutsideAsTheNearestOne_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("expected");
    QTest::newRow("lowest") << INT_MIN << 10;
    QTest::newRow("below") << -1 << 10;
    QTest::newRow("first") << 0 << 10;
    QTest::newRow("last") << 2 << 30;
    QTest::newRow("behind") << 3 << 30;
    QTest::newRow("highest") << INT_MAX << 30;
}

void TArrayTest::takesIndexesOutsideAsTheNearestOne()
{
    QFETCH(int, index);
    QFETCH(int, expected);
    TArray<int> numbers;
    numbers.SetLength(3);
    numbers.data[0] = 10;
    numbers.data[1] = 20;
    numbers.data[2] = 30;
    QCOMPARE(numbers[index], expected);
    QCOMPARE(static_cast<const TArray<int> &>(numbers)[index], expected);
}

void TArrayTest::answersAZeroFromAnEmptyArray()
{
    TArray<int> numbers;
    numbers[0] = 5;
    QCOMPARE(numbers[0], 0);
    QCOMPARE(numbers[-7], 0);
    QCOMPARE(static_cast<const TArray<int> &>(numbers)[3], 0);
}

void TArrayTest::roundsItsCapacityUpTo64Bytes_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("capacity");
    QTest::newRow("none") << 0 << 0;
    QTest::newRow("one") << 1 << 64;
    QTest::newRow("a full block") << 16 << 64;
    QTest::newRow("one more") << 17 << 128;
}

void TArrayTest::roundsItsCapacityUpTo64Bytes()
{
    QFETCH(int, count);
    QFETCH(int, capacity);
    TArray<int> numbers;
    numbers.SetLength(count);
    QCOMPARE(numbers.length, count);
    QCOMPARE(numbers.capacity, capacity);
}

void TArrayTest::zeroesNewElements()
{
    TArray<int> numbers;
    numbers.SetLength(16);
    numbers[15] = 7;
    numbers.SetLength(40);
    QCOMPARE(numbers[15], 7);
    for (int i = 16; i < 40; ++i)
        QCOMPARE(numbers[i], 0);
}

void TArrayTest::keepsTheBlockWhenItShrinksInside64Bytes()
{
    TArray<int> numbers;
    numbers.SetLength(16);
    numbers[9] = 9;
    const int *block = numbers.data;
    numbers.SetLength(2);
    QCOMPARE(numbers.data, block);
    QCOMPARE(numbers[9], 0); // the last one inside
    numbers.SetLength(10);
    QCOMPARE(numbers[9], 9);
}

void TArrayTest::allocatesAnewWhenItShrinksPastABlock()
{
    TArray<int> numbers;
    numbers.SetLength(17);
    numbers[0] = 3;
    numbers[16] = 4;
    numbers.SetLength(2);
    QCOMPARE(numbers.capacity, 64);
    QCOMPARE(numbers[0], 3);
    numbers.SetLength(17);
    QCOMPARE(numbers[16], 0);
}

void TArrayTest::freesEverythingForACountOfZero()
{
    TArray<int> numbers;
    numbers.SetLength(5);
    numbers.SetLength(0);
    QVERIFY(!numbers.data);
    QCOMPARE(numbers.length, 0);
    QCOMPARE(numbers.capacity, 0);
}

void TArrayTest::refusesCountsThatNoArrayCanHold()
{
    TArray<int> numbers;
    numbers.SetLength(5);
    numbers.SetLength(INT_MAX);
    QCOMPARE(numbers.length, 0);
    numbers.SetLength(INT_MIN);
    QCOMPARE(numbers.length, 0);
    QVERIFY(!numbers.data);
}

void TArrayTest::copiesAndMovesItsElements()
{
    TArray<int> numbers;
    numbers.SetLength(2);
    numbers[1] = 8;
    TArray<int> copy(numbers);
    numbers[1] = 9;
    QCOMPARE(copy.length, 2);
    QCOMPARE(copy[1], 8);
    TArray<int> moved(std::move(numbers));
    QCOMPARE(moved[1], 9);
    copy = moved;
    QCOMPARE(copy[1], 9);
    QVERIFY(copy.data != moved.data);
}

QTEST_APPLESS_MAIN(TArrayTest)
#include "t_array_test.moc"
