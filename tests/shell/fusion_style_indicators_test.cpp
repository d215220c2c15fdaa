// Check boxes and radio buttons in the program's style, pixel by pixel.
#include "shell/editor_resources.h"
#include "shell/fusion_style_tweaks.h"
#include "shell/style.h"

#include <QCheckBox>
#include <QPainter>
#include <QSet>
#include <QStyleOptionButton>
#include <QSvgRenderer>
#include <QTest>

Q_DECLARE_METATYPE(QStyle::State)

namespace {

constexpr QRgb ground = qRgb(120, 40, 90); // in none of the colours drawn
constexpr QRect box(3, 3, 14, 14);
constexpr QRgb white = qRgb(255, 255, 255);
constexpr QRgb black = qRgb(0, 0, 0);
constexpr QRgb grayLine = qRgb(190, 190, 190);
const QRgb darkLine = QColor(Qt::lightGray).rgb();

QImage canvas()
{
    QImage image(20, 20, QImage::Format_RGB32);
    image.fill(ground);
    return image;
}

QImage primitive(const QStyle &style, QStyle::PrimitiveElement element, QStyle::State state)
{
    QImage image = canvas();
    QPainter painter(&image);
    QStyleOptionButton option;
    option.rect = box;
    option.state = state;
    style.drawPrimitive(element, &option, &painter);
    return image;
}

void addStates()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::newRow("disabled") << QStyle::State(QStyle::State_None);
    QTest::newRow("enabled") << QStyle::State(QStyle::State_Enabled);
    QTest::newRow("hovered") << (QStyle::State_Enabled | QStyle::State_MouseOver);
    QTest::newRow("pressed") << (QStyle::State_Enabled | QStyle::State_Sunken);
}

// The colours of the two looks where they are told.
void addLooks()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<bool>("dark");
    QTest::addColumn<QRgb>("line");
    QTest::addColumn<QRgb>("fill");
    const QStyle::State off = QStyle::State_None;
    const QStyle::State on = QStyle::State_Enabled;
    QTest::newRow("standard, enabled") << on << false << black << white;
    QTest::newRow("standard, disabled") << off << false << grayLine << ground;
    QTest::newRow("dark, enabled") << on << true << darkLine << white;
    QTest::newRow("dark, disabled") << off << true << darkLine << ground;
}

void useLook(bool dark)
{
    if (dark)
        Style::useDark();
    else
        Style::useStandard();
}

} // namespace

class FusionStyleIndicatorsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initEditorResources(); }
    void cleanup() { Style::useStandard(); }
    void checkBoxIsARectangle_data() { addLooks(); }
    void checkBoxIsARectangle();
    void checkBoxHasAllLinesAtEveryScale_data();
    void checkBoxHasAllLinesAtEveryScale();
    void checkMarkLiesOnTheBox_data() { addLooks(); }
    void checkMarkLiesOnTheBox();
    void disabledCheckedBoxIsGrayWithoutFill();
    void checkBoxTellsHoveredAndPressed();
    void radioButtonIsACircle_data() { addLooks(); }
    void radioButtonIsACircle();
    void chosenRadioButtonHasADot_data() { addStates(); }
    void chosenRadioButtonHasADot();
    void radioButtonTellsHoveredAndPressed();

private:
    FusionStyleTweaks style;
};

void FusionStyleIndicatorsTest::checkBoxIsARectangle()
{
    QFETCH(QStyle::State, state);
    QFETCH(bool, dark);
    QFETCH(QRgb, line);
    QFETCH(QRgb, fill);
    useLook(dark);
    const QImage image = primitive(style, QStyle::PE_IndicatorCheckBox, state | QStyle::State_Off);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool inside = box.contains(x, y, true);
            const QRgb expected = inside ? fill : box.contains(x, y) ? line : ground;
            QCOMPARE(QColor(image.pixel(x, y)).name(), QColor(expected).name());
        }
    }
}

void FusionStyleIndicatorsTest::checkBoxHasAllLinesAtEveryScale_data()
{
    QTest::addColumn<qreal>("scale");
    for (const qreal scale : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0})
        QTest::addRow("%g", scale) << scale;
}

// Wherever it stands, as the item of a list that is clipped to its own row.
void FusionStyleIndicatorsTest::checkBoxHasAllLinesAtEveryScale()
{
    QFETCH(qreal, scale);
    for (int y = 0; y < 4; ++y) {
        QImage image(QSize(24, 24) * scale, QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        image.fill(ground);
        QStyleOptionButton option;
        option.rect = QRect(2, y, 14, 14);
        option.state = QStyle::State_Enabled | QStyle::State_Off;
        QPainter painter(&image);
        painter.setClipRect(option.rect);
        style.drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter);
        painter.end();
        const QRect room(QPointF(2 * scale, y * scale).toPoint(), QSize(14, 14) * scale);
        const auto isLine = [&](int x, int line) { return image.pixel(x, line) == black; };
        QVERIFY(isLine(room.center().x(), room.top()) || isLine(room.center().x(), room.top() + 1));
        QVERIFY(isLine(room.center().x(), room.bottom()) ||
                isLine(room.center().x(), room.bottom() - 1));
        QVERIFY(isLine(room.left(), room.center().y()) ||
                isLine(room.left() + 1, room.center().y()));
        QVERIFY(isLine(room.right(), room.center().y()) ||
                isLine(room.right() - 1, room.center().y()));
    }
}

void FusionStyleIndicatorsTest::checkMarkLiesOnTheBox()
{
    QFETCH(QStyle::State, state);
    QFETCH(bool, dark);
    useLook(dark);
    QImage expected = primitive(style, QStyle::PE_IndicatorCheckBox, state | QStyle::State_Off);
    QPainter painter(&expected);
    QSvgRenderer mark(state & QStyle::State_Enabled ? QStringLiteral(":/icons/checkmark_black.svg")
                                                    : QStringLiteral(":/icons/checkmark_gray.svg"));
    const QImage empty = expected;
    mark.render(&painter, QRectF(box));
    painter.end();
    QVERIFY(expected != empty);
    QCOMPARE(primitive(style, QStyle::PE_IndicatorCheckBox, state | QStyle::State_On), expected);
}

void FusionStyleIndicatorsTest::disabledCheckedBoxIsGrayWithoutFill()
{
    QCheckBox checkBox;
    checkBox.setStyle(&style);
    QPalette palette = checkBox.palette();
    palette.setColor(QPalette::Window, QColor(ground));
    checkBox.setPalette(palette);
    checkBox.setChecked(true);
    checkBox.setEnabled(false);
    const QImage image = checkBox.grab().toImage();
    int grounds = 0;
    int marks = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            grounds += colour.rgb() == ground;
            marks += colour == QColor(0x8C, 0x8C, 0x8C);
            QVERIFY2(colour.rgb() != white && colour.rgb() != black, qPrintable(colour.name()));
        }
    }
    QVERIFY(marks > 0);
    QVERIFY(grounds > 60); // of the 144 within the box's lines, where a fill would lie
}

void FusionStyleIndicatorsTest::checkBoxTellsHoveredAndPressed()
{
    const QStyle::State on = QStyle::State_Enabled | QStyle::State_Off;
    const auto fill = [&](QStyle::State state) {
        return primitive(style, QStyle::PE_IndicatorCheckBox, state).pixel(box.center());
    };
    const QSet<QRgb> fills{fill(on), fill(on | QStyle::State_MouseOver),
                           fill(on | QStyle::State_Sunken), ground};
    QCOMPARE(fills.size(), 4);
    QCOMPARE(fill(on | QStyle::State_MouseOver | QStyle::State_Sunken),
             fill(on | QStyle::State_Sunken));
    QCOMPARE(fill(QStyle::State_Off | QStyle::State_MouseOver), ground);
}

void FusionStyleIndicatorsTest::radioButtonIsACircle()
{
    QFETCH(QStyle::State, state);
    QFETCH(bool, dark);
    QFETCH(QRgb, line);
    QFETCH(QRgb, fill);
    useLook(dark);
    QImage expected = canvas();
    QPainter painter(&expected);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(line));
    painter.setBrush(fill == ground ? QBrush(Qt::NoBrush) : QBrush(QColor(fill)));
    painter.drawEllipse(QRectF(3.5, 3.5, 13, 13));
    painter.end();
    QCOMPARE(primitive(style, QStyle::PE_IndicatorRadioButton, state | QStyle::State_Off),
             expected);
    QCOMPARE(expected.pixel(box.topLeft()), ground);
    QCOMPARE(expected.pixel(box.center()), fill);
}

void FusionStyleIndicatorsTest::chosenRadioButtonHasADot()
{
    QFETCH(QStyle::State, state);
    const auto element = QStyle::PE_IndicatorRadioButton;
    const QImage off = primitive(style, element, state | QStyle::State_Off);
    const QImage on = primitive(style, element, state | QStyle::State_On);
    QCOMPARE(on.pixel(box.center()), state & QStyle::State_Enabled ? black : grayLine);
    QCOMPARE(on.pixel(5, 10), off.pixel(5, 10)); // between circle and dot
}

void FusionStyleIndicatorsTest::radioButtonTellsHoveredAndPressed()
{
    const QStyle::State on = QStyle::State_Enabled | QStyle::State_Off;
    const auto fill = [&](QStyle::PrimitiveElement element, QStyle::State state) {
        return primitive(style, element, on | state).pixel(box.center());
    };
    for (const QStyle::State state : {QStyle::State_MouseOver, QStyle::State_Sunken})
        QCOMPARE(fill(QStyle::PE_IndicatorRadioButton, state),
                 fill(QStyle::PE_IndicatorCheckBox, state));
}

QTEST_MAIN(FusionStyleIndicatorsTest)
#include "fusion_style_indicators_test.moc"
