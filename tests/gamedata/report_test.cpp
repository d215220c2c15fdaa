#include "gamedata/report.h"

#include "tests/support/report_recorder.h"

#include <QTranslator>
#include <QtTest>

#include <sys/wait.h>
#include <unistd.h>

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

struct Ending
{
    int status = 0;
    QByteArray error;
};

// Runs it in a child with the reporter that is there at the start.
template<typename Act>
Ending endOf(Act act)
{
    int ends[2] = {};
    if (pipe(ends) != 0)
        return {};
    const pid_t child = fork();
    if (child == 0) {
        dup2(ends[1], STDERR_FILENO);
        act();
        _exit(99);
    }
    close(ends[1]);
    Ending ending;
    char buffer[256];
    for (ssize_t got = 0; (got = read(ends[0], buffer, sizeof buffer)) > 0;)
        ending.error.append(buffer, int(got));
    close(ends[0]);
    waitpid(child, &ending.status, 0);
    return ending;
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
    int code = 0;
    try {
        endWithMessage(QStringLiteral("Gone"));
    } catch (const ProcessEnd &end) {
        code = end.code;
    }
    QCOMPARE(code, 1);
    QCOMPARE(recorder.errors.size(), 1);
    QCOMPARE(recorder.errors[0].title, QStringLiteral("Error"));
    QCOMPARE(recorder.errors[0].text, QStringLiteral("Gone"));
}

void ReportTest::endsSilently()
{
    const ReportRecorder recorder;
    int code = 0;
    try {
        endSilently(3);
    } catch (const ProcessEnd &end) {
        code = end.code;
    }
    QCOMPARE(code, 3);
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
    const Ending ending =
        endOf([] { reportError(QStringLiteral("Error"), QStringLiteral("no file")); });
    QCOMPARE(ending.error, QByteArray("Error: no file\n"));
    QVERIFY(WIFEXITED(ending.status));
    QCOMPARE(WEXITSTATUS(ending.status), 99); // it went on
}

void ReportTest::exitsAtFirst()
{
    const Ending ending = endOf([] { endWithMessage(QStringLiteral("no file")); });
    QCOMPARE(ending.error, QByteArray("Error: no file\n"));
    QVERIFY(WIFEXITED(ending.status));
    QCOMPARE(WEXITSTATUS(ending.status), 1);
}

void ReportTest::abortsWhenAReporterComesBack()
{
    const Ending ending = endOf([] {
        signal(SIGABRT, SIG_DFL);
        setReporter({[](const QString &, const QString &) {}, [](int) {}});
        endSilently(1);
    });
    QVERIFY(WIFSIGNALED(ending.status));
    QCOMPARE(WTERMSIG(ending.status), SIGABRT);
}

QTEST_GUILESS_MAIN(ReportTest)
#include "report_test.moc"
