// The windows that the manual shows, each opened with the sample game so that it has something to
// tell. The maker of the manual's pictures and the test that holds the manual against the program
// walk the same table.
#pragma once

#include <QImage>
#include <QString>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

class QApplication;

// An open window and the campaign under it, which goes after it.
struct ManualWindow
{
    std::shared_ptr<void> ground; // may be empty
    std::unique_ptr<QWidget> window;
};

struct ManualScene
{
    const char *name; // of its picture, without folder and ending
    std::function<ManualWindow()> open;
};

const std::vector<ManualScene> &manualScenes();

// The languages of the pictures, which are the names of their folders too.
constexpr const char *manualEnglish = "en";
constexpr const char *manualRussian = "ru";

// Makes the process one of the editor, with the game of that folder and in one of the languages,
// up to where its window would open. Writes nothing into the folder. To be called once, before the
// first scene.
void enterManualGame(QApplication *application, const QString &folder, const QString &language);

// Shows the window as somebody sees it who has touched nothing, and takes its picture. Where
// nothing has changed, the same bytes each time.
QImage pictureOf(QWidget *window);

// The key of a picture under which the font stands that it was taken with, and its value now: the
// sizes of windows follow it.
constexpr const char *manualFontKey = "Font";
QString manualFont();
