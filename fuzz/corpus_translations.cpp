// Seeds of translators' files. The first byte chooses the format.
#include "fuzz/corpus.h"

namespace corpus {

namespace {

enum Format : char
{
    Po = 0,
    Xliff = 1,
    Csv = 2,
    ForcedPo = 6,       // what has changed is taken too
    PoOfWindows = 9,    // for a campaign in Windows-1252
    CsvOfShiftJis = 20, // and one in Shift_JIS
};

QByteArray po(const QByteArray &id, const QByteArray &source, const QByteArray &translation)
{
    return "#. Somewhere\nmsgctxt \"" + id + "\"\nmsgid \"" + source + "\"\nmsgstr \"" +
           translation + "\"\n\n";
}

QByteArray xliff(const QByteArray &units)
{
    return "<?xml version=\"1.0\"?><xliff version=\"1.2\"><file><body>" + units +
           "</body></file></xliff>";
}

QByteArray unit(const QByteArray &id, const QByteArray &source, const QByteArray &target)
{
    return "<trans-unit id=\"" + id + "\"><source>" + source + "</source>" + target +
           "<note>n</note></trans-unit>";
}

constexpr char columns[] = "id,context,source,translation\r\n";

} // namespace

std::vector<File> translations()
{
    const QByteArray header = "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"\n";
    const QByteArray name = po("campaign.name", "Ash", "Esche");
    const QByteArray region = "scenario.1.region.text";
    const QByteArray story = "scenario.1.prologue.2";
    return {
        {"po", char(Po) + header + name + po(region, "Fen\\nMoor", "Ried") +
                   po(story, "Once\\nupon", "Es\\n\"\n\"war")},
        {"po_fuzzy", char(Po) + QByteArray("#, fuzzy, x\n#| msgid \"o\"\n#~ msgid \"o\"\n") + name},
        {"po_escapes", char(Po) + po("campaign.name", "Ash", "\\303\\251\\xc3\\xa9\\t\\\\\\\"")},
        {"po_control", char(Po) + po("campaign.name", "Ash", "\\a\\b\\f\\v\\r\\?")},
        {"po_ts_id",
         char(Po) + QByteArray("#. ts-id campaign.name\nmsgid \"Ash\"\nmsgstr \"E\"\n")},
        {"po_no_text", char(Po) + po("campaign.name", "Ash", "\\355\\262\\200")},
        {"po_charset", char(Po) + QByteArray("msgid \"\"\nmsgstr \"charset=KOI8-R\\n\"\n")},
        {"po_twice", char(Po) + name + name},
        {"po_plural", char(Po) + QByteArray("msgid \"a\"\nmsgid_plural \"b\"\nmsgstr[0] \"c\"\n")},
        {"po_no_msgstr", char(Po) + QByteArray("msgctxt \"a\"\nmsgid \"a\"")},
        {"po_no_msgid", char(Po) + QByteArray("msgctxt \"a\"")},
        {"po_bad_escape", char(Po) + QByteArray("msgid \"\\777\"")},
        {"po_forced", char(ForcedPo) + po("campaign.name", "Oak", "Eiche")},
        {"po_changed", char(Po) + po("campaign.name", "Oak", "Eiche")},
        {"po_too_long", char(Po) + po("campaign.name", "Ash", QByteArray(61, 'x'))},
        {"po_missing", char(Po) + po("campaign.name", "Ash", "")},
        {"po_unknown", char(Po) + name + po("scenario.9.epilogue.1", "x", "y")},
        {"po_lost", char(PoOfWindows) + po("campaign.name", "Ash", "\xd0\x96")},
        {"xliff", char(Xliff) + xliff(unit("campaign.name", "Ash", "<target>Esche</target>") +
                                      unit(region, "Fen\nMoor", "<target>Ried</target>") +
                                      unit(story, "Once\nupon", ""))},
        {"xliff_states",
         char(Xliff) + xliff(unit("campaign.name", "Ash", "<target state=\"needs-x\">E</target>") +
                             unit(region, "x", "<target state=\"new\"/>"))},
        {"xliff_marks",
         char(Xliff) + xliff(unit("campaign.name", "<g id='1'>A</g><mrk>s</mrk><![CDATA[h]]>",
                                  "<target>a<ph ctype=\"x-ch-r\">r</ph><ph ctype='x-ch-n'/>"
                                  "<ph ctype='x-ch-t'/>&#233;&amp;</target>"))},
        {"xliff_gettext",
         char(Xliff) + xliff(unit("_1", "Ash",
                                  "<context-group><context context-type=\"x-gettext-msgctxt\">"
                                  "campaign.name</context></context-group><target>E</target>"))},
        {"xliff_other_element", char(Xliff) + xliff(unit("a", "b<x/>", ""))},
        {"xliff_other_ph", char(Xliff) + xliff(unit("a", "b<ph/>", ""))},
        {"xliff_version", char(Xliff) + QByteArray("<xliff version=\"2.0\"/>")},
        {"xliff_doctype", char(Xliff) + QByteArray("<!-- c --><!DOCTYPE x>") + xliff("")},
        {"xliff_entity", char(Xliff) + xliff(unit("a", "&b;", ""))},
        {"xliff_deep", char(Xliff) + xliff(QByteArray("<a>").repeated(70))},
        {"xliff_attributes", char(Xliff) + xliff("<a" + QByteArray(" b=''").repeated(210) + "/>")},
        {"xliff_other_root", char(Xliff) + QByteArray("<TS/>")},
        {"xliff_bytes", char(Xliff) + xliff("\xff")},
        {"csv", char(Csv) + QByteArray("\xef\xbb\xbf") + columns +
                    "campaign.name,c,Ash,Esche\r\n\"" + region +
                    "\",,\"Fen\nMoor\",\"\"\"Ried\"\"\r\n\"\r\n"},
        {"csv_semicolons", char(Csv) + QByteArray("sep=;\r\nsource;translation;id\nAsh;E;"
                                                  "campaign.name\n\n")},
        {"csv_tabs", char(Csv) + QByteArray("id\tsource\ttranslation\rcampaign.name\tAsh\tE")},
        {"csv_open", char(Csv) + QByteArray(columns) + "a,b,\"c\n"},
        {"csv_behind", char(Csv) + QByteArray(columns) + "a,\"b\"c\n"},
        {"csv_no_columns", char(Csv) + QByteArray("a,b\n")},
        {"csv_bytes", char(Csv) + QByteArray("\xff")},
        {"csv_utf16", char(Csv) + QByteArray("\xff\xfei\0d\0,\0", 8)},
        {"csv_shift_jis", char(CsvOfShiftJis) + QByteArray(columns) + "campaign.name,,Ash,~\\\r\n"},
        {"empty", {}},
    };
}

} // namespace corpus
