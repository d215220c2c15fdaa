// The dialog for a new campaign and the preview in it.
#include "campaign_dialogs/background_preview.h"
#include "campaign_dialogs/new_campaign.h"
#include "gamedata/image_cache.h"
#include "tests/shell/window_fixture.h"
#include "tests/support/report_recorder.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include <utility>

class NewCampaignTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void formIsAsLaidOut();
    void offersMapsWith24First();
    void startsWithTheFirstMap();
    void backgroundsInOrderOfTheirNumbers();
    void switchingRefillsTheListAndSelectsTheFirst();
    void acceptedWithoutMapAnswersTheBackground();
    void cancelRejects();
    void previewFollowsTheSelection();
    void previewShowsRegionsSelectedInColourTwo();
    void previewTakesComputedRegionsFromTheCache();
    void missingBackgroundLeavesThePreview();
    void missingRegionPictureEndsTheProcessSilently();
    void missingMaskEndsTheProcess();
    void previewWithoutRegions();
    void previewIsScaledSmoothly();
    void labelStandsUntilThereIsAPicture();
    void arrowKeysSwitchTheKind();
    void previewHasThePixelsOfADenseScreen();

private:
    static QListWidget *list(NewCampaign &dialog)
    {
        return dialog.findChild<QListWidget *>("listWidget");
    }
    static QStringList names(NewCampaign &dialog)
    {
        QStringList names;
        for (int i = 0; i < list(dialog)->count(); ++i)
            names << list(dialog)->item(i)->text();
        return names;
    }
    static QImage preview(NewCampaign &dialog)
    {
        return dialog.findChild<QLabel *>("bgPixmapHolder")->pixmap(Qt::ReturnByValue).toImage();
    }
    static void choose(NewCampaign &dialog, const char *radio)
    {
        clickOn(dialog.findChild<QRadioButton *>(radio), QPoint(8, 8));
    }

    std::unique_ptr<WindowFixture> fixture;
};

namespace {

// What a half-transparent colour looks like on an opaque one, give or take the rounding.
bool isBlend(const QColor &shown, const QColor &above, const QColor &below)
{
    const auto near = [&](int channel, int top, int bottom) {
        const int expected = (top * above.alpha() + bottom * (255 - above.alpha())) / 255;
        return std::abs(channel - expected) <= 2;
    };
    return near(shown.red(), above.red(), below.red()) &&
           near(shown.green(), above.green(), below.green()) &&
           near(shown.blue(), above.blue(), below.blue());
}

// A label on which the preview stands in its own size.
std::unique_ptr<QLabel> fullSizeLabel()
{
    auto label = std::make_unique<QLabel>();
    label->resize(456, 600);
    return label;
}

QImage imageOf(const QLabel &label)
{
    return label.pixmap(Qt::ReturnByValue).toImage();
}

} // namespace

void NewCampaignTest::initTestCase()
{
    fixture = std::make_unique<WindowFixture>();
}

void NewCampaignTest::init()
{
    fixture->reset();
    preloadArchive->smallImages.clear();
}

void NewCampaignTest::formIsAsLaidOut()
{
    NewCampaign dialog(nullptr);
    QCOMPARE(dialog.objectName(), QString("newcampaign"));
    QCOMPARE(dialog.windowTitle(), QString("New Campaign"));
    QCOMPARE(dialog.windowModality(), Qt::WindowModal);
    QVERIFY(!(dialog.windowFlags() & Qt::WindowContextHelpButtonHint));
    QCOMPARE(dialog.minimumSize(), dialog.maximumSize());
    QCOMPARE(dialog.size(), QSize(493, 479));
    const QFont font = editorFont("MS Shell Dlg 2");
    QVERIFY(dialog.testAttribute(Qt::WA_SetFont));
    QCOMPARE(dialog.font().family(), font.family());
    QCOMPARE(dialog.font().pointSize(), font.pointSize());
    QCOMPARE(dialog.findChild<QGroupBox *>("groupBox")->title(), QString("Campaign type"));
    const auto *with = dialog.findChild<QRadioButton *>("campaignWithMapBtn");
    QCOMPARE(with->text(), QString("Campaign with map"));
    QVERIFY(with->isChecked());
    QCOMPARE(dialog.findChild<QRadioButton *>("campaignWithoutMapBtn")->text(),
             QString("Campaign without map"));
    QCOMPARE(dialog.findChild<QLabel *>("label")->text(), QString("Campaign map"));
}

void NewCampaignTest::offersMapsWith24First()
{
    NewCampaign dialog(nullptr);
    QCOMPARE(names(dialog),
             QStringList({"Home Shores", "Two Keeps", "Lost Sky", "Torn Map", "Blind Map"}));
    const QVector<int> ids{24, 3, 5, 6, 7};
    for (int i = 0; i < ids.size(); ++i)
        QCOMPARE(list(dialog)->item(i)->data(256).toInt(), ids[i]);
}

void NewCampaignTest::startsWithTheFirstMap()
{
    NewCampaign dialog(nullptr);
    QVERIFY(dialog.isCampaignWithMap());
    QCOMPARE(list(dialog)->currentRow(), 0);
    QCOMPARE(dialog.getSelectedItemId(), 24U);
    QVERIFY(!preview(dialog).isNull());
    QCOMPARE(preview(dialog).pixelColor(200, 200), tiny::backgroundColour("backhome.pcx"));
    // As large as the label lets it be, in its own proportions.
    QCOMPARE(preview(dialog).height(), 350);
    QCOMPARE(preview(dialog).width(), 266);
}

void NewCampaignTest::backgroundsInOrderOfTheirNumbers()
{
    NewCampaign dialog(nullptr);
    QVERIFY(show(dialog));
    choose(dialog, "campaignWithoutMapBtn");
    QCOMPARE(dialog.findChild<QLabel *>("label")->text(), QString("Campaign background"));
    QCOMPARE(names(dialog), QStringList({"plainone.pcx", "plaintwo.pcx"}));
    QCOMPARE(list(dialog)->item(1)->data(256).toInt(), 1);
    QCOMPARE(preview(dialog).pixelColor(200, 200), tiny::backgroundColour("plainone.pcx"));
    // Nothing is drawn on it, not even the line around a map.
    QCOMPARE(preview(dialog).pixelColor(0, 100), tiny::backgroundColour("plainone.pcx"));
}

void NewCampaignTest::switchingRefillsTheListAndSelectsTheFirst()
{
    NewCampaign dialog(nullptr);
    QVERIFY(show(dialog));
    list(dialog)->setCurrentRow(1);
    choose(dialog, "campaignWithoutMapBtn");
    QCOMPARE(list(dialog)->currentRow(), 0);
    list(dialog)->setCurrentRow(1);
    choose(dialog, "campaignWithMapBtn");
    QCOMPARE(list(dialog)->currentRow(), 0);
    QCOMPARE(list(dialog)->count(), 5);
    QCOMPARE(dialog.findChild<QLabel *>("label")->text(), QString("Campaign map"));
    QCOMPARE(dialog.getSelectedItemId(), 24U);
    QCOMPARE(preview(dialog).pixelColor(200, 200), tiny::backgroundColour("backhome.pcx"));
}

void NewCampaignTest::acceptedWithoutMapAnswersTheBackground()
{
    NewCampaign dialog(nullptr);
    NextDialog answer([&](QWidget *) {
        choose(dialog, "campaignWithoutMapBtn");
        list(dialog)->setCurrentRow(1);
        clickOn(static_cast<QWidget *>(
            dialog.findChild<QDialogButtonBox *>("buttonBox")->button(QDialogButtonBox::Ok)));
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(!dialog.isCampaignWithMap());
    QCOMPARE(dialog.getSelectedItemId(), 1U);
}

void NewCampaignTest::cancelRejects()
{
    NewCampaign dialog(nullptr);
    NextDialog answer([&](QWidget *) {
        clickOn(static_cast<QWidget *>(
            dialog.findChild<QDialogButtonBox *>("buttonBox")->button(QDialogButtonBox::Cancel)));
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
}

void NewCampaignTest::previewFollowsTheSelection()
{
    NewCampaign dialog(nullptr);
    QVERIFY(show(dialog));
    list(dialog)->setFocus();
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Down);
    QCOMPARE(dialog.getSelectedItemId(), 3U);
    QCOMPARE(preview(dialog).pixelColor(200, 200), tiny::backgroundColour("backtwo.pcx"));
    // The middle of the region at (100, 100), selected and in colour 2.
    QCOMPARE(preview(dialog).pixelColor(115 * 350 / 600, 110 * 350 / 600),
             tiny::readyMadeColour(1, 1, 2));
}

void NewCampaignTest::previewShowsRegionsSelectedInColourTwo()
{
    const auto label = fullSizeLabel();
    putBackgroundToLabel(label.get(), "backtwo.pcx", true, 3);
    const QImage image = imageOf(*label);
    QCOMPARE(image.size(), QSize(456, 600));
    QCOMPARE(image.pixelColor(15, 15), tiny::readyMadeColour(0, 1, 2));
    QCOMPARE(image.pixelColor(129, 119), tiny::readyMadeColour(1, 1, 2));
    QCOMPARE(image.pixelColor(130, 120), tiny::backgroundColour("backtwo.pcx"));
    // One line of the default pen runs around the picture.
    QCOMPARE(image.pixelColor(0, 300), QColor(Qt::black));
    QCOMPARE(image.pixelColor(455, 599), QColor(Qt::black));
}

void NewCampaignTest::previewTakesComputedRegionsFromTheCache()
{
    const auto label = fullSizeLabel();
    QTest::ignoreMessage(QtDebugMsg, "GENERATE REGION");
    QTest::ignoreMessage(QtDebugMsg, "GENERATE REGION");
    QTest::ignoreMessage(QtDebugMsg, "GENERATE REGION");
    putBackgroundToLabel(label.get(), "backhome.pcx", true, 24);
    QCOMPARE(preloadArchive->smallImages.size(), 3);
    const QColor below = tiny::backgroundColour("backhome.pcx");
    QVERIFY(isBlend(imageOf(*label).pixelColor(25, 35), tiny::computedColour(1), below));
    QCOMPARE(imageOf(*label).pixelColor(202, 302), below);
    QImage painted(20, 20, QImage::Format_ARGB32);
    painted.fill(Qt::magenta);
    preloadArchive->saveSmallGeneratedImage(24, 2, painted);
    putBackgroundToLabel(label.get(), "backhome.pcx", true, 24);
    QCOMPARE(imageOf(*label).pixelColor(210, 310), QColor(Qt::magenta));
}

void NewCampaignTest::missingBackgroundLeavesThePreview()
{
    NewCampaign dialog(nullptr);
    list(dialog)->setCurrentRow(1);
    const QImage before = preview(dialog);
    list(dialog)->setCurrentRow(2); // the map whose background is missing
    QCOMPARE(dialog.getSelectedItemId(), 5U);
    QCOMPARE(preview(dialog), before);
    QLabel label("image");
    putBackgroundToLabel(&label, "nosuch.pcx", true, 5);
    QCOMPARE(label.text(), QString("image"));
}

void NewCampaignTest::missingRegionPictureEndsTheProcessSilently()
{
    const ReportRecorder recorder;
    QLabel label;
    QCOMPARE(exitCodeOf([&] { putBackgroundToLabel(&label, "backtwo.pcx", true, 6); }), 1);
    QVERIFY(recorder.errors.isEmpty());
}

void NewCampaignTest::missingMaskEndsTheProcess()
{
    const ReportRecorder recorder;
    QLabel label;
    QCOMPARE(exitCodeOf([&] { putBackgroundToLabel(&label, "backtwo.pcx", true, 7); }), 1);
    QVERIFY(recorder.errors.isEmpty());
}

void NewCampaignTest::previewWithoutRegions()
{
    const auto label = fullSizeLabel();
    putBackgroundToLabel(label.get(), "backtwo.pcx", false, 3);
    QCOMPARE(imageOf(*label).pixelColor(15, 15), tiny::backgroundColour("backtwo.pcx"));
    QCOMPARE(imageOf(*label).pixelColor(0, 300), tiny::backgroundColour("backtwo.pcx"));
}

// At half its size a pixel is the mean of four: here of two in the black line and two beside it.
void NewCampaignTest::previewIsScaledSmoothly()
{
    QLabel label;
    label.resize(228, 300);
    putBackgroundToLabel(&label, "backtwo.pcx", true, 3);
    QColor line = tiny::backgroundColour("backtwo.pcx");
    line.setAlpha(128);
    QVERIFY(isBlend(imageOf(label).pixelColor(0, 150), line, Qt::black));
}

void NewCampaignTest::labelStandsUntilThereIsAPicture()
{
    CampaignInfo &map = EditorData::campaignInfo[24];
    const QString background = std::exchange(map.backgroundName, "nosuch.pcx");
    NewCampaign dialog(nullptr);
    map.backgroundName = background;
    QVERIFY(preview(dialog).isNull());
    QCOMPARE(dialog.findChild<QLabel *>("bgPixmapHolder")->text(), QString("image"));
}

void NewCampaignTest::arrowKeysSwitchTheKind()
{
    NewCampaign dialog(nullptr);
    QVERIFY(show(dialog));
    dialog.findChild<QRadioButton *>("campaignWithMapBtn")->setFocus();
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Right);
    QVERIFY(!dialog.isCampaignWithMap());
    QCOMPARE(names(dialog), QStringList({"plainone.pcx", "plaintwo.pcx"}));
}

void NewCampaignTest::previewHasThePixelsOfADenseScreen()
{
    class DenseLabel : public QLabel
    {
    protected:
        int metric(PaintDeviceMetric metric) const override
        {
            if (metric == PdmDevicePixelRatioScaled)
                return int(2 * devicePixelRatioFScale());
            return QLabel::metric(metric);
        }
    };
    DenseLabel label;
    label.resize(228, 300);
    putBackgroundToLabel(&label, "backtwo.pcx", false, 3);
    QCOMPARE(label.pixmap(Qt::ReturnByValue).size(), QSize(456, 600));
    QCOMPARE(label.pixmap(Qt::ReturnByValue).devicePixelRatio(), 2.0);
}

QTEST_MAIN(NewCampaignTest)
#include "new_campaign_test.moc"
