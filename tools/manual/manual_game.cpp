// The way into the game and the way to a picture, for manual_scenes.h.
#include "tools/manual/manual_scenes.h"

#include "gamedata/game_dir.h"
#include "gamedata/game_files.h"
#include "gamedata/image_cache.h"
#include "gamedata/ini_file.h"
#include "shell/dialog_look.h"
#include "shell/editor_resources.h"
#include "shell/fusion_style_tweaks.h"
#include "shell/message_reporter.h"
#include "shell/startup.h"

#include <QApplication>
#include <QFontInfo>

void enterManualGame(QApplication *application, const QString &folder, const QString &language)
{
    setGameRoot(folder);
    initEditorResources();
    reportWithMessageBoxes();
    QApplication::setFont(editorFont());
    QApplication::setStyle(new FusionStyleTweaks); // which the application takes over
    QApplication::setCursorFlashTime(0);
    preloadArchive = new PreloadArchive; // these two live to the end of the process
    ini = loadRavnIni();
    const bool inRussian = language == QLatin1String(manualRussian);
    ini->SetStringVal("Global Settings", "Language", inRussian ? "1" : "0");
    loadRavnDat(ini);
    loadTranslations(application);
    preloadArchive->preloadPcxImage16(QStringLiteral("cmpdash.pcx"));
}

QImage pictureOf(QWidget *window)
{
    window->show();
    QCoreApplication::processEvents();
    if (QWidget *focused = window->focusWidget())
        focused->clearFocus();
    QCoreApplication::processEvents();
    QImage picture = window->grab().toImage().convertToFormat(QImage::Format_RGB32);
    picture.setText(QLatin1String(manualFontKey), manualFont());
    return picture;
}

QString manualFont()
{
    const QFontInfo font(QApplication::font());
    return QStringLiteral("%1, %2 pixels").arg(font.family()).arg(font.pixelSize());
}
