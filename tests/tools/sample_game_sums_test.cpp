// The sample game is the same whatever compiler built its maker. The sums are of unpacked contents:
// packed ones depend on zlib's version.
#include "tests/tools/made_game.h"

#include <QCryptographicHash>
#include <QTest>

class SampleGameSumsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void contentsAreTheSameFromEveryCompiler_data();
    void contentsAreTheSameFromEveryCompiler();

private:
    MadeGame m_game;
};

void SampleGameSumsTest::initTestCase()
{
    QCOMPARE(m_game.openBuilt(), QByteArray());
}

void SampleGameSumsTest::contentsAreTheSameFromEveryCompiler_data()
{
    QTest::addColumn<QByteArray>("sum");
    const auto row = [](const char *name, const char *sum) {
        QTest::newRow(name) << QByteArray(sum);
    };
    row("m03back.pcx", "b92bcb118d912797f3d84972a2c74a1cafb315ce");
    row("m08back.pcx", "e6466b233fcc2cdf54b7a43d32850369a8528181");
    row("m15back.pcx", "2beeae06d0bc9399855076f818a214295a5e5155");
    row("m24back.pcx", "f409980f3150e0687c471b3d2404795a8b86f6d0");
    row("m27back.pcx", "8a91469a9ba923ae04e99e919aa75e09242dd290");
    row("m31back.pcx", "84b402dd222fa603dd17985e2b40446eaf698f79");
    row("m24_09f.pcx", "3692bc160dc21c1ea22fc5409d8920932329fdb1");
    row("m24_09b.pcx", "ab645872f9bcec17c224a41b348c80f232b24fc3");
    row("m24_09g.pcx", "484ead03739832dc29ac5896285ec04e654d2a7d");
    row("m03_0s2.pcx", "8d0bea97090ab4ca8449a668126910a7deffd9d3");
    row("salt_isles.pcx", "9f7f080576fdd20b2a968f7f6f2cb3414097b762");
    row("highlands.pcx", "17cd1dc0d0e35f768385c9b45dd7d0f8fe940396");
    row("winter.pcx", "7179e2bc8353d7399b5d61c117f6ff07dfa6ba85");
    row("wells.pcx", "b83a696bf9153f0b05f08b0cb1275fad19fd70e6");
    row("fen.pcx", "90e780c4a65480bd3c3fcd397699062ba5a33d1c");
    row("ember.pcx", "ee9b97224fb314fb1edbb38ab81a5a68864c8c9e");
    row("movie00.pcx", "516a64ffba25ae3a77348ab43b8c86654aa781db");
    row("movie01.pcx", "990bcda4946bd26632b237eca741b4cc15258838");
    row("movie02.pcx", "e18d20f57754acbe0d73ad990ed760cbad1e1950");
    row("movie03.pcx", "7a81805f475c572326efc1a321652e7b4e1d2537");
    row("movie04.pcx", "b9e2922486d02ba540c2f6bb292ccc771f852e8b");
    row("movie05.pcx", "1c38731aa04676dcbd1d431bcaf73cb39cf222f9");
    row("movie06.pcx", "06f26a8fe7ad47d28f6fba8cdbf5e7ccea9d414e");
    row("movie07.pcx", "21458299d549306f2d90f7c82c7af855bbd4266c");
    row("movie08.pcx", "b613f7cc74e91c782199c659398e1aeedf216284");
    row("movie09.pcx", "e267afeb69ff08a8f02d2946bedcfea4b4a00de8");
    row("movie10.pcx", "03a35aac6014551ca558426241c8b7e002138a2c");
    row("movie11.pcx", "b8842106b4b90bc4980991915f4077b1efb998fd");
    row("cmpdash.pcx", "61f98c7f853f2f14b27d8a47b2cb2a029c482ff2");
    row("CRTRAITS.TXT", "6e651804441b5cbbcefe629a767750ccfb908535");
    row("ravn.dat", "1122511b03fb244d64f014cdc819449aa623be07");
}

void SampleGameSumsTest::contentsAreTheSameFromEveryCompiler()
{
    QFETCH(QByteArray, sum);
    const QString name = QLatin1String(QTest::currentDataTag());
    const QByteArray content =
        name == QLatin1String("ravn.dat") ? m_game.file(name) : m_game.entry(name);
    QVERIFY(!content.isEmpty());
    QCOMPARE(QCryptographicHash::hash(content, QCryptographicHash::Sha1).toHex(), sum);
}

QTEST_GUILESS_MAIN(SampleGameSumsTest)
#include "sample_game_sums_test.moc"
