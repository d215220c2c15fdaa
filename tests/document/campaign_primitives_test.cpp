// The small things that a campaign's records are made of: texts, arrays of bits, stories.
#include "document/campaign_primitives.h"

#include "gamedata/limits.h"
#include "tests/document/samples.h"

#include <QTextCodec>
#include <QtTest>

class CampaignPrimitivesTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void textsAreALengthAndBytes_data();
    void textsAreALengthAndBytes();
    void textsGoThroughTheLocalesCodec();
    void aTextIsCutToWhatIsLeft_data();
    void aTextIsCutToWhatIsLeft();
    void aLongTextComesWhole();
    void bitsCountFromTheLowest();
    void paddingOfABitArrayIsIgnoredAndWrittenClear();
    void aBitArrayIsWrittenInTheWidthAskedFor();
    void aBitArrayPastTheEndIsClear();
    void anAbsurdBitArrayIsCutToWhatIsLeft();
    void aPrologueIsThereOnlyForTheByteOne_data();
    void aPrologueIsThereOnlyForTheByteOne();
    void writesPrologues();
    void aNumberThatIsNotWholeIsZero();
};

void CampaignPrimitivesTest::cleanup()
{
    QTextCodec::setCodecForLocale(nullptr);
}

static QByteArray textBytes(QString text)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    WriteHString4(stream, text);
    return bytes;
}

static QString textOf(const QByteArray &bytes)
{
    QDataStream stream(bytes);
    stream.setByteOrder(QDataStream::LittleEndian);
    QString text = "before";
    ReadHString4(stream, text);
    return text;
}

void CampaignPrimitivesTest::textsAreALengthAndBytes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QString("") << QByteArray("\0\0\0\0", 4);
    QTest::newRow("null") << QString() << QByteArray("\0\0\0\0", 4);
    QTest::newRow("letters") << QString("Orla") << QByteArray("\4\0\0\0Orla", 8);
    QTest::newRow("two bytes a letter")
        << QString::fromUtf8("\xD0\x9B") << QByteArray("\2\0\0\0\xD0\x9B", 6);
    QTest::newRow("zero inside") << QString(QChar(0)) + "a" << QByteArray("\2\0\0\0\0a", 6);
    QTest::newRow("mark in front") << QString(QChar(0xfeff)) + "a"
                                   << QByteArray("\4\0\0\0\xEF\xBB\xBF"
                                                 "a",
                                                 8);
}

void CampaignPrimitivesTest::textsAreALengthAndBytes()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, bytes);
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QCOMPARE(textBytes(text), bytes);
    QCOMPARE(textOf(bytes), text);
}

void CampaignPrimitivesTest::textsGoThroughTheLocalesCodec()
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("windows-1251"));
    const QString text = QString::fromUtf8("\xD0\x9B\xD1\x91\xD0\xB4");
    const QByteArray bytes("\3\0\0\0\xCB\xB8\xE4", 7);
    QCOMPARE(textBytes(text), bytes);
    QCOMPARE(textOf(bytes), text);
}

void CampaignPrimitivesTest::aTextIsCutToWhatIsLeft_data()
{
    QTest::addColumn<quint32>("length");
    QTest::newRow("one too many") << 4u;
    QTest::newRow("largest signed") << 2147483647u;
    QTest::newRow("negative") << 2147483648u;
    QTest::newRow("largest") << 4294967295u;
}

void CampaignPrimitivesTest::aTextIsCutToWhatIsLeft()
{
    QFETCH(quint32, length);
    QCOMPARE(textOf(ByteWriter().u32(length).raw("abc").bytes()), QString("abc"));
    QCOMPARE(textOf(ByteWriter().u32(length).bytes()), QString());
}

void CampaignPrimitivesTest::aLongTextComesWhole()
{
    const QByteArray letters = QByteArray("Frostmere").repeated(70000);
    QCOMPARE(textOf(ByteWriter().text(letters).bytes()), QString::fromLatin1(letters));
}

static QBitArray bitsOf(const QByteArray &bytes, unsigned count)
{
    QDataStream stream(bytes);
    QBitArray bits(3, true);
    ReadBitArray(stream, bits, count);
    return bits;
}

static QByteArray bitBytes(QBitArray bits, unsigned count)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    WriteBitArray(stream, bits, count);
    return bytes;
}

void CampaignPrimitivesTest::bitsCountFromTheLowest()
{
    QBitArray bits(10);
    bits.setBit(0);
    bits.setBit(3);
    bits.setBit(9);
    QCOMPARE(bitsOf("\x09\x02", 10), bits);
    QCOMPARE(bitBytes(bits, 10), QByteArray("\x09\x02"));
    QCOMPARE(bitsOf("\x09", 0), QBitArray());
    QCOMPARE(bitBytes(bits, 0), QByteArray());
}

void CampaignPrimitivesTest::paddingOfABitArrayIsIgnoredAndWrittenClear()
{
    QBitArray bits = bitsOf("\xFF", 5);
    QCOMPARE(bits, QBitArray(5, true));
    bits.resize(8);
    QCOMPARE(bits.count(true), 5);
    QCOMPARE(bitBytes(QBitArray(5, true), 5), QByteArray("\x1F"));
}

void CampaignPrimitivesTest::aBitArrayIsWrittenInTheWidthAskedFor()
{
    QCOMPARE(bitBytes(QBitArray(12, true), 20), QByteArray("\xFF\x0F\x00", 3));
    QCOMPARE(bitBytes(QBitArray(20, true), 11), QByteArray("\xFF\x07"));
    QCOMPARE(bitBytes(QBitArray(20, true), 8), QByteArray("\xFF"));
    QCOMPARE(bitBytes(QBitArray(), 9), QByteArray(2, '\0'));
}

void CampaignPrimitivesTest::aBitArrayPastTheEndIsClear()
{
    QBitArray expected(20);
    expected.setBit(7);
    QCOMPARE(bitsOf("\x80", 20), expected);
    QCOMPARE(bitsOf({}, limits::bitsWithoutData), QBitArray(int(limits::bitsWithoutData), false));
}

void CampaignPrimitivesTest::anAbsurdBitArrayIsCutToWhatIsLeft()
{
    QCOMPARE(bitsOf("\x80", 4294967295u).size(), int(limits::bitsWithoutData));
    QCOMPARE(bitsOf("\x80", limits::bitsWithoutData + 1).size(), int(limits::bitsWithoutData));
    QCOMPARE(bitsOf(QByteArray(20000, '\1'), 4294967295u).size(), 160000);
}

void CampaignPrimitivesTest::aPrologueIsThereOnlyForTheByteOne_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("there");
    QTest::newRow("1") << ByteWriter().u8(1).u8(200).u8(3).text("Dawn").bytes() << true;
    QTest::newRow("0") << QByteArray("\0", 1) << false;
    QTest::newRow("2") << QByteArray("\2") << false;
    QTest::newRow("255") << QByteArray("\xFF") << false;
    QTest::newRow("nothing") << QByteArray() << false;
}

void CampaignPrimitivesTest::aPrologueIsThereOnlyForTheByteOne()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, there);
    QDataStream stream(bytes);
    stream.setByteOrder(QDataStream::LittleEndian);
    const auto before = std::make_shared<CmpPrologue>();
    auto prologue = before;
    ReadPrologueEpilogue(stream, prologue);
    QCOMPARE(prologue == before, !there);
    QVERIFY(stream.atEnd());
    if (!there)
        return;
    QCOMPARE(prologue->videoId, quint8(200));
    QCOMPARE(prologue->musicIndex, quint8(3));
    QCOMPARE(prologue->text, QString("Dawn"));
}

void CampaignPrimitivesTest::writesPrologues()
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    auto prologue = std::make_shared<CmpPrologue>();
    prologue->videoId = 200;
    prologue->musicIndex = 3;
    prologue->text = "Dawn";
    WritePrologueEpilogue(stream, prologue);
    prologue.reset();
    WritePrologueEpilogue(stream, prologue);
    QCOMPARE(bytes, QByteArray("\1\xC8\3\4\0\0\0Dawn\0", 12));
}

void CampaignPrimitivesTest::aNumberThatIsNotWholeIsZero()
{
    QDataStream stream(QByteArray("\1\2\3", 3));
    stream.setByteOrder(QDataStream::LittleEndian);
    QCOMPARE(readNumber<quint32>(stream), 0u);
    QCOMPARE(readNumber<quint32>(stream), 0u);
    QCOMPARE(readNumber<quint8>(stream), quint8(0));
}

QTEST_GUILESS_MAIN(CampaignPrimitivesTest)
#include "campaign_primitives_test.moc"
