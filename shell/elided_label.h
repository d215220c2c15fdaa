// A line of text that never widens its window: it asks for the room that the text takes, up to a
// limit, ends in an ellipsis where it gets less, and then tells the whole text as its tool tip.
#pragma once

#include <QLabel>

class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    // In pixels; a longer text is content with this.
    void setWidestRequest(int width);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString shownText() const;

    int m_widestRequest = 60;
};
