// Files dropped on the window, wherever on it.
#include "shell/drag_and_drop_handler.h"
#include "tests/shell/window_fixture.h"

#include <QDragEnterEvent>
#include <QGraphicsSceneDragDropEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QUrl>
#include <QWindow>

class DragAndDropTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void urlOfMimeData_data();
    void urlOfMimeData();
    void otherObjectsAreLeftAlone();
    void windowAndSceneAreWatched_data();
    void windowAndSceneAreWatched();
    void dragWithoutUrlsIsTakenButNotAccepted();
    void dropWithoutUrlsIsHarmless();
    void otherEventsPass();
    void dropReachesTheWindowFromEverywhere_data();
    void dropReachesTheWindowFromEverywhere();
    void onlyTheFirstOfSeveralFilesOpens();
    void dropAsksAboutChangesFirst();
    void wrongFileIsTurnedAwayByItsReader();
    void fileFromElsewhereCantBeRead();

private:
    bool drop(MainWindow &window, const QPoint &place, const QMimeData &data);

    std::unique_ptr<WindowFixture> fixture;
    QString first;
    QString second;
};

void DragAndDropTest::initTestCase()
{
    fixture = std::make_unique<WindowFixture>();
    first = fixture->game.addCampaign("first.e3c", tiny::campaign(24, {{}, {}, {}}));
    second = fixture->game.addCampaign("second.e3c", tiny::campaign(3, {{}, {}}));
}

void DragAndDropTest::init()
{
    fixture->reset();
}

void DragAndDropTest::urlOfMimeData_data()
{
    QTest::addColumn<QList<QUrl>>("urls");
    QTest::addColumn<QString>("path");
    QTest::newRow("one file") << QList<QUrl>{QUrl::fromLocalFile("/a/b.e3c")} << "/a/b.e3c";
    QTest::newRow("the first of two")
        << QList<QUrl>{QUrl::fromLocalFile("/a/b.e3c"), QUrl::fromLocalFile("/c.e3c")}
        << "/a/b.e3c";
    QTest::newRow("from elsewhere") << QList<QUrl>{QUrl("https://example.org/a.e3c")} << "";
    QTest::newRow("none") << QList<QUrl>{} << "";
}

void DragAndDropTest::urlOfMimeData()
{
    QFETCH(QList<QUrl>, urls);
    QFETCH(QString, path);
    QMimeData data;
    data.setUrls(urls);
    DragAndDropHandler handler(nullptr);
    QCOMPARE(handler.getUrlFromMimeData(&data), path);
    QSignalSpy dropped(&handler, &DragAndDropHandler::fileDropped);
    QDropEvent event(QPointF(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    handler.handleDrop(&event);
    QVERIFY(event.isAccepted());
    QCOMPARE(dropped.size(), urls.isEmpty() ? 0 : 1);
    if (!urls.isEmpty())
        QCOMPARE(dropped[0][0].toString(), path);
}

void DragAndDropTest::otherObjectsAreLeftAlone()
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile("/a.e3c")});
    QDragEnterEvent event(QPoint(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    DragAndDropHandler handler(nullptr);
    QWidget other;
    QVERIFY(!handler.eventFilter(&other, &event));
    QVERIFY(!event.isAccepted());
}

void DragAndDropTest::windowAndSceneAreWatched_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("drag on window") << 60;
    QTest::newRow("drop on window") << 63;
    QTest::newRow("drag on scene") << 164;
    QTest::newRow("drop on scene") << 167;
}

void DragAndDropTest::windowAndSceneAreWatched()
{
    QFETCH(int, type);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile("/a.e3c")});
    DragAndDropHandler handler(nullptr);
    QSignalSpy dropped(&handler, &DragAndDropHandler::fileDropped);
    MainWindow window(nullptr);
    MyGraphicsScene scene;
    bool accepted = false;
    bool filtered = false;
    if (type == QEvent::DragEnter || type == QEvent::Drop) {
        QDragEnterEvent enter(QPoint(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QDropEvent drop(QPointF(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QDropEvent &event = type == QEvent::Drop ? drop : enter;
        event.ignore();
        filtered = handler.eventFilter(&window, &event);
        accepted = event.isAccepted();
    } else {
        QGraphicsSceneDragDropEvent event(static_cast<QEvent::Type>(type));
        event.setMimeData(&data);
        event.setProposedAction(Qt::CopyAction);
        event.setDropAction(Qt::IgnoreAction);
        filtered = handler.eventFilter(&scene, &event);
        accepted = event.dropAction() == Qt::CopyAction;
    }
    QVERIFY(filtered);
    QVERIFY(accepted);
    const bool isDrop = type == 63 || type == 167;
    QCOMPARE(dropped.size(), isDrop ? 1 : 0);
}

void DragAndDropTest::dragWithoutUrlsIsTakenButNotAccepted()
{
    QMimeData data;
    data.setText("just words");
    QDragEnterEvent event(QPoint(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    DragAndDropHandler handler(nullptr);
    MainWindow window(nullptr);
    QVERIFY(handler.eventFilter(&window, &event));
    QVERIFY(!event.isAccepted());
    MyGraphicsScene scene;
    QGraphicsSceneDragDropEvent above(QEvent::GraphicsSceneDragEnter);
    above.setMimeData(&data);
    above.setProposedAction(Qt::CopyAction);
    above.setDropAction(Qt::IgnoreAction);
    QVERIFY(handler.eventFilter(&scene, &above));
    QCOMPARE(above.dropAction(), Qt::IgnoreAction);
}

void DragAndDropTest::dropWithoutUrlsIsHarmless()
{
    QMimeData data;
    data.setText("just words");
    QGraphicsSceneDragDropEvent event(QEvent::GraphicsSceneDrop);
    event.setMimeData(&data);
    DragAndDropHandler handler(nullptr);
    QSignalSpy dropped(&handler, &DragAndDropHandler::fileDropped);
    MyGraphicsScene scene;
    QVERIFY(handler.eventFilter(&scene, &event));
    QVERIFY(dropped.isEmpty());
}

void DragAndDropTest::otherEventsPass()
{
    DragAndDropHandler handler(nullptr);
    MainWindow window(nullptr);
    QEvent event(QEvent::User);
    QVERIFY(!handler.eventFilter(&window, &event));
}

// The way of a drag from the window system: enter, move, drop, each to the window's handle.
bool DragAndDropTest::drop(MainWindow &window, const QPoint &place, const QMimeData &data)
{
    QWindow *handle = window.windowHandle();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(handle, &enter);
    QDragMoveEvent move(place + QPoint(1, 1), Qt::CopyAction, &data, Qt::LeftButton,
                        Qt::NoModifier);
    move.setAccepted(enter.isAccepted());
    QApplication::sendEvent(handle, &move);
    if (!enter.isAccepted() || !move.isAccepted())
        return false;
    QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(handle, &event);
    return event.isAccepted();
}

void DragAndDropTest::dropReachesTheWindowFromEverywhere_data()
{
    QTest::addColumn<QString>("widget");
    QTest::newRow("map") << "graphicsView";
    QTest::newRow("menu bar") << "menuBar";
    QTest::newRow("tool bar") << "toolBar";
    QTest::newRow("status bar") << "statusBar";
}

void DragAndDropTest::dropReachesTheWindowFromEverywhere()
{
    QFETCH(QString, widget);
    MainWindow window(nullptr);
    QVERIFY(show(window));
    const auto *target = window.findChild<QWidget *>(widget);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(second)});
    QVERIFY(drop(window, target->mapTo(&window, target->rect().center()), data));
    QCOMPARE(window.windowTitle(), QString("second.e3c - Tiny Campaign Editor"));
}

void DragAndDropTest::onlyTheFirstOfSeveralFilesOpens()
{
    MainWindow window(nullptr);
    QVERIFY(show(window));
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(second), QUrl::fromLocalFile(first)});
    QVERIFY(drop(window, QPoint(200, 300), data));
    QCOMPARE(window.windowTitle(), QString("second.e3c - Tiny Campaign Editor"));
    QCOMPARE(QSettings("cmped_info", "").value("recentFileList").toStringList(),
             QStringList(second));
}

void DragAndDropTest::dropAsksAboutChangesFirst()
{
    MainWindow window(nullptr);
    QVERIFY(show(window));
    EditorData::info.modified = true;
    NextDialog question(
        boxAnswer({"Tiny Campaign Editor", "Save changes to Untitled?", QMessageBox::NoIcon,
                   QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Cancel}));
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(second)});
    drop(window, QPoint(200, 300), data);
    QVERIFY(question.came());
    QCOMPARE(window.windowTitle(), QString("Untitled.e3c - Tiny Campaign Editor"));
}

void DragAndDropTest::wrongFileIsTurnedAwayByItsReader()
{
    const QString text = fixture->game.addCampaign("notes.txt", tiny::gzip(""));
    MainWindow window(nullptr);
    QVERIFY(show(window));
    NextDialog box(boxAnswer({"Error", "Incorrect or damaged file.", QMessageBox::Critical}));
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(text)});
    drop(window, QPoint(200, 300), data);
    QVERIFY(box.came());
}

void DragAndDropTest::fileFromElsewhereCantBeRead()
{
    MainWindow window(nullptr);
    QVERIFY(show(window));
    NextDialog box(
        boxAnswer({"Error", "Cannot read file :\nNo file name specified.", QMessageBox::Warning}));
    QMimeData data;
    data.setUrls({QUrl("https://example.org/a.e3c"), QUrl::fromLocalFile(second)});
    QVERIFY(drop(window, QPoint(200, 300), data));
    QVERIFY(box.came());
    QCOMPARE(window.windowTitle(), QString("Untitled.e3c - Tiny Campaign Editor"));
}

QTEST_MAIN(DragAndDropTest)
#include "drag_and_drop_test.moc"
