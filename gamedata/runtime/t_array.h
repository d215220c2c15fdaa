// A growing array in the manner of the game's tools: access never fails.
//
// `capacity` counts bytes and is always a multiple of 64; `data` holds every element that fits
// into it, so an array that shrinks and grows again inside its block finds its elements as they
// were. The array owns its elements. An index outside the array is taken as the nearest one inside.
#pragma once

#include <algorithm>
#include <climits>
#include <cstdint>
#include <utility>

constexpr std::int64_t tArrayBlock = 64; // bytes by which an array grows

template<typename T>
class TArray
{
public:
    T *data = nullptr;
    int length = 0;
    int capacity = 0;

    TArray() = default;
    TArray(const TArray &other) { assign(other); }
    TArray(TArray &&other) noexcept { swap(other); }
    TArray &operator=(const TArray &other)
    {
        if (this != &other)
            assign(other);
        return *this;
    }
    TArray &operator=(TArray &&other) noexcept
    {
        swap(other);
        return *this;
    }
    ~TArray() { delete[] data; }

    // Makes room for n elements; new ones are zero. 0 frees everything, and so does a count that
    // no array can hold.
    void SetLength(int n)
    {
        const std::int64_t needed = std::int64_t(n) * std::int64_t(sizeof(T));
        const std::int64_t bytes = (needed + tArrayBlock - 1) / tArrayBlock * tArrayBlock;
        if (n <= 0 || bytes > INT_MAX) {
            delete[] std::exchange(data, nullptr);
            length = capacity = 0;
            return;
        }
        if (bytes != capacity)
            reallocate(static_cast<int>(bytes));
        length = n;
    }

    // An element of an empty array is a zero that forgets what is written into it.
    T &operator[](int index) { return length > 0 ? data[inside(index)] : nothing(); }
    const T &operator[](int index) const { return length > 0 ? data[inside(index)] : nothing(); }

    void swap(TArray &other) noexcept
    {
        std::swap(data, other.data);
        std::swap(length, other.length);
        std::swap(capacity, other.capacity);
    }

private:
    int inside(int index) const { return std::clamp(index, 0, length - 1); }
    static int slotsIn(int bytes) { return bytes / static_cast<int>(sizeof(T)); }

    static T &nothing()
    {
        static T element{};
        element = T{};
        return element;
    }

    void reallocate(int bytes)
    {
        T *block = new T[static_cast<std::size_t>(slotsIn(bytes))]();
        std::move(data, data + std::min(slotsIn(bytes), slotsIn(capacity)), block);
        delete[] std::exchange(data, block);
        capacity = bytes;
    }

    void assign(const TArray &other)
    {
        SetLength(other.length);
        if (length > 0)
            std::copy(other.data, other.data + length, data);
    }
};
