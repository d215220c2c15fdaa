// What the window tests share: the tiny game, loaded once, and the user's settings and data in a
// folder of their own.
#pragma once

#include "shell/campaign_map_view.h"
#include "shell/campaign_region_item.h"
#include "shell/main_window.h"
#include "tests/shell/editor_fixture.h"
#include "tests/support/file_dialogs.h"
#include "tests/support/message_boxes.h"

#include <QAction>
#include <QApplication>
#include <QGraphicsScene>
#include <QLabel>
#include <QSettings>
#include <QStatusBar>
#include <QTest>

class WindowFixture : public EditorFixture
{
public:
    WindowFixture()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_settings.filePath("data")));
    }

    // Before each test: nothing modified, no file ever opened, no folder used.
    void reset()
    {
        EditorFixture::reset();
        QSettings("cmped_info", "").clear();
    }

private:
    QTemporaryDir m_settings;
};

// Shows a window and waits until clicks reach it.
inline bool show(QWidget &window)
{
    window.show();
    return QTest::qWaitForWindowExposed(&window);
}

inline QGraphicsView *mapView(MainWindow &window)
{
    return window.findChild<QGraphicsView *>("graphicsView");
}

// Closes the menu that the next event opens, from within its own loop.
inline void closeNextMenu(QObject *context)
{
    QTimer::singleShot(0, context, [] {
        if (QWidget *menu = QApplication::activePopupWidget())
            menu->close();
    });
}

// Region items in the order of the regions.
inline QVector<CampaignRegionItem *> regionsOf(MainWindow &window)
{
    QVector<CampaignRegionItem *> regions;
    const auto items = mapView(window)->scene()->items(Qt::AscendingOrder);
    for (QGraphicsItem *item : items) {
        if (item->data(256) == 1)
            regions.append(static_cast<CampaignRegionItem *>(item));
    }
    return regions;
}

// The status bar's labels: the hint, then the region. A line is a frame and no label.
inline QLabel *statusLabel(MainWindow &window, int index)
{
    auto *bar = window.findChild<QStatusBar *>("statusBar");
    return bar->findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly).value(index);
}

inline QString hintOf(MainWindow &window)
{
    return statusLabel(window, 0)->text();
}

inline QString regionNameIn(MainWindow &window)
{
    return statusLabel(window, 1)->text();
}

inline QAction *action(MainWindow &window, const char *name)
{
    return window.findChild<QAction *>(name);
}

// Checks a dialog's title and closes it.
inline NextDialog::Answer closingDialog(const QString &title)
{
    return [title](QWidget *dialog) {
        const QString shown = dialog->windowTitle();
        dialog->close();
        QCOMPARE(shown, title);
    };
}

// A colour as it comes out of a pixmap, which rounds half-transparent ones.
inline QColor throughPixmap(const QColor &colour)
{
    QImage image(1, 1, QImage::Format_ARGB32);
    image.setPixelColor(0, 0, colour);
    return QPixmap::fromImage(image).toImage().pixelColor(0, 0);
}

inline QColor pixelOf(const QGraphicsPixmapItem *item, int x, int y)
{
    return item->pixmap().toImage().pixelColor(x, y);
}

// Answers a file dialog that offers campaigns.
inline NextDialog::Answer chooseFile(const QString &caption, const QString &folder,
                                     const QString &name, const QString &choice)
{
    const QStringList filters{"Eldmark Saga campaign (*.e3c)", "All Files (*)"};
    return chooseFile({caption, folder, name, filters}, choice);
}
