// Opening, and what is asked about unsaved changes.
#include "tests/shell/window_fixture.h"
#include "tests/support/file_contents.h"

#include <QCloseEvent>
#include <QDir>
#include <QPushButton>

namespace {

const QString title = "Tiny Campaign Editor";

ExpectedBox saveQuestion(const QString &name, QMessageBox::StandardButton press)
{
    return {title, "Save changes to " + name + "?", QMessageBox::NoIcon,
            QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, press};
}

} // namespace

class MainWindowDocumentsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void loadShowsTheCampaign();
    void loadOfCampaignWithoutMapShowsItsBackground();
    void loadOfUnreadableFileTellsAndKeepsAll();
    void loadOfDamagedFileTellsAndKeepsAll_data();
    void loadOfDamagedFileTellsAndKeepsAll();
    void loadAsksAboutChangesFirst_data();
    void loadAsksAboutChangesFirst();
    void yesWithACancelledSaveDialogGoesOnLoading();
    void yesSavesTheCurrentFileBeforeLoading();
    void yesWhoseSavingFailsStopsLoadingAndClosing();
    void openTakesTheMapsFolderAndRemembersTheChosenOne();
    void openCancelledChangesNothing();
    void closeAsksAboutChanges_data();
    void closeAsksAboutChanges();
    void closeOfUnchangedAsksNothing();
    void closeGoesOnAfterACancelledSaveDialog();
    void exitAsksNothing();
    void defaultAnswerIsYes();

private:
    QString home(const QString &name) { return fixture->game.filePath("Maps/" + name); }

    std::unique_ptr<WindowFixture> fixture;
    QString first;
    QString second;
};

void MainWindowDocumentsTest::initTestCase()
{
    fixture = std::make_unique<WindowFixture>();
}

void MainWindowDocumentsTest::init()
{
    fixture->reset();
    first = fixture->game.addCampaign("first.e3c", tiny::campaign(24, {{true, 1}, {false, 3}, {}}));
    second = fixture->game.addCampaign("second.e3c", tiny::campaign(3, {{}, {true, 5}}));
}

void MainWindowDocumentsTest::loadShowsTheCampaign()
{
    MainWindow window(nullptr);
    EditorData::info.region = 2;
    window.currentRegion = 2;
    window.loadFile(second);
    QCOMPARE(window.windowTitle(), "second.e3c - " + title);
    QCOMPARE(window.windowFilePath(), second);
    QCOMPARE(window.campaignId, 3U);
    QCOMPARE(window.currentRegion, 0U);
    QCOMPARE(EditorData::info.campaign, 3U);
    QCOMPARE(EditorData::info.region, 0U);
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(regionNameIn(window), QString("West Keep"));
    QCOMPARE(regionsOf(window).size(), 2);
    QCOMPARE(window.getRegionColor(1), 5);
    QCOMPARE(window.getRegionColor(2), 2);
    QVERIFY(regionsOf(window)[1]->hasScenario);
    QVERIFY(!QApplication::overrideCursor());
}

void MainWindowDocumentsTest::loadOfCampaignWithoutMapShowsItsBackground()
{
    const QString path =
        fixture->game.addCampaign("plain.e3c", tiny::campaignWithoutMap(1, {{true, 2}, {}}));
    MainWindow window(nullptr);
    window.loadFile(path);
    QCOMPARE(regionNameIn(window), QString());
    const auto items = mapView(window)->scene()->items();
    QCOMPARE(items.size(), 1);
    QCOMPARE(items[0]->data(256).toInt(), 0);
    const auto *background = qgraphicsitem_cast<QGraphicsPixmapItem *>(items[0]);
    QCOMPARE(pixelOf(background, 455, 599), tiny::backgroundColour("plaintwo.pcx"));
}

void MainWindowDocumentsTest::loadOfUnreadableFileTellsAndKeepsAll()
{
    MainWindow window(nullptr);
    window.loadFile(first);
    const QString gone = home("gone.e3c");
    NextDialog box(boxAnswer({"Error", "Cannot read file " + gone + ":\nNo such file or directory.",
                              QMessageBox::Warning}));
    window.loadFile(gone);
    QVERIFY(box.came());
    QCOMPARE(window.windowTitle(), "first.e3c - " + title);
    QCOMPARE(window.campaignId, 24U);
    QVERIFY(!QApplication::overrideCursor());
}

void MainWindowDocumentsTest::loadOfDamagedFileTellsAndKeepsAll_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << tiny::gzip("") << "Incorrect or damaged file.";
    QTest::newRow("old version") << tiny::gzip(QByteArray("\4\0\0\0", 4))
                                 << "Invalid campaign file version!\n\nFile version = 4\n"
                                    "Current version = 10";
    QTest::newRow("new subversion")
        << tiny::gzip(QByteArray("\12\0\0\0\2\0\0\0", 8))
        << "Unsupported version!\n\nFile subversion = 2\nCurrent subversion = 1";
}

void MainWindowDocumentsTest::loadOfDamagedFileTellsAndKeepsAll()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    const QString bad = fixture->game.addCampaign("bad.e3c", bytes);
    MainWindow window(nullptr);
    window.loadFile(second);
    bool hourglass = true;
    NextDialog box([&](QWidget *dialog) {
        hourglass = QApplication::overrideCursor() != nullptr;
        boxAnswer({"Error", text, QMessageBox::Critical})(dialog);
    });
    window.loadFile(bad);
    QVERIFY(box.came());
    QVERIFY(!hourglass);
    QVERIFY(!QApplication::overrideCursor());
    QCOMPARE(window.windowTitle(), "second.e3c - " + title);
    QCOMPARE(window.campaignId, 3U);
    QCOMPARE(regionsOf(window).size(), 2);
    QCOMPARE(QSettings("cmped_info", "").value("recentFileList").toStringList(),
             QStringList(second));
}

void MainWindowDocumentsTest::loadAsksAboutChangesFirst_data()
{
    QTest::addColumn<int>("press");
    QTest::addColumn<bool>("loads");
    QTest::newRow("No") << int(QMessageBox::No) << true;
    QTest::newRow("Cancel") << int(QMessageBox::Cancel) << false;
}

void MainWindowDocumentsTest::loadAsksAboutChangesFirst()
{
    QFETCH(int, press);
    QFETCH(bool, loads);
    MainWindow window(nullptr);
    window.loadFile(first);
    EditorData::info.modified = true;
    const QByteArray before = contents(first);
    NextDialog question(boxAnswer(saveQuestion("first", QMessageBox::StandardButton(press))));
    window.loadFile(second);
    QCOMPARE(window.campaignId, loads ? 3U : 24U);
    QCOMPARE(EditorData::info.modified, !loads);
    QCOMPARE(contents(first), before);
}

void MainWindowDocumentsTest::yesWithACancelledSaveDialogGoesOnLoading()
{
    MainWindow window(nullptr);
    EditorData::info.modified = true;
    NextDialog question(boxAnswer(saveQuestion("Untitled", QMessageBox::Yes)));
    NextDialog saving(chooseFile("Save As", home("").chopped(1), "Untitled", ""));
    window.loadFile(second);
    QVERIFY(saving.came());
    QCOMPARE(window.campaignId, 3U);
    QVERIFY(!EditorData::info.modified);
}

void MainWindowDocumentsTest::yesSavesTheCurrentFileBeforeLoading()
{
    const QString old = fixture->game.addCampaign("old.e3c", tiny::campaign(24, {{}, {}, {}}));
    MainWindow window(nullptr);
    window.loadFile(old);
    EditorData::info.modified = true;
    QFile::remove(old);
    NextDialog question(boxAnswer(saveQuestion("old", QMessageBox::Yes)));
    window.loadFile(second);
    QVERIFY(QFile::exists(old));
    QCOMPARE(window.campaignId, 3U);
}

void MainWindowDocumentsTest::yesWhoseSavingFailsStopsLoadingAndClosing()
{
    const QString gone = fixture->game.addCampaign("gone.e3c", tiny::campaign(24, {{}, {}, {}}));
    MainWindow window(nullptr);
    window.loadFile(gone);
    EditorData::info.modified = true;
    QVERIFY(QFile::remove(gone));
    QVERIFY(QDir().mkdir(gone));
    const ExpectedBox failure{"Error", "Cannot write file " + gone + ":\nIs a directory.",
                              QMessageBox::Warning};
    {
        NextDialog question(boxAnswer(saveQuestion("gone", QMessageBox::Yes)));
        NextDialog told(boxAnswer(failure));
        window.loadFile(second);
        QVERIFY(told.came());
    }
    QCOMPARE(window.campaignId, 24U);
    QVERIFY(EditorData::info.modified);
    {
        NextDialog question(boxAnswer(saveQuestion("gone", QMessageBox::Yes)));
        NextDialog told(boxAnswer(failure));
        QCloseEvent event;
        QApplication::sendEvent(&window, &event);
        QVERIFY(!event.isAccepted());
    }
    QVERIFY(QDir().rmdir(gone));
}

void MainWindowDocumentsTest::openTakesTheMapsFolderAndRemembersTheChosenOne()
{
    MainWindow window(nullptr);
    const QString maps = QDir(home("")).canonicalPath();
    {
        NextDialog dialog(chooseFile("Open Map File", maps, "", second));
        action(window, "actionOpen")->trigger();
    }
    QCOMPARE(window.windowTitle(), "second.e3c - " + title);
    QCOMPARE(QString(ini->GetStringVal("Campaign Editor", "Path", "")), QFileInfo(second).path());
    QTemporaryDir other;
    const QString path = other.filePath("third.e3c");
    QVERIFY(QFile::copy(first, path));
    {
        NextDialog dialog(chooseFile("Open Map File", maps, "", path));
        action(window, "actionOpen")->trigger();
    }
    QCOMPARE(QString(ini->GetStringVal("Campaign Editor", "Path", "")), other.path());
    {
        NextDialog dialog(chooseFile("Open Map File", other.path(), "", ""));
        action(window, "actionOpen")->trigger();
    }
}

void MainWindowDocumentsTest::openCancelledChangesNothing()
{
    MainWindow window(nullptr);
    NextDialog dialog(chooseFile("Open Map File", QDir(home("")).canonicalPath(), "", ""));
    action(window, "actionOpen")->trigger();
    QCOMPARE(window.windowTitle(), "Untitled.e3c - " + title);
    QCOMPARE(QByteArray(ini->GetStringVal("Campaign Editor", "Path", "x")), QByteArray());
}

void MainWindowDocumentsTest::closeAsksAboutChanges_data()
{
    QTest::addColumn<int>("press");
    QTest::addColumn<bool>("closes");
    QTest::newRow("No") << int(QMessageBox::No) << true;
    QTest::newRow("Yes") << int(QMessageBox::Yes) << true;
    QTest::newRow("Cancel") << int(QMessageBox::Cancel) << false;
}

void MainWindowDocumentsTest::closeAsksAboutChanges()
{
    QFETCH(int, press);
    QFETCH(bool, closes);
    MainWindow window(nullptr);
    window.loadFile(first);
    EditorData::info.modified = true;
    NextDialog question(boxAnswer(saveQuestion("first", QMessageBox::StandardButton(press))));
    QCloseEvent event;
    QApplication::sendEvent(&window, &event);
    QCOMPARE(event.isAccepted(), closes);
    QCOMPARE(EditorData::info.modified, press != int(QMessageBox::Yes));
}

void MainWindowDocumentsTest::closeOfUnchangedAsksNothing()
{
    MainWindow window(nullptr);
    QVERIFY(show(window));
    QVERIFY(window.close());
}

void MainWindowDocumentsTest::closeGoesOnAfterACancelledSaveDialog()
{
    MainWindow window(nullptr);
    EditorData::info.modified = true;
    NextDialog question(boxAnswer(saveQuestion("Untitled", QMessageBox::Yes)));
    NextDialog saving(chooseFile("Save As", home("").chopped(1), "Untitled", ""));
    QCloseEvent event;
    QApplication::sendEvent(&window, &event);
    QVERIFY(saving.came());
    QVERIFY(event.isAccepted());
}

void MainWindowDocumentsTest::exitAsksNothing()
{
    MainWindow window(nullptr);
    QVERIFY(show(window));
    EditorData::info.modified = true;
    QAction *exit = action(window, "actionExit");
    bool asked = false;
    QTimer::singleShot(0, exit, [&] {
        exit->trigger();
        asked = QApplication::activeModalWidget() != nullptr;
    });
    QTimer::singleShot(20000, exit, [] { QCoreApplication::exit(9); }); // should it not end
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(!asked);
    QVERIFY(EditorData::info.modified);
}

void MainWindowDocumentsTest::defaultAnswerIsYes()
{
    MainWindow window(nullptr);
    window.loadFile(first);
    EditorData::info.modified = true;
    NextDialog question([](QWidget *widget) {
        auto *box = qobject_cast<QMessageBox *>(widget);
        QVERIFY(box);
        QVERIFY(!box->parentWidget());
        QCOMPARE(box->defaultButton(), box->button(QMessageBox::Yes));
        box->done(QMessageBox::Cancel);
    });
    QCloseEvent event;
    QApplication::sendEvent(&window, &event);
    QVERIFY(question.came());
}

QTEST_MAIN(MainWindowDocumentsTest)
#include "main_window_documents_test.moc"
