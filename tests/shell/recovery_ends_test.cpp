// Every way in which an editor can end, in a process of its own: what it leaves of a document with
// changes, and what the next start asks.
#include "document/campaign_data.h"
#include "tests/support/child_process.h"
#include "tests/support/file_contents.h"
#include "tests/support/stored_options.h"
#include "tests/support/tiny_game.h"

#include <QDir>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

#include <sys/resource.h>

class RecoveryEndsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { data = std::make_unique<QTemporaryDir>(); }

    void otherEndsLeaveTheCopy_data();
    void otherEndsLeaveTheCopy();
    void endsLeaveTheCopyOfAnUntitledCampaign_data();
    void endsLeaveTheCopyOfAnUntitledCampaign();
    void dialogIsAllThatAnEndTakesAway_data();
    void dialogIsAllThatAnEndTakesAway();
    void unknownBonusLeavesTheCopy();
    void savedAndUnwantedChangesLeaveNone_data();
    void savedAndUnwantedChangesLeaveNone();
    void nextStartOffersItOnceTheWindowShows();
    void startWithAFileAsksNothing();
    void startWithoutACopyAsksNothing();
    void endDuringTheQuestionIsNoAnswer();
    void copyThatEndsTheProcessIsOfferedOnce();
    void runningEditorKeepsItsCopy();

private:
    QProcessEnvironment environment(const QString &steps, const QString &answers) const;
    ChildResult start(const QString &steps, const QString &answers = {},
                      const QStringList &arguments = {}) const;
    static QStringList lines(const ChildResult &result, const QByteArray &kind);
    QString recovery() const { return data->filePath("recovery_probe/recovery"); }
    QStringList copies() const
    {
        return QDir(recovery()).entryList({"*.e3c"}, QDir::Files | QDir::Hidden, QDir::Name);
    }
    // A campaign with scenarios, in a file that is always the same.
    QString addHome() const
    {
        return game->addCampaign("home.e3c", tiny::campaign(24, {{true, 1}, {true, 3}, {}}));
    }
    // That campaign behind a change of its name, as it is saved.
    const QByteArray &changedHome();
    // Of the campaign in the only copy.
    QString nameInCopy() const;
    // The question about the only copy, as the probe prints it.
    QString offer(const QString &document) const;

    std::unique_ptr<tiny::Game> game;
    std::unique_ptr<QTemporaryDir> data;
    QByteArray changed; // made once
};

void RecoveryEndsTest::initTestCase()
{
    const rlimit none{0, 0};
    setrlimit(RLIMIT_CORE, &none); // some of the editors crash
    game = std::make_unique<tiny::Game>();
    game->load();
}

QProcessEnvironment RecoveryEndsTest::environment(const QString &steps,
                                                  const QString &answers) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("CMPED_GAME_DIR", game->path());
    environment.insert("XDG_CONFIG_HOME", data->path());
    environment.insert("XDG_DATA_HOME", data->path());
    environment.insert("XDG_RUNTIME_DIR", data->path());
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("RECOVERY_PROBE_STEPS", steps);
    environment.insert("RECOVERY_PROBE_ANSWERS", answers);
    return environment;
}

ChildResult RecoveryEndsTest::start(const QString &steps, const QString &answers,
                                    const QStringList &arguments) const
{
    return runChild(builtProgram("recovery_probe"), arguments, environment(steps, answers));
}

// What the probe has printed of a kind, without the kind.
QStringList RecoveryEndsTest::lines(const ChildResult &result, const QByteArray &kind)
{
    QStringList found;
    const auto printed = result.output.split('\n');
    for (const QByteArray &line : printed) {
        if (line.startsWith(kind + '|'))
            found << QString::fromUtf8(line.mid(kind.size() + 1));
    }
    return found;
}

const QByteArray &RecoveryEndsTest::changedHome()
{
    if (changed.isEmpty()) {
        const QString path = addHome();
        auto mine = std::make_unique<QTemporaryDir>();
        std::swap(data, mine); // nothing of it is among the test's own
        start("edit Ember Road;save;exit", {}, {path});
        std::swap(data, mine);
        changed = contents(path);
        addHome();
    }
    return changed;
}

QString RecoveryEndsTest::nameInCopy() const
{
    if (copies().size() != 1)
        return QString("%1 copies").arg(copies().size());
    QFile file(recovery() + '/' + copies()[0]);
    CampaignData campaign;
    if (!file.open(QIODevice::ReadOnly) || campaign.readCampaign(&file))
        return "unreadable";
    return campaign.name;
}

QString RecoveryEndsTest::offer(const QString &document) const
{
    const QDateTime time = QFileInfo(recovery() + '/' + copies().value(0)).lastModified();
    return "Tiny Campaign Editor|Changes to " + document +
           " were not saved. Open the copy kept on " + time.toString("yyyy-MM-dd HH:mm") + "?|1";
}

void RecoveryEndsTest::otherEndsLeaveTheCopy_data()
{
    QTest::addColumn<QString>("end");
    QTest::addColumn<QString>("answers");
    const auto signal = [](int number) { return "signal " + QString::number(number); };
    QTest::newRow("Exit") << "exit"
                          << "";
    QTest::newRow("New, then Exit") << "new 0;exit"
                                    << "";
    QTest::newRow("SIGTERM") << signal(SIGTERM) << "";
    QTest::newRow("SIGHUP") << signal(SIGHUP) << "";
    QTest::newRow("SIGINT") << signal(SIGINT) << "";
    QTest::newRow("SIGKILL") << signal(SIGKILL) << "";
    QTest::newRow("SIGSEGV") << signal(SIGSEGV) << "";
    QTest::newRow("SIGABRT") << "abort"
                             << "";
    QTest::newRow("a missing picture") << "new 3"
                                       << "";
    QTest::newRow("a cancelled question, then Exit") << "close;exit"
                                                     << "Cancel";
}

// It is the document to the byte, and the next start brings it back.
void RecoveryEndsTest::otherEndsLeaveTheCopy()
{
    QFETCH(QString, end);
    QFETCH(QString, answers);
    const QString path = addHome();
    const QByteArray before = contents(path);
    const QByteArray after = changedHome();
    QVERIFY(after != before);
    QVERIFY(start("edit Ember Road;" + end, answers, {path}).started);
    QCOMPARE(contents(path), before);
    QCOMPARE(copies().size(), 1);
    QVERIFY(copies()[0].endsWith(" home.e3c"));
    QCOMPARE(contents(recovery() + '/' + copies()[0]), after);
    const QString question = offer("home");
    QCOMPARE(lines(start("save;exit", "Yes"), "box"), QStringList(question));
    QCOMPARE(contents(path), after);
    QCOMPARE(copies(), QStringList());
}

void RecoveryEndsTest::dialogIsAllThatAnEndTakesAway_data()
{
    QTest::addColumn<QString>("dialog");
    QTest::addColumn<int>("signal");
    for (const char *dialog : {"campaignProperties", "scenarioProperties"}) {
        for (const int signal : {SIGTERM, SIGKILL})
            QTest::addRow("%s, signal %d", dialog, signal) << dialog << signal;
    }
}

// What was accepted before is in the copy, and nothing of the dialog that is open.
void RecoveryEndsTest::dialogIsAllThatAnEndTakesAway()
{
    QFETCH(QString, dialog);
    QFETCH(int, signal);
    const QString path = addHome();
    const QByteArray before = contents(path);
    const QString end = QString("within %1;signal %2").arg(dialog).arg(signal);
    const ChildResult result = start("edit Ember Road;" + end, {}, {path});
    QCOMPARE(lines(result, "dialog").size(), 1);
    QCOMPARE(result.exitedNormally, signal == SIGTERM);
    QCOMPARE(contents(path), before);
    QCOMPARE(copies().size(), 1);
    QCOMPARE(contents(recovery() + '/' + copies()[0]), changedHome());
    const QString question = offer("home");
    QCOMPARE(lines(start("exit", "Yes"), "box"), QStringList(question));
}

// The dialog has no words for it, so the editor ends when the scenario is opened.
void RecoveryEndsTest::unknownBonusLeavesTheCopy()
{
    const QString path = addHome();
    QFile file(path);
    CampaignData campaign;
    QVERIFY(file.open(QIODevice::ReadOnly) && !campaign.readCampaign(&file));
    campaign.scenarios[0].startOptions = resourceBonuses(1);
    StartingBonusSet set = campaign.scenarios[0].startOptions->optionData.value<StartingBonusSet>();
    set.bonuses[0] = {8, {}};
    campaign.scenarios[0].startOptions->optionData = QVariant::fromValue(set);
    QVERIFY(campaign.saveTo(path).ok);
    const QByteArray before = contents(path);
    const ChildResult result =
        start("edit Ember Road;within scenarioProperties;close", "Cancel", {path});
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(lines(result, "dialog"), QStringList());
    QCOMPARE(lines(result, "box"), QStringList());
    QCOMPARE(contents(path), before);
    QCOMPARE(nameInCopy(), QString("Ember Road"));
    const QString question = offer("home");
    QCOMPARE(lines(start("save;exit", "Yes"), "box"), QStringList(question));
    QVERIFY(contents(path) != before);
    QCOMPARE(copies(), QStringList());
}

void RecoveryEndsTest::endsLeaveTheCopyOfAnUntitledCampaign_data()
{
    QTest::addColumn<QString>("end");
    QTest::newRow("Exit") << "exit";
    QTest::newRow("a missing picture, with a message") << "recent";
    QTest::newRow("SIGKILL") << "signal 9";
}

void RecoveryEndsTest::endsLeaveTheCopyOfAnUntitledCampaign()
{
    QFETCH(QString, end);
    // No archive has the picture of its region.
    const QString torn = game->addCampaign("torn.e3c", tiny::campaign(6, {{}}));
    QSettings(data->filePath("cmped_info.conf"), QSettings::IniFormat)
        .setValue("recentFileList", QStringList(torn));
    const ChildResult result = start("edit Ember Road;" + end, "Yes;OK");
    QVERIFY(result.started);
    if (end == "recent")
        QCOMPARE(lines(result, "box").value(1),
                 QString("Error|Can't find gone.pcx file in lod file|1"));
    QCOMPARE(nameInCopy(), QString("Ember Road"));
    QVERIFY(copies()[0].endsWith(" Untitled.e3c"));
    const QString question = offer("Untitled");
    QCOMPARE(lines(start("exit", "Yes"), "box"), QStringList(question));
    QCOMPARE(nameInCopy(), QString("Ember Road"));
}

void RecoveryEndsTest::savedAndUnwantedChangesLeaveNone_data()
{
    QTest::addColumn<QString>("end");
    QTest::addColumn<QString>("answers");
    QTest::newRow("saved, then killed") << "save;signal 9"
                                        << "";
    QTest::newRow("closed with Yes") << "close"
                                     << "Yes";
    QTest::newRow("closed with No") << "close"
                                    << "No";
}

void RecoveryEndsTest::savedAndUnwantedChangesLeaveNone()
{
    QFETCH(QString, end);
    QFETCH(QString, answers);
    const QString path = game->addCampaign("home.e3c", tiny::campaign(24, {{}, {}, {}}));
    const QByteArray before = contents(path);
    const ChildResult result = start("edit Ember Road;" + end, answers, {path});
    QVERIFY(result.started);
    QCOMPARE(QDir(recovery()).entryList(QDir::Files | QDir::Hidden), QStringList());
    QCOMPARE(contents(path) != before, answers != "No");
    QCOMPARE(lines(start("exit"), "box"), QStringList());
}

void RecoveryEndsTest::nextStartOffersItOnceTheWindowShows()
{
    const QString path = game->addCampaign("home.e3c", tiny::campaign(24, {{}, {}, {}}));
    start("edit Ember Road;signal 9", {}, {path});
    QCOMPARE(nameInCopy(), QString("Ember Road"));
    const QString question = offer("home");
    ChildResult result = start("exit", "Yes");
    QCOMPARE(lines(result, "box"), QStringList(question));
    QCOMPARE(lines(result, "window"), QStringList("home.e3c* - Tiny Campaign Editor"));
    // It was left without saving, so it is offered once more.
    result = start("exit", "No");
    QCOMPARE(lines(result, "box"), QStringList(question));
    QCOMPARE(lines(result, "window"), QStringList("Untitled.e3c - Tiny Campaign Editor"));
    result = start("exit");
    QCOMPARE(lines(result, "box"), QStringList());
    QCOMPARE(nameInCopy(), QString("Ember Road")); // to be opened by hand
}

void RecoveryEndsTest::startWithAFileAsksNothing()
{
    start("edit Ember Road;abort");
    const QStringList before = copies();
    const QString path = game->addCampaign("home.e3c", tiny::campaign(24, {{}, {}, {}}));
    const ChildResult result = start("exit", {}, {path});
    QCOMPARE(lines(result, "box"), QStringList());
    QCOMPARE(lines(result, "window"), QStringList("home.e3c - Tiny Campaign Editor"));
    QCOMPARE(copies(), before);
    QCOMPARE(lines(start("exit", "Yes"), "box"), QStringList(offer("Untitled")));
}

void RecoveryEndsTest::startWithoutACopyAsksNothing()
{
    const ChildResult result = start("exit");
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(lines(result, "box"), QStringList());
    QCOMPARE(lines(result, "window"), QStringList("Untitled.e3c - Tiny Campaign Editor"));
    QVERIFY(!QFileInfo::exists(recovery()));
}

void RecoveryEndsTest::endDuringTheQuestionIsNoAnswer()
{
    start("edit Ember Road;abort");
    const QString question = offer("Untitled");
    for (const bool killed : {false, true}) {
        QProcess editor;
        editor.setProcessEnvironment(environment("exit", "stay"));
        editor.start(builtProgram("recovery_probe"), QStringList());
        QVERIFY(editor.waitForStarted());
        QByteArray printed;
        while (!printed.contains('\n')) {
            QVERIFY(editor.waitForReadyRead(60000));
            printed += editor.readAllStandardOutput();
        }
        QVERIFY(printed.startsWith("box|"));
        if (killed)
            editor.kill();
        else
            editor.terminate();
        QVERIFY(editor.waitForFinished(60000));
    }
    QCOMPARE(lines(start("exit", "No"), "box"), QStringList(question));
}

// Its map's region has no picture, so whoever opens it has to end.
void RecoveryEndsTest::copyThatEndsTheProcessIsOfferedOnce()
{
    start("edit Ember Road;abort");
    QFile copy(recovery() + '/' + copies().value(0));
    QVERIFY(copy.open(QIODevice::WriteOnly) && copy.write(tiny::campaign(6, {{}})) > 0);
    copy.close();
    const QString message = "Error|Can't find gone.pcx file in lod file|1";
    const QString question = offer("Untitled");
    const ChildResult result = start("exit", "Yes");
    QCOMPARE(lines(result, "box"), QStringList({question, message}));
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(lines(start("exit"), "box"), QStringList());
    QCOMPARE(copies().size(), 1);
}

void RecoveryEndsTest::runningEditorKeepsItsCopy()
{
    QProcess editor;
    editor.setProcessEnvironment(environment("edit Ember Road;edit Ashen Road;stay", {}));
    editor.start(builtProgram("recovery_probe"), QStringList());
    QVERIFY(editor.waitForStarted());
    QByteArray printed;
    while (printed.count('\n') < 3) { // the window before the third step
        QVERIFY(editor.waitForReadyRead(60000));
        printed += editor.readAllStandardOutput();
    }
    QCOMPARE(lines(start("exit"), "box"), QStringList());
    QCOMPARE(nameInCopy(), QString("Ashen Road"));
    start("edit Third Road;exit"); // a copy of its own
    QCOMPARE(copies().size(), 2);
    QCOMPARE(lines(start("exit", "No"), "box").size(), 1);
    QCOMPARE(lines(start("exit"), "box"), QStringList());
    editor.kill();
    QVERIFY(editor.waitForFinished(60000));
    QCOMPARE(lines(start("exit", "No"), "box").size(), 1);
}

QTEST_MAIN(RecoveryEndsTest)
#include "recovery_ends_test.moc"
