// Which translations and which encoding go with the language in the settings.
#include "gamedata/game_language.h"

#include "gamedata/ini_file.h"
#include "tests/gamedata/marking_translator.h"
#include "tests/support/report_recorder.h"

#include <QTextCodec>
#include <QtTest>

class GameLanguageTest : public QObject
{
    Q_OBJECT

private slots:
    void languageIsRead_data();
    void languageIsRead();
    void translationsAndCodecGoByLanguage_data();
    void translationsAndCodecGoByLanguage();
    void emptyEncodingIsWestern();
    void unknownEncodingEndsTheProcess();
    void unknownEncodingIsToldInEnglish();
    void unknownEncodingMattersOnlyWhereItIsRead();
};

namespace {

constexpr const char *section = "Global Settings";
constexpr const char *encodingKey = "Ravn.dat Text Encoding";

} // namespace

void GameLanguageTest::languageIsRead_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("language");
    QTest::newRow("absent") << QByteArray() << -1;
    QTest::newRow("number") << QByteArray("1") << 1;
    QTest::newRow("with a word") << QByteArray("2 (en)") << 2;
    QTest::newRow("no digit") << QByteArray("english") << 0;
}

void GameLanguageTest::languageIsRead()
{
    QFETCH(QByteArray, value);
    QFETCH(int, language);
    _Ini_ settings(L"none");
    if (!value.isNull())
        settings.SetStringVal(section, "Language", value);
    QCOMPARE(gameLanguage(settings), language);
}

void GameLanguageTest::translationsAndCodecGoByLanguage_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QByteArray>("codec");
    const QByteArray asSet("koi8-r");
    QTest::newRow("-1") << -1 << QStringList{"cmp_en.qm"} << QByteArray("windows-1251");
    QTest::newRow("0") << 0 << QStringList{"cmp_en.qm"} << QByteArray("windows-1252");
    QTest::newRow("1") << 1 << QStringList{"cmp_ru.qm", "qtbase_ru.qm"}
                       << QByteArray("windows-1251");
    QTest::newRow("2") << 2 << QStringList{"cmp_en.qm"} << asSet;
    QTest::newRow("3") << 3 << QStringList() << asSet;
    QTest::newRow("5") << 5 << QStringList() << asSet;
    QTest::newRow("-2") << -2 << QStringList() << asSet;
}

void GameLanguageTest::translationsAndCodecGoByLanguage()
{
    QFETCH(int, language);
    QFETCH(QStringList, files);
    QFETCH(QByteArray, codec);
    _Ini_ settings(L"none");
    settings.SetStringVal(section, encodingKey, "KOI8-R");
    QCOMPARE(translationFiles(language), files);
    QCOMPARE(gameTextCodec(language, settings)->name().toLower(), codec);
}

void GameLanguageTest::emptyEncodingIsWestern()
{
    _Ini_ settings(L"none");
    QCOMPARE(gameTextCodec(2, settings)->name().toLower(), QByteArray("windows-1252"));
    settings.SetStringVal(section, encodingKey, "");
    QCOMPARE(gameTextCodec(7, settings)->name().toLower(), QByteArray("windows-1252"));
}

void GameLanguageTest::unknownEncodingEndsTheProcess()
{
    _Ini_ settings(L"none");
    settings.SetStringVal(section, encodingKey, "Moonrunes-8");
    const ReportRecorder recorder;
    QCOMPARE(exitCodeOf([&] { gameTextCodec(2, settings); }), 1);
    QCOMPARE(recorder.errors.size(), 1);
    QCOMPARE(recorder.errors[0].title, QStringLiteral("Error"));
    QCOMPARE(
        recorder.errors[0].text,
        QStringLiteral("Error in Ravn_Settings.ini: field \"Ravn.dat Text Encoding\" is invalid."));
}

void GameLanguageTest::unknownEncodingIsToldInEnglish()
{
    _Ini_ settings(L"none");
    settings.SetStringVal(section, encodingKey, "Moonrunes-8");
    const MarkingTranslator translator;
    const ReportRecorder recorder;
    QCOMPARE(exitCodeOf([&] { gameTextCodec(2, settings); }), 1);
    QCOMPARE(recorder.errors.size(), 1);
    QCOMPARE(recorder.errors[0].title, QStringLiteral("Error"));
    QVERIFY(recorder.errors[0].text.startsWith(QLatin1String("Error in Ravn_Settings.ini: ")));
}

void GameLanguageTest::unknownEncodingMattersOnlyWhereItIsRead()
{
    _Ini_ settings(L"none");
    settings.SetStringVal(section, encodingKey, "Moonrunes-8");
    const ReportRecorder recorder;
    QCOMPARE(gameTextCodec(1, settings)->name().toLower(), QByteArray("windows-1251"));
    QVERIFY(recorder.errors.isEmpty());
}

QTEST_GUILESS_MAIN(GameLanguageTest)
#include "game_language_test.moc"
