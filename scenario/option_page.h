// What the three editors of start options have in common: a table of at most three rows whose
// items carry the records, and buttons that add, edit and remove one.
//
// A page builds its form, hands the controls over with setUpTable, and fills in what its rows
// hold. Rows live in the table only: the scenario's own record is replaced when the tab is saved.
//
// The dialogs that edit a row use the functions for rows and records at the end.
#pragma once

#include "document/start_option_values.h"

#include <QTableWidget>
#include <QWidget>

#include <initializer_list>
#include <set>
#include <vector>

class QPushButton;
class ScenarioData;

class OptionPage : public QWidget
{
    Q_OBJECT

public:
    static constexpr int rowHeight = 17; // pixels

    // Takes all rows away.
    virtual void clearUI();
    // Lets a row be added if there is room. Never forbids it.
    void updateUI();
    // The number of rows.
    unsigned int getOptionCount() const;
    // The scenario has another place in memory.
    void updateScenarioData(ScenarioData *scenario);

protected:
    explicit OptionPage(QWidget *parent);

    // The controls of the page's form, to be handed over once; it stays their owner. The buttons
    // are disabled until a scenario allows them.
    void setUpTable(QTableWidget *table, QPushButton *add, QPushButton *edit, QPushButton *remove);
    // A column is as wide as this share of the table, the last one takes what is left.
    void setColumnShare(int part, int whole);
    // No rows, all buttons disabled: the state before a scenario is loaded.
    void resetTable(int columns);
    // Appends a row of items that can't be edited in place, and answers the one in column 0.
    QTableWidgetItem *appendRow();
    // The same for a row that the user adds: no further one past the limit.
    QTableWidgetItem *addRow();

    bool eventFilter(QObject *watched, QEvent *event) override;

    QTableWidget *table() const { return m_table; }
    QPushButton *addButton() const { return m_add; }
    QPushButton *editButton() const { return m_edit; }
    QPushButton *removeButton() const { return m_remove; }

    ScenarioData *scenario = nullptr; // not owned
    unsigned int campaignMap = 0;     // key of EditorData::campaignInfo

protected slots:
    // Asks for a new row and appends it, and no further one past the limit.
    virtual void addItem() = 0;
    // Asks for a row's new content.
    virtual void openEditMenu(QTableWidgetItem *item) = 0;
    virtual void deleteItem();

private slots:
    void editItem();
    void itemChanged(int row, int column);
    void itemDoubleclicked(int row, int column);

private:
    void disableButtons();

    QTableWidget *m_table = nullptr;
    QPushButton *m_add = nullptr;
    QPushButton *m_edit = nullptr;
    QPushButton *m_remove = nullptr;
    int m_sharePart = 0; // of a column in the table's width
    int m_shareWhole = 1;
};

// Puts a record and its text into a row's item.
template<typename Record>
void setRecord(QTableWidgetItem *item, const Record &record, const QString &text)
{
    item->setData(Qt::UserRole, QVariant::fromValue(record));
    item->setText(text);
}

// A row's record; all zeros where the table has no such item or it holds another kind.
template<typename Record>
Record recordOf(const QTableWidgetItem *item)
{
    return item ? item->data(Qt::UserRole).value<Record>() : Record();
}

// Puts one record into all items of a row, each with the text of its column.
template<typename Record>
void setRowRecord(QTableWidget *table, int row, const Record &record,
                  std::initializer_list<QString> texts)
{
    int column = 0;
    for (const QString &text : texts)
        setRecord(table->item(row, column++), record, text);
}

// What a field of the records says in all rows but the one whose item in column 0 is `ignore`.
template<typename Record, typename Field>
std::set<int> valuesInRows(const QTableWidget *table, Field Record::*field,
                           const QTableWidgetItem *ignore = nullptr)
{
    std::set<int> values;
    for (int row = 0; row < table->rowCount(); ++row) {
        const QTableWidgetItem *item = table->item(row, 0);
        if (item && item != ignore)
            values.insert(recordOf<Record>(item).*field);
    }
    return values;
}

// The records of a table in the order of its rows. Rows without an item are left out.
template<typename Record>
std::vector<Record> recordsInRows(const QTableWidget *table)
{
    std::vector<Record> records;
    for (int row = 0; row < table->rowCount(); ++row) {
        if (const QTableWidgetItem *item = table->item(row, 0))
            records.push_back(recordOf<Record>(item));
    }
    return records;
}
