// Byte streams: the interface, a file and a block of memory. Made by Create, ended by Free.
//
// Sizes and positions are int, so a stream reaches 2 GB - 1; what lies behind that in a larger
// file is out of reach.
#pragma once

#include <QFile>

#include <memory>

class TStream
{
public:
    enum Origin
    {
        FromStart = 0,
        FromCurrent = 1,
        FromEnd = 2
    };

    TStream() = default;
    TStream(const TStream &) = delete;
    TStream &operator=(const TStream &) = delete;

    // Deletes the stream.
    virtual void Free() = 0;
    // Non-zero if all bytes were moved, 0 otherwise.
    virtual int Read(void *buffer, unsigned size) = 0;
    virtual int Write(void *buffer, unsigned size) = 0;
    // The new position, -1 if it can't be reached. An unknown origin changes nothing.
    virtual int Seek(int offset, int origin) = 0;
    virtual int Size() = 0;

protected:
    virtual ~TStream() = default;
};

struct TStreamFree
{
    void operator()(TStream *stream) const { stream->Free(); }
};

// A stream with an owner.
template<typename Stream>
using TStreamPtr = std::unique_ptr<Stream, TStreamFree>;

class TFileStream : public TStream
{
public:
    // Mode 0 opens an existing file for reading, any mode with bit 0 or 1 set for writing as
    // well, and createMode makes the file anew. Null if that fails or it is no regular file.
    static constexpr unsigned short createMode = 0xFFFF;
    static TFileStream *Create(const wchar_t *path, unsigned short mode);

    void Free() override;
    // A read past the end delivers what there is and answers 0.
    int Read(void *buffer, unsigned size) override;
    int Write(void *buffer, unsigned size) override;
    int Seek(int offset, int origin) override;
    int Size() override;

private:
    explicit TFileStream(const QString &path);
    ~TFileStream() override = default;

    QFile m_file; // unbuffered, so that a failed write is known at once
};

class TMemoryStream : public TStream
{
public:
    char *data = nullptr; // owned
    int position = 0;
    int size = 0;

    static TMemoryStream *Create();
    // With that many zero bytes; a size out of reach gives an empty stream.
    static TMemoryStream *Create(unsigned size);

    void Free() override;
    // Reads all of it or nothing.
    int Read(void *buffer, unsigned size) override;
    // Past the end the stream grows.
    int Write(void *buffer, unsigned size) override;
    int Seek(int offset, int origin) override;
    int Size() override;

    // The contents are lost; the position stays if the new size reaches it.
    void SetSize(unsigned size);

private:
    TMemoryStream() = default;
    ~TMemoryStream() override;

    bool reserve(int bytes);

    int m_capacity = 0;
};
