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
#include "document/text_catalogue.h"
#include "document/text_file.h"

#include <QFile>
#include <QTextCodec>
#include <QTextStream>

#include <algorithm>
#include <array>
#include <vector>

namespace {

// By TextKind.
constexpr std::array<const char *, 5> captions{
    "Name:", "Description:", "Right-click text:", "Prologue:", "Epilogue:"};
constexpr char lineEnd[] = "\r\n";

constexpr qint64 linesBehindFirst = 5;
constexpr qint64 linesOfScenario = 6;
constexpr qint64 linesOfStory = 3;

const char *captionOf(TextKind kind)
{
    return captions[std::size_t(kind)];
}

bool isCampaigns(TextKind kind)
{
    return kind == TextKind::CampaignName || kind == TextKind::CampaignDescription;
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

// The empty line, the scenario's name and the empty line in front of its texts.
bool readHeading(TextLines &lines, const QString &name)
{
    lines.next();
    if (!isName(lines.next(), name))
        return false;
    lines.next();
    return true;
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
    for (const TextPlace &place : textPlaces(campaign)) {
        if (place.kind == TextKind::RegionText) {
            QString name = getScenarioName(&campaign, campaign.mapId, place.scenario);
            stream << lineEnd;
            WriteText(stream, name);
            stream << lineEnd << lineEnd;
        }
        QString text = isCampaigns(place.kind) ? QString() : textAt(campaign, place);
        stream << captionOf(place.kind) << lineEnd;
        WriteText(stream, text);
        stream << lineEnd << lineEnd;
    }
    stream.flush();
    return bytesFromText(file);
}

bool importTextsFrom(QFile &file, CampaignData &campaign)
{
    const QByteArray bytes = readTextFile(file);
    if (bytes.isNull())
        return false;
    TextLines lines(bytes);
    if (lines.left() <= fewestLines(campaign))
        return false;
    std::vector<std::pair<TextPlace, QString>> others; // than stories: they are set at the end
    for (const TextPlace &place : textPlaces(campaign)) {
        if (place.kind == TextKind::RegionText &&
            !readHeading(lines, getScenarioName(&campaign, campaign.mapId, place.scenario)))
            return false;
        if (!lines.nextIs(captionOf(place.kind)))
            return false;
        const QString line = lines.next();
        if (place.kind == TextKind::Prologue || place.kind == TextKind::Epilogue)
            setTextAt(campaign, place, line);
        else
            others.emplace_back(place, ReadText(line));
        lines.next();
    }
    for (const auto &[place, text] : others)
        setTextAt(campaign, place, text);
    return true;
}
