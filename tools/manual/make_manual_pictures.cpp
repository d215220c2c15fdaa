// Takes the manual's pictures from the running program, on no display:
//     make_manual_pictures SAMPLE_GAME OUT_DIR
// leaves them in OUT_DIR/en and OUT_DIR/ru. A process speaks one language for all its life, so
// each language has one of its own.
#include "tools/manual/manual_scenes.h"

#include <QApplication>
#include <QDir>
#include <QImageWriter>
#include <QLoggingCategory>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdio>

namespace {

constexpr int smallest = 0; // quality of a PNG: how hard it is packed

int failure(const QString &text)
{
    std::fprintf(stderr, "%s\n", qPrintable(text));
    return 1;
}

int takePictures(QApplication *application, const QString &game, const QString &folder,
                 const QString &language)
{
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false")); // the program's traces
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    qputenv("XDG_DATA_HOME", QFile::encodeName(settings.path()));
    if (!QDir().mkpath(folder))
        return failure(QStringLiteral("Cannot make the folder %1.").arg(folder));
    enterManualGame(application, game, language);
    for (const ManualScene &scene : manualScenes()) {
        const ManualWindow opened = scene.open();
        QImageWriter writer(QStringLiteral("%1/%2.png").arg(folder, QLatin1String(scene.name)));
        writer.setQuality(smallest);
        if (!writer.write(pictureOf(opened.window.get())))
            return failure(QStringLiteral("Cannot write %1: %2.")
                               .arg(writer.fileName(), writer.errorString()));
    }
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() == 4)
        return takePictures(&application, arguments[1],
                            arguments[2] + QLatin1Char('/') + arguments[3], arguments[3]);
    if (arguments.size() != 3)
        return failure(QStringLiteral("Usage: make_manual_pictures SAMPLE_GAME OUT_DIR [en|ru]"));
    for (const char *language : {manualEnglish, manualRussian}) {
        const int code =
            QProcess::execute(QApplication::applicationFilePath(),
                              {arguments[1], arguments[2], QString::fromLatin1(language)});
        if (code != 0)
            return failure(QStringLiteral("No pictures in %1.").arg(QLatin1String(language)));
    }
    return 0;
}
