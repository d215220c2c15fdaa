// What the editor's start is held against: an application with an empty main window.
#include <QApplication>
#include <QMainWindow>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.resize(456, 685);
    window.show();
    return QApplication::exec();
}
