#include "gamedata/program_translation.h"

#include "gamedata/game_dir.h"

#include <QCoreApplication>
#include <QTranslator>

#include <algorithm>
#include <array>

// CMPED_DATA_FROM_BIN is the way from the installed programs to what they share.
bool loadTranslation(QTranslator &translator, const QString &file)
{
    const std::array<QString, 2> folders{
        gameRoot() + QStringLiteral("/Ravn_Data/"),
        QCoreApplication::applicationDirPath() + QStringLiteral("/" CMPED_DATA_FROM_BIN "/"),
    };
    return std::any_of(folders.begin(), folders.end(),
                       [&](const QString &folder) { return translator.load(folder + file); });
}
