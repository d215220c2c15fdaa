// What is left of a map's name from a campaign when it becomes part of a path.
#include "document/map_file_name.h"

#include <QtTest>

class MapFileNameTest : public QObject
{
    Q_OBJECT

private slots:
    void foldersAreDropped_data();
    void foldersAreDropped();
};

void MapFileNameTest::foldersAreDropped_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("bare");
    QTest::newRow("a bare name") << "thaw.e3m"
                                 << "thaw.e3m";
    QTest::newRow("spaces and points") << " a b..c.e3m"
                                       << " a b..c.e3m";
    QTest::newRow("a letter of another script") << QString::fromUtf8("\u043b\u0451\u0434.e3m")
                                                << QString::fromUtf8("\u043b\u0451\u0434.e3m");
    QTest::newRow("hidden") << ".thaw"
                            << ".thaw";
    QTest::newRow("three points") << "..."
                                  << "...";
    QTest::newRow("a folder above") << "../thaw.e3m"
                                    << "thaw.e3m";
    QTest::newRow("from the root") << "/etc/thaw.e3m"
                                   << "thaw.e3m";
    QTest::newRow("a drive") << "C:\\Maps\\thaw.e3m"
                             << "thaw.e3m";
    QTest::newRow("slash last") << "a\\b/thaw.e3m"
                                << "thaw.e3m";
    QTest::newRow("backslash last") << "a/b\\thaw.e3m"
                                    << "thaw.e3m";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("a folder alone") << "maps/"
                                    << "";
    QTest::newRow("backslash alone") << "\\"
                                     << "";
    QTest::newRow("this folder") << "."
                                 << "";
    QTest::newRow("the folder above") << ".."
                                      << "";
    QTest::newRow("the folder above that") << "../.."
                                           << "";
    QTest::newRow("this one behind a backslash") << "a\\."
                                                 << "";
}

void MapFileNameTest::foldersAreDropped()
{
    QFETCH(QString, name);
    QTEST(bareMapFileName(name), "bare");
}

QTEST_APPLESS_MAIN(MapFileNameTest)
#include "map_file_name_test.moc"
