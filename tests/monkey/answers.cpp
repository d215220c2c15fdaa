#include "tests/monkey/answers.h"

#include "tests/monkey/hands.h"

#include <QAbstractButton>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>

namespace {

// A dialog that stays, because it went into a folder or told that there is no such file, is
// answered again so many times.
constexpr int mostTries = 3;
constexpr const char *triesProperty = "monkeyTries";

FileKind kindAskedFor(const QFileDialog *dialog)
{
    const QString filter = dialog->nameFilters().value(0);
    if (filter.contains(QLatin1String("*.e3m")))
        return FileKind::Map;
    return filter.contains(QLatin1String("*.txt")) ? FileKind::Text : FileKind::Campaign;
}

// Translators' files come back cut off, or with a line too many.
void spoilText(const QString &path, Dice &dice)
{
    constexpr qint64 largest = 1000000;
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > largest || !file.open(QIODevice::ReadOnly))
        return;
    QByteArray bytes = file.readAll();
    file.close();
    if (dice.chance(0.5))
        bytes.truncate(dice.below(bytes.size() + 1));
    else
        bytes.insert(dice.below(bytes.size() + 1), "one more line\r\n");
    if (file.open(QIODevice::WriteOnly))
        file.write(bytes);
}

} // namespace

void answerBox(QMessageBox *box, Dice &dice, Journal &journal)
{
    const QString text = box->text().simplified();
    if (dice.chance(0.15)) {
        journal.step(QStringLiteral("Escape at the box \"%1\"").arg(text));
        hands::key(box, Qt::Key_Escape);
        return;
    }
    QAbstractButton *button = dice.pick(box->buttons());
    journal.step(QStringLiteral("%1 at the box \"%2\"").arg(button->text(), text));
    hands::click(button, button->rect().center());
}

void answerFileDialog(QFileDialog *dialog, const PrivateGame &game, Dice &dice, Journal &journal)
{
    const int tries = dialog->property(triesProperty).toInt();
    dialog->setProperty(triesProperty, tries + 1);
    if (tries >= mostTries || dice.chance(0.08)) {
        journal.step(QStringLiteral("Escape at the file dialog"));
        hands::key(dialog, Qt::Key_Escape);
        return;
    }
    const FileKind kind = kindAskedFor(dialog);
    const bool saves = dialog->acceptMode() == QFileDialog::AcceptSave;
    const QString path = saves ? game.fileToSave(dice, kind) : game.fileToOpen(dice, kind);
    journal.step(QStringLiteral("%1 %2").arg(saves ? "save to" : "open", path));
    if (!saves && kind == FileKind::Text && dice.chance(0.3))
        spoilText(path, dice);
    dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(path);
    hands::key(dialog, Qt::Key_Return);
}
