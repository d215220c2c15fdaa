#include "gamedata/runtime/text_tools.h"

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>

char Ravn_Version_Text[16];

namespace {

bool isLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

// Takes a text apart for ParseToStringList.
class ItemParser
{
public:
    ItemParser(std::vector<char *> &items, const char *text) : m_items(items), m_next(text) {}

    void run()
    {
        while (*m_next != '\0') {
            if (isLineEnd(*m_next))
                lineEnd();
            else if (m_inComment)
                ++m_next;
            else if (*m_next == '"')
                m_inQuotes ? quoteInside() : quoteOutside();
            else if (*m_next == '#' && !m_inQuotes)
                comment();
            else
                keep();
        }
        push();
    }

private:
    void keep() { m_item += *m_next++; }

    void push()
    {
        if (m_item.empty())
            return;
        m_items.push_back(nullptr);
        SetPointToString(m_items.back(), m_item.c_str());
        m_item.clear();
    }

    void lineEnd()
    {
        if (m_inQuotes)
            return keep();
        m_inComment = false;
        push();
        ++m_next;
    }

    void comment()
    {
        push();
        m_inComment = true;
        ++m_next;
    }

    void quoteInside()
    {
        if (m_next[1] == '"') {
            ++m_next;
            return keep();
        }
        m_inQuotes = false;
        push();
        ++m_next;
    }

    void quoteOutside()
    {
        if (m_next[1] != '"') {
            m_inQuotes = true;
            ++m_next;
        } else if (m_next[2] == '"') {
            m_inQuotes = true;
            m_next += 2;
            keep();
        } else if (m_item.empty() && endsItem(m_next[2])) {
            m_next += 2; // a pair with nothing inside and nothing around it
        } else {
            ++m_next;
            keep();
        }
    }

    static bool endsItem(char c) { return c == '\0' || c == '#' || isLineEnd(c); }

    std::vector<char *> &m_items;
    const char *m_next;
    std::string m_item;
    bool m_inQuotes = false;
    bool m_inComment = false;
};

std::string clearToNumber(const std::string &text, bool hexadecimal)
{
    const char *kept = hexadecimal ? "0123456789abcdefABCDEF" : "0123456789-";
    std::string number;
    for (std::size_t at = text.find_first_of(kept); at != std::string::npos;
         at = text.find_first_of(kept, at + 1))
        number += text[at];
    return number.empty() ? "0" : number;
}

void appendNumber(TMemoryStream *stream, std::string &text)
{
    if (text.empty())
        return;
    int number = StrToInt(ClearToNum(text, false).c_str());
    stream->Write(&number, sizeof number);
    text.clear();
}

// Bits of an array of words of any width.
template<typename Word>
bool bitOf(const Word *words, int bit)
{
    constexpr int width = int(sizeof(Word)) * CHAR_BIT;
    return (words[bit / width] >> (bit % width)) & 1U;
}

template<typename Word>
void putBit(Word *words, int bit, bool value)
{
    constexpr int width = int(sizeof(Word)) * CHAR_BIT;
    const auto mask = static_cast<Word>(Word(1) << (bit % width));
    Word &word = words[bit / width];
    word = static_cast<Word>(value ? (word | mask) : (word & ~mask));
}

template<typename From, typename To>
void copyBits(const From *source, To *target, int clearBytes, int bits)
{
    if (clearBytes > 0)
        std::memset(target, 0, static_cast<std::size_t>(clearBytes));
    for (int bit = 0; bit < bits; ++bit)
        putBit(target, bit, bitOf(source, bit));
}

} // namespace

char *Get_Ravn_Version_Text()
{
    std::snprintf(Ravn_Version_Text, sizeof Ravn_Version_Text, "%d.%d.%d", 1, 4, 2);
    return Ravn_Version_Text;
}

std::vector<char *> &ParseToStringList(std::vector<char *> &out, char *text, bool clear)
{
    if (clear)
        out.clear();
    ItemParser(out, text ? text : "").run();
    return out;
}

void ParseNamesArray(TString &text, const std::function<void(TString &, int)> &callback)
{
    int number = 0;
    const char *end = text.c_str() + text.length;
    for (const char *line = text.c_str(); line != end;) {
        const char *lineEnd = std::find_if(line, end, isLineEnd);
        if (lineEnd != line) {
            TString name(line, static_cast<int>(lineEnd - line));
            callback(name, number++);
        }
        line = lineEnd == end ? end : lineEnd + 1;
    }
}

TMemoryStream *ConvertStrToDwords(char *text)
{
    TMemoryStream *stream = TMemoryStream::Create();
    std::string number;
    bool inComment = false;
    for (const char *c = text ? text : ""; *c != '\0'; ++c) {
        if (isLineEnd(*c))
            inComment = false;
        if (isLineEnd(*c) || *c == '#' || *c == ' ' || *c == '\t')
            appendNumber(stream, number);
        else if (!inComment)
            number += *c;
        if (*c == '#')
            inComment = true;
    }
    appendNumber(stream, number);
    stream->Seek(0, TStream::FromStart);
    return stream;
}

std::string ClearToNum(const std::string &text, bool hexadecimal)
{
    return clearToNumber(text, hexadecimal);
}

std::string ClearToNum(const std::string &text, int hexadecimal)
{
    return clearToNumber(text, hexadecimal != 0);
}

int StrToInt(const char *text)
{
    const long number = std::strtol(text, nullptr, 10); // stops at the ends of long by itself
    return static_cast<int>(std::clamp<long>(number, INT_MIN, INT_MAX));
}

void SetPointToString(char *&slot, const TString &text)
{
    const auto size = static_cast<std::size_t>(text.length) + 1;
    slot = new char[size];
    std::memcpy(slot, text.c_str(), size);
}

void SetPointToString(char *&slot, const char *text)
{
    SetPointToString(slot, TString(text));
}

int IsDelimiter(const char *set, const char *text, int index)
{
    return index >= 0 && std::strchr(set, text[index]) ? 1 : 0;
}

char *GetShortFileName(char *path)
{
    char *name = path;
    for (char *c = path; *c != '\0'; ++c) {
        if (*c == '/' || *c == '\\')
            name = c + 1;
    }
    return name;
}

int IsFileNameValid(const char *name)
{
    return std::strpbrk(name, "\"*/:<>?\\|") ? 0 : 1;
}

int SizeToDword(int size)
{
    const int excess = size % 4;
    if (excess == 0)
        return size;
    if (size < 0)
        return size - excess - 4;
    return size > INT_MAX - 3 ? INT_MAX - 3 : size - excess + 4;
}

void Bitmsk_ByteToDword(unsigned char *source, unsigned *target, int clearBytes, int bits)
{
    copyBits(source, target, clearBytes, bits);
}

void Bitmsk_DwordToByte(unsigned *source, unsigned char *target, int clearBytes, int bits)
{
    copyBits(source, target, clearBytes, bits);
}
