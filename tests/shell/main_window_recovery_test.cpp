// The copy that is kept of a document with changes: when it is made, and when it goes.
#include "scenario/scenario_general.h"
#include "scenario/scenario_info.h"
#include "tests/shell/recovery_window.h"

#include <QListWidget>

class MainWindowRecoveryTest : public QObject, private RecoveryWindow
{
    Q_OBJECT

public:
    // What an author does with the window; the change is accepted when it returns.
    using Change = void (MainWindowRecoveryTest::*)();

    void editScenario();
    void editProperties();
    void convertCampaign();
    void importTexts();
    void refreshMaps();

private slots:
    void init();
    void cleanup();

    void everyChangeKeepsACopy_data();
    void everyChangeKeepsACopy();
    void nothingIsKeptOfAnUnchangedDocument();
    void everyFurtherChangeRenewsTheCopy();
    void halfDoneImportIsInTheCopy();
    void saveRemovesTheCopy_data();
    void saveRemovesTheCopy();
    void noRemovesTheCopy_data();
    void noRemovesTheCopy();
    void otherAnswersLeaveTheCopy();
    void copyStandsAgainWhereLoadingFails();
    void newLeavesTheCopyAndBeginsAnother();
    void saveThatFailsLeavesTheCopy();
    void placeThatCantBeWrittenIsNoTrouble();

private:
    // The window's document as a file, without saving it.
    QByteArray document();
};

Q_DECLARE_METATYPE(MainWindowRecoveryTest::Change)

void MainWindowRecoveryTest::init()
{
    resetWithData();
}

void MainWindowRecoveryTest::cleanup()
{
    QVERIFY(!QApplication::overrideCursor());
    window.reset();
}

QByteArray MainWindowRecoveryTest::document()
{
    const QString elsewhere = path("document.e3c");
    const bool modified = EditorData::info.modified;
    MainWindow other(nullptr);
    QFile::remove(elsewhere);
    if (copies().isEmpty() || !QFile::copy(recovery() + '/' + copies()[0], elsewhere))
        return "no copy";
    EditorData::info.modified = false;
    other.loadFile(elsewhere);
    const bool saved = other.saveFile(elsewhere);
    EditorData::info.modified = modified;
    return saved ? contents(elsewhere) : QByteArray("not saved");
}

void MainWindowRecoveryTest::editScenario()
{
    const NextDialog dialog([](QWidget *widget) {
        widget->findChild<QTextEdit *>("regionTextEdit")->setPlainText("Beware of bears");
        pressOk(widget);
    });
    trigger("scenarioProperties");
}

void MainWindowRecoveryTest::editProperties()
{
    changeName("Ashen Road");
}

void MainWindowRecoveryTest::convertCampaign()
{
    const NextDialog dialog([](QWidget *widget) {
        widget->findChild<QListWidget *>("listWidget")->setCurrentRow(1);
        pressOk(widget);
    });
    const NextDialog question(
        boxAnswer({"Save changes", "Do you really want to convert the campaign to different type?",
                   QMessageBox::Question, yesOrNo, QMessageBox::Yes}));
    trigger("actionConvertCmp");
}

void MainWindowRecoveryTest::importTexts()
{
    const QString texts = path("texts.txt");
    const QString home = fixture.game.filePath("Maps");
    const QStringList filters{"Text files (*.txt)", "All Files (*)"};
    {
        const NextDialog dialog([&](QWidget *widget) {
            widget->findChild<QLineEdit *>("fileNameEdit")->setText(texts);
            QTest::keyClick(widget->windowHandle(), Qt::Key_Return);
        });
        trigger("actionExport_Texts");
    }
    writeFile("texts.txt", contents(texts).replace("Beware", "Bewarned"));
    const NextDialog dialog(chooseFile({"Open", home, "", filters}, texts));
    trigger("actionImport_Texts");
}

void MainWindowRecoveryTest::refreshMaps()
{
    writeFile("one.e3m", mapNamed("Coldharbs"));
    writeFile("three.e3m", mapNamed("Stonegate"));
    trigger("actionRefresh_Scenario_Maps");
}

void MainWindowRecoveryTest::everyChangeKeepsACopy_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("scenario") << Change(&MainWindowRecoveryTest::editScenario);
    QTest::newRow("campaign properties") << Change(&MainWindowRecoveryTest::editProperties);
    QTest::newRow("conversion") << Change(&MainWindowRecoveryTest::convertCampaign);
    QTest::newRow("texts") << Change(&MainWindowRecoveryTest::importTexts);
    QTest::newRow("maps") << Change(&MainWindowRecoveryTest::refreshMaps);
}

void MainWindowRecoveryTest::everyChangeKeepsACopy()
{
    QFETCH(Change, change);
    load();
    const QByteArray before = contents(path("home.e3c"));
    QVERIFY(copies().isEmpty());
    (this->*change)();
    QVERIFY(EditorData::info.modified);
    QCOMPARE(copies().size(), 1);
    QVERIFY(copies()[0].endsWith(" home.e3c"));
    const QByteArray kept = copy();
    QVERIFY(kept != before);
    QCOMPARE(document(), kept); // it opens, and nothing is lost by that
    QVERIFY(window->saveFile(path("saved.e3c")));
    QCOMPARE(contents(path("saved.e3c")), kept);
    QCOMPARE(contents(path("home.e3c")), before);
}

void MainWindowRecoveryTest::nothingIsKeptOfAnUnchangedDocument()
{
    window->loadFile(fixture.game.addCampaign("plain.e3c", tiny::campaign(24, {{}, {}, {}})));
    {
        const NextDialog dialog([](QWidget *widget) { pressOk(widget); });
        trigger("campaignProperties");
    }
    {
        const NextDialog dialog([](QWidget *widget) { pressOk(widget); });
        trigger("scenarioProperties");
    }
    QVERIFY(!EditorData::info.modified);
    QVERIFY(!QFileInfo::exists(recovery()));
}

void MainWindowRecoveryTest::everyFurtherChangeRenewsTheCopy()
{
    load();
    editProperties();
    const QStringList first = copies();
    QByteArrayList kept{copy()};
    editScenario();
    kept << copy();
    refreshMaps();
    kept << copy();
    importTexts();
    kept << copy();
    QCOMPARE(copies(), first);
    for (int i = 1; i < kept.size(); ++i)
        QVERIFY(kept[i] != kept[i - 1]);
    QVERIFY(window->saveFile(path("saved.e3c")));
    QCOMPARE(contents(path("saved.e3c")), kept.last());
}

// Stories read before a fault stay in the campaign.
void MainWindowRecoveryTest::halfDoneImportIsInTheCopy()
{
    load();
    editProperties();
    importTexts();
    const QByteArray before = copy();
    const QString texts = path("texts.txt");
    writeFile("texts.txt", contents(texts).replace("Once", "Twice").replace("Epilogue", "Epilog"));
    const NextDialog dialog([&](QWidget *widget) {
        widget->findChild<QLineEdit *>("fileNameEdit")->setText(texts);
        QTest::keyClick(widget->windowHandle(), Qt::Key_Return);
    });
    QByteArray kept;
    const NextDialog told([&](QWidget *box) {
        kept = copy();
        static_cast<QMessageBox *>(box)->button(QMessageBox::Ok)->click();
    });
    trigger("actionImport_Texts");
    QVERIFY(kept != before);
    QVERIFY(window->saveFile(path("saved.e3c")));
    QCOMPARE(contents(path("saved.e3c")), kept);
}

void MainWindowRecoveryTest::saveRemovesTheCopy_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::newRow("Save") << QByteArray("actionSave");
    QTest::newRow("Save As") << QByteArray("actionSave_As");
    QTest::newRow("Yes when the window is closed") << QByteArray();
}

void MainWindowRecoveryTest::saveRemovesTheCopy()
{
    QFETCH(QByteArray, command);
    load();
    editProperties();
    QCOMPARE(copies().size(), 1);
    if (command == "actionSave") {
        trigger("actionSave");
    } else if (command == "actionSave_As") {
        const NextDialog dialog(
            chooseFile("Save As", fixture.game.filePath("Maps"), "home", path("other.e3c")));
        trigger("actionSave_As");
    } else {
        const NextDialog question(boxAnswer(saveQuestion("home", QMessageBox::Yes)));
        QVERIFY(closes());
    }
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(QDir(recovery()).entryList(QDir::Files | QDir::Hidden), QStringList());
}

void MainWindowRecoveryTest::noRemovesTheCopy_data()
{
    QTest::addColumn<bool>("closing");
    QTest::newRow("closing") << true;
    QTest::newRow("loading") << false;
}

void MainWindowRecoveryTest::noRemovesTheCopy()
{
    QFETCH(bool, closing);
    load();
    editProperties();
    const NextDialog question(boxAnswer(saveQuestion("home", QMessageBox::No)));
    if (closing)
        QVERIFY(closes());
    else
        window->loadFile(path("home.e3c"));
    QCOMPARE(QDir(recovery()).entryList(QDir::Files | QDir::Hidden), QStringList());
}

void MainWindowRecoveryTest::otherAnswersLeaveTheCopy()
{
    changeName("Ashen Road");
    const QByteArray kept = copy();
    {
        const NextDialog question(boxAnswer(saveQuestion("Untitled", QMessageBox::Cancel)));
        QVERIFY(!closes());
    }
    QCOMPARE(copy(), kept);
    {
        const NextDialog question(boxAnswer(saveQuestion("Untitled", QMessageBox::Yes)));
        const NextDialog saving(
            chooseFile("Save As", fixture.game.filePath("Maps"), "Untitled", ""));
        window->loadFile(path("home.e3c"));
    }
    QVERIFY(!EditorData::info.modified); // the other campaign is in the window
    QCOMPARE(copy(), kept);
    window->saveFile(path("home.e3c"));
    QCOMPARE(copies().size(), 1);
}

void MainWindowRecoveryTest::copyStandsAgainWhereLoadingFails()
{
    load();
    editProperties();
    const QByteArray kept = copy();
    writeFile("bad.e3c", tiny::gzip(""));
    for (const char *file : {"gone.e3c", "bad.e3c"}) {
        const NextDialog question(boxAnswer(saveQuestion("home", QMessageBox::No)));
        const NextDialog told([](QWidget *box) {
            static_cast<QMessageBox *>(box)->button(QMessageBox::Ok)->click();
        });
        window->loadFile(path(file));
        QVERIFY(EditorData::info.modified);
        QCOMPARE(copies().size(), 1);
        QCOMPARE(copy(), kept);
    }
}

void MainWindowRecoveryTest::newLeavesTheCopyAndBeginsAnother()
{
    load();
    editProperties();
    const QString first = copies().value(0);
    const QByteArray kept = copy();
    {
        const NextDialog dialog([](QWidget *widget) { pressOk(widget); });
        trigger("actionNew");
    }
    QCOMPARE(copies(), QStringList(first));
    changeName("Another");
    QCOMPARE(copies().size(), 2);
    QVERIFY(!copies().filter(" Untitled.e3c").isEmpty());
    QCOMPARE(contents(recovery() + '/' + first), kept);
    QVERIFY(window->saveFile(path("another.e3c")));
    QCOMPARE(copies(), QStringList(first));
}

void MainWindowRecoveryTest::saveThatFailsLeavesTheCopy()
{
    load();
    editProperties();
    const NextDialog told(
        [](QWidget *box) { static_cast<QMessageBox *>(box)->button(QMessageBox::Ok)->click(); });
    QVERIFY(!window->saveFile(path("no/such/folder.e3c")));
    QCOMPARE(copies().size(), 1);
}

void MainWindowRecoveryTest::placeThatCantBeWrittenIsNoTrouble()
{
    const QString data = QFileInfo(recovery()).path();
    QVERIFY(QDir().mkpath(QFileInfo(data).path()));
    samples::writeFile(data, "a file in the folder's place");
    window = std::make_unique<MainWindow>(nullptr);
    load();
    editProperties();
    QVERIFY(EditorData::info.modified);
    trigger("actionSave");
    QVERIFY(!EditorData::info.modified);
    window->offerRecoveryCopy();
}

QTEST_MAIN(MainWindowRecoveryTest)
#include "main_window_recovery_test.moc"
