// Texts keep every byte that they came with, whatever the codec makes of it.
#include "document/campaign_data.h"
#include "document/text_bytes.h"
#include "gamedata/escaped_utf8.h"
#include "tests/document/samples.h"
#include "tests/support/processor_time.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTextCodec>

#include <algorithm>

#include <sys/mman.h>
#include <unistd.h>

namespace {

// The escape of a byte: a low surrogate by itself.
QString escapeOf(uchar byte)
{
    return QString(QChar(0xDC00 + byte));
}

// ASCII in which no other byte means anything. Counts what it is asked.
class CountingCodec : public QTextCodec
{
public:
    QByteArray name() const override { return "Counting"; }
    int mibEnum() const override { return -7107; }

    mutable int conversions = 0;

protected:
    QString convertToUnicode(const char *bytes, int size, ConverterState *) const override
    {
        ++conversions;
        QString text;
        for (int i = 0; i < size; ++i)
            text += uchar(bytes[i]) < 0x80 ? QChar(uchar(bytes[i])) : QChar(0xFFFD);
        return text;
    }

    QByteArray convertFromUnicode(const QChar *text, int size, ConverterState *) const override
    {
        ++conversions;
        return QString(text, size).toLatin1();
    }
};

// A text behind which nothing may be read.
class TextAtTheEndOfMemory
{
public:
    explicit TextAtTheEndOfMemory(const QString &text) : m_size(text.size())
    {
        m_pages =
            mmap(nullptr, 2 * page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (m_pages == MAP_FAILED || mprotect(end(), page, PROT_NONE) != 0)
            qFatal("no memory");
        std::copy(text.begin(), text.end(), begin());
    }
    ~TextAtTheEndOfMemory() { munmap(m_pages, 2 * page); }
    TextAtTheEndOfMemory(const TextAtTheEndOfMemory &) = delete;
    TextAtTheEndOfMemory &operator=(const TextAtTheEndOfMemory &) = delete;

    QString text() const { return QString::fromRawData(begin(), m_size); }

private:
    char *end() const { return static_cast<char *>(m_pages) + page; }
    QChar *begin() const { return reinterpret_cast<QChar *>(end()) - m_size; }

    const std::size_t page = std::size_t(sysconf(_SC_PAGESIZE));
    int m_size;
    void *m_pages = nullptr;
};

} // namespace

class TextBytesTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8")); }

    void wellFormedBytesBecomeTheirText_data()
    {
        QTest::addColumn<QByteArray>("codec");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << QByteArray("UTF-8") << QByteArray() << QString();
        QTest::newRow("ascii") << QByteArray("UTF-8") << QByteArray("Ash Road")
                               << QStringLiteral("Ash Road");
        QTest::newRow("two, three and four bytes")
            << QByteArray("UTF-8") << QByteArray("\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80")
            << QString::fromUcs4(U"\u00E9\u20AC\U0001F600");
        QTest::newRow("a zero byte inside")
            << QByteArray("UTF-8") << QByteArray("a\0b", 3) << QString::fromLatin1("a\0b", 3);
        QTest::newRow("windows-1251")
            << QByteArray("Windows-1251") << QByteArray("\xCF\xF3\xF2\xFC")
            << QString::fromUcs4(U"\u041F\u0443\u0442\u044C");
        QTest::newRow("windows-1252") << QByteArray("Windows-1252") << QByteArray("caf\xE9 \x80")
                                      << QString::fromUcs4(U"caf\u00E9 \u20AC");
    }

    void wellFormedBytesBecomeTheirText()
    {
        QFETCH(QByteArray, codec);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(codec));
        QCOMPARE(textFromBytes(bytes), text);
        QCOMPARE(bytesFromText(text), bytes);
    }

    void bytesThatAreNoUtf8AreEscapedOneByOne_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        const QString e = QString(QChar(0xE9));
        QTest::newRow("a byte of another encoding")
            << QByteArray("caf\xE9 road") << "caf" + escapeOf(0xE9) + " road";
        QTest::newRow("text around it stays text")
            << QByteArray("\xC3\xA9\xFF\xC3\xA9") << e + escapeOf(0xFF) + e;
        QTest::newRow("a sequence cut short")
            << QByteArray("ab\xE2\x82") << "ab" + escapeOf(0xE2) + escapeOf(0x82);
        QTest::newRow("a longer form than needed")
            << QByteArray("\xC0\x80") << escapeOf(0xC0) + escapeOf(0x80);
        QTest::newRow("a longer form of three bytes")
            << QByteArray("\xE0\x9F\xBF") << escapeOf(0xE0) + escapeOf(0x9F) + escapeOf(0xBF);
        QTest::newRow("an encoded surrogate")
            << QByteArray("\xED\xB3\xA9") << escapeOf(0xED) + escapeOf(0xB3) + escapeOf(0xA9);
        QTest::newRow("beyond the last code point")
            << QByteArray("\xF4\x90\x80\x80")
            << escapeOf(0xF4) + escapeOf(0x90) + escapeOf(0x80) + escapeOf(0x80);
        QTest::newRow("a byte order mark behind damage")
            << QByteArray("\xFF\xEF\xBB\xBFx") << escapeOf(0xFF) + QChar(0xFEFF) + "x";
    }

    void bytesThatAreNoUtf8AreEscapedOneByOne()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        QCOMPARE(textFromBytes(bytes), text);
        QCOMPARE(bytesFromText(text), bytes);
    }

    void halvesOfCharactersAreKnown_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("halves"); // "1" at each
        const QString whole = QString::fromUcs4(U"\U0001F600");
        const QString high(whole[0]);
        const QString low(whole[1]);
        QTest::newRow("none") << QStringLiteral("Ash") << QByteArray("000");
        QTest::newRow("a byte order mark") << QString(QChar(0xFEFF)) + "x" << QByteArray("00");
        QTest::newRow("a pair") << "a" + whole + "b" << QByteArray("0000");
        QTest::newRow("a first half") << high + "a" << QByteArray("10");
        QTest::newRow("a first half at the end") << "a" + high << QByteArray("01");
        QTest::newRow("a second half") << low + "a" << QByteArray("10");
        QTest::newRow("a second half behind a letter") << "a" + low << QByteArray("01");
        QTest::newRow("around a pair") << high + whole + low << QByteArray("1001");
        QTest::newRow("an escape") << "a" + escapeOf(0xE9) + "b" << QByteArray("010");
    }

    void halvesOfCharactersAreKnown()
    {
        QFETCH(QString, text);
        QFETCH(QByteArray, halves);
        QByteArray found;
        for (int i = 0; i < text.size(); ++i)
            found += isHalfCharacter(text, i) ? '1' : '0';
        QCOMPARE(found, halves);
    }

    void everyByteComesBack_data()
    {
        QTest::addColumn<QByteArray>("codec");
        for (const char *codec : {"UTF-8", "Windows-1250", "Windows-1251", "Windows-1252",
                                  "ISO-8859-1", "KOI8-R", "Shift_JIS", "GB18030", "Big5", "EUC-KR"})
            QTest::newRow(codec) << QByteArray(codec);
    }

    void everyByteComesBack()
    {
        QFETCH(QByteArray, codec);
        QTextCodec *known = QTextCodec::codecForName(codec);
        if (!known)
            QSKIP("Qt was built without this codec.");
        QTextCodec::setCodecForLocale(known);
        for (int value = 0; value < 256; ++value) {
            const QByteArray byte(1, char(value));
            QCOMPARE(bytesFromText(textFromBytes(byte)), byte);
        }
        for (quint32 seed = 1; seed <= 400; ++seed) {
            const QByteArray bytes = samples::noise(int(seed % 61), seed);
            QCOMPARE(bytesFromText(textFromBytes(bytes)), bytes);
        }
    }

    void editingAroundAnEscapeKeepsItsByte()
    {
        QString text = textFromBytes("\xCF\xF3\xF2\xFC");
        text.prepend("The ");
        QCOMPARE(bytesFromText(text), QByteArray("The \xCF\xF3\xF2\xFC"));
    }

    void surrogatesOfOnePairAreNoEscape()
    {
        const QString text = QString::fromUcs4(U"\U000100E9"); // its low half is that of byte E9
        QCOMPARE(text.at(1).unicode(), ushort(0xDCE9));
        QCOMPARE(bytesFromText(text), QByteArray("\xF0\x90\x83\xA9"));
    }

    void aDamagedTextOfMegabytesIsReadAtOnce()
    {
        const QByteArray bytes = samples::noise(4 * 1024 * 1024);
        const ProcessorTime time;
        QCOMPARE(bytesFromText(textFromBytes(bytes)), bytes);
        QVERIFY(time.milliseconds() < unhurriedMilliseconds);
    }

    void damagedTextsAskTheCodecForEachByteOnlyOnce()
    {
        auto *codec = new CountingCodec; // Qt's
        QTextCodec::setCodecForLocale(codec);
        const QByteArray damaged("caf\xE9");
        QCOMPARE(textFromBytes(damaged), "caf" + escapeOf(0xE9));
        codec->conversions = 0;
        constexpr int texts = 100;
        for (int i = 0; i < texts; ++i)
            QCOMPARE(textFromBytes(damaged), "caf" + escapeOf(0xE9));
        QVERIFY2(codec->conversions <= 8 * texts, qPrintable(QString::number(codec->conversions)));
    }

    void noCodecLooksBehindTheText_data()
    {
        QTest::addColumn<QByteArray>("codec");
        const auto names = QTextCodec::availableCodecs();
        for (const QByteArray &name : names) {
            // The others are refused.
            if (QTextCodec::codecForName(name)->fromUnicode("a") == "a")
                QTest::newRow(name.constData()) << name;
        }
    }

    void noCodecLooksBehindTheText()
    {
        QFETCH(QByteArray, codec);
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(codec));
        for (const char32_t *letters : {U"a", U"ab", U"\u0B95", U"\u0B95\u0BCD", U"\U0001F600"}) {
            const QString text = QString::fromUcs4(letters);
            QCOMPARE(bytesFromText(TextAtTheEndOfMemory(text).text()), bytesFromText(text));
        }
    }

    void everyCodecGivesBytesItsOwnMeanings()
    {
        QTextCodec *known = QTextCodec::codecForName("Shift_JIS");
        if (!known)
            QSKIP("Qt was built without this codec.");
        QTextCodec::setCodecForLocale(new CountingCodec);
        QCOMPARE(textFromBytes("\xB1\xFF"), escapeOf(0xB1) + escapeOf(0xFF));
        QTextCodec::setCodecForLocale(known);
        QCOMPARE(textFromBytes("\xB1\xFF"), QChar(0xFF71) + escapeOf(0xFF));
    }

    void aCampaignOfAnotherEncodingIsSavedAsItWas()
    {
        samples::setTables();
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("Windows-1251"));
        CampaignData russian;
        russian.initDummyCampaign(3, true, 0, 0);
        russian.name =
            QString::fromUcs4(U"\u041F\u0443\u0442\u044C \u043F\u0435\u043F\u043B\u0430");
        russian.scenarios[1].regionText = QString::fromUcs4(U"\u0417\u0430\u043C\u043E\u043A");
        const QTemporaryDir folder;
        const QString path = folder.filePath("russian.e3c");
        QVERIFY(russian.saveTo(path).ok);

        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray before = file.readAll();
        CampaignData read;
        QVERIFY(!read.readCampaign(&file));
        const QString again = folder.filePath("again.e3c");
        QVERIFY(read.saveTo(again).ok);
        QFile saved(again);
        QVERIFY(saved.open(QIODevice::ReadOnly));
        QCOMPARE(saved.readAll(), before);
    }
};

QTEST_GUILESS_MAIN(TextBytesTest)
#include "text_bytes_test.moc"
