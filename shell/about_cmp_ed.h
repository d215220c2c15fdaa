// The dialog that tells what this program is.
#pragma once

#include <QDialog>

#include <memory>

class Ui_AboutCmpEd;

class AboutCmpEd : public QDialog
{
    Q_OBJECT

public:
    explicit AboutCmpEd(QWidget *parent);
    ~AboutCmpEd() override;

private:
    const std::unique_ptr<Ui_AboutCmpEd> ui;
};
