// A game folder that the monkey has to itself: a copy of the sample game, and files in it that an
// author would rather not meet. Everything it chooses in file dialogs lies in there.
#pragma once

#include "tests/monkey/dice.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// What a file dialog asks for.
enum class FileKind
{
    Campaign,
    Map,
    Text
};

class PrivateGame
{
public:
    // The user's home with all settings and the current folder are in there as well from now on,
    // so it has to come before the application.
    explicit PrivateGame(const QString &sampleGame);

    // Empty if all went well.
    QString failure() const { return m_failure; }
    QString path() const { return m_folder.path(); }

    // A path to open: mostly one of the kind asked for, else another file, a hostile one, a folder
    // or nothing at all.
    QString fileToOpen(Dice &dice, FileKind kind) const;
    // A path to save to: a new name, one that is there, or one where nothing can be written.
    QString fileToSave(Dice &dice, FileKind kind) const;

private:
    void copy(const QString &from, const QString &to);
    void addStrangeFiles();
    void write(const QString &name, const QByteArray &bytes);
    QString maps() const { return m_folder.filePath(QStringLiteral("Maps")); }
    QStringList filesOf(FileKind kind) const;

    QTemporaryDir m_folder;
    QString m_failure;
};
