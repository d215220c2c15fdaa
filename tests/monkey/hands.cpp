#include "tests/monkey/hands.h"

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QPointer>
#include <QTest>
#include <QUrl>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>

namespace {

constexpr int notch = 120; // of a wheel, in eighths of a degree

struct Place
{
    QPointer<QWindow> window; // null if there is nothing to be reached
    QPoint position;
};

Place placeIn(QWidget *widget, QPoint place)
{
    QWidget *top = widget->window();
    QWindow *handle = top->windowHandle();
    const QPoint position = widget->mapTo(top, place);
    if (!handle || !QRect(QPoint(), handle->geometry().size()).contains(position))
        return {};
    return {handle, position};
}

} // namespace

namespace hands {

void click(QWidget *widget, QPoint place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    const Place at = placeIn(widget, place);
    if (at.window)
        QTest::mousePress(at.window, button, modifiers, at.position);
    // The press may have closed the window.
    if (at.window)
        QTest::mouseRelease(at.window, button, modifiers, at.position);
}

void doubleClick(QWidget *widget, QPoint place, Qt::MouseButton button)
{
    const Place at = placeIn(widget, place);
    if (at.window)
        QTest::mouseDClick(at.window, button, {}, at.position);
}

void drag(QWidget *widget, QPoint from, QPoint to)
{
    const Place start = placeIn(widget, from);
    const Place end = placeIn(widget, to);
    if (!start.window || !end.window)
        return;
    QTest::mousePress(start.window, Qt::LeftButton, {}, start.position);
    if (end.window)
        QTest::mouseMove(end.window, end.position);
    if (end.window)
        QTest::mouseRelease(end.window, Qt::LeftButton, {}, end.position);
}

void hover(QWidget *widget, QPoint place)
{
    const Place at = placeIn(widget, place);
    if (at.window)
        QTest::mouseMove(at.window, at.position);
}

void wheel(QWidget *widget, QPoint place, int notches)
{
    const Place at = placeIn(widget, place);
    if (!at.window)
        return;
    QWheelEvent event(at.position, at.window->mapToGlobal(at.position), QPoint(),
                      QPoint(0, notches * notch), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(at.window, &event);
}

void key(QWidget *widget, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    const QPointer<QWindow> window = widget->window()->windowHandle();
    if (window)
        QTest::keyPress(window, key, modifiers);
    if (window)
        QTest::keyRelease(window, key, modifiers);
}

void type(QWidget *widget, const QString &text)
{
    const QPointer<QWindow> window = widget->window()->windowHandle();
    const auto letters = text.toUcs4();
    for (const uint letter : letters) {
        if (!window)
            return;
        QTest::sendKeyEvent(QTest::Click, window, Qt::Key_unknown, QString::fromUcs4(&letter, 1),
                            Qt::NoModifier);
    }
}

void dropFiles(QWidget *window, QPoint place, const QStringList &paths)
{
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls += QUrl::fromLocalFile(path);
    QMimeData data;
    data.setUrls(urls);
    QWindow *handle = window->windowHandle();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(handle, &enter);
    QDragMoveEvent move(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    move.setAccepted(enter.isAccepted());
    QCoreApplication::sendEvent(handle, &move);
    if (!enter.isAccepted() || !move.isAccepted())
        return;
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(handle, &drop);
}

} // namespace hands
