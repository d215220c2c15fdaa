#include "shell/startup.h"

#include "gamedata/editor_data.h"
#include "gamedata/game_language.h"
#include "gamedata/ini_file.h"
#include "gamedata/program_translation.h"

#include <QApplication>
#include <QTextCodec>
#include <QTranslator>

namespace {

constexpr int russian = 1;
constexpr int translatorCount = 2;

} // namespace

QString getSystemPath()
{
    return {};
}

// A translator without a file is installed as well; it translates nothing.
void loadTranslations(QApplication *application)
{
    const int language = gameLanguage(*ini);
    const QStringList files = translationFiles(language);
    for (int i = 0; i < translatorCount; ++i) {
        auto *translator = new QTranslator(application);
        if (i < files.size())
            (void)loadTranslation(*translator, files[i]);
        QCoreApplication::installTranslator(translator);
    }
    EditorData::codec = gameTextCodec(language, *ini);
    EditorData::OpenLods(unsigned(language), EditorData::codec);
}

QPixmap splashPicture()
{
    const bool inRussian = gameLanguage(*ini) == russian;
    return QPixmap(inRussian ? QStringLiteral(":/icons/ravn_cmped_ru.png")
                             : QStringLiteral(":/icons/ravn_cmped_en.png"));
}
