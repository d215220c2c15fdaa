// All windows of the editor, opened once on the sample game as they are for its manual, in the
// language that the environment names ("en" or "ru" as CMPED_TEST_LANGUAGE, English if it doesn't).
#pragma once

#include "tools/manual/manual_scenes.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

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

// A row for each scene, its number in the column "scene".
inline void addWindows()
{
    QTest::addColumn<int>("scene");
    int number = 0;
    for (const ManualScene &scene : manualScenes())
        QTest::newRow(scene.name) << number++;
}
