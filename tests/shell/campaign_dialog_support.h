// What the tests of the campaign dialogs share: campaigns to show, and controls by their names.
#pragma once

#include "tests/document/marked_campaigns.h"
#include "tests/shell/window_fixture.h"
#include "tests/support/widgets.h"

#include <QLabel>

// On a campaign map, a scenario for each letter: those with an "m" have a map. Nothing is required.
inline CampaignData campaignOnMap(unsigned mapId, const QString &maps)
{
    CampaignData campaign = chainOf(maps);
    campaign.hasMap = true;
    campaign.mapId = quint8(mapId);
    campaign.scenarioCount = 0;
    campaign.musicId = 1;
    for (ScenarioData &scenario : campaign.scenarios)
        scenario.prerequisites = QBitArray(maps.size());
    return campaign;
}

inline CampaignData campaignOnBackground(int background, const QString &maps)
{
    CampaignData campaign = chainOf(maps);
    campaign.mapId = 24;
    campaign.customValue = background;
    campaign.musicId = 1;
    return campaign;
}

template<typename Control>
Control *control(const QDialog &dialog, const char *name)
{
    return childOf<Control>(&dialog, name);
}

inline QString textOf(const QDialog &dialog, const char *name)
{
    return control<QLabel>(dialog, name)->text();
}

inline QVector<int> idsIn(const QComboBox *box)
{
    QVector<int> ids;
    for (int i = 0; i < box->count(); ++i)
        ids << box->itemData(i, 256).toInt();
    return ids;
}

inline QImage previewIn(const QDialog &dialog)
{
    return control<QLabel>(dialog, "bgPixmapHolder")->pixmap(Qt::ReturnByValue).toImage();
}

inline void press(QDialog &dialog, QDialogButtonBox::StandardButton button)
{
    clickOn(static_cast<QWidget *>(control<QDialogButtonBox>(dialog, "buttonBox")->button(button)));
}

// The question before the document is rewritten.
inline NextDialog::Answer answerQuestion(const QString &text, QMessageBox::StandardButton button)
{
    return boxAnswer(
        {"Save changes", text, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No, button});
}
