// Answers the toolkit's own dialogs: message boxes by any of their buttons, file dialogs by a path
// of the private folder. In a file dialog the monkey does nothing else, or it would find its way
// to files that are none of its business.
#pragma once

#include "tests/monkey/dice.h"
#include "tests/monkey/journal.h"
#include "tests/monkey/private_game.h"

class QFileDialog;
class QMessageBox;

void answerBox(QMessageBox *box, Dice &dice, Journal &journal);
void answerFileDialog(QFileDialog *dialog, const PrivateGame &game, Dice &dice, Journal &journal);
