// Shows tool tips as the plain texts that they are: Qt takes one with markup in it for that.
#pragma once

#include <QObject>

class PlainToolTips : public QObject
{
    Q_OBJECT

public:
    explicit PlainToolTips(QObject *parent);

    // Answers a widget's request for its own tool tip; lets everything else through.
    bool eventFilter(QObject *watched, QEvent *event) override;
};
