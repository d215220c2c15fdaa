// The commands that draw: render and region.
#include "fuzz/corpus.h"
#include "tests/cli/tiny_game.h"
#include "tests/support/byte_writer.h"
#include "tests/support/packing.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QtTest>

class CliPictureTest : public QObject
{
    Q_OBJECT

private slots:
    void renderDrawsRegionsInTheirLooks();
    void renderDrawsABackgroundAlone();
    void renderTellsWhatIsMissing_data();
    void renderTellsWhatIsMissing();
    void regionIsReadyMadeOrComputed_data();
    void regionIsReadyMadeOrComputed();
    void regionTellsWhatIsMissing_data();
    void regionTellsWhatIsMissing();
    void sampleCampaignsAreDrawn();

private:
    TinyGame m_game;
};

namespace {

const QString render = QStringLiteral("render");

// A campaign on a map, as version 6 stores it, without scenario maps.
QByteArray campaignOnMap(unsigned map, int regions)
{
    ByteWriter file;
    file.u32(6).u8(map + 1).text("Name").text({}).u8(0).u8(0);
    for (int i = 0; i < regions; ++i)
        file.u32(0)
            .u32(0)
            .zeros((regions + 7) / 8)
            .u8(3)
            .u8(1)
            .u32(0)
            .zeros(2)
            .zeros(1 + 19 + 18 + 1);
    return packing::gzip(file.bytes());
}

QByteArray campaignOnBackground(quint32 background)
{
    return packing::gzip(
        ByteWriter().u32(10).u32(1).u8(0).u32(background).zeros(4).u8(25).zeros(10).bytes());
}

} // namespace

void CliPictureTest::renderDrawsRegionsInTheirLooks()
{
    // Its first scenario has a map, the others have none; all are of colour 2.
    const QString file = m_game.write(QStringLiteral("a.e3c"), seedCampaign("version_10"));
    const QString out = m_game.path(QStringLiteral("a.png"));
    const ChildResult result = m_game.run({render, file, out});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    const QImage image(out);
    QCOMPARE(image.size(), QSize(456, 600));
    QCOMPARE(image.pixel(0, 0), qRgb(1, 2, 3));
    QCOMPARE(image.pixel(455, 599), qRgb(1, 2, 3));
    QCOMPARE(image.pixel(11, 21), qRgb(100, 20, 7)); // selected
    QCOMPARE(image.pixel(10, 20), qRgb(1, 2, 3));    // its transparent corner
    QCOMPARE(image.pixel(13, 23), qRgb(100, 20, 7));
    QCOMPARE(image.pixel(14, 24), qRgb(1, 2, 3));
    QCOMPARE(image.pixel(31, 41), qRgb(200, 20, 7)); // without a map
    QCOMPARE(image.pixel(51, 61), qRgb(200, 20, 7));
}

void CliPictureTest::renderDrawsABackgroundAlone()
{
    const QString file = m_game.write(QStringLiteral("b.e3c"), campaignOnBackground(0));
    const QString out = m_game.path(QStringLiteral("b.png"));
    QCOMPARE(m_game.run({render, file, out}).exitCode, 0);
    const QImage image(out);
    QCOMPARE(image.size(), QSize(456, 600));
    QCOMPARE(image.pixel(200, 300), qRgb(9, 8, 7));
}

void CliPictureTest::renderTellsWhatIsMissing_data()
{
    QTest::addColumn<QByteArray>("campaign");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("background of a map")
        << campaignOnMap(8, 1) << QByteArray("Can't find none.pcx file in lod file");
    QTest::newRow("background alone")
        << campaignOnBackground(1) << QByteArray("Can't find none.pcx file in lod file");
    QTest::newRow("mask") << campaignOnMap(7, 1) << QByteArray("Unable to generate image");
}

void CliPictureTest::renderTellsWhatIsMissing()
{
    QFETCH(QByteArray, campaign);
    QFETCH(QByteArray, message);
    const QString file = m_game.write(QStringLiteral("c.e3c"), campaign);
    const QString out = m_game.path(QStringLiteral("c.png"));
    const ChildResult result = m_game.run({render, file, out});
    QVERIFY(result.exitedNormally);
    QCOMPARE(result.error, "Error: " + message + "\n");
    QCOMPARE(result.exitCode, 2);
    QVERIFY(!QFile::exists(out));
}

void CliPictureTest::regionIsReadyMadeOrComputed_data()
{
    QTest::addColumn<QStringList>("numbers");
    QTest::addColumn<QRgb>("pixel");
    QTest::newRow("ready-made 0") << QStringList{"0", "1", "0", "5"} << qRgb(0, 50, 7);
    QTest::newRow("ready-made 1") << QStringList{"0", "2", "1", "7"} << qRgb(100, 70, 7);
    QTest::newRow("ready-made 2") << QStringList{"0", "0", "2", "0"} << qRgb(200, 0, 7);
    // Red under a glow of 128 without a border.
    QTest::newRow("unselected") << QStringList{"5", "0", "0", "0"} << qRgba(190, 0, 0, 175);
    QTest::newRow("selected") << QStringList{"5", "0", "1", "0"} << qRgba(255, 127, 127, 175);
    QTest::newRow("unused") << QStringList{"5", "0", "2", "0"} << qRgba(255, 0, 0, 60);
}

void CliPictureTest::regionIsReadyMadeOrComputed()
{
    QFETCH(QStringList, numbers);
    QFETCH(QRgb, pixel);
    const QString out = m_game.path(QStringLiteral("region.png"));
    const ChildResult result = m_game.run(QStringList{"region"} + numbers + QStringList{out});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    const QImage image(out);
    QCOMPARE(image.size(), QSize(4, 4));
    QCOMPARE(image.pixel(2, 1), pixel);
    QCOMPARE(image.pixel(0, 0), qRgba(0, 0, 0, 0));
}

void CliPictureTest::regionTellsWhatIsMissing_data()
{
    QTest::addColumn<QStringList>("numbers");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("mask") << QStringList{"7", "0", "0", "0"}
                          << QByteArray("Unable to generate image");
    QTest::newRow("picture") << QStringList{"8", "0", "0", "0"}
                             << QByteArray("Can't find none.pcx file in lod file");
    QTest::newRow("name") << QStringList{"8", "0", "0", "1"}
                          << QByteArray("Can't find  file in lod file");
}

void CliPictureTest::regionTellsWhatIsMissing()
{
    QFETCH(QStringList, numbers);
    QFETCH(QByteArray, message);
    const QString out = m_game.write(QStringLiteral("old.png"), "old bytes");
    const ChildResult result = m_game.run(QStringList{"region"} + numbers + QStringList{out});
    QVERIFY(result.exitedNormally);
    QCOMPARE(result.error, "Error: " + message + "\n");
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(m_game.read(QStringLiteral("old.png")), QByteArray("old bytes"));
}

void CliPictureTest::sampleCampaignsAreDrawn()
{
    const QDir maps(sampleGame() + QStringLiteral("/Maps"));
    const QStringList names = maps.entryList({QStringLiteral("*.e3c")}, QDir::Files);
    QVERIFY2(!names.isEmpty(), "the sample game is missing");
    const QString out = m_game.path(QStringLiteral("sample.png"));
    for (const QString &name : names) {
        const ChildResult result =
            runChild(builtProgram(QStringLiteral("cmped-cli")),
                     {QStringLiteral("--game"), sampleGame(), render, maps.filePath(name), out});
        QVERIFY2(result.exitCode == 0, result.error + qPrintable(name));
        QCOMPARE(QImage(out).size(), QSize(456, 600));
    }
}

QTEST_GUILESS_MAIN(CliPictureTest)
#include "cli_picture_test.moc"
