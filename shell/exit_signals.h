// Ends the event loop when the system asks the process to end, so that the settings are written
// as after any other end.
#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <array>
#include <memory>

// Answers SIGTERM, SIGHUP and SIGINT while it lives, but for those that the editor was started
// to ignore; there is one at a time. Should the system have no pipe left, the signals keep their
// usual effect.
class ExitSignals : public QObject
{
    Q_OBJECT

public:
    explicit ExitSignals(QObject *parent = nullptr);
    ~ExitSignals() override;

private:
    std::array<int, 2> m_pipe{-1, -1};
    std::unique_ptr<QSocketNotifier> m_notifier;
};
