#include "scenario/ask_delete_all.h"

#include "shell/dialog_look.h"
#include "ui_AskDeleteAll.h"

AskDeleteAll::AskDeleteAll(QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui_AskDeleteAll>())
{
    ui->setupUi(this);
    setWindowModality(Qt::ApplicationModal);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    fixDialog(this);
}

AskDeleteAll::~AskDeleteAll() = default;
