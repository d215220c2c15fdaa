// What a campaign is written as: its first member, then its maps.
#pragma once

#include "document/gzip_member.h"

#include <QByteArray>

#include <vector>

inline QByteArray joined(const std::vector<QByteArray> &pieces)
{
    QByteArray bytes;
    for (const QByteArray &piece : pieces)
        bytes += piece;
    return bytes;
}

inline QByteArray unpacked(const QByteArray &member)
{
    QByteArray room(1 << 20, '\0');
    const int size = zlib_inflate(member.constData(), member.size(), room.data(), room.size());
    return room.left(size);
}
