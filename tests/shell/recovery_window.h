// A window whose data folder is empty, and the copy that it keeps of its document there.
#pragma once

#include "shell/recovery_copies.h"
#include "tests/shell/exchange_window.h"

#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QDir>
#include <QPushButton>
#include <QTextEdit>

const QMessageBox::StandardButtons yesOrNo = QMessageBox::Yes | QMessageBox::No;

inline void pressOk(QWidget *dialog)
{
    clickOn(static_cast<QWidget *>(
        dialog->findChild<QDialogButtonBox *>("buttonBox")->button(QDialogButtonBox::Ok)));
}

inline ExpectedBox saveQuestion(const QString &name, QMessageBox::StandardButton press)
{
    return {appTitle, "Save changes to " + name + "?", QMessageBox::NoIcon,
            yesOrNo | QMessageBox::Cancel, press};
}

class RecoveryWindow : protected ExchangeWindow
{
protected:
    // Before each test.
    void resetWithData()
    {
        m_data = std::make_unique<QTemporaryDir>();
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_data->path()));
        reset();
    }

    QString recovery() const { return RecoveryCopies::usualFolder(); }
    QStringList copies() const
    {
        return QDir(recovery()).entryList({"*.e3c"}, QDir::Files | QDir::Hidden, QDir::Name);
    }
    QByteArray copy() const { return contents(recovery() + '/' + copies().value(0)); }

    void changeName(const QString &name)
    {
        const NextDialog dialog([&](QWidget *widget) {
            widget->findChild<QTextEdit *>("nameEdit")->setPlainText(name);
            pressOk(widget);
        });
        trigger("campaignProperties");
    }

    bool closes()
    {
        QCloseEvent event;
        QApplication::sendEvent(window.get(), &event);
        return event.isAccepted();
    }

private:
    std::unique_ptr<QTemporaryDir> m_data;
};
