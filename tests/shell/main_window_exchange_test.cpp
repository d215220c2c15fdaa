// The commands that carry texts between the window's campaign and files for translators.
#include "tests/shell/exchange_window.h"
#include "tests/support/disk_faults.h"

class MainWindowExchangeTest : public QObject, private ExchangeWindow
{
    Q_OBJECT

private slots:
    void init() { reset(); }
    void cleanup();

    void exportTextsStartsWithTheBareName_data();
    void exportTextsStartsWithTheBareName();
    void exportTextsWritesTheFile();
    void exportTextsWhereNothingOpensWarns();
    void exportTextsOntoAFullDiskWarns();
    void importTextsTakesTheFile();
    void importTextsStartsInTheUsedFolder();
    void importTextsCancelledChangesNothing();
    void importTextsOfAFileThatHasGoneWarns();
    void importTextsOfAWrongFileKeepsStoriesBeforeTheFault();
    void importTextsIntoAnUntitledCampaign();
    void anExportComesBackWithoutNameAndDescription();

private:
    ExpectedFileDialog textDialog(const QString &caption, const QString &start,
                                  const QString &name) const
    {
        return {caption, start, name, {"Text files (*.txt)", "All Files (*)"}};
    }
    ExpectedFileDialog importDialog() const
    {
        return textDialog("Open", fixture.game.filePath("Maps"), "");
    }
    ExpectedFileDialog exportDialog(const QString &name) const
    {
        return textDialog("Save As", QDir::currentPath(), name);
    }
};

namespace {

const QByteArray exported = "Name:\r\n\r\n\r\nDescription:\r\n\r\n\r\n"
                            "\r\nIronmoors \xE2\x80\x94 Alder Bay\r\n\r\n"
                            "Right-click text:\r\nBeware\tof wolves\r\n\r\n"
                            "Prologue:\r\nOnce\tupon\r\n\r\n"
                            "Epilogue:\r\nThe end\r\n\r\n"
                            "\r\nStonegate \xE2\x80\x94 Cedar Fen\r\n\r\n"
                            "Right-click text:\r\n\r\n\r\n";

QByteArray translated()
{
    return QByteArray(exported)
        .replace("Name:\r\n\r\n", "Name:\r\nRoad\tof embers\r\n")
        .replace("Description:\r\n\r\n", "Description:\r\nSteps\r\n")
        .replace("Beware\tof wolves", "Wolves\tabout")
        .replace("Once\tupon", "Long\tago")
        .replace("The end", "Over");
}

} // namespace

void MainWindowExchangeTest::cleanup()
{
    QVERIFY(!QApplication::overrideCursor());
    window.reset();
}

void MainWindowExchangeTest::exportTextsStartsWithTheBareName_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("name");
    QTest::newRow("untitled") << ""
                              << "Untitled";
    QTest::newRow("named") << "home.e3c"
                           << "home";
    QTest::newRow("two endings") << "home.v2.e3c"
                                 << "home";
}

void MainWindowExchangeTest::exportTextsStartsWithTheBareName()
{
    QFETCH(QString, file);
    QFETCH(QString, name);
    if (!file.isEmpty()) {
        QFile::copy(path("home.e3c"), path(file));
        window->loadFile(path(file));
    }
    ini->SetStringVal("Campaign Editor", "Path", "/usr");
    const QStringList before = QDir(QDir::currentPath()).entryList(QDir::Files);
    NextDialog dialog(chooseFile(exportDialog(name), ""));
    trigger("actionExport_Texts");
    QCOMPARE(QDir(QDir::currentPath()).entryList(QDir::Files), before);
    QCOMPARE(usedFolderBytes(), QByteArray("/usr"));
}

void MainWindowExchangeTest::exportTextsWritesTheFile()
{
    load();
    {
        NextDialog dialog(chooseFile(exportDialog("home"), path("texts.txt")));
        trigger("actionExport_Texts");
    }
    QCOMPARE(contents(path("texts.txt")), exported);
    QCOMPARE(usedFolderBytes(), QByteArray());
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(window->windowTitle(), "home.e3c - " + appTitle);
    EditorData::info.modified = true;
    {
        NextDialog dialog(chooseFile(exportDialog("home"), path("more.txt")));
        trigger("actionExport_Texts");
    }
    QVERIFY(EditorData::info.modified);
    QCOMPARE(savedByTheWindow().name, QString("Ember Road"));
}

void MainWindowExchangeTest::exportTextsWhereNothingOpensWarns()
{
    load();
    const QString place = path("no/such/place.txt");
    NextDialog dialog(chooseFile(exportDialog("home"), place));
    NextDialog box(
        withoutHourglass(warning("Cannot write file " + place + ":\nNo such file or directory.")));
    trigger("actionExport_Texts");
}

void MainWindowExchangeTest::exportTextsOntoAFullDiskWarns()
{
    CampaignData campaign = campaignWithMaps();
    campaign.scenarios[0].regionText = QString("wolves ").repeated(30000);
    save(campaign);
    load();
    NextDialog dialog(chooseFile(exportDialog("home"), path("texts.txt")));
    NextDialog box(
        withoutHourglass(warning("Cannot write file " + path("texts.txt") + ":\nFile too large.")));
    const FileSizeLimit limit(100000);
    trigger("actionExport_Texts");
    QVERIFY(!QFile::exists(path("texts.txt")));
}

void MainWindowExchangeTest::importTextsTakesTheFile()
{
    load();
    {
        NextDialog dialog(chooseFile(importDialog(), writeFile("texts.txt", translated())));
        trigger("actionImport_Texts");
    }
    QVERIFY(EditorData::info.modified);
    QCOMPARE(window->windowTitle(), "home.e3c* - " + appTitle);
    QCOMPARE(usedFolderBytes(), folder->path().toUtf8());
    const CampaignData saved = savedByTheWindow();
    QCOMPARE(saved.name, QString("Road\nof embers"));
    QCOMPARE(saved.description, QString("Steps"));
    QCOMPARE(saved.scenarios[0].regionText, QString("Wolves\nabout"));
    QCOMPARE(saved.scenarios[0].prologues[0]->text, QString("Long\tago"));
    QCOMPARE(saved.scenarios[0].prologues[0]->videoId, quint8(7));
    QCOMPARE(saved.scenarios[0].epilogues[1]->text, QString("Over"));
    QCOMPARE(saved.scenarios[2].compressedMap, mapNamed("Stonegate"));
}

void MainWindowExchangeTest::importTextsStartsInTheUsedFolder()
{
    load();
    QVERIFY(QDir(folder->path()).mkdir(QString::fromUtf8("ёж")));
    const QString used = path(QString::fromUtf8("ёж"));
    ini->SetStringVal("Campaign Editor", "Path", used.toUtf8().constData());
    NextDialog dialog(chooseFile(textDialog("Open", used, ""), writeFile("texts.txt", exported)));
    trigger("actionImport_Texts");
    QVERIFY(EditorData::info.modified);
}

void MainWindowExchangeTest::importTextsCancelledChangesNothing()
{
    load();
    NextDialog dialog(chooseFile(importDialog(), ""));
    trigger("actionImport_Texts");
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(usedFolderBytes(), QByteArray());
    QCOMPARE(savedByTheWindow().name, QString("Ember Road"));
}

void MainWindowExchangeTest::importTextsOfAFileThatHasGoneWarns()
{
    load();
    const QString file = writeFile("texts.txt", translated());
    NextDialog dialog(chooseFile(importDialog(), file, [file] { QFile::remove(file); }));
    NextDialog box(
        boxAnswer(warning("Cannot read file " + file + ":\nNo such file or directory.")));
    trigger("actionImport_Texts");
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(usedFolderBytes(), folder->path().toUtf8());
}

void MainWindowExchangeTest::importTextsOfAWrongFileKeepsStoriesBeforeTheFault()
{
    load();
    const QString file = writeFile("te%2xts.txt", translated().replace("Stonegate", "Stonewall"));
    {
        NextDialog dialog(chooseFile(importDialog(), file));
        NextDialog box(boxAnswer(
            warning("Cannot read file " + file + " - incorrect campaign text:\nUnknown error.")));
        trigger("actionImport_Texts");
    }
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(window->windowTitle(), "home.e3c - " + appTitle);
    const CampaignData saved = savedByTheWindow();
    QCOMPARE(saved.name, QString("Ember Road"));
    QCOMPARE(saved.description, QString("Three steps"));
    QCOMPARE(saved.scenarios[0].regionText, QString("Beware\nof wolves"));
    QCOMPARE(saved.scenarios[0].prologues[0]->text, QString("Long\tago"));
    QCOMPARE(saved.scenarios[0].epilogues[1]->text, QString("Over"));
}

void MainWindowExchangeTest::importTextsIntoAnUntitledCampaign()
{
    const QString file = writeFile("texts.txt", "Name:\nNew\n\nDescription:\nSteps\n\n");
    NextDialog dialog(chooseFile(importDialog(), file));
    trigger("actionImport_Texts");
    QVERIFY(EditorData::info.modified);
    QCOMPARE(window->windowTitle(), "Untitled.e3c - " + appTitle);
    QCOMPARE(savedByTheWindow().name, QString("New"));
}

void MainWindowExchangeTest::anExportComesBackWithoutNameAndDescription()
{
    load();
    {
        NextDialog dialog(chooseFile(exportDialog("home"), path("texts.txt")));
        trigger("actionExport_Texts");
    }
    {
        NextDialog dialog(chooseFile(importDialog(), path("texts.txt")));
        trigger("actionImport_Texts");
    }
    QVERIFY(EditorData::info.modified);
    const CampaignData saved = savedByTheWindow();
    QCOMPARE(saved.name, QString());
    QCOMPARE(saved.description, QString());
    QCOMPARE(saved.scenarios[0].regionText, QString("Beware\nof wolves"));
    QCOMPARE(saved.scenarios[0].prologues[0]->text, QString("Once\tupon"));
}

QTEST_MAIN(MainWindowExchangeTest)
#include "main_window_exchange_test.moc"
