#include "launcher/game_dialog.h"

#include "gamedata/game_search.h"
#include "gamedata/program_translation.h"
#include "shell/warning_box.h"

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QLabel>
#include <QLayout>
#include <QLocale>
#include <QTranslator>

#include <array>

namespace {

constexpr int margin = 9; // around the text, in pixels

QString question(const QString &lost)
{
    const QString wanted = GameDialog::tr(
        "Where is the game Eldmark Saga with its add-on Ravn? Choose its folder: the "
        "one with ravn.dat, Ravn_settings.ini and the folder Data.");
    return lost.isEmpty()
               ? wanted
               : GameDialog::tr("The game isn't in this folder any more:\n%1").arg(lost) +
                     QStringLiteral("\n\n") + wanted;
}

// Where it was, or as near to that as there still is a folder.
QString startFolder(const QString &lost)
{
    if (lost.isEmpty())
        return QDir::homePath();
    QString folder = lost;
    while (!QDir(folder).exists())
        folder = QFileInfo(folder).path();
    return folder;
}

// In Russian where the system is; the game's own settings, which say it otherwise, aren't found
// yet.
void translate(std::array<QTranslator, 2> &translators)
{
    if (QLocale::system().language() != QLocale::Russian)
        return;
    loadTranslation(translators[0], QStringLiteral("cmp_ru.qm"));
    loadTranslation(translators[1], QStringLiteral("qtbase_ru.qm"));
    for (QTranslator &translator : translators)
        QCoreApplication::installTranslator(&translator);
}

} // namespace

// Qt's own dialog, since those of desktops have no place for the text.
GameDialog::GameDialog(const QString &lost, const QString &start)
{
    setObjectName(QStringLiteral("gameDialog"));
    setWindowTitle(tr("Folder of the Game"));
    setFileMode(QFileDialog::Directory);
    setOption(QFileDialog::DontUseNativeDialog);
    setLabelText(QFileDialog::Accept, tr("Choose"));
    setDirectory(start);

    auto *text = new QLabel(question(lost));
    text->setObjectName(QStringLiteral("question"));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setMargin(margin);
    layout()->setMenuBar(text); // above all the rest
}

QString GameDialog::folder() const
{
    return selectedFiles().value(0);
}

// A new dialog each time: one that was refused would keep the refused folder among those chosen.
std::optional<QString> askForGame(const QString &lost)
{
    QString start = startFolder(lost);
    for (;;) {
        GameDialog dialog(lost, start);
        if (dialog.exec() != QDialog::Accepted)
            return std::nullopt;
        start = dialog.folder();
        const QStringList missing = missingGameFiles(start);
        if (missing.isEmpty())
            return start;
        warn(nullptr, GameDialog::tr("Not the Game's Folder"),
             GameDialog::tr("This is not the game's folder:\n%1\n\nIt lacks: %2")
                 .arg(start, missing.join(QStringLiteral(", "))));
    }
}

std::optional<QString> askForGameFirst(std::vector<char *> arguments, const QString &lost)
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    int count = int(arguments.size());
    arguments.push_back(nullptr); // as main's own list ends
    const QApplication application(count, arguments.data());
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("cmped")));
    std::array<QTranslator, 2> translators;
    translate(translators);
    return askForGame(lost);
}
