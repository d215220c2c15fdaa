#include "tests/monkey/private_game.h"

#include "fuzz/corpus.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSettings>

#include <sys/stat.h>

namespace {

// A list of that length takes the sanitizers minutes in the scenario dialog.
constexpr const char *tooLong = "hostile_scenarios_3000";

constexpr qint64 hugeFile = qint64(5) << 30; // sparse, so it takes no room
constexpr int longestName = 255;

QString endingOf(FileKind kind)
{
    switch (kind) {
    case FileKind::Campaign:
        return QStringLiteral(".e3c");
    case FileKind::Map:
        return QStringLiteral(".e3m");
    case FileKind::Text:
        break;
    }
    return QStringLiteral(".txt");
}

} // namespace

PrivateGame::PrivateGame(const QString &sampleGame)
{
    if (!m_folder.isValid()) {
        m_failure = m_folder.errorString();
        return;
    }
    copy(QDir(sampleGame).absolutePath(), m_folder.path());
    addStrangeFiles();
    const QString user = m_folder.filePath(QStringLiteral("user"));
    for (const char *home : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        qputenv(home, QFile::encodeName(user));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, user);
    if (!QDir::setCurrent(maps()))
        m_failure = QStringLiteral("there is no sample game in ") + sampleGame;
}

void PrivateGame::copy(const QString &from, const QString &to)
{
    const QDir source(from);
    QDirIterator entries(from, QDir::Files, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString file = entries.next();
        const QString target = to + QLatin1Char('/') + source.relativeFilePath(file);
        if (!QDir().mkpath(QFileInfo(target).path()) || !QFile::copy(file, target))
            m_failure = QStringLiteral("can't copy ") + file;
    }
}

void PrivateGame::addStrangeFiles()
{
    QDir().mkpath(maps() + QStringLiteral("/a folder.e3c"));
    QDir().mkpath(maps() + QStringLiteral("/strange"));
    const auto campaigns = corpus::campaigns();
    for (const corpus::File &file : campaigns) {
        if (qstrcmp(file.name, tooLong) != 0)
            write(QStringLiteral("strange/%1.e3c").arg(QLatin1String(file.name)), file.bytes);
    }
    const auto seeds = corpus::maps();
    for (const corpus::File &file : seeds)
        write(QStringLiteral("strange/%1.e3m").arg(QLatin1String(file.name)), file.bytes);
    for (const char *ending : {".e3c", ".e3m", ".txt"}) {
        write(QStringLiteral("strange/empty") + QLatin1String(ending), {});
        write(QStringLiteral("strange/a few words") + QLatin1String(ending), "Name:\n\nno more");
        QFile huge(maps() + QStringLiteral("/strange/huge") + QLatin1String(ending));
        if (!huge.open(QIODevice::WriteOnly) || !huge.resize(hugeFile))
            m_failure = QStringLiteral("can't make ") + huge.fileName();
        const QString pipe = maps() + QStringLiteral("/strange/pipe") + QLatin1String(ending);
        if (mkfifo(QFile::encodeName(pipe).constData(), 0600) != 0)
            m_failure = QStringLiteral("can't make ") + pipe;
    }
    QFile::link(QStringLiteral("leads to itself.e3c"),
                maps() + QStringLiteral("/strange/leads to itself.e3c"));
}

void PrivateGame::write(const QString &name, const QByteArray &bytes)
{
    QFile file(maps() + QLatin1Char('/') + name);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        m_failure = QStringLiteral("can't write ") + file.fileName();
}

QStringList PrivateGame::filesOf(FileKind kind) const
{
    const QDir folder(maps());
    QStringList files;
    for (const QString &name :
         folder.entryList({QLatin1Char('*') + endingOf(kind)}, QDir::Files, QDir::Name))
        files += folder.filePath(name);
    return files;
}

QString PrivateGame::fileToOpen(Dice &dice, FileKind kind) const
{
    const QStringList sound = filesOf(kind);
    if (!sound.isEmpty() && dice.chance(0.75))
        return dice.pick(sound);
    const QDir strange(maps() + QStringLiteral("/strange"));
    switch (dice.below(6)) {
    case 0:
        return maps() + QStringLiteral("/nobody made this") + endingOf(kind);
    case 1:
        return maps() + QStringLiteral("/a folder.e3c");
    case 2:
        return dice.pick(filesOf(kind == FileKind::Map ? FileKind::Campaign : FileKind::Map));
    default:
        return strange.filePath(
            dice.pick(strange.entryList({QLatin1Char('*') + endingOf(kind)},
                                        QDir::Files | QDir::System | QDir::Hidden, QDir::Name)));
    }
}

QString PrivateGame::fileToSave(Dice &dice, FileKind kind) const
{
    static const QStringList names{"monkey", "обезьяна", "ape %1 %2 & co", "猿.猴",
                                   "three.dots.in"};
    QString name = maps() + QLatin1Char('/') + dice.pick(names);
    switch (dice.below(12)) {
    case 0:
        return maps() + QStringLiteral("/no such folder/monkey") + endingOf(kind);
    case 1:
        return maps() + QStringLiteral("/a folder.e3c");
    case 2:
        return maps() + QLatin1Char('/') + QString(longestName, QLatin1Char('n'));
    case 3:
        return name; // the ending is left to the dialog
    default:
        return name + endingOf(kind);
    }
}
