// Message boxes that aren't the program's own show names of files as they are too.
#include "shell/plain_message_boxes.h"
#include "tests/support/file_contents.h"
#include "tests/support/widgets.h"

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>

class PlainMessageBoxesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qApp->installEventFilter(new PlainMessageBoxes(qApp)); }

    void boxesShowMarkupAsItIs();
    void fileDialogNamesTheFileToReplace();
};

// It has more lines than its markup would have, and room for all of them.
void PlainMessageBoxesTest::boxesShowMarkupAsItIs()
{
    QMessageBox box;
    box.setText("<b>bold</b><br/>\nand\nmore");
    bringOnShow(box);
    QCOMPARE(box.textFormat(), Qt::PlainText);
    const auto *label = childOf<QLabel>(&box, "qt_msgbox_label");
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QVERIFY(label->height() >= 3 * label->fontMetrics().height());
}

void PlainMessageBoxesTest::fileDialogNamesTheFileToReplace()
{
    const QString name = "<i>tale<i>.e3c";
    const QTemporaryDir folder;
    QFile file(folder.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    QFileDialog dialog(nullptr, "Save As", folder.path());
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    bringOnShow(dialog);
    childOf<QLineEdit>(&dialog, "fileNameEdit")->setText(name);
    QString text;
    const NextDialog question([&](QWidget *shown) {
        auto *box = qobject_cast<QMessageBox *>(shown);
        QVERIFY(box);
        text = box->text();
        const Qt::TextFormat format = box->textFormat();
        clickOn(box->button(QMessageBox::No));
        QCOMPARE(format, Qt::PlainText);
    });
    clickOn(childOf<QDialogButtonBox>(&dialog, "buttonBox")->button(QDialogButtonBox::Save));
    QVERIFY2(text.contains(name), qPrintable(text));
    QVERIFY(dialog.isVisible());
}

QTEST_MAIN(PlainMessageBoxesTest)
#include "plain_message_boxes_test.moc"
