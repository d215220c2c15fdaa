// Where an author works: a screen, a copy of the sample game, a folder for campaigns, the editor,
// and an ear for the music it plays. All of it goes with the object.
#pragma once

#include "tests/desktop/editor.h"
#include "tests/desktop/screen.h"
#include "tests/support/heard_sound.h"

#include <QProcessEnvironment>
#include <QTemporaryDir>

// What the build made.
struct BuiltParts
{
    QString programs;  // the folder with the launcher and the command line tool
    QString game;      // the sample game
    QString plugins;   // the folder under which "generic" holds the locator's plugin
    QString documents; // the folder with what the saved files have to hold
};

class Workplace
{
public:
    explicit Workplace(BuiltParts parts);

    Screen &screen() { return m_screen; }
    Editor &editor() { return m_editor; }
    HeardSound &sound() { return m_sound; }
    const BuiltParts &parts() const { return m_parts; }

    QString gameFolder() const { return m_folder.filePath("game"); }
    QString gameMap(const QString &name) const { return gameFolder() + "/Maps/" + name; }
    QString file(const QString &name) const { return m_folder.filePath("campaigns/" + name); }
    QString recoveryFolder() const { return m_folder.filePath("data/cmped/recovery"); }

private:
    QProcessEnvironment environment() const;

    BuiltParts m_parts;
    QTemporaryDir m_folder;
    HeardSound m_sound; // tells the editor by the environment, so it comes before it
    Screen m_screen;
    Editor m_editor;
};
