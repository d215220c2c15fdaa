#include "gamedata/runtime/t_stream.h"

#include <QFileInfo>

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>

namespace {

constexpr unsigned largestSize = INT_MAX;
constexpr qint64 growth = 64; // bytes

// Where a seek leads to. False for an unknown origin.
bool seekTarget(qint64 &target, int offset, int origin, qint64 position, qint64 size)
{
    switch (origin) {
    case TStream::FromStart:
        target = offset;
        return true;
    case TStream::FromCurrent:
        target = position + offset;
        return true;
    case TStream::FromEnd:
        target = size + offset;
        return true;
    default:
        return false;
    }
}

int cutToInt(qint64 number)
{
    return static_cast<int>(std::min<qint64>(number, INT_MAX));
}

QIODevice::OpenMode openMode(unsigned short mode)
{
    if (mode == TFileStream::createMode)
        return QIODevice::ReadWrite | QIODevice::Truncate;
    if (mode & 3)
        return QIODevice::ReadWrite | QIODevice::ExistingOnly;
    return QIODevice::ReadOnly;
}

} // namespace

TFileStream::TFileStream(const QString &path) : m_file(path) {}

TFileStream *TFileStream::Create(const wchar_t *path, unsigned short mode)
{
    const QFileInfo info(QString::fromWCharArray(path));
    // Opening a pipe would wait for its other end.
    if (info.exists() && !info.isFile())
        return nullptr;
    TStreamPtr<TFileStream> stream(new TFileStream(info.filePath()));
    if (!stream->m_file.open(openMode(mode) | QIODevice::Unbuffered))
        return nullptr;
    return stream.release();
}

void TFileStream::Free()
{
    delete this;
}

int TFileStream::Read(void *buffer, unsigned size)
{
    return m_file.read(static_cast<char *>(buffer), size) == qint64(size) ? 1 : 0;
}

int TFileStream::Write(void *buffer, unsigned size)
{
    return m_file.write(static_cast<const char *>(buffer), size) == qint64(size) ? 1 : 0;
}

int TFileStream::Seek(int offset, int origin)
{
    qint64 target = 0;
    if (!seekTarget(target, offset, origin, m_file.pos(), m_file.size()))
        return cutToInt(m_file.pos());
    return target >= 0 && target <= INT_MAX && m_file.seek(target) ? static_cast<int>(target) : -1;
}

int TFileStream::Size()
{
    return cutToInt(m_file.size());
}

TMemoryStream *TMemoryStream::Create()
{
    return new TMemoryStream;
}

TMemoryStream *TMemoryStream::Create(unsigned size)
{
    auto *stream = new TMemoryStream;
    stream->SetSize(size);
    return stream;
}

TMemoryStream::~TMemoryStream()
{
    std::free(data);
}

void TMemoryStream::Free()
{
    delete this;
}

int TMemoryStream::Read(void *buffer, unsigned count)
{
    if (count > static_cast<unsigned>(size - position))
        return 0;
    if (count > 0)
        std::memcpy(buffer, data + position, count);
    position += static_cast<int>(count);
    return 1;
}

int TMemoryStream::Write(void *buffer, unsigned count)
{
    if (count == 0)
        return 1;
    const qint64 end = qint64(position) + count;
    if (end > INT_MAX || !reserve(static_cast<int>(end)))
        return 0;
    std::memcpy(data + position, buffer, count);
    position = static_cast<int>(end);
    size = std::max(size, position);
    return 1;
}

int TMemoryStream::Seek(int offset, int origin)
{
    qint64 target = 0;
    if (!seekTarget(target, offset, origin, position, size))
        return position;
    if (target < 0 || target > size)
        return -1;
    position = static_cast<int>(target);
    return position;
}

int TMemoryStream::Size()
{
    return size;
}

void TMemoryStream::SetSize(unsigned newSize)
{
    std::free(data);
    data = nullptr;
    size = m_capacity = 0;
    if (newSize > 0 && newSize <= largestSize) {
        data = static_cast<char *>(std::calloc(newSize, 1));
        if (data)
            size = m_capacity = static_cast<int>(newSize);
    }
    position = std::min(position, size);
}

bool TMemoryStream::reserve(int bytes)
{
    if (bytes <= m_capacity)
        return true;
    const int rounded = cutToInt((qint64(bytes) + growth - 1) / growth * growth);
    void *block = std::realloc(data, static_cast<std::size_t>(rounded));
    if (!block)
        return false;
    data = static_cast<char *>(block);
    m_capacity = rounded;
    return true;
}
