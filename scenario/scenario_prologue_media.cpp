// A story's video, of which a still is shown, and its music, which can be listened to.
#include "gamedata/editor_data.h"
#include "gamedata/game_dir.h"
#include "gamedata/pcx_image.h"
#include "gamedata/report.h"
#include "scenario/scenario_prologue.h"
#include "shell/mss_info.h"
#include "shell/readable_icon.h"
#include "ui_ScenarioPrologue.h"

#include <QDebug>
#include <QStyle>

namespace {

constexpr int forEver = 0;

QString trackName(const QListWidgetItem *item)
{
    return item ? item->text() : QString();
}

} // namespace

ScenarioPrologue::~ScenarioPrologue()
{
    qDebug() << "MSS - STOP MUSIC";
    if (!mss)
        return;
    mss->PauseMusic();
    mss->StopMusic();
}

void ScenarioPrologue::videoIndexChanged(int row)
{
    videoChosen = true;
    const int video = ui->videoCombobox->itemData(row).toInt();
    setMovieImage(row < 0 ? QString() : nameOf(EditorData::movieImages, video));
}

// In the screen's own pixels, of which a dense screen has several to the label's one.
void ScenarioPrologue::setMovieImage(const QString &name)
{
    ui->prologueImage->clear();
    if (name.isEmpty()) // a number that the table of pictures lacks
        return;
    int size = 0;
    const std::unique_ptr<char[]> record(EditorData::getLodFileData(name, &size));
    if (!record)
        endSilently(1);
    const QImage picture = ReadFromArray(record.get(), size);
    if (picture.isNull())
        return;
    const qreal density = ui->prologueImage->devicePixelRatioF();
    QImage scaled = picture.scaled(ui->prologueImage->size() * density, Qt::IgnoreAspectRatio,
                                   Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(density);
    ui->prologueImage->setPixmap(QPixmap::fromImage(scaled));
}

// A number that the table lacks chooses nothing, here and below.
void ScenarioPrologue::selectVideo(int key)
{
    const int row = ui->videoCombobox->findData(key);
    if (row >= 0)
        ui->videoCombobox->setCurrentIndex(row);
}

void ScenarioPrologue::selectMusic(int key)
{
    QListWidget *list = ui->musicListWidget;
    for (int row = 0; row < list->count(); ++row) {
        if (list->item(row)->data(Qt::UserRole).toInt() == key)
            list->setCurrentRow(row);
    }
    showMusicName();
}

bool ScenarioPrologue::storeMusic(quint8 &musicIndex) const
{
    const QListWidgetItem *item = ui->musicListWidget->currentItem();
    const auto chosen = item ? quint8(item->data(Qt::UserRole).toUInt()) : musicIndex;
    const bool changed = chosen != musicIndex;
    musicIndex = chosen;
    return changed;
}

// A selection that the user takes back leaves the track current, to be stored and listened to.
void ScenarioPrologue::musicSelectionChanged()
{
    musicChosen = true;
    if (!ui->musicListWidget->selectedItems().isEmpty())
        showMusicName();
    pausePlayer();
}

// By the selection: the current item may still be the old one when the selection changes, and is
// there even where no track is chosen.
void ScenarioPrologue::showMusicName()
{
    ui->selectedMusicLabel->setText(trackName(ui->musicListWidget->selectedItems().value(0)));
}

void ScenarioPrologue::playPauseMusic()
{
    if (musicPlaying) {
        qDebug() << "MSS - PAUSE MUSIC";
        if (mss)
            mss->PauseMusic();
    } else {
        const QString name = trackName(ui->musicListWidget->currentItem()) + QStringLiteral(".mp3");
        const QString path = getGameDir(QStringLiteral("MP3")).absoluteFilePath(name);
        qDebug() << "MSS - START MUSIC STREAM";
        if (mss)
            mss->StartMusicStream(path, forEver);
    }
    musicPlaying = !musicPlaying;
    setMusicBtn(musicPlaying);
}

void ScenarioPrologue::setMusicBtn(bool playing)
{
    const auto icon = playing ? QStyle::SP_MediaPause : QStyle::SP_MediaPlay;
    ui->playMusicBtn->setIcon(readableIcon(style()->standardIcon(icon)));
}

void ScenarioPrologue::pausePlayer()
{
    qDebug() << "MSS - PAUSE MUSIC [1]";
    if (mss)
        mss->PauseMusic();
    setMusicBtn(false);
    musicPlaying = false;
}
