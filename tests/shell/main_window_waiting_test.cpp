// The hourglass while the window reads and writes files.
#include "tests/shell/exchange_window.h"
#include "tests/support/disk_faults.h"
#include "tests/support/report_recorder.h"

#include <csignal>

namespace {

bool isWaiting()
{
    const QCursor *cursor = QApplication::overrideCursor();
    return cursor && cursor->shape() == Qt::WaitCursor;
}

volatile std::sig_atomic_t waitedAtTheLimit = 0;

// Called in the middle of writing, by the write that goes past the limit. File dialogs write their
// own settings besides, under no hourglass.
void lookAtTheLimit(int)
{
    if (isWaiting())
        waitedAtTheLimit = 1;
}

} // namespace

class MainWindowWaitingTest : public QObject, private ExchangeWindow
{
    Q_OBJECT

private slots:
    void init() { reset(); }
    void cleanup();

    void hourglassStandsUntilTheMapIsDrawn();
    void hourglassStandsWhileAFileIsWritten_data();
    void hourglassStandsWhileAFileIsWritten();
    void hourglassStandsWhileACopyIsKept_data();
    void hourglassStandsWhileACopyIsKept();
};

void MainWindowWaitingTest::cleanup()
{
    QVERIFY(!QApplication::overrideCursor());
    window.reset();
}

// A picture that is missing ends the drawing.
void MainWindowWaitingTest::hourglassStandsUntilTheMapIsDrawn()
{
    const QString torn = fixture.game.addCampaign("torn.e3c", tiny::campaign(6, {{}}));
    bool waited = false;
    const ReportRecorder ends;
    setReporter({[&](const QString &, const QString &) { waited = isWaiting(); },
                 [](int code) { throw ProcessEnd{code}; }});
    QCOMPARE(exitCodeOf([&] { window->loadFile(torn); }), 1);
    QVERIFY(waited);
}

void MainWindowWaitingTest::hourglassStandsWhileAFileIsWritten_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("actionSave_As") << "large.e3c";
    QTest::newRow("actionExport_Texts") << "large.txt";
}

void MainWindowWaitingTest::hourglassStandsWhileAFileIsWritten()
{
    QFETCH(QString, name);
    load();
    waitedAtTheLimit = 0;
    const NextDialog dialog([&](QWidget *widget) {
        widget->findChild<QLineEdit *>("fileNameEdit")->setText(path(name));
        QTest::keyClick(widget->windowHandle(), Qt::Key_Return);
    });
    const NextDialog box(
        withoutHourglass(warning("Cannot write file " + path(name) + ":\nFile too large.")));
    const FileSizeLimit limit(20);
    std::signal(SIGXFSZ, lookAtTheLimit);
    trigger(QTest::currentDataTag());
    QVERIFY(waitedAtTheLimit);
}

void MainWindowWaitingTest::hourglassStandsWhileACopyIsKept_data()
{
    QTest::addColumn<QString>("dialog");
    QTest::newRow("campaignProperties") << "EditCampaign";
    QTest::newRow("scenarioProperties") << "ScenarioInfo";
}

void MainWindowWaitingTest::hourglassStandsWhileACopyIsKept()
{
    QFETCH(QString, dialog);
    load();
    EditorData::info.modified = true;
    waitedAtTheLimit = 0;
    const NextDialog accepted([&](QWidget *widget) {
        QCOMPARE(QString(widget->metaObject()->className()), dialog);
        QVERIFY(!isWaiting());
        auto *buttons = widget->findChild<QDialogButtonBox *>();
        clickOn(buttons->button(QDialogButtonBox::Ok));
    });
    const FileSizeLimit limit(20);
    std::signal(SIGXFSZ, lookAtTheLimit);
    trigger(QTest::currentDataTag());
    QVERIFY(waitedAtTheLimit);
    EditorData::info.modified = false;
}

QTEST_MAIN(MainWindowWaitingTest)
#include "main_window_waiting_test.moc"
