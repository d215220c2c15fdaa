// The manual in English, and that the pictures of both languages show all windows.
#include "tests/tools/manual_page.h"

class ManualTest : public QObject
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
    void hasThePicturesOfEveryWindow();
    void showsEveryForm();

private:
    ManualPage page{"manual.md", manualEnglish};
};

void ManualTest::hasThePicturesOfEveryWindow()
{
    QSet<QString> expected;
    for (const ManualScene &scene : manualScenes())
        expected.insert(QLatin1String(scene.name) + QStringLiteral(".png"));
    QCOMPARE(size_t(expected.size()), manualScenes().size());
    for (const char *language : {manualEnglish, manualRussian}) {
        const QStringList there =
            QFileInfo(pictureFile(language, "x")).dir().entryList(QDir::Files);
        QCOMPARE(ManualPage::inLine({there.begin(), there.end()}), ManualPage::inLine(expected));
    }
}

// So that a new dialog or page asks for a picture of its own.
void ManualTest::showsEveryForm()
{
    const QString neverOnShow = QStringLiteral("ScenarioBrowser");
    QSet<QString> shown;
    for (const ManualScene &scene : manualScenes()) {
        const ManualWindow opened = scene.open();
        QList<QWidget *> widgets = opened.window->findChildren<QWidget *>();
        widgets.append(opened.window.get());
        opened.window->show();
        for (const QWidget *widget : qAsConst(widgets)) {
            if (widget->isVisible())
                shown.insert(widget->objectName());
        }
    }
    const QDir forms(QStringLiteral(CMPED_SOURCE_DIR "/forms"));
    const QStringList files = forms.entryList({QStringLiteral("*.ui")}, QDir::Files);
    QVERIFY(files.size() > 10);
    for (const QString &name : files) {
        QFile file(forms.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QSet<QString> form =
            ManualPage::foundIn(QString::fromUtf8(file.readAll()),
                                QStringLiteral(R"x((?m)^ <widget class="\w+" name="(\w+)")x"));
        QCOMPARE(form.size(), 1);
        QVERIFY2(shown.contains(*form.begin()) || *form.begin() == neverOnShow, qPrintable(name));
    }
}

QTEST_MAIN(ManualTest)
#include "manual_test.moc"
