// A byte string with a zero byte behind its characters. It knows no encoding and may hold zeros.
#pragma once

#include "gamedata/runtime/t_array.h"

class TString : public TArray<char>
{
public:
    TString() = default;
    TString(const char *text); // a null pointer gives an empty string
    TString(const char *text, int size);
    TString(const TString &other);
    TString(TString &&other) noexcept = default;
    TString &operator=(const TString &other);
    TString &operator=(TString &&other) noexcept = default;
    ~TString() = default;

    // Keeps the first n characters. New ones are zero, or what stood there before the string was
    // cut inside its block; after a length of 0 they are zero.
    void SetLength(int n);

    // The string's own buffer, valid until it changes. Never null.
    const char *c_str() const { return data ? data : ""; }

    // Where the operators below leave their result.
    static TString op_result;
};

// The result is TString::op_result: it lives until the next concatenation.
TString &operator+(const TString &left, const TString &right);
TString &operator+(const TString &left, const char *right);
TString &operator+(const char *left, const TString &right);

bool operator==(const TString &left, const TString &right);
bool operator!=(const TString &left, const TString &right);
