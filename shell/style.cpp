#include "shell/style.h"

namespace {

constexpr char commonSheet[] = R"(
QCheckBox::indicator { width: 16px; height: 16px; }
QCheckBox::indicator:unchecked { image: url(:/icons/checkbox_unchecked.svg); }
QCheckBox::indicator:checked { image: url(:/icons/checkbox_checked.svg); }
QCheckBox::indicator:checked:disabled { image: url(:/icons/checkbox_checked_disabled.svg); }
QCheckBox::indicator:unchecked:disabled { image: url(:/icons/checkbox_unchecked_disabled.svg); }
QListWidget::indicator { width: 14px; height: 14px; }
QListWidget::indicator:unchecked { image: url(:/icons/checkbox_unchecked.svg); }
QListWidget::indicator:checked { image: url(:/icons/checkbox_checked.svg); }
QListWidget::indicator:checked:disabled { image: url(:/icons/checkbox_checked_disabled.svg); }
QListWidget::indicator:unchecked:disabled { image: url(:/icons/checkbox_unchecked_disabled.svg); }
QComboBox::down-arrow {
    image: url(:/icons/combobox_indicator.svg);
    width: 12px;
    height: 12px;
}
QComboBox::down-arrow:disabled {
    image: url(:/icons/combobox_indicator_disabled.svg);
}
QComboBox::drop-down {
    border: none;
}
QSpinBox {
    border: 1px solid "#7A7A7A";
}
QSpinBox:disabled {
    border: 1px solid "#CCCCCC";
}
QSpinBox::up-button {
    width: 16px;
    background: "#ECECEC";
    border-left: 1px solid "#ACACAC";
}
QSpinBox::down-button {
    width: 16px;
    background: "#ECECEC";
    border-left: 1px solid "#ACACAC";
    border-top: 1px solid "#ACACAC";
}
QSpinBox::up-button:hover, QSpinBox::up-button:pressed, QSpinBox::down-button:hover, QSpinBox::down-button:pressed {
    background: "#FFFFFF";
}
QSpinBox::up-button:disabled, QSpinBox::down-button:disabled {
    border-color: "#CCCCCC"
}
QSpinBox::up-arrow {
    image: url(:/icons/spinbox_up_arrow.svg);
    width: 16px;
    height: 8px;
}
QSpinBox::up-arrow:disabled, QSpinBox::up-arrow:off {
    image: url(:/icons/spinbox_up_arrow_disabled.svg);
}
QSpinBox::down-arrow {
    image: url(:/icons/spinbox_down_arrow.svg);
    width: 16px;
    height: 8px;
}
QSpinBox::down-arrow:disabled, QSpinBox::down-arrow:off {
    image: url(:/icons/spinbox_down_arrow_disabled.svg);
}
)";

// %1 is the background's colour, %2 that of text.
constexpr char darkSheet[] = R"(QWidget { background: %1; color: %2; }
QWidget::disabled { color: #808080; }
QWidget::item:hover { background: #606060; }
QListView::item:hover { background: #606060; }
QTreeView { background: #303030; alternate-background-color: #505050; }
QTabBar::tab { background: #404040; }
QTabBar::tab:selected, QTabBar::tab:hover { background: #606060; }
QMenuBar::item:selected, QMenu::item:selected { background: #808080; }
QHeaderView::section { background: #505050; }
QMenuBar { background: #606060; }
QGroupBox, QCheckBox, QRadioButton, QLabel {
    background: none;
}
QToolBar {
    border: 1px solid #808080;
    background: #606060;
}
QToolBar > QWidget {
    background: none;
}
QToolBar > QToolButton::pressed, QToolBar > QToolButton::checked {
    background-color: #808080;
}
QToolBar > QToolButton::hover {
    background-color: #909090;
}
QPushButton::focus {
    border: 2px solid #408080;
}
QComboBox::down-arrow {
    image: url(:/icons/combobox_indicator_dark_mode.svg);
    width: 12px;
    height: 12px;
}
)";

} // namespace

std::unique_ptr<Style> Style::standard_ = std::make_unique<StyleStandard>();
std::unique_ptr<Style> Style::dark_ = std::make_unique<StyleDark>();
Style *Style::current_ = Style::standard_.get();

Style::Style(const QColor &background_, const QColor &text_, const QColor &faintText_,
             const QColor &line_, const QColor &paper_, const QColor &selection_,
             const QColor &link_, const QColor &error_, const QColor &accent_,
             const QColor &warning_)
    : background(background_), text(text_), faintText(faintText_), line(line_), paper(paper_),
      selection(selection_), link(link_), error(error_), accent(accent_), warning(warning_)
{
}

StyleStandard::StyleStandard()
    : Style(Qt::white, Qt::black, "#606060", Qt::black, Qt::white, "#D0D0FF", "#0000FF", "#FF0000",
            QColor(100, 150, 255), QColor(255, 220, 0))
{
}

QString StyleStandard::styleSheet()
{
    return QLatin1String(commonSheet);
}

StyleDark::StyleDark()
    : Style("#404040", Qt::white, "#C0C0C0", Qt::white, Qt::black, "#606060", "#80FFFF", "#FF8080",
            QColor(100, 150, 255), Qt::yellow)
{
}

QString StyleDark::styleSheet()
{
    const QString rules = QLatin1String(darkSheet);
    return QLatin1String(commonSheet) + rules.arg(background.name(), text.name());
}
