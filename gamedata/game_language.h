// What the setting "Language" stands for: the translations of the editor and the encoding of the
// game's own texts. The two are chosen independently of each other: no setting at all gives the
// English editor with the Cyrillic code page.
#pragma once

#include <QString>
#include <QStringList>

class QTextCodec;
class _Ini_;

// The number under "Global Settings", -1 if there is none.
int gameLanguage(const _Ini_ &settings);

// Translation files in Ravn_Data, in the order of their translators: none, one or two.
QStringList translationFiles(int language);

// The codec of the game's texts. A setting that names no known codec ends the process with a
// message.
QTextCodec *gameTextCodec(int language, const _Ini_ &settings);
