// What the composing of a region's picture logs, and what ends the process.
#include "gamedata/region_image.h"
#include "tests/gamedata/region_masks.h"
#include "tests/support/report_recorder.h"

#include <QTest>

#include <functional>

using namespace region_masks;

namespace {

// The log's lines while it lives.
class LogRecorder
{
public:
    LogRecorder()
    {
        lines().clear();
        m_before = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &text) { lines() << text; });
    }
    ~LogRecorder() { qInstallMessageHandler(m_before); }
    LogRecorder(const LogRecorder &) = delete;
    LogRecorder &operator=(const LogRecorder &) = delete;

    static QStringList &lines()
    {
        static QStringList all;
        return all;
    }

private:
    QtMessageHandler m_before;
};

struct End
{
    int code = -1; // still running
    QStringList log;
    int messages = 0;
};

End endOf(const std::function<void()> &work)
{
    const LogRecorder log;
    const ReportRecorder recorder;
    End end;
    end.code = exitCodeOf(work);
    end.log = LogRecorder::lines();
    end.messages = recorder.errors.size();
    return end;
}

} // namespace

class RegionImageEndsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_stage = std::make_unique<Stage>(); }
    void cleanup() { m_stage.reset(); }

    void missingMaskEndsTheProcess_data();
    void missingMaskEndsTheProcess();
    void missingPatternEndsTheProcessSilently();
    void unusedLookIsLogged();

private:
    std::unique_ptr<Stage> m_stage;
};

void RegionImageEndsTest::missingMaskEndsTheProcess_data()
{
    QTest::addColumn<uint>("state");
    QTest::addColumn<QStringList>("missing");
    QTest::addColumn<QStringList>("log");
    const QStringList all{"fill", "border", "glow"};
    const QString opening = "Open pcx:  \"fill\"";
    const auto row = [](const char *name, uint state, const QStringList &missing,
                        const QStringList &log) { QTest::newRow(name) << state << missing << log; };
    row("unselected, fill", 0, {"fill"}, {"No fill img"});
    row("unselected, border", 0, {"border"}, {"No border img"});
    row("unselected, glow", 0, {"glow"}, {"No glow img"});
    row("unselected, all", 0, all, {"No fill img"});
    row("selected, fill", 1, {"fill"}, {"No fill img"});
    row("selected, border", 1, {"border"}, {"No border img"});
    row("selected, glow", 1, {"glow"}, {"No glow img"});
    row("selected, all", 1, all, {"No fill img"});
    row("unused, fill", 2, {"fill"}, {opening, "Fill image is null"});
    row("unused, border", 2, {"border"}, {opening, "Border image is null"});
    row("unused, glow", 2, {"glow"}, {opening, "Glow image is null"});
    row("unused, all", 2, all, {opening, "Fill image is null"});
}

void RegionImageEndsTest::missingMaskEndsTheProcess()
{
    QFETCH(uint, state);
    QFETCH(QStringList, missing);
    QFETCH(QStringList, log);
    usePattern(onePixel(grey(1)));
    useMasks({onePixel(grey(1)), onePixel(grey(1)), onePixel(grey(1))});
    for (const QString &name : missing)
        preloadArchive->images32.remove(name); // no archive has it either
    const End end = endOf([&] { composed(state, lightBlue); });
    QCOMPARE(end.code, 1);
    QCOMPARE(end.log, log);
    QCOMPARE(end.messages, 0);
}

void RegionImageEndsTest::missingPatternEndsTheProcessSilently()
{
    useMasks({onePixel(grey(1)), onePixel(grey(1)), onePixel(grey(1))});
    // The pattern in 16 bits doesn't serve.
    preloadArchive->images16["cmpdash.pcx"] = onePixel(grey(1));
    const End end = endOf([] { composed(2, lightBlue); });
    QCOMPARE(end.code, 1);
    QCOMPARE(end.log, QStringList{"Open pcx:  \"fill\""});
    QCOMPARE(end.messages, 0);
}

void RegionImageEndsTest::unusedLookIsLogged()
{
    usePattern(onePixel(grey(1)));
    useMasks({onePixel(grey(1)), onePixel(grey(1)), onePixel(grey(1))});
    const End end = endOf([] {
        composed(0, lightBlue);
        composed(1, lightBlue);
        composed(2, lightBlue);
    });
    QCOMPARE(end.code, -1);
    QCOMPARE(end.log, QStringList{"Open pcx:  \"fill\""});
}

QTEST_GUILESS_MAIN(RegionImageEndsTest)
#include "region_image_ends_test.moc"
