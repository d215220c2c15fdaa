// The commands that draw: render and region.
#include "fuzz/corpus.h"
#include "tests/cli/cli_game.h"
#include "tests/support/byte_writer.h"
#include "tests/support/packing.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QtTest>

#include <cstdlib>

class CliPictureTest : public QObject
{
    Q_OBJECT

private slots:
    void renderDrawsRegionsInTheirLooks();
    void renderBlendsComputedRegions();
    void renderDrawsABackgroundAlone();
    void renderFitsALargeBackground();
    void renderKeepsWithinASize_data();
    void renderKeepsWithinASize();
    void renderRefusesSizesThatAreNone_data();
    void renderRefusesSizesThatAreNone();
    void renderTellsWhatIsMissing_data();
    void renderTellsWhatIsMissing();
    void regionIsReadyMadeOrComputed_data();
    void regionIsReadyMadeOrComputed();
    void regionTellsWhatIsMissing_data();
    void regionTellsWhatIsMissing();
    void sampleCampaignsAreDrawn();
    void noDisplayIsNeeded();

private:
    CliGame m_game;
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

// Give or take the rounding of a blend.
bool isAbout(QRgb shown, QRgb expected)
{
    return std::abs(qRed(shown) - qRed(expected)) <= 2 &&
           std::abs(qGreen(shown) - qGreen(expected)) <= 2 &&
           std::abs(qBlue(shown) - qBlue(expected)) <= 2;
}

QByteArray campaignOnBackground(quint32 background)
{
    return packing::gzip(
        ByteWriter().u32(10).u32(1).u8(0).u32(background).zeros(4).u8(25).zeros(10).bytes());
}

} // namespace

void CliPictureTest::renderDrawsRegionsInTheirLooks()
{
    const QString file =
        m_game.addCampaign(QStringLiteral("keeps.e3c"), tiny::campaign(3, {{true, 4}, {true, 6}}));
    const QString out = m_game.filePath(QStringLiteral("a.png"));
    const ChildResult result = m_game.run({render, file, out});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    const QImage image(out);
    const QRgb background = qRgb(60, 30, 10);
    QCOMPARE(image.size(), QSize(456, 600));
    QCOMPARE(image.pixel(0, 0), background);
    QCOMPARE(image.pixel(455, 599), background);
    // The first one is selected, at (10, 10) and 30 by 20 large.
    QCOMPARE(image.pixel(10, 10), qRgb(80, 105, 33));
    QCOMPARE(image.pixel(39, 29), qRgb(80, 105, 33));
    QCOMPARE(image.pixel(9, 10), background);
    QCOMPARE(image.pixel(40, 29), background);
    // The other has a map.
    QCOMPARE(image.pixel(100, 100), qRgb(20, 155, 133));
    // Without its map it looks otherwise; the selected one doesn't.
    m_game.addCampaign(QStringLiteral("keeps.e3c"), tiny::campaign(3, {{false, 4}, {false, 6}}));
    QCOMPARE(m_game.run({render, file, out}).exitCode, 0);
    QCOMPARE(QImage(out).pixel(10, 10), qRgb(80, 105, 33));
    QCOMPARE(QImage(out).pixel(100, 100), qRgb(140, 155, 133));
}

void CliPictureTest::renderBlendsComputedRegions()
{
    // Its first scenario has a map, the others have none; all are of colour 2.
    const QString file = m_game.write(QStringLiteral("a.e3c"), seedCampaign("version_10"));
    const QString out = m_game.filePath(QStringLiteral("a.png"));
    QCOMPARE(m_game.run({render, file, out}).exitCode, 0);
    const QImage image(out);
    const QRgb background = qRgb(10, 60, 30);
    QCOMPARE(image.pixel(0, 0), background);
    // (224, 197, 169) of opacity 175 on the background.
    QVERIFY(isAbout(image.pixel(21, 31), qRgb(156, 154, 125)));
    // (193, 139, 84) of opacity 60, but for the transparent corner.
    QVERIFY(isAbout(image.pixel(210, 310), qRgb(53, 78, 42)));
    QCOMPARE(image.pixel(201, 301), background);
}

void CliPictureTest::renderDrawsABackgroundAlone()
{
    const QString file = m_game.write(QStringLiteral("b.e3c"), campaignOnBackground(1));
    const QString out = m_game.filePath(QStringLiteral("b.png"));
    QCOMPARE(m_game.run({render, file, out}).exitCode, 0);
    const QImage image(out);
    QCOMPARE(image.size(), QSize(456, 600));
    QCOMPARE(image.pixel(200, 300), qRgb(90, 5, 90));
}

void CliPictureTest::renderFitsALargeBackground()
{
    const QString file = m_game.write(QStringLiteral("large.e3c"), campaignOnMap(30, 0));
    const QString out = m_game.filePath(QStringLiteral("large.png"));
    QCOMPARE(m_game.run({render, file, out}).exitCode, 0);
    QCOMPARE(QImage(out).size(), QSize(456, 600));
    QCOMPARE(QImage(out).pixel(455, 599), qRgb(128, 0, 0));
}

void CliPictureTest::renderKeepsWithinASize_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<QSize>("drawn");
    QTest::newRow("a thumbnail's") << "150" << QSize(114, 150);
    QTest::newRow("a little smaller") << "599" << QSize(455, 599);
    QTest::newRow("as large as it is") << "600" << QSize(456, 600);
    QTest::newRow("larger") << "2048" << QSize(456, 600);
    QTest::newRow("a point") << "1" << QSize(1, 1);
}

void CliPictureTest::renderKeepsWithinASize()
{
    QFETCH(QString, size);
    QFETCH(QSize, drawn);
    const QString file =
        m_game.addCampaign(QStringLiteral("keeps.e3c"), tiny::campaign(3, {{true, 4}, {true, 6}}));
    const QString out = m_game.filePath(QStringLiteral("small.png"));
    const ChildResult result = m_game.run({render, "--size", size, file, out});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    const QImage image(out);
    QCOMPARE(image.size(), drawn);
    if (drawn.width() < 100)
        return;
    // The first region, which is selected, and the bare map, wherever they are now.
    const double scale = double(drawn.width()) / 456;
    QVERIFY(isAbout(image.pixel(int(25 * scale), int(20 * scale)), qRgb(80, 105, 33)));
    QVERIFY(isAbout(image.pixel(int(300 * scale), int(400 * scale)), qRgb(60, 30, 10)));
}

void CliPictureTest::renderRefusesSizesThatAreNone_data()
{
    QTest::addColumn<QString>("size");
    for (const char *size : {"0", "-5", "big", "", "1.5", "99999999999"})
        QTest::newRow(size) << size;
}

void CliPictureTest::renderRefusesSizesThatAreNone()
{
    QFETCH(QString, size);
    const QString out = m_game.filePath(QStringLiteral("none.png"));
    const ChildResult result = m_game.run({render, "--size=" + size, "a.e3c", out});
    QCOMPARE(result.exitCode, 1);
    QVERIFY(result.error.startsWith("\"" + size.toUtf8() + "\" is no size in pixels.\n"));
    QVERIFY(!QFile::exists(out));
}

void CliPictureTest::renderTellsWhatIsMissing_data()
{
    QTest::addColumn<QByteArray>("campaign");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("background of a map")
        << campaignOnMap(5, 0) << QByteArray("Can't find nosuch.pcx file in lod file");
    QTest::newRow("background alone")
        << campaignOnBackground(2) << QByteArray("Can't find  file in lod file");
    QTest::newRow("region") << campaignOnMap(6, 1)
                            << QByteArray("Can't find gone.pcx file in lod file");
    QTest::newRow("mask") << campaignOnMap(7, 1) << QByteArray("Unable to generate image");
}

void CliPictureTest::renderTellsWhatIsMissing()
{
    QFETCH(QByteArray, campaign);
    QFETCH(QByteArray, message);
    const QString file = m_game.write(QStringLiteral("c.e3c"), campaign);
    const QString out = m_game.filePath(QStringLiteral("c.png"));
    const ChildResult result = m_game.run({render, file, out});
    QVERIFY(result.exitedNormally);
    QCOMPARE(result.error, "Error: " + message + "\n");
    QCOMPARE(result.exitCode, 2);
    QVERIFY(!QFile::exists(out));
}

void CliPictureTest::regionIsReadyMadeOrComputed_data()
{
    QTest::addColumn<QStringList>("numbers");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRgb>("pixel");
    const QSize keep(30, 20);
    const QSize hill(40, 30);
    QTest::newRow("ready-made 0") << QStringList{"3", "1", "0", "5"} << keep << qRgb(20, 130, 133);
    QTest::newRow("ready-made 1") << QStringList{"3", "0", "1", "7"} << keep << qRgb(80, 180, 33);
    QTest::newRow("ready-made 2") << QStringList{"3", "0", "2", "0"} << keep << qRgb(140, 5, 33);
    // Red under a glow of 128 without a border.
    QTest::newRow("unselected") << QStringList{"24", "1", "0", "0"} << hill
                                << qRgba(190, 0, 0, 175);
    QTest::newRow("selected") << QStringList{"24", "1", "1", "0"} << hill
                              << qRgba(255, 127, 127, 175);
    QTest::newRow("unused") << QStringList{"24", "1", "2", "0"} << hill << qRgba(255, 0, 0, 60);
}

void CliPictureTest::regionIsReadyMadeOrComputed()
{
    QFETCH(QStringList, numbers);
    QFETCH(QSize, size);
    QFETCH(QRgb, pixel);
    const QString out = m_game.filePath(QStringLiteral("region.png"));
    const ChildResult result = m_game.run(QStringList{"region"} + numbers + QStringList{out});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    const QImage image(out);
    QCOMPARE(image.size(), size);
    QCOMPARE(image.pixel(12, 1), pixel);
    // Only the computed one has a hole in its corner.
    QCOMPARE(image.pixel(0, 0), numbers[0] == "24" ? qRgba(0, 0, 0, 0) : pixel);
}

void CliPictureTest::regionTellsWhatIsMissing_data()
{
    QTest::addColumn<QStringList>("numbers");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("mask") << QStringList{"7", "0", "0", "0"}
                          << QByteArray("Unable to generate image");
    QTest::newRow("picture") << QStringList{"6", "0", "0", "7"}
                             << QByteArray("Can't find gone.pcx file in lod file");
    QTest::newRow("name") << QStringList{"6", "0", "2", "1"}
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
    const QString out = m_game.filePath(QStringLiteral("sample.png"));
    for (const QString &name : names) {
        const ChildResult result =
            runChild(builtProgram(QStringLiteral("cmped-cli")),
                     {QStringLiteral("--game"), sampleGame(), render, maps.filePath(name), out});
        QVERIFY2(result.exitCode == 0, result.error + qPrintable(name));
        QCOMPARE(QImage(out).size(), QSize(456, 600));
    }
}

void CliPictureTest::noDisplayIsNeeded()
{
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "HOME"})
        environment.remove(QLatin1String(name));
    const QString file = m_game.write(QStringLiteral("a.e3c"), seedCampaign("version_10"));
    const QString out = m_game.filePath(QStringLiteral("display.png"));
    for (const QStringList &words :
         {QStringList{render, file, out}, QStringList{"region", "24", "0", "0", "0", out},
          QStringList{"extract", "wide.pcx", out}}) {
        QFile::remove(out);
        const ChildResult result = m_game.run(words, environment);
        QCOMPARE(result.error, QByteArray());
        QCOMPARE(result.exitCode, 0);
        QVERIFY(!QImage(out).isNull());
    }
}

QTEST_GUILESS_MAIN(CliPictureTest)
#include "cli_picture_test.moc"
