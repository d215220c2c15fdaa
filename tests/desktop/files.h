// What a test of the desktop sees on the disk.
#pragma once

#include <QByteArray>
#include <QString>

class Editor;
class Workplace;

// Empty if it can't be read.
QByteArray contentOf(const QString &path);
void waitForFile(Editor &editor, const QString &path, const QByteArray &content);

// Holds a campaign among the author's files against what was entered, which a document of the
// parts' folder tells; see expected_campaign.h. A Failure names the first difference.
void checkSavedCampaign(Workplace &place, const QString &file, const QString &document);
