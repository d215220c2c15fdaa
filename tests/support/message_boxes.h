// Answers dialogs while a modal call runs, and clicks where a user clicks.
//
// Each NextDialog waits for one modal window, in the order in which they were made, and fails the
// test if its window never came:
//
//     NextDialog question(boxAnswer({"Title", "Text", QMessageBox::NoIcon, QMessageBox::Yes |
//                                    QMessageBox::No, QMessageBox::No}));
//     window.close();
//
// A modal window that is there when one is made isn't taken for the one it waits for.
#pragma once

#include <QMessageBox>
#include <QPointer>
#include <QString>
#include <QTimer>

#include <functional>

// What a message box has to be like, and the button that is pressed then.
struct ExpectedBox
{
    QString title;
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons = QMessageBox::Ok;
    QMessageBox::StandardButton press = QMessageBox::Ok;
};

class NextDialog
{
public:
    using Answer = std::function<void(QWidget *)>;

    explicit NextDialog(Answer answer);
    ~NextDialog();
    NextDialog(const NextDialog &) = delete;
    NextDialog &operator=(const NextDialog &) = delete;

    bool came() const { return m_came; }

private:
    void look();

    Answer m_answer;
    const QPointer<QWidget> m_behind; // modal already
    QTimer m_timer;
    bool m_came = false;
};

// Checks a message box and presses a button; closes what isn't one and fails the test.
NextDialog::Answer boxAnswer(const ExpectedBox &expected);

// A click through the window's handle, so that a modal window in front swallows it.
void clickOn(QWidget *widget, QPoint position, Qt::MouseButton button = Qt::LeftButton);
void clickOn(QWidget *widget, Qt::MouseButton button = Qt::LeftButton);
