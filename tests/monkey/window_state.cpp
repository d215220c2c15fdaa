#include "tests/monkey/window_state.h"

namespace {

// An explicit instantiation may name private members: the one way to them that leaves the window
// as it is.
template<CampaignData MainWindow::*member>
struct Document
{
    friend CampaignData &revealDocument(MainWindow &window) { return window.*member; }
};

template<QString MainWindow::*member>
struct File
{
    friend QString &revealFile(MainWindow &window) { return window.*member; }
};

CampaignData &revealDocument(MainWindow &window);
QString &revealFile(MainWindow &window);

template struct Document<&MainWindow::campaign>;
template struct File<&MainWindow::currentFile>;

} // namespace

CampaignData &documentOf(MainWindow &window)
{
    return revealDocument(window);
}

QString &fileOf(MainWindow &window)
{
    return revealFile(window);
}
