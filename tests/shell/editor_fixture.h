// What tests of dialogs and of the window share: the tiny game, loaded once, and the editor's look
// and messages as its start sets them.
#pragma once

#include "gamedata/editor_data.h"
#include "gamedata/ini_file.h"
#include "shell/dialog_look.h"
#include "shell/editor_resources.h"
#include "shell/message_reporter.h"
#include "tests/support/tiny_game.h"

#include <QApplication>

class EditorFixture
{
public:
    EditorFixture()
    {
        initEditorResources();
        reportWithMessageBoxes();
        QApplication::setFont(editorFont());
        game.load();
    }

    // Before each test: nothing modified, no folder used.
    void reset()
    {
        EditorData::info = {};
        ini->SetStringVal("Campaign Editor", "Path", "");
    }

    tiny::Game game;
};
