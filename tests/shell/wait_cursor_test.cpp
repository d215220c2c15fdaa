// The hourglass, and the box that warns.
#include "shell/wait_cursor.h"
#include "shell/warning_box.h"
#include "tests/support/message_boxes.h"

#include <QApplication>
#include <QTest>

class WaitCursorTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QCOMPARE(QApplication::overrideCursor(), nullptr); }

    void showsForAsLongAsItLives();
    void goesBeforeItsTime();
    void aReaderThatTookItAwayIsNotFollowed();
    void anotherCursorIsLeftAlone();
    void warningHasOneButton();
    void warningTakesNamesAsTheyAre();
};

void WaitCursorTest::showsForAsLongAsItLives()
{
    {
        const WaitCursor cursor;
        QVERIFY(QApplication::overrideCursor());
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
    QVERIFY(!QApplication::overrideCursor());
}

void WaitCursorTest::goesBeforeItsTime()
{
    const WaitCursor outer;
    {
        WaitCursor cursor;
        cursor.restore();
        cursor.restore();
        QVERIFY(QApplication::overrideCursor()); // the outer one's
    }
    QVERIFY(QApplication::overrideCursor());
}

void WaitCursorTest::aReaderThatTookItAwayIsNotFollowed()
{
    const WaitCursor cursor;
    QApplication::restoreOverrideCursor();
    QVERIFY(!QApplication::overrideCursor());
}

void WaitCursorTest::anotherCursorIsLeftAlone()
{
    {
        const WaitCursor cursor;
        QApplication::restoreOverrideCursor();
        QApplication::setOverrideCursor(Qt::CrossCursor);
    }
    QVERIFY(QApplication::overrideCursor());
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::CrossCursor);
    QApplication::restoreOverrideCursor();
}

void WaitCursorTest::warningHasOneButton()
{
    NextDialog box(boxAnswer({"Error", "Cannot read file.", QMessageBox::Warning}));
    warn(nullptr, "Error", "Cannot read file.");
}

void WaitCursorTest::warningTakesNamesAsTheyAre()
{
    NextDialog box([](QWidget *widget) {
        auto *shown = qobject_cast<QMessageBox *>(widget);
        const Qt::TextFormat format = shown ? shown->textFormat() : Qt::AutoText;
        const QString text = shown ? shown->text() : QString();
        widget->close();
        QCOMPARE(format, Qt::PlainText);
        QCOMPARE(text, QString("<b>a</b>.e3m"));
    });
    warn(nullptr, "Error", "<b>a</b>.e3m");
}

QTEST_MAIN(WaitCursorTest)
#include "wait_cursor_test.moc"
