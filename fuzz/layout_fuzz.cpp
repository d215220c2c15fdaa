// Takes the input as the text of everything that the campaign tables read: layouts of maps, lists
// of backgrounds, pictures, music and videos, and the texts of the editor itself.
#include "fuzz/made_tables.h"
#include "fuzz/quiet_start.h"
#include "fuzz/time_limit.h"
#include "gamedata/editor_data.h"

#include <QTextCodec>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

// The second map has a number that no table has room for.
std::vector<MadeEntry> entries()
{
    return {{"campmap3", {0, 1, 8}}, {"campmap99999", {0, 1, 8}},
            {"cmpbackground", {8}},  {"cmpmoviepic", {8}},
            {"music", {8}},          {"video1", {4}}};
}

void clearTables()
{
    EditorData::campaignInfo.clear();
    EditorData::backgrounds.clear();
    EditorData::colors.clear();
    EditorData::movieImages.clear();
    EditorData::musicNames.clear();
    EditorData::videoNames.clear();
    EditorData::editorText.clear();
    EditorData::editorCmdText.clear();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QuietStart start;
    const TimeLimit limit;
    static QTextCodec *const codec = QTextCodec::codecForName("Windows-1251");
    static MadeTables tables(entries());
    tables.fill(QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(size)));
    EditorData::initCampaignInfo(codec);
    EditorData::readColors(codec);
    for (const auto &[number, map] : EditorData::campaignInfo) {
        if (number != 3 || map.regionCount != map.regions.size())
            abort(); // whoever walks the regions by their count would leave the list
    }
    clearTables(); // what stayed would look like a leak
    return 0;
}
