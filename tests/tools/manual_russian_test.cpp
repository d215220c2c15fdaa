// The manual in Russian; a process speaks one language only.
#include "tests/tools/manual_page.h"

class ManualRussianTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { page.read(); }
    void namesThePicturesThatAreThere() { page.verifyPictures(); }
    void pictureHasTheWindowsSize_data() { addScenes(); }
    void pictureHasTheWindowsSize() { page.verifyPictureSize(); }
    void namesEveryControl_data() { addScenes(); }
    void namesEveryControl() { page.verifyNamesOfControls(); }
    void namesNothingThatIsNotThere() { page.verifyNoOtherNames(); }
    void leadsToItsOwnSections() { page.verifyLinks(); }
    void namesEveryMessage_data() { page.addMessages(); }
    void namesEveryMessage() { page.verifyMessage(); }

private:
    ManualPage page{"manual.ru.md", manualRussian};
};

QTEST_MAIN(ManualRussianTest)
#include "manual_russian_test.moc"
