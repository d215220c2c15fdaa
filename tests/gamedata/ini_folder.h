// A folder with the game's settings in it, written and looked at as bytes.
#pragma once

#include "gamedata/ini_file.h"

#include <QTemporaryDir>
#include <QTest>

// A tree as text: "section{key:value|key:value}section{...}".
inline QByteArray shapeOf(const _Ini_ &settings)
{
    std::string text;
    for (const auto &section : settings.sections) {
        text += section->key + "{";
        for (const auto &item : section->items)
            text += (&item == &section->items.front() ? "" : "|") + item->key + ":" + item->value;
        text += "}";
    }
    return QByteArray::fromStdString(text);
}

class IniFolder
{
protected:
    // Before each test: an empty folder.
    void reset()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
    }

    QString path() const { return m_dir->filePath(QStringLiteral("Ravn_settings.ini")); }
    _Ini_ settings() const { return _Ini_(path().toStdWString()); }
    void store(const QByteArray &bytes) const
    {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    }
    QByteArray stored() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};
