// Includes go down only, and in no circle: in our own sources, and each break of that is found.
#include "tests/tools/include_order.h"

#include <QtTest>

#include <algorithm>

class IncludesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void roomsStandOnRoomsBeforeThem();
    void ourSourcesKeepTheOrder();
    void filesWithARoomOfTheirOwnAreThere();
    void aSoundTreeHasNoFaults();
    void aBreakIsFound_data();
    void aBreakIsFound();
    void aCircleIsToldOnce();

private:
    SourceTree m_ours;
    QSet<QString> m_widgets;
};

namespace {

// Files of several rooms that include each other as they may.
SourceTree soundTree()
{
    return {
        {"gamedata/runtime/words.h", "#include <QString>\n"},
        {"gamedata/tables.h", "#include \"gamedata/runtime/words.h\"\n"},
        {"gamedata/tables.cpp", "// Reads.\n#include \"gamedata/tables.h\"\n\n#include <QFile>\n"},
        {"document/record.h", "#include \"gamedata/tables.h\"\n"},
        {"shell/elided_label.h", "#include <QLabel>\n"},
        {"shell/mss_info.h", "#include \"gamedata/tables.h\"\n"},
        {"scenario/page.h", "#include \"document/record.h\"\n#include \"shell/mss_info.h\"\n"},
        {"scenario/page.cpp", "#include \"scenario/page.h\"\n\n#include \"shell/elided_label.h\"\n"
                              "#include \"ui_Page.h\"\n#include \"page.moc\"\n"},
        {"shell/window.h", "#include \"scenario/page.h\"\n#include <QWidget>\n"},
        {"tests/shell/window_test.cpp", "#include \"shell/window.h\"\n"},
    };
}

QString faultsIn(const SourceTree &sources)
{
    return faultsOf(sources, roomsOfTheHouse(), {"QLabel", "qlabel.h", "QtWidgets/QLabel"})
        .join('\n');
}

} // namespace

void IncludesTest::initTestCase()
{
    m_ours = readSources(QStringLiteral(CMPED_SOURCE_DIR));
    m_widgets = widgetHeaders();
    QVERIFY(m_ours.contains("shell/main_window.cpp"));
    QVERIFY(m_ours.contains("gamedata/runtime/t_array.h"));
    QVERIFY2(m_widgets.contains("QMessageBox") && m_widgets.contains("qmessagebox.h"),
             "Qt's widget headers weren't found");
    QVERIFY(!m_widgets.contains("QString"));
}

void IncludesTest::roomsStandOnRoomsBeforeThem()
{
    QStringList before;
    for (const Room &room : roomsOfTheHouse()) {
        for (const QString &lower : room.below)
            QVERIFY2(before.contains(lower), qPrintable(room.name + " on " + lower));
        before << room.name;
    }
}

void IncludesTest::ourSourcesKeepTheOrder()
{
    QCOMPARE(faultsOf(m_ours, roomsOfTheHouse(), m_widgets).join('\n'), QString());
}

// A file that lost its name falls into the room of its folder.
void IncludesTest::filesWithARoomOfTheirOwnAreThere()
{
    const QStringList files = m_ours.keys();
    for (const Room &room : roomsOfTheHouse())
        for (const QString &place : room.places)
            if (place.endsWith('.'))
                QVERIFY2(std::any_of(files.begin(), files.end(),
                                     [&](const QString &file) { return file.startsWith(place); }),
                         qPrintable(place));
}

void IncludesTest::aSoundTreeHasNoFaults()
{
    QCOMPARE(faultsIn(soundTree()), QString());
}

void IncludesTest::aBreakIsFound_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("fault");

    const auto wayUp = [](const char *file, const char *include, const char *rooms) {
        QTest::newRow(qPrintable(QStringLiteral("%1 to %2").arg(file, include)))
            << QString(file) << QByteArray("#include \"") + include + "\"\n"
            << QStringLiteral("%1 includes %2, but %3").arg(file, include, rooms);
    };
    wayUp("gamedata/runtime/text.h", "gamedata/tables.h", "runtime doesn't stand on gamedata");
    wayUp("gamedata/archive.h", "document/record.h", "gamedata doesn't stand on document");
    wayUp("document/names.h", "scenario/page.h", "document doesn't stand on scenario");
    wayUp("document/names.h", "shell/elided_label.h", "document doesn't stand on leaves");
    wayUp("scenario/list.h", "shell/window.h", "scenario doesn't stand on shell");
    wayUp("campaign_dialogs/new.h", "shell/window.h", "campaign_dialogs doesn't stand on shell");
    wayUp("campaign_dialogs/new.h", "scenario/page.h",
          "campaign_dialogs doesn't stand on scenario");
    wayUp("shell/wait_cursor.h", "gamedata/tables.h", "leaves doesn't stand on gamedata");
    wayUp("shell/tune_file.h", "shell/elided_label.h", "sound doesn't stand on leaves");
    wayUp("shell/frame.h", "tests/shell/window_test.cpp", "shell doesn't stand on tests/shell");
    wayUp("cli/dump.h", "scenario/page.h", "cli doesn't stand on scenario");
    wayUp("shell/campaign_map_view.cpp", "shell/window.h", "map view doesn't stand on shell");
    wayUp("fuzz/one_fuzz.cpp", "shell/window.h", "fuzz doesn't stand on shell");
    wayUp("tools/sample_game/map.h", "document/record.h",
          "tools/sample_game doesn't stand on document");
    wayUp("tests/document/names_test.cpp", "shell/window.h",
          "tests/document doesn't stand on shell");

    const auto row = [](const char *name, const char *file, const char *text, const char *fault) {
        QTest::newRow(name) << QString(file) << QByteArray(text) << QString(fault);
    };
    row("widget in document", "document/box.h", "#include <QLabel>\n",
        "document/box.h includes the widget QLabel");
    row("widget in gamedata", "gamedata/box.h", "  #  include  <QtWidgets/QLabel>\n",
        "gamedata/box.h includes the widget QtWidgets/QLabel");
    row("widget by its file", "gamedata/runtime/box.cpp", "int a;\n#include <qlabel.h>\n",
        "gamedata/runtime/box.cpp includes the widget qlabel.h");
    row("form in document", "document/box.cpp", "#include \"ui_Box.h\"\n",
        "document/box.cpp includes the widget ui_Box.h");
    row("way around the rules", "document/names.h", "#include \"../shell/window.h\"\n",
        "document/names.h includes ../shell/window.h, which isn't there from the project's folder");
    row("angle brackets", "document/names.h", "#include <shell/window.h>\n",
        "document/names.h includes shell/window.h, but document doesn't stand on shell");
    row("no room", "attic/box.h", "", "attic/box.h stands in no room");
    row("own header second", "gamedata/tables.cpp",
        "#include <QFile>\n#include \"gamedata/tables.h\"\n",
        "gamedata/tables.cpp doesn't include gamedata/tables.h first");
    row("own header missing", "gamedata/tables.cpp", "int a;\n",
        "gamedata/tables.cpp doesn't include gamedata/tables.h first");
    row("itself", "document/names.h", "#include \"document/names.h\"\n",
        "document/names.h -> document/names.h");
}

void IncludesTest::aBreakIsFound()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, text);
    QFETCH(QString, fault);
    SourceTree broken = soundTree();
    broken[file] = text;
    QCOMPARE(faultsIn(broken), fault);
}

void IncludesTest::aCircleIsToldOnce()
{
    SourceTree broken = soundTree();
    broken["document/a.h"] = "#include \"document/b.h\"\n";
    broken["document/b.h"] = "#include \"document/record.h\"\n#include \"document/c.h\"\n";
    broken["document/c.h"] = "#include \"document/a.h\"\n";
    broken["document/names.h"] = "#include \"document/c.h\"\n";
    QCOMPARE(faultsIn(broken),
             QStringLiteral("document/a.h -> document/b.h -> document/c.h -> document/a.h"));
}

QTEST_APPLESS_MAIN(IncludesTest)
#include "includes_test.moc"
