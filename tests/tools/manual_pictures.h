// Holds the manual's pictures in one language against the windows of the program.
#pragma once

#include "tools/manual/manual_scenes.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

// Enters the sample game. What the windows remember goes to a folder of its own.
class ManualFixture
{
public:
    explicit ManualFixture(const char *language)
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_settings.path()));
        enterManualGame(qApp, qEnvironmentVariable("CMPED_SAMPLE_GAME"),
                        QString::fromLatin1(language));
    }

private:
    QTemporaryDir m_settings;
};

inline QString pictureFile(const char *language, const char *scene)
{
    return QStringLiteral(CMPED_SOURCE_DIR "/docs/manual/%1/%2.png")
        .arg(QLatin1String(language), QLatin1String(scene));
}

inline void addScenes()
{
    QTest::addColumn<int>("scene");
    int number = 0;
    for (const ManualScene &scene : manualScenes())
        QTest::newRow(scene.name) << number++;
}

// A window of another size has changed, and its picture shows what was before. In a font other
// than the picture's a window has a size of its own: then a fifth more or less passes, which the
// fonts in use differ by at the same height.
inline void compareSize(const char *language, const ManualScene &scene)
{
    const QImage picture(pictureFile(language, scene.name));
    QVERIFY2(!picture.isNull(), scene.name);
    const QString font = picture.text(QLatin1String(manualFontKey));
    QVERIFY(!font.isEmpty());
    const ManualWindow opened = scene.open();
    const QSize now = pictureOf(opened.window.get()).size();
    if (font == manualFont()) {
        QCOMPARE(picture.size(), now);
        return;
    }
    QVERIFY2(qAbs(picture.width() - now.width()) * 5 <= now.width(), qPrintable(font));
    QVERIFY2(qAbs(picture.height() - now.height()) * 5 <= now.height(), qPrintable(font));
}
