// Helpers for the texts and bit masks of the game's files. Texts are bytes with a zero at the end.
#pragma once

#include "gamedata/runtime/t_stream.h"
#include "gamedata/runtime/t_string.h"

#include <functional>
#include <string>
#include <vector>

// The editor's version, "1.4.2", once Get_Ravn_Version_Text was called.
extern char Ravn_Version_Text[16];
char *Get_Ravn_Version_Text();

// Splits a text into items, one a line or a pair of quotes:
//   - line feed and carriage return end an item, outside quotes;
//   - "#" outside quotes ends an item and starts a comment up to the end of the line;
//   - quotes hold one item, which may span lines; a doubled quote stands for one character;
//   - a pair of quotes alone on its line is no item, and neither is an empty line.
// Items are appended to `out`, each a new buffer owned by the caller (delete[]). With `clear` the
// vector is emptied first; the buffers it held stay with their owner.
std::vector<char *> &ParseToStringList(std::vector<char *> &out, char *text, bool clear);

// Calls back for each line that isn't empty, with its number among those from 0.
void ParseNamesArray(TString &text, const std::function<void(TString &, int)> &callback);

// The numbers of a text, parted by blanks and line ends, each as 4 bytes in the machine's order;
// "#" starts a comment up to the end of the line. The caller frees the stream, which stands at
// its start.
TMemoryStream *ConvertStrToDwords(char *text);

// Keeps the digits, with the hexadecimal letters if the flag is set and the minus signs if it
// isn't. "0" if nothing is left.
std::string ClearToNum(const std::string &text, bool hexadecimal);
std::string ClearToNum(const std::string &text, int hexadecimal);

// The number at the start of a text, behind blanks. 0 without one; a number out of the range of
// int becomes the nearest one inside.
int StrToInt(const char *text);

// Puts a new copy of the text into the slot, owned by the caller (delete[]). What the slot held
// before is not freed.
void SetPointToString(char *&slot, const TString &text);
void SetPointToString(char *&slot, const char *text);

// 1 if the character at the index is one of the set, which includes the zero at its end. The
// index lies inside the text or on its end.
int IsDelimiter(const char *set, const char *text, int index);

// What stands behind the last slash or backslash, inside the same buffer.
char *GetShortFileName(char *path);

// 1 if no character is forbidden in a file's name.
int IsFileNameValid(const char *name);

// The nearest multiple of 4 that isn't closer to zero, if int has it.
int SizeToDword(int size);

// Copy `bits` bits, the least significant first, between bytes and 32-bit words, after
// `clearBytes` bytes of the target were set to zero.
void Bitmsk_ByteToDword(unsigned char *source, unsigned *target, int clearBytes, int bits);
void Bitmsk_DwordToByte(unsigned *source, unsigned char *target, int clearBytes, int bits);
