// Streams in memory and on files.
#include "gamedata/runtime/t_stream.h"

#include <QTemporaryDir>
#include <QtTest>

#include <climits>
#include <malloc.h>

#include <sys/stat.h>

class TStreamTest : public QObject
{
    Q_OBJECT

private slots:
    void memoryReadsAllOrNothing();
    void memoryGrowsByWriting();
    void memoryGrowsInBlocksOf64();
    void memorySeeks_data();
    void memorySeeks();
    void memorySetSizeDropsContents();
    void memoryRefusesSizesOutOfReach();
    void fileModes_data();
    void fileModes();
    void fileModeFFFFCreatesAndTruncates();
    void fileModeFFFFReadsBackWhatItWrote();
    void fileOpenedForReadingTakesNoWrite();
    void fileShortReadDeliversWhatIsThere();
    void fileSeeks_data();
    void fileSeeks();
    void fileRefusesWhatIsNoFile();

private:
    std::wstring pathOf(const QString &name) const { return m_dir.filePath(name).toStdWString(); }
    std::wstring makeFile(const QString &name, const QByteArray &bytes) const
    {
        QFile file(m_dir.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("no test file");
        return pathOf(name);
    }
    QByteArray contents(const QString &name) const
    {
        QFile file(m_dir.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
    }

    QTemporaryDir m_dir;
};

namespace {

void addSeekRows()
{
    // All from position 4 of 10 bytes.
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("origin");
    QTest::addColumn<int>("result");
    QTest::addColumn<int>("position");
    QTest::newRow("start") << 0 << 0 << 0 << 0;
    QTest::newRow("from the start") << 7 << 0 << 7 << 7;
    QTest::newRow("before the start") << -1 << 0 << -1 << 4;
    QTest::newRow("forth") << 2 << 1 << 6 << 6;
    QTest::newRow("back") << -4 << 1 << 0 << 0;
    QTest::newRow("back too far") << -5 << 1 << -1 << 4;
    QTest::newRow("end") << 0 << 2 << 10 << 10;
    QTest::newRow("from the end") << -3 << 2 << 7 << 7;
    QTest::newRow("unknown origin") << 1 << 3 << 4 << 4;
    QTest::newRow("lowest") << INT_MIN << 1 << -1 << 4;
}

} // namespace

void TStreamTest::memoryReadsAllOrNothing()
{
    const TStreamPtr<TMemoryStream> stream(TMemoryStream::Create(4));
    QCOMPARE(stream->Size(), 4);
    QCOMPARE(stream->position, 0);
    memcpy(stream->data, "abcd", 4);
    char buffer[8] = "-------";
    QCOMPARE(stream->Read(buffer, 5), 0);
    QCOMPARE(stream->position, 0);
    QCOMPARE(QByteArray(buffer), QByteArray("-------"));
    QCOMPARE(stream->Read(buffer, 3), 1);
    QCOMPARE(QByteArray(buffer), QByteArray("abc----"));
    QCOMPARE(stream->Read(buffer, UINT_MAX), 0);
    QCOMPARE(stream->Read(buffer, 1), 1);
    QCOMPARE(stream->Read(buffer, 0), 1);
    QCOMPARE(stream->Read(buffer, 1), 0);
}

void TStreamTest::memoryGrowsByWriting()
{
    const TStreamPtr<TMemoryStream> stream(TMemoryStream::Create());
    QCOMPARE(stream->Size(), 0);
    QVERIFY(!stream->data);
    char text[] = "abcdef";
    QVERIFY(stream->Write(text, 6) != 0);
    QCOMPARE(stream->Size(), 6);
    QCOMPARE(stream->Seek(4, 0), 4);
    QVERIFY(stream->Write(text, 3) != 0);
    QCOMPARE(stream->Size(), 7);
    QCOMPARE(stream->position, 7);
    QCOMPARE(QByteArray(stream->data, 7), QByteArray("abcdabc"));
    QCOMPARE(stream->Seek(1, 0), 1);
    QVERIFY(stream->Write(text, 1) != 0);
    QCOMPARE(stream->Size(), 7);
    QVERIFY(stream->Write(text, 0) != 0);
}

void TStreamTest::memoryGrowsInBlocksOf64()
{
    const TStreamPtr<TMemoryStream> stream(TMemoryStream::Create());
    char byte = 'x';
    QVERIFY(stream->Write(&byte, 1) != 0);
    QVERIFY(malloc_usable_size(stream->data) >= 64);
    // Inside the block the data stays where it is.
    const char *block = stream->data;
    for (int i = 1; i < 64; ++i) {
        QVERIFY(stream->Write(&byte, 1) != 0);
        QVERIFY(stream->data == block);
        QCOMPARE(stream->Size(), i + 1);
    }
    QVERIFY(stream->Write(&byte, 1) != 0);
    QVERIFY(malloc_usable_size(stream->data) >= 128);
    QCOMPARE(QByteArray(stream->data, stream->Size()), QByteArray(65, 'x'));
}

void TStreamTest::memorySeeks_data()
{
    addSeekRows();
    QTest::newRow("behind the end") << 11 << 0 << -1 << 4;
    QTest::newRow("past the end") << 1 << 2 << -1 << 4;
    QTest::newRow("highest") << INT_MAX << 1 << -1 << 4;
}

void TStreamTest::memorySeeks()
{
    QFETCH(int, offset);
    QFETCH(int, origin);
    QFETCH(int, result);
    QFETCH(int, position);
    const TStreamPtr<TMemoryStream> stream(TMemoryStream::Create(10));
    QCOMPARE(stream->Seek(4, 0), 4);
    QCOMPARE(stream->Seek(offset, origin), result);
    QCOMPARE(stream->Seek(0, 1), position);
}

void TStreamTest::memorySetSizeDropsContents()
{
    const TStreamPtr<TMemoryStream> stream(TMemoryStream::Create(8));
    memcpy(stream->data, "abcdefgh", 8);
    QCOMPARE(stream->Seek(6, 0), 6);
    stream->SetSize(20);
    QCOMPARE(stream->Size(), 20);
    QCOMPARE(stream->position, 6);
    QCOMPARE(QByteArray(stream->data, 20), QByteArray(20, '\0'));
    stream->SetSize(3);
    QCOMPARE(stream->position, 3);
    stream->SetSize(0);
    QCOMPARE(stream->position, 0);
    QVERIFY(!stream->data);
}

void TStreamTest::memoryRefusesSizesOutOfReach()
{
    const TStreamPtr<TMemoryStream> stream(TMemoryStream::Create(UINT_MAX));
    QCOMPARE(stream->Size(), 0);
    char byte = 'x';
    QVERIFY(stream->Write(&byte, 1) != 0);
    QCOMPARE(stream->Write(&byte, INT_MAX), 0);
    QCOMPARE(stream->Size(), 1);
}

void TStreamTest::fileModes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("exists");
    QTest::addColumn<bool>("opens");
    QTest::addColumn<bool>("writes");
    QTest::newRow("0") << 0 << true << true << false;
    QTest::newRow("0 without a file") << 0 << false << false << false;
    QTest::newRow("1") << 1 << true << true << true;
    QTest::newRow("1 without a file") << 1 << false << false << false;
    QTest::newRow("2") << 2 << true << true << true;
    QTest::newRow("3") << 3 << true << true << true;
    QTest::newRow("3 without a file") << 3 << false << false << false;
    QTest::newRow("4") << 4 << true << true << false;
    QTest::newRow("0x42") << 0x42 << true << true << true;
    QTest::newRow("0xFFFF without a file") << 0xFFFF << false << true << true;
}

void TStreamTest::fileModes()
{
    QFETCH(int, mode);
    QFETCH(bool, exists);
    QFETCH(bool, opens);
    QFETCH(bool, writes);
    const QString name = QStringLiteral("mode");
    QFile::remove(m_dir.filePath(name));
    if (exists)
        makeFile(name, "abcdef");
    const TStreamPtr<TFileStream> stream(
        TFileStream::Create(pathOf(name).c_str(), static_cast<unsigned short>(mode)));
    QCOMPARE(stream != nullptr, opens);
    if (!stream) {
        QVERIFY(!QFile::exists(m_dir.filePath(name)));
        return;
    }
    char text[] = "XY";
    QCOMPARE(stream->Write(text, 2) != 0, writes);
    if (exists)
        QCOMPARE(contents(name), QByteArray(writes ? "XYcdef" : "abcdef"));
}

void TStreamTest::fileModeFFFFCreatesAndTruncates()
{
    const std::wstring path = makeFile(QStringLiteral("old"), "old contents");
    const TStreamPtr<TFileStream> stream(TFileStream::Create(path.c_str(), 0xFFFF));
    QVERIFY(stream);
    QCOMPARE(stream->Size(), 0);
    QCOMPARE(contents(QStringLiteral("old")), QByteArray());
}

void TStreamTest::fileModeFFFFReadsBackWhatItWrote()
{
    TFileStream *stream = TFileStream::Create(pathOf(QStringLiteral("both")).c_str(), 0xFFFF);
    QVERIFY(stream);
    char text[] = "written";
    QVERIFY(stream->Write(text, 7) != 0);
    QCOMPARE(stream->Size(), 7);
    QCOMPARE(stream->Seek(2, 0), 2);
    char buffer[6] = {};
    QVERIFY(stream->Read(buffer, 5) != 0);
    QCOMPARE(QByteArray(buffer), QByteArray("itten"));
    stream->Free();
    QCOMPARE(contents(QStringLiteral("both")), QByteArray("written"));
}

void TStreamTest::fileOpenedForReadingTakesNoWrite()
{
    const std::wstring path = makeFile(QStringLiteral("read"), "abc");
    const TStreamPtr<TFileStream> stream(TFileStream::Create(path.c_str(), 0));
    char text[] = "XY";
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("ReadOnly device")));
    QCOMPARE(stream->Write(text, 2), 0);
    QCOMPARE(contents(QStringLiteral("read")), QByteArray("abc"));
}

void TStreamTest::fileShortReadDeliversWhatIsThere()
{
    const std::wstring path = makeFile(QStringLiteral("short"), "abc");
    const TStreamPtr<TFileStream> stream(TFileStream::Create(path.c_str(), 0));
    char buffer[6] = "-----";
    QCOMPARE(stream->Read(buffer, 5), 0);
    QCOMPARE(QByteArray(buffer), QByteArray("abc--"));
    QCOMPARE(stream->Read(buffer, 1), 0);
    QVERIFY(stream->Read(buffer, 0) != 0);
}

void TStreamTest::fileSeeks_data()
{
    addSeekRows();
}

void TStreamTest::fileSeeks()
{
    QFETCH(int, offset);
    QFETCH(int, origin);
    QFETCH(int, result);
    QFETCH(int, position);
    const std::wstring path = makeFile(QStringLiteral("seek"), "0123456789");
    const TStreamPtr<TFileStream> stream(TFileStream::Create(path.c_str(), 0));
    QCOMPARE(stream->Seek(4, 0), 4);
    QCOMPARE(stream->Seek(offset, origin), result);
    QCOMPARE(stream->Seek(0, 1), position);
}

void TStreamTest::fileRefusesWhatIsNoFile()
{
    QVERIFY(!TFileStream::Create(m_dir.path().toStdWString().c_str(), 0));
    QVERIFY(!TFileStream::Create(m_dir.path().toStdWString().c_str(), 0xFFFF));
    const QString pipe = m_dir.filePath(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QVERIFY(!TFileStream::Create(pipe.toStdWString().c_str(), 0)); // and doesn't wait for a writer
    QVERIFY(!TFileStream::Create(L"", 0));
}

QTEST_APPLESS_MAIN(TStreamTest)
#include "t_stream_test.moc"
