// The tiny game and cmped-cli on it.
#pragma once

#include "tests/support/child_process.h"
#include "tests/support/tiny_game.h"

class CliGame : public tiny::Game
{
public:
    // cmped-cli --game FOLDER and these words.
    ChildResult run(const QStringList &words, const QProcessEnvironment &environment =
                                                  QProcessEnvironment::systemEnvironment()) const;
};

// The seed campaign of this name.
QByteArray seedCampaign(const QByteArray &name);
