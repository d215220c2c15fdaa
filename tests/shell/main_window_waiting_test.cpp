// The hourglass while the window reads and writes files.
#include "tests/shell/exchange_window.h"
#include "tests/support/disk_faults.h"
#include "tests/support/report_recorder.h"

#include "document/text_exchange.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QTextCodec>
#include <QTranslator>

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

// How often something was done, and how often of these under an hourglass.
struct Moments
{
    int all = 0;
    int waited = 0;

    void note()
    {
        ++all;
        waited += isWaiting() ? 1 : 0;
    }
};

// Latin 1, noting the moments at which one line is read.
class NotingCodec : public QTextCodec
{
public:
    static Moments &moments()
    {
        static Moments noted;
        return noted;
    }
    static constexpr char line[] = "Right-click text:";

    QByteArray name() const override { return "X-NOTING"; }
    int mibEnum() const override { return 9001; }

protected:
    QString convertToUnicode(const char *bytes, int size, ConverterState *) const override
    {
        if (QByteArray(bytes, size) == line)
            moments().note();
        return QString::fromLatin1(bytes, size);
    }
    QByteArray convertFromUnicode(const QChar *text, int size, ConverterState *) const override
    {
        return QString(text, size).toLatin1();
    }
};

// Notes the moments at which a text of the scenario dialog is asked for, until it is done.
class NotingTranslator : public QTranslator
{
public:
    explicit NotingTranslator(Moments &moments) : m_moments(moments)
    {
        QCoreApplication::installTranslator(this);
    }

    QString translate(const char *context, const char *source, const char *, int) const override
    {
        if (qstrcmp(context, "ScenarioInfo") == 0)
            m_moments.note();
        return QString::fromUtf8(source);
    }
    bool isEmpty() const override { return false; }

private:
    Moments &m_moments;
};

Moments conversions;

// The search for scenarios that are kept leaves a trace of each.
void noteConversion(QtMsgType, const QMessageLogContext &, const QString &text)
{
    if (text.startsWith(QLatin1String("(ADD CAMP")))
        conversions.note();
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
    void hourglassStandsWhileTextsAreImported();
    void hourglassStandsWhileTheScenarioDialogIsMade();
    void hourglassStandsWhileTheCampaignIsConverted();
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

void MainWindowWaitingTest::hourglassStandsWhileTextsAreImported()
{
    load();
    CampaignData campaign = campaignWithMaps();
    new NotingCodec; // Qt's from now on
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("X-NOTING"));
    const QString file = writeFile("texts.txt", exportedTexts(campaign));
    NotingCodec::moments() = {};
    {
        const NextDialog dialog([&](QWidget *widget) {
            widget->findChild<QLineEdit *>("fileNameEdit")->setText(file);
            QTest::keyClick(widget->windowHandle(), Qt::Key_Return);
        });
        trigger("actionImport_Texts");
    }
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QVERIFY(EditorData::info.modified);
    QCOMPARE(NotingCodec::moments().all, 2);
    QCOMPARE(NotingCodec::moments().waited, 2);
    EditorData::info.modified = false;
}

void MainWindowWaitingTest::hourglassStandsWhileTheScenarioDialogIsMade()
{
    load();
    Moments moments;
    const NotingTranslator translator(moments);
    Moments made;
    const NextDialog dialog([&](QWidget *widget) {
        made = moments;
        QCOMPARE(QString(widget->metaObject()->className()), QString("ScenarioInfo"));
        QVERIFY(!isWaiting());
        widget->close();
    });
    trigger("scenarioProperties");
    QVERIFY(made.all > 5); // a tab's title is the last of them
    QCOMPARE(made.waited, made.all);
}

void MainWindowWaitingTest::hourglassStandsWhileTheCampaignIsConverted()
{
    load();
    conversions = {};
    const NextDialog dialog([](QWidget *widget) {
        QCOMPARE(QString(widget->metaObject()->className()), QString("ConvertCampaign"));
        auto *list = widget->findChild<QListWidget *>("listWidget");
        list->setCurrentRow(0);
        clickOn(widget->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok));
    });
    bool waitedInTheQuestion = true;
    const NextDialog question([&](QWidget *widget) {
        waitedInTheQuestion = isWaiting();
        clickOn(static_cast<QMessageBox *>(widget)->button(QMessageBox::Yes));
    });
    const QtMessageHandler before = qInstallMessageHandler(noteConversion);
    trigger("actionConvertCmp");
    qInstallMessageHandler(before);
    QVERIFY(!waitedInTheQuestion);
    QVERIFY(conversions.all > 0);
    QCOMPARE(conversions.waited, conversions.all);
    EditorData::info.modified = false;
}

QTEST_MAIN(MainWindowWaitingTest)
#include "main_window_waiting_test.moc"
