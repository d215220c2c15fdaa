#include "scenario/option_dialog.h"

#include "scenario/whole_text.h"
#include "shell/choice_box.h"
#include "shell/dialog_look.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QStyle>
#include <QStyleOptionComboBox>

namespace {

constexpr int widestBox = 80; // average characters

// The form asks for room for ordinary names. A longer one gets its room too, up to a limit.
void makeRoom(QComboBox *box)
{
    box->ensurePolished();
    const int ordinary = box->sizeHint().width();
    const QComboBox::SizeAdjustPolicy policy = box->sizeAdjustPolicy();
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    const int limit = widestBox * box->fontMetrics().averageCharWidth();
    box->setMinimumWidth(qMax(ordinary, qMin(box->sizeHint().width(), limit)));
    box->setSizeAdjustPolicy(policy);
}

bool isCut(const QComboBox *box)
{
    QStyleOptionComboBox option;
    option.initFrom(box);
    option.frame = box->hasFrame();
    const QRect room = box->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                    QStyle::SC_ComboBoxEditField, box);
    const int padding = 1; // pixels that the style leaves on either side
    return box->fontMetrics().horizontalAdvance(box->currentText()) > room.width() - 2 * padding;
}

// Tells the choice whole that a box cuts, or an item of its list.
class WholeTextFilter : public QObject
{
public:
    explicit WholeTextFilter(QComboBox *newBox) : QObject(newBox), box(newBox)
    {
        box->installEventFilter(this);
        box->view()->viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::ToolTip)
            return QObject::eventFilter(watched, event);
        const auto &help = *static_cast<QHelpEvent *>(event);
        if (watched == box)
            tellWholeText(box->currentText(), isCut(box), help, box);
        else
            tellWholeItem(box->view(), help);
        return true;
    }

private:
    QComboBox *const box;
};

} // namespace

void setUpOptionDialog(QDialog *dialog, std::initializer_list<QComboBox *> boxes,
                       QDialogButtonBox *buttons)
{
    dialog->setWindowModality(Qt::ApplicationModal);
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    keepRightClicksOff(boxes, dialog);
    for (QComboBox *box : boxes) {
        makeRoom(box);
        new WholeTextFilter(box); // which the box owns
    }
    fixDialog(dialog);
}
