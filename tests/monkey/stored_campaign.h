// A campaign as its file holds it, in words: two campaigns with the same words are the same to
// whoever opens their files.
#pragma once

#include "document/campaign_data.h"

#include <QByteArray>
#include <QString>

// Every field as the command line dumps it, in the shape that writing gives it.
QByteArray storedWords(CampaignData campaign);

// The same of a file. Empty if it can't be read. The editor's state stays as it is.
QByteArray storedWordsOfFile(const QString &path);

// The first line in which they differ, with the names around it; empty if they are the same.
QString firstDifference(const QByteArray &one, const QByteArray &other);
