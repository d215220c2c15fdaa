// A translator that shows where a translated text begins and ends.
#pragma once

#include <QTranslator>

// Puts brackets around every text of the context "QObject"; to be installed by the test.
class BracketTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return qstrcmp(context, "QObject") == 0 ? "[" + QString::fromUtf8(text) + "]" : QString();
    }
};
