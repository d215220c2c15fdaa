#include "scenario/option_page.h"

#include "scenario/whole_text.h"
#include "shell/dialog_look.h"

#include <QHeaderView>
#include <QPushButton>

namespace {

constexpr int sectionSize = 20; // of the vertical header, pixels

} // namespace

OptionPage::OptionPage(QWidget *parent) : QWidget(parent) {}

void OptionPage::setUpTable(QTableWidget *table, QPushButton *add, QPushButton *edit,
                            QPushButton *remove)
{
    m_table = table;
    m_add = add;
    m_edit = edit;
    m_remove = remove;
    table->setShowGrid(false);
    table->setWordWrap(false);         // a row has room for one line
    table->setTabKeyNavigation(false); // the Tab key leads on to the buttons
    table->viewport()->installEventFilter(this);
    table->installEventFilter(this);
    QHeaderView *rows = table->verticalHeader();
    rows->hide();
    rows->setMinimumSectionSize(1); // or the font would forbid the rows' height
    rows->setDefaultSectionSize(sectionSize);
    rows->setSectionResizeMode(QHeaderView::Fixed);
    QHeaderView *columns = table->horizontalHeader();
    columns->setFont(editorFont());
    columns->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    columns->setStretchLastSection(true);
    columns->setHighlightSections(false); // a head in bold could be cut
    columns->show();
    table->setSelectionMode(QAbstractItemView::SingleSelection);

    disableButtons();

    // Pressed, not clicked: a row is at work as soon as the button goes down.
    connect(add, &QPushButton::pressed, this, &OptionPage::addItem);
    connect(edit, &QPushButton::pressed, this, &OptionPage::editItem);
    connect(remove, &QPushButton::pressed, this, &OptionPage::deleteItem);
    connect(table, &QTableWidget::cellClicked, this, &OptionPage::itemChanged);
    connect(table, &QTableWidget::cellDoubleClicked, this, &OptionPage::itemDoubleclicked);
}

void OptionPage::setColumnShare(int part, int whole)
{
    m_sharePart = part;
    m_shareWhole = whole;
}

// The table gets its width from the page's layout, and not before the page is on show. A key that
// has selected a row does what a click on it would do; what the program itself selects, such as
// the row behind one that goes, doesn't.
bool OptionPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_table && event->type() == QEvent::Resize && m_sharePart > 0) {
        const int width = m_table->width() * m_sharePart / m_shareWhole;
        m_table->horizontalHeader()->setDefaultSectionSize(width);
    }
    if (watched == m_table && event->type() == QEvent::KeyRelease &&
        !m_table->selectedItems().isEmpty())
        itemChanged(m_table->currentRow(), m_table->currentColumn());
    if (watched == m_table->viewport() && event->type() == QEvent::ToolTip) {
        tellWholeItem(m_table, *static_cast<QHelpEvent *>(event));
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void OptionPage::resetTable(int columns)
{
    m_table->setRowCount(0);
    m_table->setColumnCount(columns);
    disableButtons();
}

void OptionPage::disableButtons()
{
    for (QPushButton *button : {m_add, m_edit, m_remove})
        button->setEnabled(false);
}

QTableWidgetItem *OptionPage::appendRow()
{
    const int row = m_table->rowCount();
    m_table->setRowCount(row + 1);
    for (int column = 0; column < m_table->columnCount(); ++column) {
        auto *item = new QTableWidgetItem;
        item->setFlags(item->flags() & ~Qt::ItemIsEditable);
        m_table->setItem(row, column, item);
    }
    return m_table->item(row, 0);
}

QTableWidgetItem *OptionPage::addRow()
{
    QTableWidgetItem *item = appendRow();
    if (m_table->rowCount() >= mostStartOptions)
        m_add->setEnabled(false);
    return item;
}

void OptionPage::clearUI()
{
    m_table->setRowCount(0);
}

void OptionPage::updateUI()
{
    if (m_table->rowCount() < mostStartOptions)
        m_add->setEnabled(true);
}

unsigned int OptionPage::getOptionCount() const
{
    return unsigned(m_table->rowCount());
}

void OptionPage::updateScenarioData(ScenarioData *newScenario)
{
    scenario = newScenario;
}

void OptionPage::editItem()
{
    const QList<QTableWidgetItem *> selected = m_table->selectedItems();
    if (!selected.isEmpty())
        openEditMenu(selected.constFirst());
}

void OptionPage::itemDoubleclicked(int, int)
{
    editItem();
}

void OptionPage::deleteItem()
{
    const QList<QTableWidgetItem *> selected = m_table->selectedItems();
    if (!selected.isEmpty()) {
        m_add->setEnabled(true);
        m_table->removeRow(selected.constFirst()->row());
    }
    if (m_table->rowCount() == 0) {
        m_remove->setEnabled(false);
        m_edit->setEnabled(false);
    }
}

void OptionPage::itemChanged(int, int)
{
    m_remove->setEnabled(true);
    m_edit->setEnabled(true);
}
