// Takes the input as a text for every helper that takes texts of the game apart.
#include "fuzz/quiet_start.h"
#include "fuzz/time_limit.h"
#include "gamedata/runtime/text_tools.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

namespace {

// Exactly the text's bytes and a zero, so that a step past its end is seen.
std::unique_ptr<char[]> terminated(const uint8_t *data, size_t size)
{
    std::unique_ptr<char[]> text(new char[size + 1]);
    if (size > 0)
        std::memcpy(text.get(), data, size);
    text[size] = '\0';
    return text;
}

// Items aren't empty, and all together are no longer than what they come from.
void splitItems(char *text)
{
    std::vector<char *> items;
    ParseToStringList(items, text, true);
    size_t total = 0;
    for (const char *item : items) {
        if (*item == '\0')
            abort();
        total += std::strlen(item);
        delete[] item;
    }
    if (total > std::strlen(text))
        abort();
}

void splitNames(const char *text, size_t size)
{
    TString names(text, int(size));
    int next = 0;
    ParseNamesArray(names, [&next](const TString &name, int number) {
        if (name.length == 0 || number != next++)
            abort();
    });
}

void splitNumbers(char *text)
{
    const TStreamPtr<TMemoryStream> numbers(ConvertStrToDwords(text));
    if (numbers->Size() % 4 != 0)
        abort();
}

void askAboutText(char *text)
{
    const int length = int(std::strlen(text));
    for (const bool hexadecimal : {false, true}) {
        if (ClearToNum(text, hexadecimal) != ClearToNum(text, int(hexadecimal)))
            abort();
    }
    StrToInt(text);
    IsFileNameValid(text);
    IsDelimiter(text, text, length / 2);
    if (std::strpbrk(GetShortFileName(text), "/\\"))
        abort();
    for (const int size : {length, -length}) {
        if (SizeToDword(size) % 4 != 0 || std::abs(SizeToDword(size)) < length)
            abort();
    }
}

// To words and back again, as many bits as there are whole words. Longer masks only take longer.
void turnMask(const uint8_t *data, size_t size)
{
    constexpr size_t longest = 64;
    const size_t words = std::min(size, longest) / sizeof(unsigned);
    const int bytes = int(words * sizeof(unsigned));
    std::vector<unsigned char> source(data, data + bytes);
    std::vector<unsigned> turned(words);
    std::vector<unsigned char> back(source.size());
    Bitmsk_ByteToDword(source.data(), turned.data(), bytes, bytes * 8);
    Bitmsk_DwordToByte(turned.data(), back.data(), bytes, bytes * 8);
    if (back != source)
        abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QuietStart start;
    const TimeLimit limit;
    const std::unique_ptr<char[]> text = terminated(data, size);
    splitItems(text.get());
    splitNames(text.get(), size);
    splitNumbers(text.get());
    askAboutText(text.get());
    turnMask(data, size);
    if (Get_Ravn_Version_Text() != Ravn_Version_Text)
        abort();
    return 0;
}
