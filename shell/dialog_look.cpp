#include "shell/dialog_look.h"

#include <QDialog>
#include <QFontDatabase>
#include <QLayout>

namespace {

constexpr int pointSize = 8;

bool isInstalled(const QString &family)
{
    return QFontDatabase().hasFamily(family);
}

} // namespace

QFont editorFont(const QString &family)
{
    if (isInstalled(family))
        return QFont(family, pointSize);
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPointSize(pointSize);
    return font;
}

void fixDialog(QDialog *dialog)
{
    if (dialog->testAttribute(Qt::WA_SetFont) && !isInstalled(dialog->font().family()))
        dialog->setFont(editorFont(dialog->font().family()));
    dialog->setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    dialog->ensurePolished();
    dialog->setFixedSize(dialog->size().expandedTo(dialog->sizeHint()));
}
