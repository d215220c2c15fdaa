// All windows of the editor, opened once on the sample game as they are for its manual, in the
// language that the environment names ("en" or "ru" as CMPED_TEST_LANGUAGE, English if it doesn't).
#pragma once

#include "tools/manual/manual_scenes.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <vector>

class OpenWindows
{
public:
    OpenWindows()
    {
        QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false")); // the program's traces
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_settings.path()));
        enterManualGame(qApp, qEnvironmentVariable("CMPED_SAMPLE_GAME"),
                        qEnvironmentVariable("CMPED_TEST_LANGUAGE", manualEnglish));
    }

    // A new window of this scene, on show.
    static ManualWindow open(int scene)
    {
        ManualWindow opened = manualScenes().at(std::size_t(scene)).open();
        opened.window->show();
        if (!QTest::qWaitForWindowExposed(opened.window.get(), 30000))
            QTest::qFail("The window never came.", __FILE__, __LINE__);
        return opened;
    }

private:
    QTemporaryDir m_settings;
};

// Every window, opened once, for tests that leave them as they are.
class AllWindows
{
public:
    AllWindows()
    {
        for (int scene = 0; scene < int(manualScenes().size()); ++scene)
            m_opened.push_back(OpenWindows::open(scene));
    }

    // The one of the test's row.
    QWidget *ofRow() const
    {
        QFETCH(int, scene);
        return m_opened[std::size_t(scene)].window.get();
    }

    // The editor's own.
    QWidget *mainWindow() const { return m_opened.front().window.get(); }

    void hideDialogs() const
    {
        for (std::size_t dialog = 1; dialog < m_opened.size(); ++dialog)
            m_opened[dialog].window->hide();
    }

private:
    OpenWindows m_game;
    std::vector<ManualWindow> m_opened;
};

// Runs a test on a dense screen as the editor's own start would have it there.
template<typename Test>
int runOnAnyScreen(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, true);
    const QApplication application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

// A row for each scene, its number in the column "scene".
inline void addWindows()
{
    QTest::addColumn<int>("scene");
    int number = 0;
    for (const ManualScene &scene : manualScenes())
        QTest::newRow(scene.name) << number++;
}
