#include "tools/sample_game/game_encoding.h"

#include <QTextCodec>

namespace sample {

QByteArray gameEncoded(const QString &text)
{
    static const QTextCodec *codec = QTextCodec::codecForName("Windows-1252");
    QTextCodec::ConverterState state;
    QByteArray bytes = codec->fromUnicode(text.constData(), text.size(), &state);
    if (state.invalidChars > 0)
        qFatal("\"%s\" can't be written in Windows-1252", qUtf8Printable(text));
    return bytes;
}

} // namespace sample
