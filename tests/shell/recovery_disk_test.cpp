// The disk with the recovery copies is full: the editor goes on without a word, and nothing else is
// lost by it.
#include "tests/shell/recovery_window.h"
#include "tests/support/disk_faults.h"

#include <QMessageBox>

namespace {

// Counts message boxes, and closes them so that nothing waits for an answer.
class BoxCounter : public QObject
{
public:
    BoxCounter() { qApp->installEventFilter(this); }

    int count = 0;

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Show && qobject_cast<QMessageBox *>(object)) {
            ++count;
            QMetaObject::invokeMethod(object, "reject", Qt::QueuedConnection);
        }
        return false;
    }
};

} // namespace

class RecoveryDiskTest : public QObject, private RecoveryWindow
{
    Q_OBJECT

private slots:
    void cleanup();

    void changesGoOnWithoutRoomForACopy_data();
    void changesGoOnWithoutRoomForACopy();
    void copyFromBeforeTheDiskWasFullStays();
    void copyIsRenewedOnceThereIsRoomAgain();

private:
    // The disk that holds the copies, and a window on the campaign. False without a right to mount.
    bool begin(int files = 0);
    QString filler() const { return m_disk->path("filler"); }
    bool fill() const;
    QStringList filesKept() const
    {
        return QDir(recovery()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    std::unique_ptr<SmallDisk> m_disk;
    BoxCounter m_boxes;
};

bool RecoveryDiskTest::begin(int files)
{
    m_disk = std::make_unique<SmallDisk>(64, files);
    if (!m_disk->isMounted())
        return false;
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_disk->folder()));
    m_boxes.count = 0;
    reset();
    load();
    return true;
}

void RecoveryDiskTest::cleanup()
{
    window.reset();
    m_disk.reset();
}

// Takes all the room that is left.
bool RecoveryDiskTest::fill() const
{
    QFile file(filler());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return false;
    while (file.write(QByteArray(4096, 'x')) > 0) {
    }
    return file.size() > 0;
}

void RecoveryDiskTest::changesGoOnWithoutRoomForACopy_data()
{
    QTest::addColumn<int>("files"); // that the disk has room for, its own folder included
    QTest::newRow("no room for bytes") << 0;
    QTest::newRow("none for the program's folder") << 2;
    QTest::newRow("none for the folder of copies") << 3;
    QTest::newRow("none for the copy's name") << 4;
    QTest::newRow("none for a second file") << 5;
}

void RecoveryDiskTest::changesGoOnWithoutRoomForACopy()
{
    QFETCH(int, files);
    if (!begin(files))
        QSKIP("no right to mount a disk here");
    QVERIFY(fill());
    const QByteArray before = contents(path("home.e3c"));
    for (const char *name : {"Ashen Road", "Third Road"}) {
        changeName(name);
        QVERIFY(EditorData::info.modified);
        QCOMPARE(window->windowTitle(), "home.e3c* - " + appTitle);
        QCOMPARE(filesKept(), QStringList());
    }
    QCOMPARE(contents(path("home.e3c")), before);
    CampaignData expected = campaignWithMaps();
    expected.name = "Third Road";
    QVERIFY(expected.saveTo(path("expected.e3c")).ok);
    trigger("actionSave");
    QVERIFY(!EditorData::info.modified);
    QCOMPARE(contents(path("home.e3c")), contents(path("expected.e3c")));
    MainWindow next(nullptr);
    next.offerRecoveryCopy();
    QCOMPARE(m_boxes.count, 0);
}

void RecoveryDiskTest::copyFromBeforeTheDiskWasFullStays()
{
    if (!begin())
        QSKIP("no right to mount a disk here");
    changeName("Ashen Road");
    const QStringList before = filesKept();
    const QByteArray kept = copy();
    QVERIFY(!kept.isEmpty());
    QVERIFY(fill());
    changeName("Third Road");
    QCOMPARE(filesKept(), before);
    QCOMPARE(copy(), kept);
    trigger("actionSave");
    QCOMPARE(savedByTheWindow().name, QString("Third Road"));
    QCOMPARE(filesKept(), QStringList());
    QCOMPARE(m_boxes.count, 0);
}

void RecoveryDiskTest::copyIsRenewedOnceThereIsRoomAgain()
{
    if (!begin())
        QSKIP("no right to mount a disk here");
    QVERIFY(fill());
    changeName("Ashen Road");
    QCOMPARE(filesKept(), QStringList());
    QVERIFY(QFile::remove(filler()));
    changeName("Third Road");
    const QByteArray kept = copy();
    QVERIFY(window->saveFile(path("saved.e3c")));
    QCOMPARE(contents(path("saved.e3c")), kept);
    QCOMPARE(m_boxes.count, 0);
}

QTEST_MAIN(RecoveryDiskTest)
#include "recovery_disk_test.moc"
