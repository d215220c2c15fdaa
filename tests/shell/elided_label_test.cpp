// The label that cuts its text: what it draws, what it tells, and the room it asks for.
#include "shell/elided_label.h"
#include "tests/support/longest_wait.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

class ElidedLabelTest : public QObject
{
    Q_OBJECT

private slots:
    void shortTextsAreDrawnWhole();
    void longTextsEndInAnEllipsis();
    void textIsNoMarkup();
    void toolTipTellsACutTextWhole_data();
    void toolTipTellsACutTextWhole();
    void wholeTextsHaveNoToolTip();
    void asksForALimitedWidth();
    void longTextsDoNotWidenTheWindow();
};

namespace {

const QString longText = "a line that is by far too long for the room that it is given here";

QImage drawn(QLabel &label)
{
    return label.grab().toImage();
}

// What a plain label of the same size draws.
QImage drawnPlainly(const QLabel &like, const QString &text)
{
    QLabel label;
    label.setTextFormat(Qt::PlainText);
    label.setText(text);
    label.resize(like.size());
    return drawn(label);
}

// What rests under the pointer after the label was asked for its tool tip.
QString toolTipOf(QLabel &label)
{
    QToolTip::hideText();
    QHelpEvent event(QEvent::ToolTip, QPoint(2, 2), label.mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(&label, &event);
    return QToolTip::text();
}

} // namespace

void ElidedLabelTest::shortTextsAreDrawnWhole()
{
    ElidedLabel label;
    label.setText("short");
    label.resize(label.sizeHint());
    QCOMPARE(drawn(label), drawnPlainly(label, "short"));
}

void ElidedLabelTest::longTextsEndInAnEllipsis()
{
    ElidedLabel label;
    label.setText(longText);
    label.resize(90, label.sizeHint().height());
    const QString cut = label.fontMetrics().elidedText(longText, Qt::ElideRight, 90);
    QVERIFY(cut.endsWith(QChar(0x2026)));
    QCOMPARE(drawn(label), drawnPlainly(label, cut));
    QVERIFY(drawn(label) != drawnPlainly(label, longText));
    QCOMPARE(label.text(), longText);
    label.resize(label.sizeHint());
    QCOMPARE(drawn(label), drawnPlainly(label, longText));
}

void ElidedLabelTest::textIsNoMarkup()
{
    ElidedLabel label;
    label.setText("<b>b</b>");
    QCOMPARE(label.textFormat(), Qt::PlainText);
    label.resize(label.sizeHint());
    QCOMPARE(drawn(label), drawnPlainly(label, "<b>b</b>"));
}

void ElidedLabelTest::toolTipTellsACutTextWhole_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("escaped");
    QTest::newRow("plain") << longText << longText;
    QTest::newRow("markup") << "<img src=\"a\"> & <b>" + longText
                            << "&lt;img src=&quot;a&quot;&gt; &amp; &lt;b&gt;" + longText;
}

void ElidedLabelTest::toolTipTellsACutTextWhole()
{
    QFETCH(QString, text);
    QFETCH(QString, escaped);
    ElidedLabel label;
    label.setText(text);
    label.resize(90, label.sizeHint().height());
    label.show();
    QVERIFY(QTest::qWaitForWindowExposed(&label, longestWait));
    QCOMPARE(toolTipOf(label), "<qt>" + escaped + "</qt>");
}

void ElidedLabelTest::wholeTextsHaveNoToolTip()
{
    ElidedLabel label;
    label.setText(longText);
    label.resize(label.sizeHint());
    label.show();
    QVERIFY(QTest::qWaitForWindowExposed(&label, longestWait));
    QCOMPARE(toolTipOf(label), QString());
}

void ElidedLabelTest::asksForALimitedWidth()
{
    ElidedLabel label;
    label.setText(longText);
    const QSize whole = label.sizeHint();
    QCOMPARE(label.minimumSizeHint(), QSize(60, whole.height()));
    label.setWidestRequest(120);
    QCOMPARE(label.minimumSizeHint(), QSize(120, whole.height()));
    label.setWidestRequest(whole.width() + 100);
    QCOMPARE(label.minimumSizeHint(), whole);
    label.setWidestRequest(60);
    label.setText("i");
    QCOMPARE(label.minimumSizeHint(), label.sizeHint());
    QVERIFY(label.sizeHint().width() < 60);
}

void ElidedLabelTest::longTextsDoNotWidenTheWindow()
{
    QWidget window;
    auto *layout = new QHBoxLayout(&window);
    auto *label = new ElidedLabel;
    layout->addWidget(label);
    window.resize(200, 50);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window, longestWait));
    label->setText(longText.repeated(10));
    layout->activate();
    QCOMPARE(window.width(), 200);
    QVERIFY(label->width() <= 200);
}

QTEST_MAIN(ElidedLabelTest)
#include "elided_label_test.moc"
