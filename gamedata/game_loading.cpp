#include "gamedata/game_loading.h"

#include "gamedata/editor_data.h"
#include "gamedata/game_files.h"
#include "gamedata/game_language.h"
#include "gamedata/image_cache.h"
#include "gamedata/ini_file.h"

void loadGame()
{
    preloadArchive = new PreloadArchive; // lives to the end of the process, as in the editor
    ini = loadRavnIni();
    loadRavnDat(ini);
    const int language = gameLanguage(*ini);
    EditorData::codec = gameTextCodec(language, *ini);
    EditorData::OpenLods(unsigned(language), EditorData::codec);
}
