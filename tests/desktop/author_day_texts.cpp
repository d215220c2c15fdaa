// The day's sixth part: the texts go to a translator and come back.
#include "tests/desktop/author_day.h"
#include "tests/desktop/controls.h"
#include "tests/desktop/failure.h"
#include "tests/desktop/files.h"
#include "tests/desktop/windows.h"

#include <QFile>

#include <utility>

namespace {

// What the translator makes of the lines. The first two are filled in behind their captions.
constexpr std::pair<const char *, const char *> translations[] = {
    {"Name:\n", "Name:\nПлата за переправу"},
    {"Description:\n", "Description:\nШесть пристаней, одна корона.\tПаромы назад не ходят."},
    {"Hold the landing.\tTrust nobody who offers a lantern.",
     "Удержите пристань.\tНе верьте тем, кто предлагает фонарь."},
    {"Pay, or swim (10% off on Mondays).", "Платите или плывите (по понедельникам скидка 10%)."},
    {"The pond talks; don't answer.", "Пруд говорит; не отвечайте."},
    {"\"Regent\" is a heavy word.", "«Регент» — тяжёлое слово."},
    {"Seven locks & one key.", "Семь замков и один ключ."},
    {"The fleet waits for wind.", "Флот ждёт ветра."},
    {"The throne stands empty.\tSo do the ferries.", "Трон пуст.\tПусты и паромы."},
    {"You could have had the lantern brothers.", "С вами могли бы пойти братья-фонарщики."},
    {"A market! In this weather?", "Рынок! В такую погоду?"},
    {"The reeds are cut, and so is the rope.", "Камыш срезан, и канат тоже."},
    {"The brothers sing all night.", "Братья поют всю ночь."},
    {"The miller is not at home.", "Мельника нет дома."},
    {"Seven loads of timber, and no mill.", "Семь возов леса, а мельницы нет."},
    {"The queen pays the toll.", "Королева платит за переправу."},
};

// With the line ends of the exchange files.
QByteArray document(const Workplace &place, const QString &name)
{
    QByteArray text = contentOf(place.parts().documents + '/' + name);
    return text.replace("\n", "\r\n");
}

void exportTheTexts(Workplace &place)
{
    chooseFromMenu(place.editor(), "File", "Export Texts...");
    answerFileDialog(place.editor(), place.file("ferry toll.txt"), "MainWindow");
    waitForFile(place.editor(), place.file("ferry toll.txt"),
                document(place, "exported_texts.txt"));
}

// The translator's editor leaves lines that end as its own system has it.
void translateThem(Workplace &place)
{
    QByteArray text = contentOf(place.file("ferry toll.txt"));
    text.replace("\r\n", "\n");
    for (const auto &[from, to] : translations) {
        const QByteArray line = QByteArray(from) + '\n';
        if (text.count(line) != 1)
            throw Failure("a line to translate: " + line, text);
        text.replace(line, QByteArray(to) + '\n');
    }
    QFile file(place.file("ferry toll ru.txt"));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        throw Failure("the translation is written", file.errorString());
}

void importThem(Workplace &place)
{
    Editor &editor = place.editor();
    chooseFromMenu(editor, "File", "Import Texts...");
    answerFileDialog(editor, place.file("ferry toll ru.txt"), "MainWindow");
    waitForTitle(editor, "ferry toll.e3c* - Eldmark Saga Campaign Editor");
}

void saveTheTranslation(Workplace &place)
{
    Editor &editor = place.editor();
    editor.screen().press("ctrl+s");
    waitForTitle(editor, "ferry toll.e3c - Eldmark Saga Campaign Editor");
    checkSavedCampaign(place, "ferry toll.e3c", "translated.json");
}

} // namespace

Steps translateTexts()
{
    return {{"the texts exported", exportTheTexts},
            {"the texts translated, outside", translateThem},
            {"the texts imported", importThem},
            {"saved, and the file holds the translation", saveTheTranslation}};
}
