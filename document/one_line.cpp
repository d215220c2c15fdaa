#include "document/one_line.h"

#include "gamedata/escaped_utf8.h"

namespace {

constexpr int longest = 100;

bool showsAsItIs(const QString &text, int i)
{
    if (text[i].isSurrogate())
        return !isHalfCharacter(text, i);
    const QChar::Category category = text[i].category();
    return category != QChar::Other_Control && category != QChar::Separator_Line &&
           category != QChar::Separator_Paragraph && category != QChar::Other_NotAssigned;
}

} // namespace

QString oneLine(const QString &text)
{
    QString line;
    for (int i = 0; i < text.size() && i < longest; ++i)
        line += showsAsItIs(text, i) ? text[i] : QChar('?');
    if (text.size() <= longest)
        return line;
    if (line.at(line.size() - 1).isHighSurrogate())
        line.chop(1);
    return line + QStringLiteral("...");
}
