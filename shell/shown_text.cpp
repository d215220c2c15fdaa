#include "shell/shown_text.h"

#include <QStringList>
#include <QTextEdit>

#include <algorithm>

namespace {

constexpr int longestLine = 1000;
constexpr int longestWord = 100; // in a tool tip
constexpr int mostLines = 12;    // in a message
constexpr int longestMessage = 900;
constexpr int longestBrokenWord = 2000; // in an editor
constexpr QChar ellipsis(0x2026);
constexpr QChar placeToBreak(0x200B);

bool endsLine(QChar letter)
{
    switch (letter.unicode()) {
    case '\n':
    case '\v':
    case '\f':
    case '\r':
    case 0x85: // next line
    case QChar::ParagraphSeparator:
    case QChar::LineSeparator:
        return true;
    default:
        return false;
    }
}

// Neither half is left of a character that takes two.
QString beginOf(const QString &text, int length)
{
    return text.left(text.at(length).isLowSurrogate() ? length - 1 : length);
}

QString endOf(const QString &text, int length)
{
    const int place = text.size() - length;
    return text.mid(text.at(place).isLowSurrogate() ? place + 1 : place);
}

bool hasWordOf(const QString &text, int length)
{
    int word = 0;
    for (const QChar letter : text) {
        word = letter.isSpace() ? 0 : word + 1;
        if (word >= length)
            return true;
    }
    return false;
}

} // namespace

QString inOneLine(const QString &text)
{
    QString line = text.size() > longestLine ? beginOf(text, longestLine) + ellipsis : text;
    const auto isNoRoom = [](QChar letter) { return letter == '\t' || endsLine(letter); };
    if (std::any_of(line.cbegin(), line.cend(), isNoRoom))
        std::replace_if(line.begin(), line.end(), isNoRoom, QChar(' '));
    return line;
}

QString plainToolTip(const QString &text)
{
    const QString letters = inOneLine(text);
    QString line;
    int word = 0;
    for (const QChar letter : letters) {
        word = letter.isSpace() ? 0 : word + 1;
        if (word > longestWord && !letter.isLowSurrogate()) {
            line += placeToBreak;
            word = 1;
        }
        line += letter;
    }
    return QStringLiteral("<qt>%1</qt>").arg(line.toHtmlEscaped());
}

QString forMessage(const QString &text)
{
    QString shown = text;
    std::replace_if(shown.begin(), shown.end(), endsLine, QChar('\n'));
    QStringList lines = shown.split('\n');
    if (lines.size() > mostLines) {
        const QStringList last = lines.mid(lines.size() - mostLines / 2);
        shown = (lines.mid(0, mostLines / 2) + QStringList{ellipsis} + last).join('\n');
    }
    if (shown.size() > longestMessage)
        shown = beginOf(shown, longestMessage / 2) + ellipsis + endOf(shown, longestMessage / 2);
    return shown;
}

QString headOf(const QString &text, int length)
{
    return text.left(2 * (length + 1));
}

void setEditedText(QTextEdit *edit, const QString &text)
{
    const bool endless = hasWordOf(text, longestBrokenWord);
    edit->setLineWrapMode(endless ? QTextEdit::NoWrap : QTextEdit::WidgetWidth);
    edit->setPlainText(text);
}

void keepWithin(QTextEdit *edit, int length)
{
    const QString text = edit->toPlainText();
    if (text.size() <= length)
        return;
    const bool halved = text[length - 1].isHighSurrogate() && text[length].isLowSurrogate();
    edit->setPlainText(text.left(halved ? length - 1 : length));
    edit->moveCursor(QTextCursor::End);
}
