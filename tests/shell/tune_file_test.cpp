// Kinds of sound files told by their bytes, and heads that the sound library doesn't survive.
#include "shell/tune_file.h"
#include "tests/support/byte_writer.h"
#include "tests/support/idle_pipe.h"
#include "tests/support/tunes.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

enum Kind
{
    None = -1,
    Mp3 = int(TuneKind::Mp3),
    Ogg = int(TuneKind::Ogg),
    Wav = int(TuneKind::Wave)
};

constexpr int oggChannels = 39;
constexpr int oggSampleRate = 40;

QByteArray changed(QByteArray bytes, int place, const QByteArray &by)
{
    return bytes.replace(place, by.size(), by);
}

QByteArray format(unsigned channels, quint32 rate)
{
    return ByteWriter().raw("fmt ").u32(16).u16(1).u16(channels).u32(rate).zeros(8).bytes();
}

QByteArray waveOf(const QByteArray &chunks)
{
    return ByteWriter().raw("RIFF").u32(quint32(chunks.size())).raw("WAVE").raw(chunks).bytes();
}

} // namespace

class TuneFileTest : public QObject
{
    Q_OBJECT

private slots:
    void kindIsToldByTheBytes_data();
    void kindIsToldByTheBytes();
    void headsCutOffAreSurvived_data();
    void headsCutOffAreSurvived();
    void whatCantBeReadHasNone();

private:
    int kindOf(const QByteArray &bytes) const;

    QTemporaryDir m_dir;
};

int TuneFileTest::kindOf(const QByteArray &bytes) const
{
    const QString path = m_dir.filePath("tune.mp3");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
    file.close();
    const std::optional<TuneKind> kind = tuneKind(path);
    return kind ? int(*kind) : None;
}

void TuneFileTest::kindIsToldByTheBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("kind");
    const QByteArray ogg = tunes::ogg(100, 440);
    const QByteArray sound = format(2, 44100);
    QTest::newRow("WAV") << tunes::wave({10, 1}) << int(Wav);
    QTest::newRow("OGG") << ogg << int(Ogg);
    QTest::newRow("anything else") << QByteArray("\xff\xfb\x90\x64", 4) << int(Mp3);
    QTest::newRow("empty") << QByteArray() << int(Mp3);

    QTest::newRow("WAV, lowest rate") << tunes::wave({10, 1, 2, lowestSampleRate}) << int(Wav);
    QTest::newRow("WAV, below it") << tunes::wave({10, 1, 2, lowestSampleRate - 1}) << int(None);
    QTest::newRow("WAV, rate 0") << tunes::wave({10, 1, 2, 0}) << int(None);
    QTest::newRow("WAV, one channel") << tunes::wave({10, 1, 1}) << int(Wav);
    QTest::newRow("WAV, no channel") << tunes::wave({10, 1, 0}) << int(None);

    QTest::newRow("OGG, lowest rate")
        << changed(ogg, oggSampleRate, ByteWriter().u32(lowestSampleRate).bytes()) << int(Ogg);
    QTest::newRow("OGG, below it")
        << changed(ogg, oggSampleRate, ByteWriter().u32(lowestSampleRate - 1).bytes()) << int(None);
    QTest::newRow("OGG, no channel") << changed(ogg, oggChannels, QByteArray(1, '\0')) << int(None);

    QTest::newRow("format behind a chunk of odd size")
        << waveOf(ByteWriter().raw("LIST").u32(3).raw("abc").zeros(1).bytes() + format(0, 44100))
        << int(None);
    QTest::newRow("second format") << waveOf(sound + format(0, 44100)) << int(None);
    QTest::newRow("size past the end")
        << waveOf(sound + ByteWriter().raw("data").u32(0xffffffffU).bytes()) << int(Wav);
    QTest::newRow("1000 chunks") << waveOf(sound + ByteWriter().zeros(8 * 999).bytes()) << int(Wav);
    QTest::newRow("more than 1000")
        << waveOf(sound + ByteWriter().zeros(8 * 1000).bytes()) << int(None);
}

void TuneFileTest::kindIsToldByTheBytes()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, kind);
    QCOMPARE(kindOf(bytes), kind);
}

void TuneFileTest::headsCutOffAreSurvived_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("wholeHead"); // from this length on it is told
    QTest::newRow("WAV") << tunes::wave({10, 1}) << int(Wav) << 28;
    QTest::newRow("OGG") << tunes::ogg(100, 440) << int(Ogg) << 44;
}

void TuneFileTest::headsCutOffAreSurvived()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, kind);
    QFETCH(int, wholeHead);
    for (int length = 0; length < 80; ++length) {
        const int told = kindOf(bytes.left(length));
        if (length >= wholeHead)
            QCOMPARE(told, kind);
        else
            QVERIFY(told == None || told == Mp3 || told == kind);
    }
}

void TuneFileTest::whatCantBeReadHasNone()
{
    QVERIFY(!tuneKind(m_dir.filePath("gone.mp3")));
    QVERIFY(!tuneKind(m_dir.path()));
    const IdlePipe pipe(m_dir.filePath("pipe.mp3"));
    QVERIFY(pipe.isMade());
    QVERIFY(!tuneKind(m_dir.filePath("pipe.mp3")));
    QVERIFY(!pipe.wasOpened());
}

QTEST_GUILESS_MAIN(TuneFileTest)
#include "tune_file_test.moc"
