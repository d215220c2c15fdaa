// The launcher's question for the game's folder.
#include "launcher/game_dialog.h"
#include "tests/support/child_process.h"
#include "tests/support/file_dialogs.h"
#include "tests/support/longest_wait.h"
#include "tests/support/tiny_game.h"

#include <QDir>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

#include <memory>

class GameDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_dir = std::make_unique<QTemporaryDir>(); }

    void saysWhatItLooksFor();
    void startsWhereTheGameWas_data();
    void startsWhereTheGameWas();
    void takesTheGamesFolder();
    void namesWhatAnotherFolderLacks_data();
    void namesWhatAnotherFolderLacks();
    void speaksRussian();

private:
    QString path(const QString &name) const { return m_dir->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_dir;
};

namespace {

const QString wanted =
    "Where is the game Eldmark Saga with its add-on Ravn? Choose its folder: the one with "
    "ravn.dat, Ravn_settings.ini and the folder Data.";

QString questionOf(const GameDialog &dialog)
{
    return dialog.findChild<QLabel *>("question")->text();
}

// Types a path and presses Return.
NextDialog::Answer enter(const QString &folder)
{
    return [folder](QWidget *widget) {
        widget->findChild<QLineEdit *>("fileNameEdit")->setText(folder);
        QTest::keyClick(widget->windowHandle(), Qt::Key_Return);
    };
}

} // namespace

void GameDialogTest::saysWhatItLooksFor()
{
    GameDialog dialog({}, m_dir->path());
    QCOMPARE(questionOf(dialog), wanted);
    QCOMPARE(dialog.directory().path(), m_dir->path());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog, longestWait));
    const auto *text = dialog.findChild<QLabel *>("question");
    QVERIFY(text->isVisible());
    QVERIFY(text->height() >= text->heightForWidth(text->width()));
    const auto *list = dialog.findChild<QWidget *>("splitter");
    QVERIFY(text->geometry().bottom() < list->geometry().top());
}

void GameDialogTest::startsWhereTheGameWas_data()
{
    QTest::addColumn<QString>("lost");
    QTest::addColumn<QString>("start");
    QTest::newRow("nowhere yet") << ""
                                 << "";
    QTest::newRow("still a folder") << "there"
                                    << "there";
    QTest::newRow("gone") << "there/gone"
                          << "there";
    QTest::newRow("gone with what it was in") << "there/far/gone"
                                              << "there";
}

void GameDialogTest::startsWhereTheGameWas()
{
    QFETCH(QString, lost);
    QFETCH(QString, start);
    QVERIFY(QDir(path("there")).mkpath("."));
    QString shown;
    QString folder;
    const NextDialog cancelled([&](QWidget *widget) {
        const auto *dialog = static_cast<GameDialog *>(widget);
        shown = questionOf(*dialog);
        folder = dialog->directory().path();
        QTest::keyClick(widget->windowHandle(), Qt::Key_Escape);
    });
    QVERIFY(!askForGame(lost.isEmpty() ? lost : path(lost)));
    QCOMPARE(folder, start.isEmpty() ? QDir::homePath() : path(start));
    if (lost.isEmpty())
        QCOMPARE(shown, wanted);
    else
        QCOMPARE(shown, "The game isn't in this folder any more:\n" + path(lost) + "\n\n" + wanted);
}

void GameDialogTest::takesTheGamesFolder()
{
    const tiny::Game game;
    const NextDialog chosen(enter(game.path()));
    QCOMPARE(askForGame({}).value_or("none"), game.path());
}

void GameDialogTest::namesWhatAnotherFolderLacks_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("lacks");
    QTest::newRow("all") << QStringList() << "ravn.dat, Ravn_settings.ini, Data";
    QTest::newRow("one") << QStringList{"Ravn_settings.ini", "Data"} << "ravn.dat";
}

void GameDialogTest::namesWhatAnotherFolderLacks()
{
    QFETCH(QStringList, files);
    QFETCH(QString, lacks);
    const QString other = path("other <b>&");
    QVERIFY(QDir(other).mkpath("."));
    for (const QString &file : files) {
        if (file == "Data") {
            QVERIFY(QDir(other).mkpath(file));
        } else {
            QFile made(other + '/' + file);
            QVERIFY(made.open(QIODevice::WriteOnly));
        }
    }
    const tiny::Game game;
    const NextDialog wrong(enter(other));
    const NextDialog answer(
        boxAnswer({"Not the Game's Folder",
                   "This is not the game's folder:\n" + other + "\n\nIt lacks: " + lacks,
                   QMessageBox::Warning, QMessageBox::Ok, QMessageBox::Ok}));
    QString again;
    const NextDialog right([&](QWidget *widget) {
        again = static_cast<GameDialog *>(widget)->directory().path();
        enter(game.path())(widget);
    });
    QCOMPARE(askForGame({}).value_or("none"), game.path());
    QCOMPARE(again, other);
}

void GameDialogTest::speaksRussian()
{
    QTranslator russian;
    QVERIFY(russian.load(builtProgram("Ravn_Data/cmp_ru.qm")));
    QCoreApplication::installTranslator(&russian);
    const GameDialog dialog({}, {});
    QCoreApplication::removeTranslator(&russian);
    QCOMPARE(dialog.windowTitle(), QString::fromUtf8("Папка игры"));
    QVERIFY(questionOf(dialog).contains("Ravn_settings.ini"));
    QVERIFY(questionOf(dialog) != wanted);
}

QTEST_MAIN(GameDialogTest)
#include "game_dialog_test.moc"
