// The two looks: their colours by position, their sheets word for word, and what the sheets do to
// real widgets.
#include "shell/editor_resources.h"
#include "shell/style.h"

#include <QApplication>
#include <QComboBox>
#include <QSpinBox>
#include <QTest>

#include <array>

namespace {

using Colours = std::array<QColor, 10>;

// Shows a look's colours in the order of the constructor's arguments.
template<class Look>
class Seen : public Look
{
public:
    Colours colours() const
    {
        return {this->background, this->text, this->faintText, this->line,   this->paper,
                this->selection,  this->link, this->error,     this->accent, this->warning};
    }
};

const QString commonSheet = QStringLiteral(
    "\n"
    "QCheckBox::indicator { width: 16px; height: 16px; }\n"
    "QCheckBox::indicator:unchecked { image: url(:/icons/checkbox_unchecked.svg); }\n"
    "QCheckBox::indicator:checked { image: url(:/icons/checkbox_checked.svg); }\n"
    "QCheckBox::indicator:checked:disabled { image: url(:/icons/checkbox_checked_disabled.svg); }\n"
    "QCheckBox::indicator:unchecked:disabled"
    " { image: url(:/icons/checkbox_unchecked_disabled.svg); }\n"
    "QListWidget::indicator { width: 14px; height: 14px; }\n"
    "QListWidget::indicator:unchecked { image: url(:/icons/checkbox_unchecked.svg); }\n"
    "QListWidget::indicator:checked { image: url(:/icons/checkbox_checked.svg); }\n"
    "QListWidget::indicator:checked:disabled"
    " { image: url(:/icons/checkbox_checked_disabled.svg); }\n"
    "QListWidget::indicator:unchecked:disabled"
    " { image: url(:/icons/checkbox_unchecked_disabled.svg); }\n"
    "QComboBox::down-arrow {\n    image: url(:/icons/combobox_indicator.svg);\n"
    "    width: 12px;\n    height: 12px;\n}\n"
    "QComboBox::down-arrow:disabled {\n    image: url(:/icons/combobox_indicator_disabled.svg);\n"
    "}\n"
    "QComboBox::drop-down {\n    border: none;\n}\n"
    "QSpinBox {\n    border: 1px solid \"#7A7A7A\";\n}\n"
    "QSpinBox:disabled {\n    border: 1px solid \"#CCCCCC\";\n}\n"
    "QSpinBox::up-button {\n    width: 16px;\n    background: \"#ECECEC\";\n"
    "    border-left: 1px solid \"#ACACAC\";\n}\n"
    "QSpinBox::down-button {\n    width: 16px;\n    background: \"#ECECEC\";\n"
    "    border-left: 1px solid \"#ACACAC\";\n    border-top: 1px solid \"#ACACAC\";\n}\n"
    "QSpinBox::up-button:hover, QSpinBox::up-button:pressed, QSpinBox::down-button:hover,"
    " QSpinBox::down-button:pressed {\n    background: \"#FFFFFF\";\n}\n"
    "QSpinBox::up-button:disabled, QSpinBox::down-button:disabled {\n"
    "    border-color: \"#CCCCCC\"\n}\n"
    "QSpinBox::up-arrow {\n    image: url(:/icons/spinbox_up_arrow.svg);\n    width: 16px;\n"
    "    height: 8px;\n}\n"
    "QSpinBox::up-arrow:disabled, QSpinBox::up-arrow:off {\n"
    "    image: url(:/icons/spinbox_up_arrow_disabled.svg);\n}\n"
    "QSpinBox::down-arrow {\n    image: url(:/icons/spinbox_down_arrow.svg);\n    width: 16px;\n"
    "    height: 8px;\n}\n"
    "QSpinBox::down-arrow:disabled, QSpinBox::down-arrow:off {\n"
    "    image: url(:/icons/spinbox_down_arrow_disabled.svg);\n}\n");

const QString darkRules = QStringLiteral(
    "QWidget { background: #404040; color: #ffffff; }\n"
    "QWidget::disabled { color: #808080; }\n"
    "QWidget::item:hover { background: #606060; }\n"
    "QListView::item:hover { background: #606060; }\n"
    "QTreeView { background: #303030; alternate-background-color: #505050; }\n"
    "QTabBar::tab { background: #404040; }\n"
    "QTabBar::tab:selected, QTabBar::tab:hover { background: #606060; }\n"
    "QMenuBar::item:selected, QMenu::item:selected { background: #808080; }\n"
    "QHeaderView::section { background: #505050; }\n"
    "QMenuBar { background: #606060; }\n"
    "QGroupBox, QCheckBox, QRadioButton, QLabel {\n    background: none;\n}\n"
    "QToolBar {\n    border: 1px solid #808080;\n    background: #606060;\n}\n"
    "QToolBar > QWidget {\n    background: none;\n}\n"
    "QToolBar > QToolButton::pressed, QToolBar > QToolButton::checked {\n"
    "    background-color: #808080;\n}\n"
    "QToolBar > QToolButton::hover {\n    background-color: #909090;\n}\n"
    "QPushButton::focus {\n    border: 2px solid #408080;\n}\n"
    "QComboBox::down-arrow {\n    image: url(:/icons/combobox_indicator_dark_mode.svg);\n"
    "    width: 12px;\n    height: 12px;\n}\n");

QStringList warnings;

void keepWarning(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type != QtDebugMsg)
        warnings << text;
}

// A picture of the widget under a style sheet.
QImage pictureWith(QWidget &widget, const QString &sheet)
{
    widget.setStyleSheet(sheet);
    widget.resize(120, 30);
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

bool hasColour(const QImage &picture, const QRect &part, const QColor &colour)
{
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            if (picture.pixelColor(x, y) == colour)
                return true;
        }
    }
    return false;
}

} // namespace

class StyleTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initEditorResources(); }
    void startsWithTheStandardLook();
    void looksAreSwitched();
    void coloursStandInTheirPlaces_data();
    void coloursStandInTheirPlaces();
    void standardSheetIsTheCommonOne();
    void darkSheetFollowsTheCommonOne();
    void sheetsAreRead_data();
    void sheetsAreRead();
    void darkArrowOfComboBoxesWins();
    void spinBoxesTakeQuotedColours();
    void arrowIsGrayWhereASpinBoxEnds_data();
    void arrowIsGrayWhereASpinBoxEnds();
};

void StyleTest::startsWithTheStandardLook()
{
    QVERIFY(dynamic_cast<StyleStandard *>(Style::standard()));
    QVERIFY(dynamic_cast<StyleDark *>(Style::dark()));
    QCOMPARE(Style::current(), Style::standard());
}

void StyleTest::looksAreSwitched()
{
    Style::useDark();
    QCOMPARE(Style::current(), Style::dark());
    QCOMPARE(Style::current()->backgroundColor(), QColor(64, 64, 64));
    Style::useStandard();
    QCOMPARE(Style::current(), Style::standard());
    QCOMPARE(Style::current()->backgroundColor(), QColor(255, 255, 255));
}

void StyleTest::coloursStandInTheirPlaces_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<QColor>("standard");
    QTest::addColumn<QColor>("dark");
    QTest::newRow("1") << 1 << QColor(255, 255, 255) << QColor(0x40, 0x40, 0x40);
    QTest::newRow("2") << 2 << QColor(0, 0, 0) << QColor(255, 255, 255);
    QTest::newRow("3") << 3 << QColor(0x60, 0x60, 0x60) << QColor(0xC0, 0xC0, 0xC0);
    QTest::newRow("4") << 4 << QColor(0, 0, 0) << QColor(255, 255, 255);
    QTest::newRow("5") << 5 << QColor(255, 255, 255) << QColor(0, 0, 0);
    QTest::newRow("6") << 6 << QColor(0xD0, 0xD0, 0xFF) << QColor(0x60, 0x60, 0x60);
    QTest::newRow("7") << 7 << QColor(0, 0, 255) << QColor(0x80, 0xFF, 0xFF);
    QTest::newRow("8") << 8 << QColor(255, 0, 0) << QColor(0xFF, 0x80, 0x80);
    QTest::newRow("9") << 9 << QColor(100, 150, 255) << QColor(100, 150, 255);
    QTest::newRow("10") << 10 << QColor(255, 220, 0) << QColor(255, 255, 0);
}

void StyleTest::coloursStandInTheirPlaces()
{
    QFETCH(int, position);
    QFETCH(QColor, standard);
    QFETCH(QColor, dark);
    const auto index = size_t(position) - 1;
    QCOMPARE(Seen<StyleStandard>().colours()[index].rgba(), standard.rgba());
    QCOMPARE(Seen<StyleDark>().colours()[index].rgba(), dark.rgba());
}

void StyleTest::standardSheetIsTheCommonOne()
{
    QCOMPARE(Style::standard()->styleSheet(), commonSheet);
}

void StyleTest::darkSheetFollowsTheCommonOne()
{
    const QString sheet = Style::dark()->styleSheet();
    QCOMPARE(sheet.left(commonSheet.size()), commonSheet);
    QCOMPARE(sheet.mid(commonSheet.size()), darkRules);
}

void StyleTest::sheetsAreRead_data()
{
    QTest::addColumn<bool>("dark");
    QTest::newRow("standard") << false;
    QTest::newRow("dark") << true;
}

// Qt complains of a sheet that it can't read, and of pictures that aren't there.
void StyleTest::sheetsAreRead()
{
    QFETCH(bool, dark);
    warnings.clear();
    const QtMessageHandler before = qInstallMessageHandler(keepWarning);
    QComboBox combo;
    QSpinBox spin;
    const QString sheet = (dark ? Style::dark() : Style::standard())->styleSheet();
    pictureWith(combo, sheet);
    pictureWith(spin, sheet);
    qInstallMessageHandler(before);
    QCOMPARE(warnings, QStringList());
}

void StyleTest::darkArrowOfComboBoxesWins()
{
    const QColor light(0xF0, 0xF0, 0xF0);
    QComboBox combo;
    const QRect arrow(100, 0, 20, 30);
    QVERIFY(!hasColour(
        pictureWith(combo, "QComboBox { background: #404040; }" + Style::standard()->styleSheet()),
        arrow, light));
    QVERIFY(hasColour(pictureWith(combo, Style::dark()->styleSheet()), arrow, light));
}

void StyleTest::spinBoxesTakeQuotedColours()
{
    QSpinBox spin;
    const QString sheet = Style::standard()->styleSheet();
    QCOMPARE(pictureWith(spin, sheet).pixelColor(0, 15), QColor(0x7A, 0x7A, 0x7A));
    QVERIFY(hasColour(pictureWith(spin, sheet), {103, 2, 15, 10}, {0xEC, 0xEC, 0xEC}));
    spin.setEnabled(false);
    QCOMPARE(pictureWith(spin, sheet).pixelColor(0, 15), QColor(0xCC, 0xCC, 0xCC));
}

void StyleTest::arrowIsGrayWhereASpinBoxEnds_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("upIsBlack");
    QTest::addColumn<bool>("downIsBlack");
    QTest::newRow("least") << 0 << true << false;
    QTest::newRow("between") << 5 << true << true;
    QTest::newRow("most") << 9 << false << true;
}

void StyleTest::arrowIsGrayWhereASpinBoxEnds()
{
    QFETCH(int, value);
    const QColor black(0x3C, 0x3C, 0x3C);
    QSpinBox spin;
    spin.setRange(0, 9);
    spin.setValue(value);
    const QImage picture = pictureWith(spin, Style::standard()->styleSheet());
    QTEST(hasColour(picture, {103, 1, 16, 13}, black), "upIsBlack");
    QTEST(hasColour(picture, {103, 16, 16, 13}, black), "downIsBlack");
}

QTEST_MAIN(StyleTest)
#include "style_test.moc"
