// The file of texts, line by line:
//
//    Name:                   |  a value, empty as exported  |  an empty line
//    Description:            |  a value, empty as exported  |  an empty line
//    for each scenario with a map:
//        an empty line       |  the scenario's name         |  an empty line
//        Right-click text:   |  the text                    |  an empty line
//        Prologue:           |  the text                    |  an empty line    if it is there,
//        Epilogue:           |  the text                    |  an empty line    up to three of each
//
// Lines are written with CR LF. A value takes one line: its line feeds are written as tabulators.
// A carriage return means nothing when read, and neither do an empty line's content and what
// follows the last line. Which stories are expected the campaign says, not the file.
//
// Kept as translators know it: texts of prologues and epilogues keep their tabulators when read,
// and a file imported as it was exported empties the campaign's name and description.
#include "document/text_exchange.h"

#include "document/campaign_data.h"
#include "document/scenario_names.h"
#include "document/text_bytes.h"
#include "gamedata/limits.h"

#include <QFile>
#include <QTextCodec>
#include <QTextStream>

#include <algorithm>

namespace {

constexpr char nameCaption[] = "Name:";
constexpr char descriptionCaption[] = "Description:";
constexpr char regionTextCaption[] = "Right-click text:";
constexpr char prologueCaption[] = "Prologue:";
constexpr char epilogueCaption[] = "Epilogue:";
constexpr char lineEnd[] = "\r\n";

constexpr qint64 linesBehindFirst = 5;
constexpr qint64 linesOfScenario = 6;
constexpr qint64 linesOfStory = 3;

constexpr int pieceSize = 256 * 1024;

void writeValue(QTextStream &stream, const char *caption, QString text)
{
    stream << caption << lineEnd;
    WriteText(stream, text);
    stream << lineEnd << lineEnd;
}

void writeStories(QTextStream &stream, const char *caption, const ScenarioData::Prologues &stories)
{
    for (const auto &story : stories) {
        if (story)
            writeValue(stream, caption, story->text);
    }
}

// Null if it can't be read to its end, or is larger than any file of texts.
QByteArray readWhole(QFile &file)
{
    QByteArray bytes("");
    while (bytes.size() <= limits::textFileBytes && file.size() <= limits::textFileBytes) {
        const QByteArray piece = file.read(pieceSize);
        if (piece.isEmpty())
            return file.error() == QFile::NoError ? bytes : QByteArray();
        bytes += piece;
    }
    return {};
}

// The lines of a file, each decoded when it is asked for.
class TextLines
{
public:
    explicit TextLines(QByteArray bytes) : m_bytes(std::move(bytes))
    {
        if (const QTextCodec *codec = QTextCodec::codecForUtfText(m_bytes, nullptr)) {
            m_bytes = codec->toUnicode(m_bytes).toUtf8();
            m_isUtf8 = true;
        }
        m_bytes.truncate(int(std::remove(m_bytes.begin(), m_bytes.end(), '\r') - m_bytes.begin()));
    }

    // How many are left. What stands behind the last line end is a line unless it is empty.
    qint64 left() const
    {
        const qint64 ends = std::count(m_bytes.begin() + m_place, m_bytes.end(), '\n');
        const bool open = m_place < m_bytes.size() && !m_bytes.endsWith('\n');
        return open ? ends + 1 : ends;
    }

    // The next line; empty when none is left.
    QString next()
    {
        const int end = m_bytes.indexOf('\n', m_place);
        const QByteArray line = m_bytes.mid(m_place, end < 0 ? -1 : end - m_place);
        m_place = end < 0 ? m_bytes.size() : end + 1;
        return m_isUtf8 ? QString::fromUtf8(line) : textFromBytes(line);
    }

    bool nextIs(const char *caption) { return next() == QLatin1String(caption); }

private:
    QByteArray m_bytes;
    int m_place = 0;
    bool m_isUtf8 = false; // whatever the locale's codec is
};

// The fewest lines behind the first that a file of these texts has. A prologue and an epilogue of
// the same number count once.
qint64 fewestLines(const CampaignData &campaign)
{
    qint64 lines = linesBehindFirst;
    for (const ScenarioData &scenario : campaign.scenarios) {
        if (!scenario.mapHeader)
            continue;
        lines += linesOfScenario;
        for (std::size_t i = 0; i < scenario.prologues.size(); ++i) {
            if (scenario.prologues[i] || scenario.epilogues[i])
                lines += linesOfStory;
        }
    }
    return lines;
}

// Whether a line is the scenario's name. What the locale's codec can't write stands there as it
// could be written.
bool isName(const QString &line, const QString &name)
{
    return !line.isEmpty() && (line == name || line == textFromBytes(bytesFromText(name)));
}

bool readStories(TextLines &lines, const char *caption, ScenarioData::Prologues &stories)
{
    for (auto &story : stories) {
        if (!story)
            continue;
        if (!lines.nextIs(caption))
            return false;
        const auto read = std::make_shared<CmpPrologue>(*story);
        read->text = lines.next();
        story = read;
        lines.next();
    }
    return true;
}

bool readScenario(TextLines &lines, const QString &name, ScenarioData &scenario,
                  QString &regionText)
{
    lines.next();
    if (!isName(lines.next(), name))
        return false;
    lines.next();
    if (!lines.nextIs(regionTextCaption))
        return false;
    regionText = ReadText(lines.next());
    lines.next();
    return readStories(lines, prologueCaption, scenario.prologues) &&
           readStories(lines, epilogueCaption, scenario.epilogues);
}

} // namespace

QString ReadText(const QString &text)
{
    return QString(text).replace('\t', '\n');
}

void WriteText(QTextStream &stream, QString &text)
{
    stream << QString(text).replace('\n', '\t');
}

QByteArray exportedTexts(CampaignData &campaign)
{
    QString file;
    QTextStream stream(&file);
    writeValue(stream, nameCaption, {});
    writeValue(stream, descriptionCaption, {});
    for (unsigned i = 0; i < campaign.scenarios.size(); ++i) {
        const ScenarioData &scenario = campaign.scenarios[i];
        if (!scenario.mapHeader)
            continue;
        QString name = getScenarioName(&campaign, campaign.mapId, i);
        stream << lineEnd;
        WriteText(stream, name);
        stream << lineEnd << lineEnd;
        writeValue(stream, regionTextCaption, scenario.regionText);
        writeStories(stream, prologueCaption, scenario.prologues);
        writeStories(stream, epilogueCaption, scenario.epilogues);
    }
    stream.flush();
    return bytesFromText(file);
}

bool importTextsFrom(QFile &file, CampaignData &campaign)
{
    const QByteArray bytes = readWhole(file);
    if (bytes.isNull())
        return false;
    TextLines lines(bytes);
    if (!lines.nextIs(nameCaption) || lines.left() < fewestLines(campaign))
        return false;
    const QString name = ReadText(lines.next());
    lines.next();
    if (!lines.nextIs(descriptionCaption))
        return false;
    const QString description = ReadText(lines.next());
    lines.next();

    std::vector<QString> regionTexts(campaign.scenarios.size());
    for (unsigned i = 0; i < campaign.scenarios.size(); ++i) {
        ScenarioData &scenario = campaign.scenarios[i];
        regionTexts[i] = scenario.regionText;
        if (scenario.mapHeader &&
            !readScenario(lines, getScenarioName(&campaign, campaign.mapId, i), scenario,
                          regionTexts[i]))
            return false;
    }
    campaign.name = name;
    campaign.description = description;
    for (std::size_t i = 0; i < regionTexts.size(); ++i)
        campaign.scenarios[i].regionText = regionTexts[i];
    return true;
}
