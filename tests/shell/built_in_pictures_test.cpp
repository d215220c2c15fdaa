// The pictures built into the program: which there are, that each can be drawn at every size that
// screens ask for, and that no two of them look the same.
#include "shell/editor_resources.h"

#include <QDir>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTest>

namespace {

const QStringList drawings{"checkbox_checked.svg",
                           "checkbox_checked_disabled.svg",
                           "checkbox_unchecked.svg",
                           "checkbox_unchecked_disabled.svg",
                           "checked.svg",
                           "checkmark_black.svg",
                           "checkmark_gray.svg",
                           "checkmark_white.svg",
                           "combobox_indicator.svg",
                           "combobox_indicator_dark_mode.svg",
                           "combobox_indicator_disabled.svg",
                           "edit.svg",
                           "new_file.svg",
                           "open.svg",
                           "save.svg",
                           "spinbox_down_arrow.svg",
                           "spinbox_down_arrow_disabled.svg",
                           "spinbox_up_arrow.svg",
                           "spinbox_up_arrow_disabled.svg"};

QString pathOf(const QString &name)
{
    return ":/icons/" + name;
}

QImage drawn(const QString &name, int side)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer renderer(pathOf(name));
    const QSizeF size = QSizeF(renderer.defaultSize()).scaled(side, side, Qt::KeepAspectRatio);
    renderer.render(&painter, QRectF(QPointF(), size));
    return image;
}

int inkOf(const QImage &image)
{
    int ink = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ink += qAlpha(image.pixel(x, y)) > 127;
    }
    return ink;
}

QColor strongest(const QImage &image)
{
    QColor colour(Qt::transparent);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() > colour.alpha())
                colour = image.pixelColor(x, y);
        }
    }
    return colour;
}

} // namespace

class BuiltInPicturesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initEditorResources(); }
    void listIsComplete();
    void drawingsAreSeenAtEverySize_data();
    void drawingsAreSeenAtEverySize();
    void drawingsDiffer_data() { drawingsAreSeenAtEverySize_data(); }
    void drawingsDiffer();
    void marksHaveTheColoursOfTheirNames_data();
    void marksHaveTheColoursOfTheirNames();
    void arrowsPointAgainstEachOther_data();
    void arrowsPointAgainstEachOther();
    void applicationIconHasItsOwnPictureOfEachSize();
    void splashPicturesDifferWithTheLanguage();
};

void BuiltInPicturesTest::listIsComplete()
{
    QStringList expected = drawings;
    expected << "cmped.ico"
             << "ravn_cmped_en.png"
             << "ravn_cmped_ru.png";
    expected.sort();
    QStringList found = QDir(":/icons").entryList();
    found.sort();
    QCOMPARE(found, expected);
}

void BuiltInPicturesTest::drawingsAreSeenAtEverySize_data()
{
    QTest::addColumn<int>("side");
    for (const int side : {16, 24, 32, 48, 64})
        QTest::addRow("%d pixels", side) << side;
}

void BuiltInPicturesTest::drawingsAreSeenAtEverySize()
{
    QFETCH(int, side);
    for (const QString &name : drawings) {
        QVERIFY2(QSvgRenderer(pathOf(name)).isValid(), qPrintable(name));
        QVERIFY2(inkOf(drawn(name, side)) > side * side / 30, qPrintable(name));
    }
}

void BuiltInPicturesTest::drawingsDiffer()
{
    QFETCH(int, side);
    for (int i = 0; i < drawings.size(); ++i) {
        for (int j = 0; j < i; ++j)
            QVERIFY2(drawn(drawings[i], side) != drawn(drawings[j], side),
                     qPrintable(drawings[i] + ", " + drawings[j]));
    }
}

void BuiltInPicturesTest::marksHaveTheColoursOfTheirNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("most");
    QTest::newRow("black") << "checkmark_black.svg" << 0 << 0;
    QTest::newRow("gray") << "checkmark_gray.svg" << 100 << 200;
    QTest::newRow("white") << "checkmark_white.svg" << 255 << 255;
    QTest::newRow("arrow") << "combobox_indicator.svg" << 0 << 100;
    QTest::newRow("arrow, disabled") << "combobox_indicator_disabled.svg" << 150 << 200;
    QTest::newRow("arrow, dark") << "combobox_indicator_dark_mode.svg" << 220 << 255;
    QTest::newRow("up") << "spinbox_up_arrow.svg" << 0 << 100;
    QTest::newRow("up, disabled") << "spinbox_up_arrow_disabled.svg" << 150 << 200;
    QTest::newRow("down") << "spinbox_down_arrow.svg" << 0 << 100;
    QTest::newRow("down, disabled") << "spinbox_down_arrow_disabled.svg" << 150 << 200;
}

void BuiltInPicturesTest::marksHaveTheColoursOfTheirNames()
{
    QFETCH(QString, name);
    QFETCH(int, least);
    QFETCH(int, most);
    const QColor colour = strongest(drawn(name, 64));
    QCOMPARE(colour.red(), colour.green());
    QCOMPARE(colour.red(), colour.blue());
    QVERIFY2(colour.red() >= least && colour.red() <= most, qPrintable(colour.name()));
}

void BuiltInPicturesTest::arrowsPointAgainstEachOther_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::newRow("enabled") << ".svg";
    QTest::newRow("disabled") << "_disabled.svg";
}

void BuiltInPicturesTest::arrowsPointAgainstEachOther()
{
    QFETCH(QString, suffix);
    const QRect upper(0, 0, 64, 16); // an arrow is half as high as wide
    const QRect lower(0, 16, 64, 16);
    const QImage up = drawn("spinbox_up_arrow" + suffix, 64);
    const QImage down = drawn("spinbox_down_arrow" + suffix, 64);
    QVERIFY(inkOf(up.copy(upper)) < inkOf(up.copy(lower)));
    QVERIFY(inkOf(down.copy(upper)) > inkOf(down.copy(lower)));
}

void BuiltInPicturesTest::applicationIconHasItsOwnPictureOfEachSize()
{
    const QIcon icon(pathOf("cmped.ico"));
    for (const int side : {16, 24, 32, 48, 64, 128, 256}) {
        QVERIFY2(icon.availableSizes().contains({side, side}), qPrintable(QString::number(side)));
        QVERIFY(inkOf(icon.pixmap(side, side).toImage()) > side * side / 2);
    }
}

void BuiltInPicturesTest::splashPicturesDifferWithTheLanguage()
{
    const QImage english(pathOf("ravn_cmped_en.png"));
    const QImage russian(pathOf("ravn_cmped_ru.png"));
    QVERIFY(!english.isNull());
    QCOMPARE(english.size(), russian.size());
    QVERIFY(english != russian);
}

QTEST_MAIN(BuiltInPicturesTest)
#include "built_in_pictures_test.moc"
