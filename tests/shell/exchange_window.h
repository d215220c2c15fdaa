// A window on a campaign with texts and two maps, in a folder of its own.
#pragma once

#include "tests/document/samples.h"
#include "tests/shell/window_fixture.h"
#include "tests/support/file_contents.h"

inline const QString appTitle = "Tiny Campaign Editor";

// A map of this name, of nine letters.
inline QByteArray mapNamed(const QByteArray &name, unsigned anyPlayers = 1)
{
    return samples::pack(samples::mapHeader(28, 0, anyPlayers).replace("Frostmere", name) +
                         samples::noise(600));
}

inline ExpectedBox warning(const QString &text)
{
    return {"Error", text, QMessageBox::Warning};
}

// Checks that no hourglass stands over a box, then answers it.
inline NextDialog::Answer withoutHourglass(const ExpectedBox &expected)
{
    return [expected](QWidget *dialog) {
        const bool hourglass = QApplication::overrideCursor() != nullptr;
        boxAnswer(expected)(dialog);
        QVERIFY(!hourglass);
    };
}

inline QByteArray usedFolderBytes()
{
    return ini->GetStringVal("Campaign Editor", "Path", "");
}

// What the tests of these commands are made of.
class ExchangeWindow
{
protected:
    // Before each test: an untitled window, and the campaign as "home.e3c" in an empty folder.
    void reset()
    {
        fixture.reset();
        folder = std::make_unique<QTemporaryDir>();
        window = std::make_unique<MainWindow>(nullptr);
        save(campaignWithMaps());
    }

    QString path(const QString &name) const { return folder->filePath(name); }
    QString writeFile(const QString &name, const QByteArray &bytes) const
    {
        return samples::writeFile(path(name), bytes);
    }

    // Maps "one.e3m" and "three.e3m" in the first and the third region.
    CampaignData campaignWithMaps() const
    {
        CampaignData campaign;
        campaign.initDummyCampaign(24, true, 0, 0);
        campaign.name = "Ember Road";
        campaign.description = "Three steps";
        giveMap(campaign.scenarios[0], "one.e3m", mapNamed("Ironmoors"));
        giveMap(campaign.scenarios[2], "three.e3m", mapNamed("Stonegate"));
        ScenarioData &first = campaign.scenarios[0];
        first.regionText = "Beware\nof wolves";
        first.prologues[0] = std::make_shared<CmpPrologue>(CmpPrologue{7, 9, "Once\nupon"});
        first.epilogues[1] = std::make_shared<CmpPrologue>(CmpPrologue{5, 6, "The end"});
        return campaign;
    }

    void save(CampaignData campaign) const { QVERIFY(campaign.saveTo(path("home.e3c")).ok); }

    void load()
    {
        window->loadFile(path("home.e3c"));
        QCOMPARE(window->windowTitle(), "home.e3c - " + appTitle);
    }

    void trigger(const char *name) { action(*window, name)->trigger(); }

    // The window's campaign, by way of its file.
    CampaignData savedByTheWindow()
    {
        const QString copy = path("saved.e3c");
        CampaignData campaign;
        if (!window->saveFile(copy))
            qFatal("The window can't save.");
        QFile file(copy);
        file.open(QIODevice::ReadOnly);
        if (!campaign.ReadFromFile(&file))
            qFatal("What the window has saved can't be read.");
        return campaign;
    }

    WindowFixture fixture;
    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<MainWindow> window;

private:
    void giveMap(ScenarioData &scenario, const QString &name, const QByteArray &bytes) const
    {
        QFile file(writeFile(name, bytes));
        file.open(QIODevice::ReadOnly);
        if (scenario.ReadMapFromFile(&file) != 1)
            qFatal("No map was read.");
        file.remove();
    }
};
