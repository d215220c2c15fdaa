// Standard output where the system takes nothing.
#include "cli/standard_output.h"

#include <QtTest>

#include <cerrno>
#include <cstring>

#include <dlfcn.h>
#include <unistd.h>

namespace {

int nothings = 0;      // so many writes take nothing, as a driver with a fault may answer
int interruptions = 0; // and so many before them are interrupted
QByteArray taken;
bool takes = false;
QString told;

} // namespace

// Stands before the C library's.
extern "C" __attribute__((visibility("default"))) ssize_t write(int handle, const void *bytes,
                                                                std::size_t size)
{
    using Function = ssize_t (*)(int, const void *, std::size_t);
    static const auto real = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "write"));
    if (!takes || handle != STDOUT_FILENO)
        return real(handle, bytes, size);
    if (interruptions > 0) {
        --interruptions;
        errno = EINTR;
        return -1;
    }
    if (nothings > 0) {
        --nothings;
        return 0;
    }
    const std::size_t part = size > 1 ? size / 2 : size;
    taken.append(static_cast<const char *>(bytes), int(part));
    return ssize_t(part);
}

ExitStatus cannotWrite(const QString &path, const QString &reason)
{
    told = path + ": " + reason;
    return exitFailed;
}

class StandardOutputTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { takes = false; }
    void endsWhereNothingIsTaken();
    void goesOnBehindInterruptionsAndParts();
};

void StandardOutputTest::init()
{
    nothings = interruptions = 0;
    taken.clear();
    told.clear();
}

void StandardOutputTest::endsWhereNothingIsTaken()
{
    StandardOutput output;
    output.write("bytes");
    nothings = 3; // one that goes on asking ends too
    takes = true;
    const ExitStatus status = output.finish();
    takes = false;
    QCOMPARE(status, exitFailed);
    QCOMPARE(told, "standard output: " + QString::fromLocal8Bit(strerror(EIO)));
    QCOMPARE(nothings, 2);
    QCOMPARE(taken, QByteArray());
}

void StandardOutputTest::goesOnBehindInterruptionsAndParts()
{
    StandardOutput output;
    output.write("many ");
    output.write("bytes");
    interruptions = 2;
    takes = true;
    const ExitStatus status = output.finish();
    takes = false;
    QCOMPARE(status, exitDone);
    QCOMPARE(told, QString());
    QCOMPARE(taken, QByteArray("many bytes"));
}

QTEST_APPLESS_MAIN(StandardOutputTest)
#include "standard_output_test.moc"
