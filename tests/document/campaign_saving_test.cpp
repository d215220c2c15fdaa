// A campaign saved to a file: how it went, and what isn't saved because it couldn't be read again.
#include "document/campaign_data.h"
#include "gamedata/limits.h"
#include "tests/document/campaign_pieces.h"
#include "tests/document/samples.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cerrno>

class CampaignSavingTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { samples::setTables(); }
    void writesSilentlyToTheFilesName();
    void savingTellsHowItWent();
    void unpackedIsTheFileButForThePacking_data();
    void unpackedIsTheFileButForThePacking();
    void savesNoCampaignOnAMapThatTheGameLacks();
    void savesNoMoreTextThanCanBeReadAgain_data();
    void savesNoMoreTextThanCanBeReadAgain();
    void savesNoMoreMapsThanCanBeReadAgain();

private:
    const QTemporaryDir m_folder;
};

void CampaignSavingTest::writesSilentlyToTheFilesName()
{
    CampaignData c;
    c.initDummyCampaign(3, true, 0, 0);
    QFile file(m_folder.filePath("written.e3c"));
    c.WriteToFile(&file);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), joined(c.toPieces()));
    QFile nowhere(m_folder.filePath("no/such/folder.e3c"));
    c.WriteToFile(&nowhere);
    QVERIFY(!nowhere.exists());
}

void CampaignSavingTest::savingTellsHowItWent()
{
    CampaignData c;
    c.initDummyCampaign(3, true, 0, 0);
    QVERIFY(c.saveTo(m_folder.filePath("saved.e3c")).ok);
    const SaveResult failed = c.saveTo(m_folder.filePath("no/such/folder.e3c"));
    QVERIFY(!failed.ok);
    QVERIFY(!failed.error.isEmpty());
}

void CampaignSavingTest::unpackedIsTheFileButForThePacking_data()
{
    QTest::addColumn<unsigned>("scenarios");
    QTest::newRow("one") << 1u;
    QTest::newRow("more than a portion of bits") << 1500u;
}

void CampaignSavingTest::unpackedIsTheFileButForThePacking()
{
    QFETCH(unsigned, scenarios);
    CampaignData c;
    c.initDummyCampaign(24, false, 0, scenarios);
    for (std::size_t i = 0; i < c.scenarios.size(); i += 3) {
        c.scenarios[i].regionText = QString::number(i);
        c.scenarios[i].mapHeader = std::make_shared<MapHeader>();
        c.scenarios[i].compressedMap = QByteArray("map ") + QByteArray::number(int(i));
        c.scenarios[i].mapSize = quint32(c.scenarios[i].compressedMap.size());
    }
    const std::optional<UnpackedFile> file = c.unpacked();
    QVERIFY(file);
    const std::vector<QByteArray> pieces = c.toPieces();
    QCOMPARE(unpacked(pieces.front()), file->head);
    QCOMPARE(packGzipMember(file->head), pieces.front());
    QCOMPARE(file->rest, std::vector<QByteArray>(pieces.begin() + 1, pieces.end()));
}

void CampaignSavingTest::savesNoCampaignOnAMapThatTheGameLacks()
{
    CampaignData c;
    c.initDummyCampaign(3, true, 0, 0);
    c.scenarios[1].regionText = "Months of work";
    const QString path = m_folder.filePath("of_another_game.e3c");
    QVERIFY(c.saveTo(path).ok);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    EditorData::campaignInfo.erase(3);
    CampaignData read;
    QVERIFY(!read.readCampaign(&file));
    QVERIFY(read.scenarios.empty());
    const SaveResult failed = read.saveTo(path);
    QVERIFY(!failed.ok);
    QCOMPARE(failed.error, QString("The game has no campaign map 3"));
    QVERIFY(!read.unpacked());
    QVERIFY(file.seek(0));
    QCOMPARE(file.readAll(), before);
}

void CampaignSavingTest::savesNoMoreTextThanCanBeReadAgain_data()
{
    QTest::addColumn<bool>("hasMap");
    QTest::addColumn<int>("bonuses");
    QTest::newRow("with a map") << true << 0;
    QTest::newRow("with bonuses") << true << 200;
    QTest::newRow("without a map") << false << 0;
}

void CampaignSavingTest::savesNoMoreTextThanCanBeReadAgain()
{
    QFETCH(bool, hasMap);
    QFETCH(int, bonuses);
    CampaignData c;
    c.initDummyCampaign(hasMap ? 4 : 24, hasMap, 0, 9);
    const StartingBonusSet set{0, std::vector<CmpStartingBonus>(size_t(bonuses), {9, {}})};
    if (bonuses > 0)
        c.scenarios[3].startOptions = std::make_shared<CmpScenarioStartOptions>(
            CmpScenarioStartOptions{1, QVariant::fromValue(set)});
    const int others = unpacked(c.toPieces()[0]).size() - 9 * 2 + bonuses * 96;
    QString text(int(limits::campaignTextBytes) - others, 'x');
    c.scenarios[2].regionText = text.left(2000);
    c.description = text.mid(2000);
    const QString path = m_folder.filePath("much.e3c");
    QVERIFY(c.saveTo(path).ok);
    QFile file(path);
    CampaignData back;
    QVERIFY(!back.readCampaign(&file));
    QCOMPARE(back.description, c.description);
    const qint64 size = file.size();
    QVERIFY(c.unpacked());
    c.description += 'y';
    QVERIFY(!c.unpacked());
    const SaveResult failed = c.saveTo(path);
    QVERIFY(!failed.ok);
    QCOMPARE(failed.error, qt_error_string(EFBIG));
    QCOMPARE(file.size(), size); // the old file stands
}

// The maps share their bytes, which are never looked at.
void CampaignSavingTest::savesNoMoreMapsThanCanBeReadAgain()
{
    CampaignData c;
    c.initDummyCampaign(4, true, 0, 0);
    const QByteArray map(int(limits::mapBytes), Qt::Uninitialized);
    for (qint64 bytes = 0; bytes < limits::campaignMapBytes; bytes += map.size()) {
        ScenarioData &scenario = c.scenarios[size_t(bytes / map.size())];
        scenario.compressedMap = map;
        scenario.mapSize = quint32(map.size());
    }
    QVERIFY(c.unpacked());
    c.scenarios.back().compressedMap = "1";
    c.scenarios.back().mapSize = 1;
    QVERIFY(!c.unpacked());
    const QString path = m_folder.filePath("maps.e3c");
    const SaveResult failed = c.saveTo(path);
    QVERIFY(!failed.ok);
    QCOMPARE(failed.error, qt_error_string(EFBIG));
    QVERIFY(!QFile::exists(path));
}

QTEST_GUILESS_MAIN(CampaignSavingTest)
#include "campaign_saving_test.moc"
