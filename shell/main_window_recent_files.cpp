// The list of recent files, kept in the user's settings, and its actions in the menu.
#include "shell/main_window.h"
#include "shell/shown_text.h"

#include <QAction>
#include <QApplication>
#include <QSettings>

#include <algorithm>

namespace {

QString listKey()
{
    return QStringLiteral("recentFileList");
}

QString organization()
{
    return QStringLiteral("cmped_info");
}

// A text as a menu shows it: a single "&" would underline the letter behind it, and what follows a
// tabulator would stand where shortcuts do.
QString forMenu(const QString &text)
{
    return inOneLine(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

void MainWindow::setCurrentFile(const QString &path)
{
    currentFile = path;
    currentFileStamp = stampOf(path);
    setWindowFilePath(path);
    QSettings settings(organization(), QString());
    QStringList files = settings.value(listKey()).toStringList();
    files.removeAll(path);
    files.prepend(path);
    while (files.size() > recentFileCount)
        files.removeLast();
    settings.setValue(listKey(), files);
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (auto *window = qobject_cast<MainWindow *>(widget))
            window->updateRecentFileActions();
    }
}

void MainWindow::updateRecentFileActions()
{
    const QSettings settings(organization(), QString());
    const QStringList files = settings.value(listKey()).toStringList();
    const int count = std::min(files.size(), recentFileCount);
    for (int i = 0; i < recentFileCount; ++i) {
        QAction *action = recentFileActions[std::size_t(i)];
        action->setVisible(i < count);
        if (i >= count)
            continue;
        const QString name = forMenu(strippedName(files[i]));
        action->setText(tr("&%1 %2").arg(QString::number(i + 1), name));
        action->setData(files[i]);
    }
}

void MainWindow::openRecentFile()
{
    if (const auto *action = qobject_cast<QAction *>(sender()))
        loadFile(action->data().toString());
}
