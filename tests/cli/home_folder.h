// cmped-cli in the hands of a test on a folder with the home campaign in it.
#pragma once

#include "tests/cli/cli_game.h"
#include "tests/cli/home_campaign.h"

#include <QTemporaryDir>
#include <QTest>

#include <memory>

class HomeFolder
{
protected:
    // A new folder; "home.e3c" is in it.
    void makeFolder()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        write("home.e3c", homeCampaign());
    }

    QString folder() const { return m_folder->path(); }
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString write(const QString &name, const QByteArray &bytes) const
    {
        return samples::writeFile(path(name), bytes);
    }

    // The command succeeds and has nothing to say.
    void runs(const QStringList &words) const
    {
        const ChildResult result = m_game.run(words);
        QCOMPARE(QString::fromUtf8(result.error), QString());
        QCOMPARE(result.output, QByteArray());
        QCOMPARE(result.exitCode, 0);
    }

    CliGame m_game;

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};
