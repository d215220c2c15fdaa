// A sample game of the real maker, with its archives and its table file read: the build's, or one
// made into a temporary folder, which goes with the object.
#pragma once

#include "tests/tools/sample_reader.h"

#include <QMap>
#include <QStringList>
#include <QTemporaryDir>

#include <array>

// Sizes that the tables of the sample game lead to.
constexpr int kCreatures = 186;
constexpr int kArtifacts = 166;
int regionsOf(int campaignMap); // -1 for a number that isn't there

// By rising precedence.
constexpr std::array<const char *, 6> kArchives = {"E3bitmap", "E3sprite", "Ravn",
                                                   "Ravn_ext", "Ravn_lng", "Ravn_l_ext"};

constexpr int kMakerTimeout = 240000; // milliseconds; the sanitizers' build takes its time

qint32 numberAt(const QByteArray &bytes, int offset);

class MadeGame
{
public:
    // Both are empty if all went well, otherwise they say what is wrong.
    QByteArray make();
    QByteArray openBuilt();

    QString folder() const { return m_folder; }
    QString path(const QString &name) const { return m_folder + QLatin1Char('/') + name; }
    QByteArray file(const QString &name) const;
    QVector<ArchiveEntry> archive(const char *name) const;

    // An archive file of any case of name, as precedence decides.
    QByteArray entry(const QString &name) const { return m_entries.value(name.toLower()); }
    QStringList rows(const QString &textTable) const;

    const QVector<DatEntry> &table() const { return m_table; }
    QVector<DatEntry> ofKind(const QByteArray &kind) const;

    // The lines of one of an entry's strings, comments left out.
    static QStringList listOf(const DatEntry &entry, int place);

    // A campaign of the folder Maps; all fields are zero if it can't be read.
    CampaignRecord campaign(const QString &name) const;

private:
    QByteArray read();

    QTemporaryDir m_made;
    QString m_folder;
    QMap<QString, QVector<ArchiveEntry>> m_archives;
    QMap<QString, QByteArray> m_entries;
    QVector<DatEntry> m_table;
};
