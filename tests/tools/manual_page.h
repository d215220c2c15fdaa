// Holds the manual in one language against the program in that language: its pictures are those of
// the windows as they are, and it names every control, and no others, in bold, and every message.
#pragma once

#include "tests/tools/manual_pictures.h"
#include "tests/tools/window_names.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

#include <memory>

// Each function fails the test that calls it.
class ManualPage
{
public:
    ManualPage(const char *file, const char *language) : m_file(file), m_language(language) {}

    // What a pattern's brackets hold, wherever it is found.
    static QSet<QString> foundIn(const QString &text, const QString &pattern)
    {
        QSet<QString> found;
        auto matches = QRegularExpression(pattern).globalMatch(text);
        while (matches.hasNext())
            found.insert(matches.next().captured(1).simplified());
        return found;
    }

    static QString inLine(const QSet<QString> &names)
    {
        QStringList list = names.values();
        list.sort();
        return list.join(QStringLiteral(" | "));
    }

    // To be called first.
    void read()
    {
        QFile file(QStringLiteral(CMPED_SOURCE_DIR "/docs/") + QLatin1String(m_file));
        QVERIFY(file.open(QIODevice::ReadOnly));
        m_manual = QString::fromUtf8(file.readAll());
        m_bold = foundIn(m_manual, QStringLiteral(R"(\*\*([^*]+)\*\*)"));
        QVERIFY(m_bold.size() > 50);
        m_fixture = std::make_unique<ManualFixture>(m_language);
    }

    void verifyPictures() const
    {
        const QStringList files =
            QFileInfo(pictureFile(m_language, "x")).dir().entryList(QDir::Files);
        const QString pattern =
            QStringLiteral(R"(\]\(manual/%1/([^)]*)\))").arg(QLatin1String(m_language));
        QCOMPARE(inLine(foundIn(m_manual, pattern)), inLine({files.begin(), files.end()}));
    }

    void verifyPictureSize() const
    {
        QFETCH(int, scene);
        compareSize(m_language, manualScenes().at(size_t(scene)));
    }

    void verifyNamesOfControls() const
    {
        QFETCH(int, scene);
        const QSet<QString> names = namesIn(manualScenes().at(size_t(scene)));
        QVERIFY(!names.isEmpty());
        QCOMPARE(inLine(names - m_bold), QString());
    }

    // Bold is for names of controls and windows alone, so whatever stands in bold claims to be one.
    void verifyNoOtherNames() const
    {
        QSet<QString> names;
        for (const ManualScene &scene : manualScenes())
            names += namesIn(scene);
        QCOMPARE(inLine(m_bold - names), QString());
    }

    // A heading's anchor is its text in small letters, hyphens for spaces and no other marks.
    void verifyLinks() const
    {
        const QRegularExpression marks(QStringLiteral("[^\\w-]"),
                                       QRegularExpression::UseUnicodePropertiesOption);
        QSet<QString> anchors;
        const QSet<QString> headings = foundIn(m_manual, QStringLiteral("(?m)^#+ (.*)$"));
        for (QString heading : headings) {
            heading = heading.toLower().replace(QLatin1Char(' '), QLatin1Char('-'));
            anchors.insert(heading.remove(marks));
        }
        const QSet<QString> links = foundIn(m_manual, QStringLiteral(R"(\]\(#([^)]*)\))"));
        QVERIFY(links.size() > 5);
        QCOMPARE(inLine(links - anchors), QString());
    }

    // What is translated and a sentence in English. Commands end in dots, but aren't.
    void addMessages() const
    {
        QTest::addColumn<QString>("message");
        QFile file(QStringLiteral(CMPED_SOURCE_DIR "/translations/cmp_ru.ts"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QXmlStreamReader xml(&file);
        const QRegularExpression sentence(QStringLiteral("[^.][.!?]$|\\n|^(Can't|Unable|The) "));
        const bool english = QLatin1String(m_language) == QLatin1String(manualEnglish);
        QSet<QString> seen;
        QString source;
        while (!xml.atEnd()) {
            xml.readNext();
            if (xml.isStartElement() && xml.name() == QLatin1String("source"))
                source = xml.readElementText();
            if (!xml.isStartElement() || xml.name() != QLatin1String("translation"))
                continue;
            const QString text = english ? source : xml.readElementText();
            if (!sentence.match(source).hasMatch() || seen.contains(text))
                continue;
            seen.insert(text);
            QTest::newRow(qPrintable(text.simplified())) << text;
        }
        QVERIFY(!xml.hasError());
        QVERIFY(seen.size() > 15);
    }

    // With anything in the place of names and numbers.
    void verifyMessage() const
    {
        QFETCH(QString, message);
        QStringList parts = message.simplified().split(QRegularExpression(QStringLiteral("%\\d")));
        for (QString &part : parts)
            part = QRegularExpression::escape(part);
        const QRegularExpression told(parts.join(QStringLiteral("[^|]+?")));
        QVERIFY(told.match(m_manual.simplified()).hasMatch());
    }

private:
    const char *m_file;
    const char *m_language;
    std::unique_ptr<ManualFixture> m_fixture;
    QString m_manual;
    QSet<QString> m_bold;
};
