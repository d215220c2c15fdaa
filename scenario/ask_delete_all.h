// Asks whether all scenarios but the selected one shall go.
#pragma once

#include <QDialog>

#include <memory>

class Ui_AskDeleteAll;

class AskDeleteAll : public QDialog
{
    Q_OBJECT

public:
    explicit AskDeleteAll(QWidget *parent);
    ~AskDeleteAll() override;

private:
    const std::unique_ptr<Ui_AskDeleteAll> ui;
};
