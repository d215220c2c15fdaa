// A campaign in a folder of its own that names its first map as a stranger would, with files of
// that name's last part outside the folder.
#pragma once

#include "gamedata/locale_codec.h"
#include "tests/shell/exchange_window.h"
#include "tests/strangers/hostile_names.h"

#include <filesystem>
#include <map>

#include <fcntl.h>

Q_DECLARE_METATYPE(hostile::MapName)

// Every file below a folder, by the bytes of its name there. Links to nowhere are none.
using Folder = std::map<std::string, QByteArray>;

inline Folder filesBelow(const QString &path)
{
    namespace fs = std::filesystem;
    const fs::path root = QFile::encodeName(path).toStdString();
    Folder files;
    for (const fs::directory_entry &entry : fs::recursive_directory_iterator(root)) {
        if (entry.is_directory() || !entry.exists())
            continue;
        QFile file;
        const int handle = open(entry.path().c_str(), O_RDONLY | O_CLOEXEC);
        if (!file.open(handle, QIODevice::ReadOnly, QFile::AutoCloseHandle))
            qFatal("A file can't be read.");
        files[fs::relative(entry.path(), root).native()] = file.readAll();
    }
    return files;
}

class StrangelyNamedMap : protected ExchangeWindow
{
protected:
    static void addNames()
    {
        QTest::addColumn<hostile::MapName>("name");
        for (const hostile::MapName &name : hostile::mapNames())
            QTest::newRow(name.title) << name;
    }

    // "home/home.e3c" with the row's name.
    void saveCampaign()
    {
        QFETCH(hostile::MapName, name);
        m_name = name;
        QVERIFY(QDir(folder->path()).mkpath("home/in"));
        CampaignData campaign = campaignWithMaps();
        campaign.scenarios[0].mapFileName = m_name.name;
        QVERIFY(campaign.saveTo(path("home/home.e3c")).ok);
        writeFile("x", mapNamed("Elsewhere"));
        writeFile("null", mapNamed("Elsewhere"));
        writeFile("home/in/x", mapNamed("Elsewhere"));
    }

    bool writeMap(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path("home/" + name));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    }

    CampaignData campaignIn(const QString &name) const
    {
        QFile file(path(name));
        CampaignData campaign;
        if (!file.open(QIODevice::ReadOnly) || campaign.readCampaign(&file))
            qFatal("The campaign can't be read.");
        return campaign;
    }

    // Whether there can be a file of that name in the campaign's folder.
    bool namesAFile() const { return m_name.canBeFile && !m_name.file.isEmpty(); }

    hostile::MapName m_name;
};
