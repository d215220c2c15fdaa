#include "shell/about_cmp_ed.h"

#include "gamedata/editor_data.h"
#include "shell/dialog_look.h"
#include "ui_AboutCmpEd.h"

#include <QIcon>

namespace {

// Rows of the game's editor texts.
constexpr int titleRow = 0;
constexpr int authorsRow = 1;
constexpr int detailsRow = 7;

constexpr int iconSide = 64;

} // namespace

AboutCmpEd::AboutCmpEd(QWidget *parent) : QDialog(parent), ui(std::make_unique<Ui_AboutCmpEd>())
{
    ui->setupUi(this);
    setModal(true);
    // An image of its own would be the file's smallest picture, enlarged.
    ui->icon->setPixmap(QIcon(QStringLiteral(":/icons/cmped.ico")).pixmap(iconSide, iconSide));
    const auto &texts = EditorData::editorText;
    ui->label->setText(QStringLiteral("%1\n%2\n\n%3\n\n%4")
                           .arg(textOf(texts, titleRow), tr("Version Ravn"),
                                textOf(texts, detailsRow), textOf(texts, authorsRow)));
    fixDialog(this);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

AboutCmpEd::~AboutCmpEd() = default;
