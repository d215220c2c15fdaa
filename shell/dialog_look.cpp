#include "shell/dialog_look.h"

#include <QAbstractItemView>
#include <QDialog>
#include <QFontDatabase>
#include <QHash>
#include <QLabel>
#include <QLayout>

namespace {

constexpr int pointSize = 8;

// Qt lists and sorts all families for the answer, however many are installed.
bool isInstalled(const QString &family)
{
    static QHash<QString, bool> known;
    const auto found = known.constFind(family);
    if (found != known.constEnd())
        return *found;
    return *known.insert(family, QFontDatabase().hasFamily(family));
}

// The least that shows every text whole. Lists and previews are content with the form's size,
// so it is their minimum that counts, and a wrapped text needs its height at this width.
QSize roomFor(const QDialog *dialog)
{
    QSize room = dialog->size().expandedTo(dialog->minimumSizeHint());
    const QLayout *layout = dialog->layout();
    if (layout && layout->hasHeightForWidth())
        room.setHeight(qMax(room.height(), layout->totalHeightForWidth(room.width())));
    return room;
}

// What a screen reader calls a list: Qt tells it a label's text for all controls but these.
void nameLists(const QDialog *dialog)
{
    const auto labels = dialog->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (auto *list = qobject_cast<QAbstractItemView *>(label->buddy()))
            list->setAccessibleName(label->text());
    }
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
    nameLists(dialog);
    dialog->ensurePolished();
    dialog->setFixedSize(roomFor(dialog));
}
