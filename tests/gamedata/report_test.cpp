// How the lower rooms tell of errors and end the process.
#include "gamedata/report.h"

#include "tests/support/child_process.h"
#include "tests/support/report_recorder.h"

#include <QTranslator>
#include <QtTest>

namespace {

class OneText : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const bool known = qstrcmp(context, "MainWindow") == 0 && qstrcmp(source, "Error") == 0;
        return known ? QStringLiteral("Translated") : QString();
    }
    bool isEmpty() const override { return false; }
};

// What this program does as its own child, with the reporter that is there at the start.
int actAsChild(const QByteArray &act)
{
    if (act == "show") {
        reportError(QStringLiteral("Error"), QStringLiteral("no file"));
        return 99; // it went on
    }
    if (act == "end")
        endWithMessage(QStringLiteral("no file"));
    setReporter({[](const QString &, const QString &) {}, [](int) {}});
    endSilently(1);
}

ChildResult childThat(const QString &act)
{
    return runChild(QCoreApplication::applicationFilePath(), {QStringLiteral("--act"), act});
}

} // namespace

class ReportTest : public QObject
{
    Q_OBJECT

private slots:
    void showsErrorsThroughTheReporter();
    void endsWithAMessageAndCodeOne();
    void endsSilently();
    void setReporterAnswersTheOneBefore();
    void titleComesFromTheWindowsTexts();
    void writesToStandardErrorAtFirst();
    void exitsAtFirst();
    void abortsWhenAReporterComesBack();
};

void ReportTest::showsErrorsThroughTheReporter()
{
    const ReportRecorder recorder;
    reportError(QStringLiteral("Title"), QStringLiteral("Text"));
    QCOMPARE(recorder.errors.size(), 1);
    QCOMPARE(recorder.errors[0].title, QStringLiteral("Title"));
    QCOMPARE(recorder.errors[0].text, QStringLiteral("Text"));
}

void ReportTest::endsWithAMessageAndCodeOne()
{
    const ReportRecorder recorder;
    QCOMPARE(exitCodeOf([] { endWithMessage(QStringLiteral("Gone")); }), 1);
    QCOMPARE(recorder.errors.size(), 1);
    QCOMPARE(recorder.errors[0].title, QStringLiteral("Error"));
    QCOMPARE(recorder.errors[0].text, QStringLiteral("Gone"));
}

void ReportTest::endsSilently()
{
    const ReportRecorder recorder;
    QCOMPARE(exitCodeOf([] { endSilently(3); }), 3);
    QVERIFY(recorder.errors.isEmpty());
}

void ReportTest::setReporterAnswersTheOneBefore()
{
    int shown = 0;
    Reporter before = setReporter({[&](const QString &, const QString &) { ++shown; }, {}});
    Reporter mine = setReporter(std::move(before));
    mine.showError({}, {});
    QCOMPARE(shown, 1);
}

void ReportTest::titleComesFromTheWindowsTexts()
{
    QCOMPARE(errorTitle(), QStringLiteral("Error"));
    QCOMPARE(mainWindowText("Some text"), QStringLiteral("Some text"));
    OneText translator;
    QCoreApplication::installTranslator(&translator);
    QCOMPARE(errorTitle(), QStringLiteral("Translated"));
    QCoreApplication::removeTranslator(&translator);
}

void ReportTest::writesToStandardErrorAtFirst()
{
    const ChildResult child = childThat(QStringLiteral("show"));
    QCOMPARE(child.error, QByteArray("Error: no file\n"));
    QVERIFY(child.exitedNormally);
    QCOMPARE(child.exitCode, 99);
}

void ReportTest::exitsAtFirst()
{
    const ChildResult child = childThat(QStringLiteral("end"));
    QCOMPARE(child.error, QByteArray("Error: no file\n"));
    QVERIFY(child.exitedNormally);
    QCOMPARE(child.exitCode, 1);
}

void ReportTest::abortsWhenAReporterComesBack()
{
    const ChildResult child = childThat(QStringLiteral("come back"));
    QVERIFY(child.started);
    QVERIFY(!child.exitedNormally);
}

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--act") == 0)
        return actAsChild(argv[2]);
    ReportTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "report_test.moc"
