// What stands under the name of a file and is none: nobody waits at it, nothing is read from it
// and nothing written to it.
#include "gamedata/locale_codec.h"
#include "tests/shell/exchange_window.h"
#include "tests/support/child_process.h"
#include "tests/support/idle_pipe.h"
#include "tests/support/terminal.h"

#include <QDragEnterEvent>
#include <QMimeData>

#include <optional>

class NoFilesTest : public QObject, private ExchangeWindow
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(setLocaleCodec(QString())); }
    void init();
    void cleanup();

    void windowRefusesThem_data() { addKinds(); }
    void windowRefusesThem();
    void windowExportsOntoNone_data() { addKinds(); }
    void windowExportsOntoNone();
    void commandRefusesThem_data() { addKinds(); }
    void commandRefusesThem();
    void commandExportsOntoNone_data() { addKinds(); }
    void commandExportsOntoNone();
    void devicesAreNoCampaigns_data();
    void devicesAreNoCampaigns();
    void endlessDeviceIsNoFileOfTexts();

private:
    static void addKinds();
    // Puts the row's kind where the map of the first region would be.
    void placeIt();
    // What is told of the row's kind as a map of the campaign: that of a link which leads out of
    // the folder, or else this.
    QString asMap(const QString &otherwise) const;
    // The error of a command that has to fail so.
    QString errorOf(const QStringList &words) const;

    QString m_place;
    std::optional<IdlePipe> m_pipe;
    Terminal m_terminal;
};

namespace {

constexpr char pipeKind[] = "pipe";
constexpr char folderKind[] = "folder";
// Of all devices the one that takes no harm from a program that does write to it.
constexpr char terminalKind[] = "terminal";

} // namespace

void NoFilesTest::addKinds()
{
    QTest::addColumn<QString>("kind"); // or the target of a link
    QTest::addColumn<QString>("unread");
    QTest::addColumn<QString>("unwritten");
    const QString notRegular = "Not a regular file";
    const QString missing = "No such file or directory";
    QTest::newRow("a pipe") << pipeKind << notRegular << notRegular;
    QTest::newRow("a terminal") << terminalKind << notRegular << notRegular;
    QTest::newRow("a folder") << folderKind << "file to open is a directory"
                              << "Is a directory";
    QTest::newRow("a link to nowhere") << "/no/such/place" << missing << missing;
}

void NoFilesTest::init()
{
    reset();
    m_place = path("one.e3m");
}

void NoFilesTest::cleanup()
{
    if (m_pipe)
        QVERIFY(!m_pipe->wasOpened());
    m_pipe.reset();
    m_terminal.close();
    window.reset();
}

void NoFilesTest::placeIt()
{
    QFETCH(QString, kind);
    if (kind == folderKind)
        QVERIFY(QDir(folder->path()).mkdir("one.e3m"));
    else if (kind == terminalKind)
        QVERIFY(m_terminal.open() && QFile::link(m_terminal.name(), m_place));
    else if (kind == pipeKind)
        QVERIFY(m_pipe.emplace(m_place).isMade());
    else
        QVERIFY(QFile::link(kind, m_place));
}

QString NoFilesTest::asMap(const QString &otherwise) const
{
    return QFileInfo(m_place).isSymLink() ? "Too many levels of symbolic links" : otherwise;
}

QString NoFilesTest::errorOf(const QStringList &words) const
{
    const QStringList all = QStringList{"--game", fixture.game.path()} + words;
    const ChildResult result = runChild(builtProgram("cmped-cli"), all);
    return result.exitCode == 2 ? QString::fromUtf8(result.error) : "not failed";
}

// From the list of recent files, by a drop and as an argument alike.
void NoFilesTest::windowRefusesThem()
{
    QFETCH(QString, unread);
    load();
    placeIt();
    const ExpectedBox told = warning("Cannot read file " + m_place + ":\n" + unread + ".");
    {
        NextDialog box(withoutHourglass(told));
        window->loadFile(m_place);
    }
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(m_place)});
    QVERIFY(show(*window));
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(window.get(), &enter);
    NextDialog box(withoutHourglass(told));
    QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(window.get(), &event);
    QCOMPARE(window->windowTitle(), "home.e3c - " + appTitle);
}

// Which tells nothing but that a link leads out, and goes on with the next map.
void NoFilesTest::windowExportsOntoNone()
{
    load();
    placeIt();
    std::optional<NextDialog> box;
    if (QFileInfo(m_place).isSymLink())
        box.emplace(withoutHourglass(
            warning("Cannot write file " + m_place + ":\n" + asMap(QString()) + '.')));
    trigger("actionExport_Scenario_Maps");
    QVERIFY(!QFileInfo(m_place).isFile());
    QVERIFY(contents(path("three.e3m")) == mapNamed("Stonegate"));
}

void NoFilesTest::commandRefusesThem()
{
    QFETCH(QString, unread);
    placeIt();
    const QString home = path("home.e3c");
    const QString out = path("out");
    const QString text = "Error: Cannot read file %1:\n%2.\n";
    const QList<QStringList> commands{
        {"dump", m_place},
        {"resave", m_place, out},
        {"export-texts", m_place, out},
        {"import-texts", m_place, home, out},
        {"export-maps", m_place, folder->path()},
        {"refresh-maps", m_place, folder->path(), out},
        {"render", m_place, out},
    };
    for (const QStringList &words : commands)
        QCOMPARE(errorOf(words), text.arg(m_place, unread));
    QCOMPARE(errorOf({"refresh-maps", home, folder->path(), out}),
             text.arg("one.e3m", asMap(unread)));
    QVERIFY(!QFile::exists(out));
}

void NoFilesTest::commandExportsOntoNone()
{
    QFETCH(QString, unwritten);
    placeIt();
    const QString home = path("home.e3c");
    const QString text = "Error: Cannot write file " + m_place + ":\n%1.\n";
    const QList<QStringList> commands{
        {"resave", home, m_place},
        {"export-texts", home, m_place},
        {"render", home, m_place},
        {"extract", "plainone.pcx", m_place},
    };
    for (const QStringList &words : commands)
        QCOMPARE(errorOf(words), text.arg(unwritten));
    QCOMPARE(errorOf({"export-maps", home, folder->path()}), text.arg(asMap(unwritten)));
    QVERIFY(!QFileInfo(m_place).isFile());
    QVERIFY(contents(path("three.e3m")) == mapNamed("Stonegate"));
}

void NoFilesTest::devicesAreNoCampaigns_data()
{
    QTest::addColumn<QString>("device");
    QTest::newRow("without end") << "/dev/zero";
    QTest::newRow("empty") << "/dev/null";
}

void NoFilesTest::devicesAreNoCampaigns()
{
    QFETCH(QString, device);
    const QString text = "Cannot read file " + device + ":\nNot a regular file.";
    {
        NextDialog box(withoutHourglass(warning(text)));
        window->loadFile(device);
    }
    QCOMPARE(errorOf({"dump", device}), "Error: " + text + '\n');
}

// Texts may come from a pipe, and so from a device, but not without end.
void NoFilesTest::endlessDeviceIsNoFileOfTexts()
{
    QCOMPARE(errorOf({"import-texts", path("home.e3c"), "/dev/zero", path("out")}),
             QString("Error: Cannot read file /dev/zero - incorrect campaign text:\n"
                     "Unknown error.\n"));
    QVERIFY(!QFile::exists(path("out")));
}

QTEST_MAIN(NoFilesTest)
#include "no_files_test.moc"
