#include "gamedata/game_files.h"

#include "gamedata/game_dir.h"
#include "gamedata/limits.h"
#include "gamedata/report.h"
#include "gamedata/runtime/dat_file.h"

void loadRavnDat(_Ini_ *)
{
    const std::wstring path = (gameRoot() + QLatin1String("/ravn.dat")).toStdWString();
    const TStreamPtr<TFileStream> stream(TFileStream::Create(path.c_str(), 0));
    if (!stream)
        endWithMessage(mainWindowText(QT_TRANSLATE_NOOP(
            "MainWindow", "Campaign Editor cannot be launched because Ravn.dat was not found. "
                          "\nRavn.dat must be in Eldmark root folder.")));
    RADF = TDatFile::Create();
    RADF->Load(stream.get(), static_cast<int>(limits::tableFileBytes));
}
