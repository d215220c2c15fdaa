// A translator that shows through which context a text went.
#pragma once

#include <QCoreApplication>
#include <QString>
#include <QTranslator>

// Puts the context in front of every text that is translated while it lives: "MainWindow: Error".
class MarkingTranslator : public QTranslator
{
public:
    MarkingTranslator() { QCoreApplication::installTranslator(this); }

    QString translate(const char *context, const char *source, const char * /*comment*/,
                      int /*number*/) const override
    {
        return QString::fromUtf8(context) + QStringLiteral(": ") + QString::fromUtf8(source);
    }
    bool isEmpty() const override { return false; }
};
