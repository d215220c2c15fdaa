// The small pieces that campaign and map files are made of: texts, bit arrays, prologues.
//
//   text           length (4), that many bytes in the locale's codec, no terminator
//   bit array      (N + 7) / 8 bytes; bit i is bit i mod 8 of byte i / 8, the lowest first
//   prologue       1, video (1), music (1), text; or any other byte: absent
//
// Streams are little-endian. What lies past a stream's end reads as zeros, and a length from the
// file never makes room for more than the stream delivers.
#pragma once

#include "document/campaign_data.h"

#include <QBitArray>
#include <QByteArray>
#include <QDataStream>
#include <QString>

#include <memory>

// One number, 0 if the stream doesn't hold all of it.
template<typename Number>
Number readNumber(QDataStream &stream)
{
    Number number = 0;
    stream >> number;
    return number;
}

// At most `count` bytes, fewer if the stream ends before; room is made only as they come.
QByteArray readBytes(QDataStream &stream, quint32 count);

void ReadHString4(QDataStream &stream, QString &text);
void WriteHString4(QDataStream &stream, QString &text);

// Gives `bits` N bits. Of an N above limits::bitsWithoutData only those that are there are made.
void ReadBitArray(QDataStream &stream, QBitArray &bits, unsigned int count);
// Writes N bits whatever the array's own size; bits that it lacks are written clear.
void WriteBitArray(QDataStream &stream, QBitArray &bits, unsigned int count);

// An absent one leaves the pointer as it was.
void ReadPrologueEpilogue(QDataStream &stream, std::shared_ptr<CmpPrologue> &prologue);
void WritePrologueEpilogue(QDataStream &stream, std::shared_ptr<CmpPrologue> &prologue);
