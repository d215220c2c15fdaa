#include "gamedata/game_language.h"

#include "gamedata/ini_file.h"
#include "gamedata/report.h"

#include <QTextCodec>

#include <algorithm>
#include <array>

namespace {

struct LanguageRow
{
    int number;
    const char *translation;   // of the editor
    const char *qtTranslation; // of Qt's own texts, null if it needs none
    const char *codec;         // null: the settings file names it
};

constexpr std::array<LanguageRow, 4> languages{{
    {-1, "cmp_en.qm", nullptr, "Windows-1251"},
    {0, "cmp_en.qm", nullptr, "Windows-1252"},
    {1, "cmp_ru.qm", "qtbase_ru.qm", "Windows-1251"},
    {2, "cmp_en.qm", nullptr, nullptr},
}};

constexpr LanguageRow otherLanguage{0, nullptr, nullptr, nullptr};

const LanguageRow &rowOf(int language)
{
    const auto row =
        std::find_if(languages.begin(), languages.end(),
                     [language](const auto &entry) { return entry.number == language; });
    return row == languages.end() ? otherLanguage : *row;
}

} // namespace

int gameLanguage(const _Ini_ &settings)
{
    return settings.GetIntVal("Global Settings", "Language", -1);
}

QStringList translationFiles(int language)
{
    const LanguageRow &row = rowOf(language);
    QStringList files;
    for (const char *file : {row.translation, row.qtTranslation}) {
        if (file)
            files.append(QString::fromLatin1(file));
    }
    return files;
}

QTextCodec *gameTextCodec(int language, const _Ini_ &settings)
{
    QByteArray name = rowOf(language).codec;
    if (name.isEmpty())
        name = settings.GetStringVal("Global Settings", "Ravn.dat Text Encoding", "");
    if (name.isEmpty())
        name = "Windows-1252";
    QTextCodec *codec = QTextCodec::codecForName(name);
    if (!codec) {
        // Neither is translated: the language is what could not be settled.
        reportError(QStringLiteral("Error"),
                    QStringLiteral("Error in Ravn_Settings.ini: field "
                                   "\"Ravn.dat Text Encoding\" is invalid."));
        endSilently(1);
    }
    return codec;
}
