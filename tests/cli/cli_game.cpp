#include "tests/cli/cli_game.h"

#include "fuzz/corpus.h"

ChildResult CliGame::run(const QStringList &words, const QProcessEnvironment &environment) const
{
    return runChild(builtProgram(QStringLiteral("cmped-cli")),
                    QStringList{QStringLiteral("--game"), path()} + words, environment);
}

QByteArray seedCampaign(const QByteArray &name)
{
    for (const corpus::File &file : corpus::campaigns()) {
        if (name == file.name)
            return file.bytes;
    }
    qFatal("There is no seed %s", name.constData());
}
