// The encoding of texts outside the game's tables, and of the names of files.
#include "gamedata/locale_codec.h"

#include <QTextCodec>
#include <QtTest>

class LocaleCodecTest : public QObject
{
    Q_OBJECT

private slots:
    void namedCodecIsSet();
    void codecThatKeepsAsciiIsSet_data();
    void codecThatKeepsAsciiIsSet();
    void codecThatCannotNameFilesIsRefused_data();
    void codecThatCannotNameFilesIsRefused();
    void localeDecidesWithoutAName_data();
    void localeDecidesWithoutAName();
};

namespace {

QByteArray currentCodec()
{
    return QTextCodec::codecForLocale()->name().toLower();
}

} // namespace

void LocaleCodecTest::namedCodecIsSet()
{
    QVERIFY(setLocaleCodec(QStringLiteral("Windows-1251")));
    QCOMPARE(currentCodec(), QByteArray("windows-1251"));
    QCOMPARE(QString::fromLocal8Bit("\xcf\xf3\xf2\xfc"),
             QStringLiteral("\u041f\u0443\u0442\u044c"));
    QVERIFY(setLocaleCodec(QStringLiteral("cp1252")));
    QCOMPARE(currentCodec(), QByteArray("windows-1252"));
    QVERIFY(setLocaleCodec(QStringLiteral("UTF-8")));
    QCOMPARE(currentCodec(), QByteArray("utf-8"));
}

void LocaleCodecTest::codecThatKeepsAsciiIsSet_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"UTF-8", "Windows-1250", "Windows-1251", "Windows-1252", "Windows-1254", "ISO-8859-1",
          "ISO-8859-2", "ISO-8859-5", "ISO-8859-15", "KOI8-R", "KOI8-U", "GBK", "GB18030", "Big5",
          "EUC-KR", "EUC-JP", "Shift_JIS", "IBM866"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void LocaleCodecTest::codecThatKeepsAsciiIsSet()
{
    QFETCH(QString, name);
    QVERIFY(setLocaleCodec(name));
    const QTextCodec *codec = QTextCodec::codecForLocale();
    QByteArray text("\x1b\t\r\n");
    for (char letter = ' '; letter <= '~'; ++letter)
        text += letter;
    QCOMPARE(codec->toUnicode(text), QString::fromLatin1(text));
    QCOMPARE(codec->fromUnicode(QString::fromLatin1(text)), text);
}

void LocaleCodecTest::codecThatCannotNameFilesIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("unknown") << "Moonrunes-8";
    QTest::newRow("two bytes a letter") << "UTF-16LE";
    QTest::newRow("other letters behind an escape") << "ISO-2022-JP";
    QTest::newRow("other letters behind an escape, Chinese") << "ISO-2022-CN";
    QTest::newRow("other letters behind a shift") << "ISO-2022-KR";
    QTest::newRow("other letters behind a tilde") << "HZ-GB-2312";
    QTest::newRow("other letters behind a plus") << "UTF-7";
    QTest::newRow("control characters choose letters") << "SCSU";
    QTest::newRow("other letters") << "IBM037";
    QTest::newRow("no ASCII name") << QStringLiteral("\u041f");
}

void LocaleCodecTest::codecThatCannotNameFilesIsRefused()
{
    QFETCH(QString, name);
    QVERIFY(setLocaleCodec(QStringLiteral("KOI8-R")));
    const QByteArray before = currentCodec();
    QVERIFY(!setLocaleCodec(name));
    QCOMPARE(currentCodec(), before);
}

void LocaleCodecTest::localeDecidesWithoutAName_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::addColumn<QByteArray>("codec");
    QTest::newRow("UTF-8") << QByteArray("C.UTF-8") << QByteArray("utf-8");
    QTest::newRow("plain ASCII") << QByteArray("C") << QByteArray("utf-8");
    QTest::newRow("no such locale") << QByteArray("xx_XX.KOI8-R") << QByteArray("utf-8");
    // A code page can be tried only where the system has a locale with it.
    if (setlocale(LC_ALL, "ru_RU.CP1251"))
        QTest::newRow("code page") << QByteArray("ru_RU.CP1251") << QByteArray("windows-1251");
}

void LocaleCodecTest::localeDecidesWithoutAName()
{
    QFETCH(QByteArray, locale);
    QFETCH(QByteArray, codec);
    qputenv("LC_ALL", locale);
    QVERIFY(setLocaleCodec(QStringLiteral("KOI8-R")));
    QVERIFY(setLocaleCodec(QString()));
    QCOMPARE(currentCodec(), codec);
}

QTEST_GUILESS_MAIN(LocaleCodecTest)
#include "locale_codec_test.moc"
