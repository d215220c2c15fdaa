#include "tests/support/message_boxes.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>
#include <QWindow>

namespace {

constexpr int lookInterval = 5; // milliseconds

QVector<NextDialog *> &waiting()
{
    static QVector<NextDialog *> queue;
    return queue;
}

QPointer<QWidget> &answeredLast()
{
    static QPointer<QWidget> widget;
    return widget;
}

void checkBox(const QMessageBox &box, const ExpectedBox &expected)
{
    QCOMPARE(box.windowTitle(), expected.title);
    QCOMPARE(box.text(), expected.text);
    QCOMPARE(box.icon(), expected.icon);
    QCOMPARE(box.standardButtons(), expected.buttons);
}

} // namespace

NextDialog::NextDialog(Answer answer)
    : m_answer(std::move(answer)), m_behind(QApplication::activeModalWidget())
{
    waiting().append(this);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
    m_timer.start(lookInterval);
}

NextDialog::~NextDialog()
{
    waiting().removeAll(this);
    if (!m_came)
        QTest::qFail("The dialog that was to be answered never came.", __FILE__, __LINE__);
}

void NextDialog::look()
{
    QWidget *dialog = QApplication::activeModalWidget();
    if (!dialog || dialog == m_behind || dialog == answeredLast())
        return;
    if (waiting().isEmpty() || waiting().first() != this)
        return;
    if (!dialog->isVisible() || !dialog->windowHandle() || !dialog->windowHandle()->isExposed())
        return;
    m_timer.stop();
    m_came = true;
    waiting().removeFirst();
    answeredLast() = dialog;
    m_answer(dialog);
}

NextDialog::Answer boxAnswer(const ExpectedBox &expected)
{
    return [expected](QWidget *dialog) {
        const QPointer<QWidget> shown = dialog;
        auto *box = qobject_cast<QMessageBox *>(dialog);
        if (!box) {
            dialog->close();
            QFAIL("Another dialog came in the place of a message box.");
        }
        checkBox(*box, expected);
        if (QAbstractButton *button = box->button(expected.press))
            clickOn(button);
        if (shown && shown->isVisible()) {
            box->close();
            QFAIL("The message box did not close at its button.");
        }
    };
}

void clickOn(QWidget *widget, QPoint position, Qt::MouseButton button)
{
    QWidget *window = widget->window();
    QTest::mouseClick(window->windowHandle(), button, {}, widget->mapTo(window, position));
}

void clickOn(QWidget *widget, Qt::MouseButton button)
{
    clickOn(widget, widget->rect().center(), button);
}
