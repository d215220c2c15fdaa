// The editor's window with a campaign that was changed, and what it tells when it saves it.
#pragma once

#include "tests/shell/window_fixture.h"
#include "tests/support/byte_writer.h"

#include <QMessageBox>

// Notes every message box and answers it.
class BoxRecorder : public QObject
{
public:
    BoxRecorder() { qApp->installEventFilter(this); }

    QStringList texts; // "title|text" of each, "?" for what is no warning

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Show && qobject_cast<QDialog *>(object)) {
            const auto *box = qobject_cast<QMessageBox *>(object);
            texts << (box && box->icon() == QMessageBox::Warning
                          ? box->windowTitle() + QLatin1Char('|') + box->text()
                          : QStringLiteral("?"));
            QMetaObject::invokeMethod(object, "accept", Qt::QueuedConnection);
        }
        return false;
    }
};

class SavingWindow
{
public:
    // The campaign's file has at least so many bytes.
    explicit SavingWindow(int size = 0)
    {
        m_fixture.reset();
        m_window = std::make_unique<MainWindow>(nullptr);
        m_window->loadFile(m_fixture.game.addCampaign(
            "opened.e3c",
            size > 0 ? longCampaign(size) : tiny::campaign(24, {{true, 1}, {true, 3}, {}})));
        const QString whole = m_fixture.game.filePath("whole.e3c");
        if (!save(whole))
            qFatal("Nothing can be saved here");
        m_bytes = m_fixture.game.read("whole.e3c");
    }

    // What a save that goes well writes.
    const QByteArray &bytes() const { return m_bytes; }
    const QStringList &messages() const { return m_boxes.texts; }
    QString file() const { return m_window->windowFilePath(); }
    MainWindow &window() { return *m_window; }

    // Saves the changed campaign. Forgets the messages before.
    bool save(const QString &path)
    {
        m_boxes.texts.clear();
        EditorData::info.modified = true;
        return m_window->saveFile(path);
    }

private:
    // Without a map, but with a description that can't be packed to less than this.
    static QByteArray longCampaign(int size)
    {
        ByteWriter noise;
        for (quint32 i = 0; noise.size() < size; ++i)
            noise.u32(i * 2654435761u ^ i << 7 ^ i >> 3);
        ByteWriter file;
        file.u32(10).u32(1).u8(0).u32(0).u32(0).u8(25).text(noise.bytes().toHex()).zeros(6);
        return tiny::gzip(file.bytes());
    }

    WindowFixture m_fixture;
    BoxRecorder m_boxes;
    std::unique_ptr<MainWindow> m_window;
    QByteArray m_bytes;
};

// The one message of a save that failed.
inline QStringList cannotWrite(const QString &path, const QString &words)
{
    return {QStringLiteral("Error|Cannot write file %1:\n%2.").arg(path, words)};
}
