// The lists and tables of the dialogs.
#pragma once

#include <QListWidget>
#include <QTableWidget>

// A list whose selection the right mouse button leaves alone.
class CustomListWidget : public QListWidget
{
    Q_OBJECT

public:
    explicit CustomListWidget(QWidget *parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
};

class CustomTableWidget : public QTableWidget
{
    Q_OBJECT

public:
    explicit CustomTableWidget(QWidget *parent = nullptr);
};
