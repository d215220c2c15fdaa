// A game folder of a few small files whose every value a test can name, and cmped-cli on it.
//
// Its tables give the widths that the seed campaigns of the fuzz targets are made for: 186
// creatures, 160 artifacts, campaign map 0 with three ready-made regions at (10, 20), (30, 40) and
// (50, 60). Map 5 has one computed region at (100, 200).
#pragma once

#include "tests/support/child_process.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

class TinyGame
{
public:
    TinyGame();

    // A path below the folder.
    QString path(const QString &name) const;
    // Writes a file below the folder and answers its path.
    QString write(const QString &name, const QByteArray &bytes) const;
    QByteArray read(const QString &name) const;

    // cmped-cli --game FOLDER and these words.
    ChildResult run(const QStringList &words, const QProcessEnvironment &environment =
                                                  QProcessEnvironment::systemEnvironment()) const;

private:
    QTemporaryDir m_dir;
};

// The seed campaign of this name.
QByteArray seedCampaign(const QByteArray &name);
