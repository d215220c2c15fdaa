// A copy of a document with changes that an earlier editor has left: how it is offered, and what it
// is once it is opened.
#include "tests/shell/recovery_window.h"
#include "tests/support/child_process.h"

#include <QTranslator>

class MainWindowLeftCopyTest : public QObject, private RecoveryWindow
{
    Q_OBJECT

private slots:
    void init() { resetWithData(); }
    void cleanup();

    void leftCopyIsOpenedAsItWas();
    void leftCopyOfAnUntitledCampaignIsUntitled();
    void openedCopyIsRenewedAndRemovedBySaving();
    void openedCopyNeverOverwritesANewerFileUnasked();
    void refusedCopyStaysAndIsNotOfferedAgain_data();
    void refusedCopyStaysAndIsNotOfferedAgain();
    void damagedCopyIsToldAndNotOfferedAgain();
    void nothingIsAskedWithoutACopy();
    void nothingIsAskedOnceThereIsADocument();
    void questionIsAskedInRussian();

private:
    // Leaves a copy of the changed campaign of that file behind, or of one without a file.
    void leaveCopy(const QString &file);
    // The question about the copy that was left.
    ExpectedBox offer(const QString &name, QMessageBox::StandardButton press) const;
};

void MainWindowLeftCopyTest::cleanup()
{
    QVERIFY(!QApplication::overrideCursor());
    window.reset();
}

void MainWindowLeftCopyTest::leaveCopy(const QString &file)
{
    if (!file.isEmpty())
        window->loadFile(file);
    changeName("Ashen Road");
    window = nullptr;
    EditorData::info = {};
    window = std::make_unique<MainWindow>(nullptr);
}

ExpectedBox MainWindowLeftCopyTest::offer(const QString &name,
                                          QMessageBox::StandardButton press) const
{
    const QDateTime time = QFileInfo(recovery() + '/' + copies().value(0)).lastModified();
    return {appTitle,
            "Changes to " + name + " were not saved. Open the copy kept on " +
                time.toString("yyyy-MM-dd HH:mm") + "?",
            QMessageBox::NoIcon, yesOrNo, press};
}

void MainWindowLeftCopyTest::leftCopyIsOpenedAsItWas()
{
    leaveCopy(path("home.e3c"));
    const QByteArray kept = copy();
    {
        const NextDialog question(boxAnswer(offer("home", QMessageBox::Yes)));
        window->offerRecoveryCopy();
    }
    QCOMPARE(window->windowTitle(), "home.e3c* - " + appTitle);
    QCOMPARE(window->windowFilePath(), path("home.e3c"));
    QVERIFY(EditorData::info.modified);
    QVERIFY(regionsOf(*window)[2]->hasScenario);
    QCOMPARE(regionNameIn(*window), QString("Alder Bay"));
    QCOMPARE(copy(), kept); // it stays until the document is saved
    trigger("actionSave");  // unasked: nobody has touched the file
    QCOMPARE(contents(path("home.e3c")), kept);
    QVERIFY(!EditorData::info.modified);
}

void MainWindowLeftCopyTest::leftCopyOfAnUntitledCampaignIsUntitled()
{
    leaveCopy({});
    {
        const NextDialog question(boxAnswer(offer("Untitled", QMessageBox::Yes)));
        window->offerRecoveryCopy();
    }
    QCOMPARE(window->windowTitle(), "Untitled.e3c - " + appTitle);
    QVERIFY(EditorData::info.modified);
    const NextDialog question(boxAnswer(saveQuestion("Untitled", QMessageBox::Yes)));
    const NextDialog saving(
        chooseFile("Save As", fixture.game.filePath("Maps"), "Untitled", path("saved.e3c")));
    QVERIFY(closes());
    QVERIFY(contents(path("saved.e3c")).size() > 0);
    QCOMPARE(copies(), QStringList());
}

void MainWindowLeftCopyTest::openedCopyIsRenewedAndRemovedBySaving()
{
    leaveCopy(path("home.e3c"));
    {
        const NextDialog question(boxAnswer(offer("home", QMessageBox::Yes)));
        window->offerRecoveryCopy();
    }
    const QByteArray kept = copy();
    changeName("Cinder Road");
    QCOMPARE(copies().size(), 1);
    QVERIFY(copy() != kept);
    // Another end, and it is offered again.
    window = nullptr;
    EditorData::info = {};
    window = std::make_unique<MainWindow>(nullptr);
    {
        const NextDialog question(boxAnswer(offer("home", QMessageBox::Yes)));
        window->offerRecoveryCopy();
    }
    trigger("actionSave");
    QCOMPARE(QDir(recovery()).entryList(QDir::Files | QDir::Hidden), QStringList());
}

void MainWindowLeftCopyTest::openedCopyNeverOverwritesANewerFileUnasked()
{
    leaveCopy(path("home.e3c"));
    CampaignData newer = campaignWithMaps();
    newer.name = "Newer";
    save(newer);
    const QByteArray newerBytes = contents(path("home.e3c"));
    {
        const NextDialog question(boxAnswer(offer("home", QMessageBox::Yes)));
        window->offerRecoveryCopy();
    }
    const NextDialog question(boxAnswer(
        {appTitle,
         "home.e3c has changed on the disk since it was opened or saved here. Overwrite it?",
         QMessageBox::NoIcon, yesOrNo, QMessageBox::No}));
    trigger("actionSave");
    QCOMPARE(contents(path("home.e3c")), newerBytes);
    QVERIFY(EditorData::info.modified);
    QCOMPARE(copies().size(), 1);
}

void MainWindowLeftCopyTest::refusedCopyStaysAndIsNotOfferedAgain_data()
{
    QTest::addColumn<bool>("byButton");
    QTest::newRow("No") << true;
    QTest::newRow("closed") << false;
}

void MainWindowLeftCopyTest::refusedCopyStaysAndIsNotOfferedAgain()
{
    QFETCH(bool, byButton);
    leaveCopy(path("home.e3c"));
    const QByteArray kept = copy();
    {
        const NextDialog question([&](QWidget *box) {
            if (byButton)
                boxAnswer(offer("home", QMessageBox::No))(box);
            else
                box->close();
        });
        window->offerRecoveryCopy();
    }
    QCOMPARE(window->windowTitle(), "Untitled.e3c - " + appTitle);
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(copies().size(), 1);
    QCOMPARE(copy(), kept);
    MainWindow next(nullptr);
    next.offerRecoveryCopy(); // a question nobody answers would stay for ever
    next.loadFile(recovery() + '/' + copies()[0]);
    QVERIFY(next.windowTitle().endsWith(" home.offered.e3c - " + appTitle));
}

void MainWindowLeftCopyTest::damagedCopyIsToldAndNotOfferedAgain()
{
    leaveCopy(path("home.e3c"));
    samples::writeFile(recovery() + '/' + copies()[0], tiny::gzip(""));
    {
        const NextDialog question(boxAnswer(offer("home", QMessageBox::Yes)));
        const NextDialog told(
            boxAnswer({"Error", "Incorrect or damaged file.", QMessageBox::Critical}));
        window->offerRecoveryCopy();
    }
    QCOMPARE(window->windowTitle(), "Untitled.e3c - " + appTitle);
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(copies().size(), 1);
    MainWindow(nullptr).offerRecoveryCopy();
}

void MainWindowLeftCopyTest::nothingIsAskedWithoutACopy()
{
    window->offerRecoveryCopy();
    QVERIFY(!QFileInfo::exists(recovery()));
}

void MainWindowLeftCopyTest::nothingIsAskedOnceThereIsADocument()
{
    leaveCopy(path("home.e3c"));
    load();
    window->offerRecoveryCopy();
    MainWindow other(nullptr);
    EditorData::info.modified = true;
    other.offerRecoveryCopy();
    QCOMPARE(copies().filter("offered"), QStringList());
}

void MainWindowLeftCopyTest::questionIsAskedInRussian()
{
    leaveCopy(path("home.e3c"));
    QTranslator russian;
    QVERIFY(russian.load(builtProgram("Ravn_Data/cmp_ru.qm")));
    QCoreApplication::installTranslator(&russian);
    ExpectedBox expected = offer("home", QMessageBox::No);
    const QString time = expected.text.right(17).chopped(1);
    expected.text =
        QString::fromUtf8("Изменения в home не были сохранены. Открыть копию от ") + time + "?";
    const NextDialog question(boxAnswer(expected));
    window->offerRecoveryCopy();
}

QTEST_MAIN(MainWindowLeftCopyTest)
#include "main_window_left_copy_test.moc"
