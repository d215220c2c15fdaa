#include "gamedata/runtime/t_string.h"

#include <cstring>

TString TString::op_result;

namespace {

int sizeOf(const char *text)
{
    return text ? static_cast<int>(std::min<std::size_t>(std::strlen(text), INT_MAX / 2)) : 0;
}

TString &concatenate(const char *left, int leftSize, const char *right, int rightSize)
{
    // Made apart, since either side may be the result of the concatenation before.
    const std::int64_t size = std::int64_t(leftSize) + rightSize;
    TString joined;
    joined.SetLength(static_cast<int>(std::min<std::int64_t>(size, INT_MAX)));
    if (joined.length == size) {
        std::copy(left, left + leftSize, joined.data);
        std::copy(right, right + rightSize, joined.data + leftSize);
    }
    TString::op_result = std::move(joined);
    return TString::op_result;
}

} // namespace

TString::TString(const char *text) : TString(text, sizeOf(text)) {}

TString::TString(const char *text, int size)
{
    if (size <= 0)
        return;
    SetLength(size);
    std::copy(text, text + length, data);
}

TString::TString(const TString &other) : TString(other.c_str(), other.length) {}

TString &TString::operator=(const TString &other)
{
    TString copy(other);
    swap(copy);
    return *this;
}

void TString::SetLength(int n)
{
    if (n < 0 || n == INT_MAX)
        n = 0;
    TArray<char>::SetLength(n); // on its own first: 0 forgets all characters
    TArray<char>::SetLength(n + 1);
    length = data ? n : 0;
    if (data)
        data[length] = '\0';
}

TString &operator+(const TString &left, const TString &right)
{
    return concatenate(left.c_str(), left.length, right.c_str(), right.length);
}

TString &operator+(const TString &left, const char *right)
{
    return concatenate(left.c_str(), left.length, right ? right : "", sizeOf(right));
}

TString &operator+(const char *left, const TString &right)
{
    return concatenate(left ? left : "", sizeOf(left), right.c_str(), right.length);
}

bool operator==(const TString &left, const TString &right)
{
    return left.length == right.length &&
           std::equal(left.data, left.data + left.length, right.data);
}

bool operator!=(const TString &left, const TString &right)
{
    return !(left == right);
}
