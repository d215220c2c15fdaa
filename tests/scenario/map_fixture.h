// What the tests of maps share: small maps, the folder that was used last, and what the file
// dialogs for maps have to show.
#pragma once

#include "tests/document/samples.h"
#include "tests/scenario/general_tab.h"
#include "tests/support/file_dialogs.h"

class MapFixture : public ScenarioFixture
{
public:
    // Before each test: an empty folder as well.
    void reset()
    {
        ScenarioFixture::reset();
        folder = std::make_unique<QTemporaryDir>();
    }

    QString filePath(const QString &name) const { return folder->filePath(name); }
    QString folderPath() const { return folder->path(); }
    QByteArray folderBytes() const { return QFile::encodeName(folder->path()); }
    QString writeMap(const QString &name, const QByteArray &bytes) const
    {
        return samples::writeFile(filePath(name), bytes);
    }

    // The game's folder of maps, and the file dialogs that start there.
    QString maps() const { return game.filePath("Maps"); }
    ExpectedFileDialog opening(const QString &name) const { return opening(maps(), name); }
    ExpectedFileDialog saving(const QString &name) const { return saving(maps(), name); }

    static ExpectedFileDialog opening(const QString &start, const QString &name)
    {
        return {"Open", start, name, filters()};
    }
    static ExpectedFileDialog saving(const QString &start, const QString &name)
    {
        return {"Save", start, name, filters()};
    }

private:
    static QStringList filters() { return {"Eldmark Saga map (*.e3m)", "All Files (*)"}; }

    std::unique_ptr<QTemporaryDir> folder;
};

inline QByteArray usedFolderBytes()
{
    return ini->GetStringVal("Campaign Editor", "Path", "");
}

// A map of this name, of nine letters.
inline QByteArray mapNamed(const QByteArray &name)
{
    return samples::pack(samples::mapHeader(28).replace("Frostmere", name) + samples::noise(600));
}
