// The seeds that are replayed are those that the maker writes: none is missing, none is left over.
// Beside them stand what the fuzzer found, named by a hash, the files of mended faults and those
// cut out of the sample game.
#include "fuzz/corpus.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QtTest>

#include <algorithm>

class CorpusTest : public QObject
{
    Q_OBJECT

private slots:
    void foldersAreThoseOfTheTargets();
    void folderHoldsItsSeeds_data();
    void folderHoldsItsSeeds();
    void soundSeedsOfEveryKindAreThere_data();
    void soundSeedsOfEveryKindAreThere();
};

namespace {

QDir corpusFolder(const QString &target = QString())
{
    return QDir(QStringLiteral(CMPED_SOURCE_DIR "/fuzz/corpus/") + target);
}

bool isFound(const QString &name)
{
    static const QRegularExpression found(
        QStringLiteral("^([0-9a-f]{40}|(fault|sample)_[a-z0-9_]+)$"));
    return found.match(name).hasMatch();
}

} // namespace

void CorpusTest::foldersAreThoseOfTheTargets()
{
    QStringList names;
    for (const corpus::Target &target : corpus::targets())
        names << QLatin1String(target.name);
    names.sort();
    QCOMPARE(corpusFolder().entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name), names);
}

void CorpusTest::folderHoldsItsSeeds_data()
{
    QTest::addColumn<int>("target");
    const auto targets = corpus::targets();
    for (size_t i = 0; i < targets.size(); ++i)
        QTest::newRow(targets[i].name) << int(i);
}

void CorpusTest::folderHoldsItsSeeds()
{
    QFETCH(int, target);
    const corpus::Target chosen = corpus::targets()[size_t(target)];
    const QDir folder = corpusFolder(QLatin1String(chosen.name));
    QStringList names;
    for (const corpus::File &seed : chosen.seeds) {
        names << QLatin1String(seed.name);
        QFile file(folder.filePath(QLatin1String(seed.name)));
        QVERIFY2(file.open(QIODevice::ReadOnly), seed.name);
        QVERIFY2(file.readAll() == seed.bytes, seed.name);
    }
    names.sort();
    QStringList there = folder.entryList(QDir::Files);
    there.erase(std::remove_if(there.begin(), there.end(), isFound), there.end());
    there.sort();
    QCOMPARE(there, names);
}

void CorpusTest::soundSeedsOfEveryKindAreThere_data()
{
    QTest::addColumn<QString>("file");
    for (const char *file :
         {"campaign/version_5", "campaign/version_6", "campaign/version_10",
          "map_header/version_14", "map_header/version_21", "map_header/version_28",
          "map_header/version_32", "map_header/version_32_sub_1", "map_header/version_32_sub_2",
          "map_header/version_32_sub_4", "map_header/version_32_sub_7", "archive/sound",
          "table_file/sound", "settings/sound"})
        QTest::newRow(file) << file;
}

void CorpusTest::soundSeedsOfEveryKindAreThere()
{
    QFETCH(QString, file);
    QVERIFY(corpusFolder().exists(file));
}

QTEST_GUILESS_MAIN(CorpusTest)
#include "corpus_test.moc"
