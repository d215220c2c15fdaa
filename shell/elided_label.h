// A line of the status bar: asks for the room that its text takes, up to a limit, and ends in an
// ellipsis where it gets less, so that no text of the game's widens the window.
#pragma once

#include <QLabel>

class StatusLabel : public QLabel
{
    Q_OBJECT

public:
    // In pixels; a longer text is content with this.
    explicit StatusLabel(int widestRequest);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const int m_widestRequest;
};
