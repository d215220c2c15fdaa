#include "document/translation/file_text.h"

#include "gamedata/escaped_utf8.h"

#include <QTextCodec>

QString textOfFile(const QByteArray &bytes)
{
    const QByteArray mark = utf8Mark;
    const QTextCodec *codec = QTextCodec::codecForUtfText(bytes, nullptr);
    if (codec && !bytes.startsWith(mark))
        return codec->toUnicode(bytes);
    const QByteArray utf8 = bytes.startsWith(mark) ? bytes.mid(mark.size()) : bytes;
    QString text = textFromUtf8(utf8);
    if (text.toUtf8() != utf8)
        return {};
    return text.isNull() ? QLatin1String("") : text;
}
