// The program's style but for its indicators: what it draws and answers itself, and that all else
// is Fusion's.
#include "shell/editor_resources.h"
#include "shell/fusion_style_tweaks.h"
#include "shell/style.h"
#include "tests/support/longest_wait.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QIcon>
#include <QListWidget>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionToolBar>
#include <QTest>

namespace {

constexpr QRgb ground = qRgb(120, 40, 90); // in none of the colours drawn
constexpr QRect box(3, 3, 14, 14);

QImage canvas(int width = 20, int height = 20)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(ground);
    return image;
}

QImage primitive(const QStyle &style, QStyle::PrimitiveElement element)
{
    QImage image = canvas();
    QPainter painter(&image);
    QStyleOptionButton option;
    option.rect = box;
    option.state = QStyle::State_Enabled;
    style.drawPrimitive(element, &option, &painter);
    return image;
}

QImage toolBar(const QStyle &style, const QPalette &palette)
{
    QImage image = canvas(200, 30);
    QPainter painter(&image);
    QStyleOptionToolBar option;
    option.rect = {0, 0, 200, 30};
    option.palette = palette;
    option.toolBarArea = Qt::TopToolBarArea;
    option.state = QStyle::State_Horizontal;
    style.drawControl(QStyle::CE_ToolBar, &option, &painter);
    return image;
}

} // namespace

class FusionStyleTweaksTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initEditorResources(); }
    void cleanup() { Style::useStandard(); }
    void elementsHaveTheirNumbers();
    void painterIsLeftAsItWas_data();
    void painterIsLeftAsItWas();
    void dropLineSpansTheWidget_data();
    void dropLineSpansTheWidget();
    void emptyDropPlaceIsFusions();
    void otherPrimitivesAreFusions();
    void toolBarIsFusionsInTheStandardLook();
    void toolBarIsHalfAsBrightInTheDarkLook();
    void headerMarginGrowsByHalf();
    void otherMetricsAreFusions();
    void comboBoxesOpenAsLists();
    void comboBoxOpensUnderItsField();
    void closeIconIsACrossedSquare();
    void closeIconIsDrawnOnce();
    void otherIconsAreFusions();
    void disabledTextsOfADarkDesktopCanBeRead_data();
    void disabledTextsOfADarkDesktopCanBeRead();
    void otherPalettesStayAsTheyAre();

private:
    FusionStyleTweaks style;
    std::unique_ptr<QStyle> fusion{QStyleFactory::create("fusion")};
};

void FusionStyleTweaksTest::elementsHaveTheirNumbers()
{
    QCOMPARE(int(QStyle::CE_ToolBar), 40);
    QCOMPARE(int(QStyle::PE_IndicatorCheckBox), 26);
    QCOMPARE(int(QStyle::PE_IndicatorRadioButton), 31);
    QCOMPARE(int(QStyle::PE_IndicatorItemViewItemDrop), 43);
    QCOMPARE(int(QStyle::PM_HeaderMargin), 46);
    QCOMPARE(int(QStyle::SH_ComboBox_Popup), 25);
    QCOMPARE(int(QStyle::SP_TitleBarCloseButton), 3);
}

// The whole way, from the widget on.
void FusionStyleTweaksTest::painterIsLeftAsItWas_data()
{
    QTest::addColumn<int>("element");
    QTest::newRow("check box") << int(QStyle::PE_IndicatorCheckBox);
    QTest::newRow("radio button") << int(QStyle::PE_IndicatorRadioButton);
    QTest::newRow("drop line") << int(QStyle::PE_IndicatorItemViewItemDrop);
}

void FusionStyleTweaksTest::painterIsLeftAsItWas()
{
    QFETCH(int, element);
    QListWidget list;
    QImage image = canvas();
    QPainter painter(&image);
    painter.setPen(Qt::red);
    painter.setBrush(Qt::green);
    QStyleOptionButton option;
    option.rect = box;
    option.state = QStyle::State_Enabled | QStyle::State_On;
    style.drawPrimitive(QStyle::PrimitiveElement(element), &option, &painter, &list);
    QCOMPARE(painter.pen(), QPen(Qt::red));
    QCOMPARE(painter.brush(), QBrush(Qt::green));
    QVERIFY(!painter.testRenderHint(QPainter::Antialiasing));
}

void FusionStyleTweaksTest::dropLineSpansTheWidget_data()
{
    QTest::addColumn<QRect>("place");
    QTest::newRow("on an item") << QRect(40, 12, 60, 15);
    QTest::newRow("between two items") << QRect(40, 12, 60, 0);
}

void FusionStyleTweaksTest::dropLineSpansTheWidget()
{
    QFETCH(QRect, place);
    QListWidget list;
    list.resize(150, 40);
    QImage image = canvas(200, 40);
    QPainter painter(&image);
    QStyleOption option;
    option.rect = place;
    option.palette.setColor(QPalette::Text, QColor(10, 200, 30));
    style.drawPrimitive(QStyle::PE_IndicatorItemViewItemDrop, &option, &painter, &list);
    painter.end();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < 150; ++x)
            QCOMPARE(image.pixel(x, y), y == 12 ? qRgb(10, 200, 30) : ground);
    }
    QCOMPARE(image.pixel(160, 12), ground);
}

void FusionStyleTweaksTest::emptyDropPlaceIsFusions()
{
    QListWidget list;
    list.resize(150, 40);
    const auto drop = [&list](const QStyle &drawn) {
        QImage image = canvas(150, 40);
        QPainter painter(&image);
        QStyleOption option;
        option.rect = QRect();
        drawn.drawPrimitive(QStyle::PE_IndicatorItemViewItemDrop, &option, &painter, &list);
        return image;
    };
    QCOMPARE(drop(style), drop(*fusion));
    QCOMPARE(drop(style).pixel(100, 0), ground);
}

void FusionStyleTweaksTest::otherPrimitivesAreFusions()
{
    for (const auto element : {QStyle::PE_IndicatorArrowDown, QStyle::PE_PanelButtonCommand,
                               QStyle::PE_FrameGroupBox, QStyle::PE_FrameFocusRect}) {
        const QImage expected = primitive(*fusion, element);
        QCOMPARE(primitive(style, element), expected);
    }
}

void FusionStyleTweaksTest::toolBarIsFusionsInTheStandardLook()
{
    const QPalette palette = fusion->standardPalette();
    QCOMPARE(toolBar(style, palette), toolBar(*fusion, palette));
}

void FusionStyleTweaksTest::toolBarIsHalfAsBrightInTheDarkLook()
{
    Style::useDark();
    const QPalette palette = fusion->standardPalette();
    QPalette dark = palette;
    dark.setColor(QPalette::Window, QColor(0x20, 0x20, 0x20));
    QVERIFY(toolBar(*fusion, dark) != toolBar(*fusion, palette));
    QCOMPARE(toolBar(style, palette), toolBar(*fusion, dark));
}

void FusionStyleTweaksTest::headerMarginGrowsByHalf()
{
    QCOMPARE(fusion->pixelMetric(QStyle::PM_HeaderMargin), 2);
    QCOMPARE(style.pixelMetric(QStyle::PM_HeaderMargin), 3);
}

void FusionStyleTweaksTest::otherMetricsAreFusions()
{
    for (int metric = 0; metric <= int(QStyle::PM_TitleBarButtonSize); ++metric) {
        const auto value = QStyle::PixelMetric(metric);
        if (value != QStyle::PM_HeaderMargin)
            QCOMPARE(style.pixelMetric(value), fusion->pixelMetric(value));
    }
}

void FusionStyleTweaksTest::comboBoxesOpenAsLists()
{
    QStyleOptionComboBox option;
    QCOMPARE(fusion->styleHint(QStyle::SH_ComboBox_Popup, &option), 1);
    QCOMPARE(style.styleHint(QStyle::SH_ComboBox_Popup, &option), 0);
    QCOMPARE(style.styleHint(QStyle::SH_ComboBox_Popup), 0);
    for (const auto hint :
         {QStyle::SH_EtchDisabledText, QStyle::SH_Menu_MouseTracking,
          QStyle::SH_ComboBox_ListMouseTracking, QStyle::SH_ToolBox_SelectedPageTitleBold})
        QCOMPARE(style.styleHint(hint), fusion->styleHint(hint));
}

// A menu would lie over the field, with the chosen item where the field is.
void FusionStyleTweaksTest::comboBoxOpensUnderItsField()
{
    QComboBox combo;
    combo.setStyle(&style);
    combo.addItems({"Axe", "Bow", "Club"});
    combo.setCurrentIndex(2);
    combo.move(50, 200);
    combo.show();
    QVERIFY(QTest::qWaitForWindowExposed(&combo, longestWait));
    combo.showPopup();
    QVERIFY(combo.view()->isVisible());
    QVERIFY(combo.view()->mapToGlobal(QPoint()).y() >= combo.mapToGlobal({0, combo.height()}).y());
    combo.hidePopup();
}

void FusionStyleTweaksTest::closeIconIsACrossedSquare()
{
    const QIcon icon = style.standardIcon(QStyle::SP_TitleBarCloseButton);
    QCOMPARE(icon.availableSizes(), QList<QSize>{QSize(128, 128)});
    QImage expected(128, 128, QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::transparent);
    QPainter painter(&expected);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::gray, 8));
    for (const QLine line :
         {QLine(20, 20, 108, 20), QLine(108, 20, 108, 108), QLine(20, 108, 108, 108),
          QLine(20, 20, 20, 108), QLine(20, 20, 108, 108), QLine(20, 108, 108, 20)})
        painter.drawLine(line);
    painter.end();
    const QImage image = icon.pixmap(128, 128).toImage();
    const QColor gray(Qt::gray);
    for (const QPoint point : {QPoint(64, 20), QPoint(20, 64), QPoint(108, 64), QPoint(64, 108),
                               QPoint(64, 64), QPoint(40, 40), QPoint(40, 88), QPoint(88, 40)})
        QCOMPARE(image.pixelColor(point), gray);
    for (const QPoint point : {QPoint(0, 0), QPoint(10, 64), QPoint(118, 64), QPoint(64, 40),
                               QPoint(40, 64), QPoint(88, 64), QPoint(64, 88)})
        QCOMPARE(image.pixelColor(point).alpha(), 0);
    QCOMPARE(image.pixelColor(64, 16).rgba(),
             expected.pixelColor(64, 16).rgba()); // the line's edge
}

void FusionStyleTweaksTest::closeIconIsDrawnOnce()
{
    const auto key = [](const FusionStyleTweaks &asked) {
        return asked.standardIcon(QStyle::SP_TitleBarCloseButton).pixmap(128, 128).cacheKey();
    };
    QCOMPARE(key(style), key(style));
    QCOMPARE(key(FusionStyleTweaks()), key(style));
}

void FusionStyleTweaksTest::otherIconsAreFusions()
{
    for (const auto icon : {QStyle::SP_MediaPlay, QStyle::SP_MediaPause, QStyle::SP_FileIcon,
                            QStyle::SP_TitleBarMinButton})
        QCOMPARE(style.standardIcon(icon).pixmap(16, 16).toImage(),
                 fusion->standardIcon(icon).pixmap(16, 16).toImage());
}

void FusionStyleTweaksTest::disabledTextsOfADarkDesktopCanBeRead_data()
{
    QTest::addColumn<QColor>("window");
    QTest::addColumn<QColor>("button");
    QTest::addColumn<QColor>("disabled");
    QTest::addColumn<int>("least"); // the gray of a contrast of 3 to 1 with the button
    QTest::newRow("blue") << QColor(42, 46, 50) << QColor(49, 54, 59) << QColor(60, 66, 72) << 0x7f;
    QTest::newRow("gray") << QColor(46, 46, 46) << QColor(64, 64, 64) << QColor(120, 120, 120)
                          << 0x8a;
    QTest::newRow("black") << QColor(0, 0, 0) << QColor(0, 0, 0) << QColor(0, 0, 0) << 0x5a;
}

// They are lighter than they were, but still not as light as the others.
void FusionStyleTweaksTest::disabledTextsOfADarkDesktopCanBeRead()
{
    QFETCH(QColor, window);
    QFETCH(QColor, button);
    QFETCH(QColor, disabled);
    QFETCH(int, least);
    QPalette palette(Qt::white, button, Qt::white, Qt::black, Qt::gray, Qt::white, Qt::white,
                     Qt::black, window);
    const auto roles = {QPalette::WindowText, QPalette::Text, QPalette::ButtonText};
    for (const auto role : roles)
        palette.setColor(QPalette::Disabled, role, disabled);
    style.polish(palette);
    for (const auto role : roles) {
        const int lightness = palette.color(QPalette::Disabled, role).lightness();
        QVERIFY2(lightness >= least && lightness < 255, qPrintable(QString::number(lightness)));
        QCOMPARE(palette.color(QPalette::Active, role), QColor(Qt::white));
    }
    QCOMPARE(palette.color(QPalette::Window), window);
    QCOMPARE(palette.color(QPalette::Button), button);
}

void FusionStyleTweaksTest::otherPalettesStayAsTheyAre()
{
    QPalette light = fusion->standardPalette();
    style.polish(light);
    QCOMPARE(light, fusion->standardPalette());
    QPalette dark(Qt::white, Qt::black, Qt::white, Qt::black, Qt::gray, Qt::white, Qt::white,
                  Qt::black, Qt::black);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, role, QColor(160, 160, 160));
    const QPalette before = dark;
    style.polish(dark);
    QCOMPARE(dark, before);
}

QTEST_MAIN(FusionStyleTweaksTest)
#include "fusion_style_tweaks_test.moc"
