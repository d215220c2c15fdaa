// Shows the text of every message box as it is. Qt's own boxes, such as the question whether a
// file may be replaced, leave it to the text whether it is markup, and a file's name could be.
//
// An event filter, to be installed on the application.
#pragma once

#include <QObject>

class PlainMessageBoxes : public QObject
{
    Q_OBJECT

public:
    explicit PlainMessageBoxes(QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;
};
