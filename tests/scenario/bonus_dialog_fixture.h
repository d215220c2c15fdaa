// What the tests of the bonus dialog share: its kinds, the dialog on show, and rows told as text.
#pragma once

#include "scenario/bonus_dialog.h"
#include "tests/scenario/bonus_tables.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QStackedWidget>

#include <array>

constexpr unsigned bonusCampaignMap = 24;

struct KindRow
{
    const char *button;
    const char *text;
    const char *pageClass;
    const char *firstLabel; // tells the pages of one class apart
};

// By the kind's number. "Buildiing" is how the editor spells it.
inline constexpr std::array<KindRow, 8> kinds{{
    {"spellBtn", "Spell", "bonus_multibox_dlg", "Recipient:"},
    {"creatureBtn", "Creature", "BonusCreatureDlg", "Hero:"},
    {"buildingBtn", "Buildiing", "bonus_multibox_dlg", "Building:"},
    {"artifactBtn", "Artifact", "bonus_multibox_dlg", "Recipient:"},
    {"scrollBtn", "Spell scroll", "bonus_multibox_dlg", "Recipient:"},
    {"primSkillBtn", "Primary skill", "bonus_value_dlg", "Recipient:"},
    {"secSkillBtn", "Secondary skill", "bonus_multibox_dlg", "Recipient:"},
    {"resourceBtn", "Resource", "bonus_value_dlg", "Resource type:"},
}};

inline void addKindRows()
{
    QTest::addColumn<int>("kind");
    for (int kind = 0; kind < int(kinds.size()); ++kind)
        QTest::newRow(kinds[std::size_t(kind)].button) << kind;
}

// All that a record holds, as text, to be held against another.
inline QString told(const QVariant &record)
{
    const int type = record.userType();
    QStringList fields{QMetaType::typeName(type)};
    const auto add = [&fields](std::initializer_list<int> numbers) {
        for (const int number : numbers)
            fields << QString::number(number);
    };
    if (type == qMetaTypeId<BonusSpell>()) {
        const auto bonus = record.value<BonusSpell>();
        add({bonus.heroId, bonus.spellId});
    } else if (type == qMetaTypeId<BonusScroll>()) {
        const auto bonus = record.value<BonusScroll>();
        add({bonus.heroId, bonus.spellId});
    } else if (type == qMetaTypeId<BonusCreature>()) {
        const auto bonus = record.value<BonusCreature>();
        add({bonus.heroId, bonus.creatureId, bonus.amount});
    } else if (type == qMetaTypeId<BonusBuilding>()) {
        add({record.value<BonusBuilding>().buildingId});
    } else if (type == qMetaTypeId<BonusArtifact>()) {
        const auto bonus = record.value<BonusArtifact>();
        add({bonus.heroId, bonus.artifactId});
    } else if (type == qMetaTypeId<BonusPrimarySkill>()) {
        const auto bonus = record.value<BonusPrimarySkill>();
        add({bonus.heroId, bonus.skills[0], bonus.skills[1], bonus.skills[2], bonus.skills[3]});
    } else if (type == qMetaTypeId<BonusSecondarySkill>()) {
        const auto bonus = record.value<BonusSecondarySkill>();
        add({bonus.heroId, bonus.skillId, bonus.skillLevel});
    } else if (type == qMetaTypeId<BonusResource>()) {
        const auto bonus = record.value<BonusResource>();
        add({bonus.resourceId, bonus.amount});
    }
    return fields.join(' ');
}

// A row as the table has it: type, record and text.
inline QStringList told(const QTableWidgetItem &item)
{
    const QVariant type = item.data(Qt::UserRole + 1);
    return {type.userType() == QMetaType::UChar ? QString::number(type.toInt()) : "no type",
            told(item.data(Qt::UserRole)), item.text()};
}

// The controls of a dialog on show.
class BonusControls
{
public:
    explicit BonusControls(BonusDialog &shown) : dialog(shown) {}

    template<typename Widget>
    Widget *find(const char *name)
    {
        return childOf<Widget>(&dialog, name);
    }

    QStackedWidget *stack() { return find<QStackedWidget>("stackedWidget"); }
    QWidget *page() { return stack()->currentWidget(); }
    template<typename Widget>
    Widget *onPage(const char *name)
    {
        return childOf<Widget>(page(), name);
    }
    QComboBox *box(const char *name) { return onPage<QComboBox>(name); }

    QRadioButton *button(int kind) { return find<QRadioButton>(kinds[std::size_t(kind)].button); }
    // On the mark: what is behind the text isn't the button.
    QPoint markOf(int kind) { return {8, button(kind)->height() / 2}; }
    void clickKind(int kind) { clickOn(button(kind), markOf(kind)); }

    QPushButton *ok() { return boxButton(QDialogButtonBox::Ok); }
    QPushButton *cancel() { return boxButton(QDialogButtonBox::Cancel); }

    // Types a number over the old one.
    void type(const char *spinBox, int number)
    {
        auto *box = onPage<QSpinBox>(spinBox);
        clickOn(box, QPoint(5, box->height() / 2));
        box->selectAll();
        QTest::keyClicks(box, QString::number(number));
        QCOMPARE(box->value(), number);
    }

    BonusDialog &dialog;

private:
    QPushButton *boxButton(QDialogButtonBox::StandardButton which)
    {
        return find<QDialogButtonBox>("buttonBox")->button(which);
    }
};

struct OwnBonusDialog
{
    BonusDialog ownDialog;
};

// A dialog on show until it goes out of scope.
class OpenDialog : private OwnBonusDialog, public BonusControls
{
public:
    OpenDialog(ScenarioData &scenario, unsigned player, QTableWidgetItem *item = nullptr)
        : OwnBonusDialog{{nullptr, &scenario, bonusCampaignMap, player, item}},
          BonusControls(ownDialog)
    {
        bringOnShow(dialog);
    }
};

// Each is a box of the page on show and what is picked or typed there: "box=text".
inline void makeChoices(BonusControls &open, const QStringList &choices)
{
    for (const QString &choice : choices) {
        const QByteArray name = choice.section('=', 0, 0).toLatin1();
        const QString value = choice.section('=', 1);
        if (auto *box = open.page()->findChild<QComboBox *>(name))
            choose(box, value);
        else
            open.type(name, value.toInt());
    }
}
