// Asks for the folder of the game.
#pragma once

#include <QFileDialog>
#include <QString>

#include <optional>
#include <vector>

// A dialog for folders that says by which files the game's is known.
class GameDialog : public QFileDialog
{
    Q_OBJECT

public:
    // `lost` is the folder in which the game was before, if there is one; `start` is where to look.
    GameDialog(const QString &lost, const QString &start);

    QString folder() const;
};

// Shows the dialog until the folder chosen is the game's; what another one lacks is told. Nothing
// if the user doesn't know.
std::optional<QString> askForGame(const QString &lost);

// The same in an application of its own, which is gone again when this returns, so that another can
// be made. The arguments are those of the command line, the program's name first.
std::optional<QString> askForGameFirst(std::vector<char *> arguments, const QString &lost);
