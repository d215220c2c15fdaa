// Lets a test ask the program that loads it where its widgets are; see widget_report.h. It only
// looks: mouse and keyboard stay the test's.
//
// Loaded by QT_QPA_GENERIC_PLUGINS=widgetlocator:PATH, it listens at the local socket PATH. Each
// line that comes is a question, each line that goes its answer, both JSON. An answer has more
// members. How often something has reached the program: "presses" of the mouse's buttons and turns
// of its wheel, "moves" of the mouse, and "keys". And "pointer", where the last move led, [x, y] on
// the screen.
#include "tests/desktop/widget_report.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGenericPlugin>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocalServer>
#include <QLocalSocket>
#include <QMouseEvent>

namespace {

class WidgetLocator : public QObject
{
public:
    explicit WidgetLocator(const QString &path)
    {
        QLocalServer::removeServer(path);
        connect(&m_server, &QLocalServer::newConnection, this, &WidgetLocator::listenToNext);
        if (!m_server.listen(path))
            qWarning("No widgets are located: %s", qPrintable(m_server.errorString()));
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (!object->isWindowType())
            return false;
        if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::Wheel)
            ++m_presses;
        if (event->type() == QEvent::KeyPress)
            ++m_keys;
        if (event->type() == QEvent::MouseMove) {
            ++m_moves;
            m_pointer = static_cast<QMouseEvent *>(event)->globalPos();
        }
        return false;
    }

private:
    void listenToNext()
    {
        QLocalSocket *socket = m_server.nextPendingConnection();
        connect(socket, &QLocalSocket::readyRead, this, [=] { answer(*socket); });
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    }

    void answer(QLocalSocket &socket) const
    {
        while (socket.canReadLine()) {
            const QJsonDocument question = QJsonDocument::fromJson(socket.readLine());
            QJsonObject told = widgetReport(question.object());
            told["presses"] = m_presses;
            told["moves"] = m_moves;
            told["keys"] = m_keys;
            told["pointer"] = QJsonArray{m_pointer.x(), m_pointer.y()};
            socket.write(QJsonDocument(told).toJson(QJsonDocument::Compact) + '\n');
            socket.flush();
        }
    }

    QLocalServer m_server;
    int m_presses = 0;
    int m_moves = 0;
    int m_keys = 0;
    QPoint m_pointer;
};

} // namespace

class WidgetLocatorPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "widget_locator.json")

public:
    // The caller owns what is created.
    QObject *create(const QString &, const QString &path) override
    {
        return new WidgetLocator(path);
    }
};

#include "widget_locator_plugin.moc"
