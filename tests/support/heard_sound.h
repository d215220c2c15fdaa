// Listens to the sound of this process: SDL's driver "disk" writes what is played into a file.
#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <QVector>

struct HeardFrame
{
    int left = 0;
    int right = 0;

    bool isSilent() const { return left == 0 && right == 0; }
    bool operator==(const HeardFrame &other) const
    {
        return left == other.left && right == other.right;
    }
};

// Has to be there before the sound starts, and once in a process.
class HeardSound
{
public:
    // How fast the sound is played: so many milliseconds for each 2048 frames of it.
    explicit HeardSound(int chunkMilliseconds);

    // Forgets what was played until now.
    void clear();

    QVector<HeardFrame> frames() const; // all that was played since
    QVector<HeardFrame> sound()
        const;         // the same from the first frame to the last that isn't silent
    int count() const; // of all frames played since

    // Whether the last so many frames were played since and are silent.
    bool endsSilent(int frameCount) const;

private:
    QByteArray bytes(qint64 from) const;

    QTemporaryDir m_dir;
    QString m_path;
    qint64 m_start = 0;
};
