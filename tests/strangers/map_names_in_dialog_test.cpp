// Names of maps in a campaign, as the dialog of a scenario offers and takes them: a map goes where
// its author can see it go.
#include "scenario/scenario_info.h"
#include "tests/strangers/strangely_named_map.h"
#include "tests/support/widgets.h"

class MapNamesInDialogTest : public QObject, private StrangelyNamedMap
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(setLocaleCodec(QString())); }
    void init();
    void cleanup() { window.reset(); }

    void isOfferedInTheFolder_data() { addNames(); }
    void isOfferedInTheFolder();
    void exportAsOfferedStaysInTheFolder_data() { addNames(); }
    void exportAsOfferedStaysInTheFolder();
    void importKeepsTheNameOfTheFile_data() { addNamesToChoose(); }
    void importKeepsTheNameOfTheFile();

private:
    static void addNamesToChoose();
};

// Those that a file can have and that can be typed: a file dialog takes quotes for its own.
void MapNamesInDialogTest::addNamesToChoose()
{
    QTest::addColumn<hostile::MapName>("name");
    for (const hostile::MapName &name : hostile::mapNames()) {
        if (name.canBeFile && !name.file.isEmpty() && !name.file.contains('"'))
            QTest::newRow(name.title) << name;
    }
}

void MapNamesInDialogTest::init()
{
    reset();
    saveCampaign();
    ini->SetStringVal("Campaign Editor", "Path", path("home").toUtf8().constData());
}

void MapNamesInDialogTest::isOfferedInTheFolder()
{
    CampaignData campaign = campaignIn("home/home.e3c");
    ScenarioInfo dialog(nullptr, &campaign, 24, 0);
    bringOnShow(dialog);
    const Folder before = filesBelow(folder->path());
    const QStringList filters{"Eldmark Saga map (*.e3m)", "All Files (*)"};
    for (const char *button : {"refreshButton", "exportButton"}) {
        const QString caption = button == QByteArray("refreshButton") ? "Open" : "Save";
        NextDialog choice([&](QWidget *widget) {
            auto *files = qobject_cast<QFileDialog *>(widget);
            const QString place = files ? files->directory().path() : QString();
            const QString name = files ? childOf<QLineEdit>(files, "fileNameEdit")->text() : "";
            const QString title = widget->windowTitle();
            widget->close();
            QVERIFY(files);
            QCOMPARE(title, caption);
            QCOMPARE(place, path("home"));
            QVERIFY2(!name.contains('/') && !name.contains('\\'), qPrintable(name));
            if (m_name.canBeFile)
                QCOMPARE(name, m_name.file);
        });
        clickOn(childOf<QPushButton>(&dialog, button));
    }
    QVERIFY(filesBelow(folder->path()) == before);
}

// The button is pressed without a look at the name. Where the name is none the dialog stays open.
void MapNamesInDialogTest::exportAsOfferedStaysInTheFolder()
{
    qputenv("CMPED_STRANGER", QFile::encodeName(path("elsewhere.e3m")));
    CampaignData campaign = campaignIn("home/home.e3c");
    ScenarioInfo dialog(nullptr, &campaign, 24, 0);
    bringOnShow(dialog);
    for (const char *outside : {"x", "null", "home/in/x"})
        QVERIFY(QFile::remove(path(outside))); // or there would be a question about it
    const Folder before = filesBelow(folder->path());
    const QStringList others = QDir::current().entryList(QDir::AllEntries | QDir::Hidden);
    {
        NextDialog choice([&](QWidget *widget) {
            auto *buttons = widget->findChild<QDialogButtonBox *>("buttonBox");
            if (buttons)
                clickOn(buttons->button(QDialogButtonBox::Save));
            if (widget->isVisible())
                widget->close();
            QVERIFY(buttons);
        });
        clickOn(childOf<QPushButton>(&dialog, "exportButton"));
    }
    QStringList written;
    for (const auto &[name, bytes] : filesBelow(folder->path())) {
        const auto old = before.find(name);
        if (old != before.end()) {
            QVERIFY2(bytes == old->second, name.c_str());
            continue;
        }
        QVERIFY2(name.compare(0, 5, "home/") == 0 && name.find('/', 5) == std::string::npos,
                 name.c_str());
        QVERIFY(bytes == mapNamed("Ironmoors"));
        written << QFile::decodeName(name.c_str());
    }
    QVERIFY(written.size() <= 1);
    QCOMPARE(QDir::current().entryList(QDir::AllEntries | QDir::Hidden), others);
    // The dialog takes quotes and the home for its own.
    if (namesAFile() && m_name.file != "~" && !m_name.file.contains('"'))
        QCOMPARE(written, QStringList{"home/" + m_name.file});
}

void MapNamesInDialogTest::importKeepsTheNameOfTheFile()
{
    CampaignData campaign = campaignIn("home/home.e3c");
    QVERIFY(writeMap(m_name.file, mapNamed("Northwall")));
    ScenarioInfo dialog(nullptr, &campaign, 24, 2);
    bringOnShow(dialog);
    {
        NextDialog choice([&](QWidget *widget) {
            childOf<QLineEdit>(widget, "fileNameEdit")->setText(path("home/" + m_name.file));
            QTest::keyClick(widget->windowHandle(), Qt::Key_Return);
        });
        clickOn(childOf<QPushButton>(&dialog, "refreshButton"));
    }
    const ScenarioData &scenario = dialog.editedCampaign().scenarios[2];
    QCOMPARE(scenario.mapFileName, m_name.file);
    QVERIFY(scenario.compressedMap == mapNamed("Northwall"));
    QCOMPARE(childOf<QLabel>(&dialog, "mapFileIdentifier")->text(), m_name.file);
}

QTEST_MAIN(MapNamesInDialogTest)
#include "map_names_in_dialog_test.moc"
