// All numbers are 32 bits, signed and little-endian. A text is its length and that many bytes,
// with no terminator; a length or count of 0 or less means none.
//
//   header  "RDAT"    4 bytes
//           version   never looked at
//           count     of the entries that follow
//
//   entry   name      text
//           text      text
//           count, strings    texts
//           hasStream 1 byte, zero or not
//           size      only if hasStream isn't zero
//           stream    that many bytes
//           count, ints       numbers

#include "gamedata/runtime/dat_file.h"

#include <QtEndian>

#include <charconv>
#include <cstring>
#include <vector>

TDatFile *RADF = nullptr;

namespace {

constexpr int sizeOfInt = 4;

int bytesLeft(TStream *stream)
{
    const int position = stream->Seek(0, TStream::FromCurrent);
    return std::max(0, stream->Size() - std::max(0, position));
}

// 0 if the number is cut short, and then nothing else can be read from the stream.
int readInt(TStream *stream)
{
    unsigned char bytes[sizeOfInt] = {};
    if (!stream->Read(bytes, sizeof bytes)) {
        stream->Seek(0, TStream::FromEnd);
        return 0;
    }
    return qFromLittleEndian<qint32>(bytes);
}

// A list's length, at most as many as can begin in what is left.
int readCount(TStream *stream, int smallestElement)
{
    const int stated = readInt(stream);
    const int left = bytesLeft(stream);
    const int fitting = left / smallestElement + (left % smallestElement != 0);
    return std::clamp(stated, 0, fitting);
}

void readStrings(TStream *stream, TArray<TString> &strings)
{
    const int count = readCount(stream, sizeOfInt);
    strings.SetLength(count);
    int read = 0;
    for (; read < count && bytesLeft(stream) > 0; ++read)
        ReadLS(stream, strings[read]);
    strings.SetLength(read);
}

void readInts(TStream *stream, TArray<int> &ints)
{
    const int count = readCount(stream, sizeOfInt);
    ints.SetLength(count);
    for (int i = 0; i < count; ++i)
        ints[i] = readInt(stream);
}

TStreamPtr<TMemoryStream> readBlob(TStream *stream)
{
    const int size = readCount(stream, 1);
    if (size == 0)
        return nullptr;
    TStreamPtr<TMemoryStream> blob(TMemoryStream::Create(static_cast<unsigned>(size)));
    stream->Read(blob->data, static_cast<unsigned>(blob->size));
    return blob;
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

void splitName(TDatFileEntry &entry)
{
    const char *name = entry.name.c_str();
    const char *end = name + entry.name.length;
    const char *number = end;
    while (number != name && isDigit(number[-1]))
        --number;
    entry.baseName = TString(name, static_cast<int>(number - name));
    entry.id = -1;
    std::from_chars(number, end, entry.id); // leaves -1 where there is no number or it is too big
}

void readEntry(TStream *stream, TDatFileEntry &entry)
{
    ReadLS(stream, entry.name);
    ReadLS(stream, entry.text);
    readStrings(stream, entry.strings);
    if (!stream->Read(&entry.hasStream, 1))
        entry.hasStream = 0;
    if (entry.hasStream)
        entry.stream = readBlob(stream);
    readInts(stream, entry.ints);
    splitName(entry);
}

// The stream's bytes in memory, since thousands of small reads from a file take their time.
TStreamPtr<TMemoryStream> copyOf(TStream *stream, int limit)
{
    const unsigned size = static_cast<unsigned>(std::clamp(stream->Size(), 0, std::max(0, limit)));
    TStreamPtr<TMemoryStream> copy(TMemoryStream::Create(size));
    stream->Seek(0, TStream::FromStart);
    stream->Read(copy->data, static_cast<unsigned>(copy->size));
    return copy;
}

} // namespace

void ReadLS(TStream *stream, TString &target)
{
    const int size = readCount(stream, 1);
    if (size == 0) {
        target = TString(); // an empty buffer for each empty text would outgrow the file
        return;
    }
    target.SetLength(size);
    stream->Read(target.data, static_cast<unsigned>(target.length));
}

TDatFile *TDatFile::Create()
{
    return new TDatFile;
}

void TDatFile::Load(TStream *stream, int limit)
{
    entries.SetLength(0);
    const TStreamPtr<TMemoryStream> bytes = copyOf(stream, limit);
    char magic[4] = {};
    if (!bytes->Read(magic, sizeof magic) || std::memcmp(magic, "RDAT", sizeof magic) != 0)
        return;
    readInt(bytes.get()); // version
    const int count = readInt(bytes.get());
    std::vector<TDatFileEntry> loaded; // grows with the entries found, whatever the count claims
    for (int i = 0; i < count && bytesLeft(bytes.get()) > 0; ++i)
        readEntry(bytes.get(), loaded.emplace_back());
    entries.SetLength(static_cast<int>(loaded.size()));
    std::move(loaded.begin(), loaded.begin() + entries.length, entries.data);
}

int TDatFile::GetIntVal(int entry, int index, int defaultValue) const
{
    const TArray<int> &ints = entries[entry].ints;
    return std::max(0, index) < ints.length ? ints[index] : defaultValue;
}

const char *TDatFile::GetStrVal(int entry, int index, const char *defaultValue) const
{
    const TArray<TString> &strings = entries[entry].strings;
    return std::max(0, index) < strings.length ? strings[index].c_str() : defaultValue;
}
