// The manual's Russian pictures; a process speaks one language only.
#include "tests/tools/manual_pictures.h"

#include <memory>

class ManualRussianTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<ManualFixture>(manualRussian); }

    void pictureHasTheWindowsSize_data() { addScenes(); }
    void pictureHasTheWindowsSize();

private:
    std::unique_ptr<ManualFixture> fixture;
};

void ManualRussianTest::pictureHasTheWindowsSize()
{
    QFETCH(int, scene);
    compareSize(manualRussian, manualScenes().at(size_t(scene)));
}

QTEST_MAIN(ManualRussianTest)
#include "manual_russian_test.moc"
