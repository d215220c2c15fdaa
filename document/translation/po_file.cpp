// The file, line by line; entries are parted by empty lines.
//
//    # ...            a translator's comment            |
//    #. ...           a comment for the translator      |  in front of an entry
//    #, fuzzy, ...    flags                             |
//    #~ ...           an entry that is gone             |
//    msgctxt "..."    the context
//    msgid "..."      the source; the header has an empty one and no context
//    msgstr "..."     the translation; the header's has fields, a line each
//    "..."            goes on with the text before it
//
// In texts a backslash stands before a quotation mark and another backslash, and before letters
// (\n, \t) or the number of a byte (\303, \xc3).
#include "document/translation/po_file.h"

#include "gamedata/escaped_utf8.h"
#include "gamedata/limits.h"

#include <QRegularExpression>

#include <algorithm>
#include <cstring>

namespace {

constexpr char header[] = "msgid \"\"\n"
                          "msgstr \"\"\n"
                          "\"Project-Id-Version: campaign\\n\"\n"
                          "\"PO-Revision-Date: \\n\"\n"
                          "\"Last-Translator: \\n\"\n"
                          "\"Language-Team: \\n\"\n"
                          "\"Language: \\n\"\n"
                          "\"MIME-Version: 1.0\\n\"\n"
                          "\"Content-Type: text/plain; charset=UTF-8\\n\"\n"
                          "\"Content-Transfer-Encoding: 8bit\\n\"\n";

QByteArray quotedLine(const QString &text)
{
    QByteArray bytes = text.toUtf8();
    bytes.replace('\\', "\\\\").replace('"', "\\\"").replace('\t', "\\t").replace('\n', "\\n");
    return '"' + bytes + "\"\n";
}

// On lines of their own if the text has more than one.
void writeText(QByteArray &file, const char *keyword, const QString &text)
{
    file += keyword;
    const int first = text.indexOf('\n');
    if (first < 0 || first == text.size() - 1) {
        file += quotedLine(text);
        return;
    }
    file += "\"\"\n";
    for (int begin = 0; begin < text.size();) {
        const int end = text.indexOf('\n', begin);
        const int next = end < 0 ? text.size() : end + 1;
        file += quotedLine(text.mid(begin, next - begin));
        begin = next;
    }
}

// Single letters behind a backslash, and what they stand for.
constexpr char escapeLetters[] = "ntrabfv\\\"?'";
constexpr char escapeMeanings[] = "\n\t\r\a\b\f\v\\\"?'";

bool isHex(char letter)
{
    return (letter >= '0' && letter <= '9') || (letter >= 'a' && letter <= 'f') ||
           (letter >= 'A' && letter <= 'F');
}

bool isOctal(char letter)
{
    return letter >= '0' && letter <= '7';
}

// The number of a byte whose digits begin at `place`; the place behind them. -1 if there are none.
int takeNumber(const QByteArray &line, int &place, bool hex)
{
    const int begin = place;
    const int most = hex ? 2 : 3;
    while (place < line.size() && place - begin < most &&
           (hex ? isHex(line[place]) : isOctal(line[place])))
        ++place;
    const int number = line.mid(begin, place - begin).toInt(nullptr, hex ? 16 : 8);
    return place == begin || number > 255 ? -1 : number;
}

// Takes what stands behind a backslash at `place`. False if that is nothing known.
bool takeEscape(const QByteArray &line, int &place, QByteArray &text)
{
    const char letter = place < line.size() ? line[place] : '\0';
    const char *known = letter == '\0' ? nullptr : std::strchr(escapeLetters, letter);
    if (known) {
        text += escapeMeanings[known - escapeLetters];
        ++place;
        return true;
    }
    const bool hex = letter == 'x';
    place += hex ? 1 : 0;
    const int number = takeNumber(line, place, hex);
    if (number >= 0)
        text += char(number);
    return number >= 0;
}

// Takes a text in quotation marks, with nothing around it but blanks.
bool takeQuoted(const QByteArray &part, QByteArray &text)
{
    const QByteArray line = part.trimmed();
    if (line.size() < 2 || line[0] != '"')
        return false;
    for (int i = 1; i < line.size();) {
        const char letter = line[i++];
        if (letter == '"')
            return i == line.size();
        if (letter != '\\')
            text += letter;
        else if (!takeEscape(line, i, text))
            return false;
    }
    return false;
}

class PoReader
{
public:
    explicit PoReader(const QByteArray &bytes) : m_bytes(bytes) {}

    TranslationReading read()
    {
        if (m_bytes.startsWith(utf8Mark))
            m_place = int(std::strlen(utf8Mark));
        while (m_place < m_bytes.size() && m_fault.isEmpty()) {
            const int end = m_bytes.indexOf('\n', m_place);
            const int next = end < 0 ? m_bytes.size() : end + 1;
            ++m_line;
            takeLine(m_bytes.mid(m_place, next - m_place).trimmed());
            m_place = next;
        }
        endEntry();
        return m_fault.isEmpty() ? m_reading : unreadable(m_line, m_fault);
    }

private:
    struct Entry
    {
        QByteArray context;
        QByteArray source;
        QByteArray translation;
        QByteArray tsId;
        bool fuzzy = false;
        bool hasContext = false;
        bool hasSource = false;
        bool hasTranslation = false;
    };

    void takeLine(const QByteArray &line)
    {
        if (line.isEmpty() || line.startsWith("#~"))
            return;
        if (line.startsWith('#'))
            takeComment(line);
        else if (line.startsWith('"'))
            takeText(line, m_open);
        else
            takeKeyword(line);
    }

    // Comments stand in front of the entry that they belong to.
    void takeComment(const QByteArray &line)
    {
        endEntryIfWhole();
        if (line.startsWith("#,")) {
            const QList<QByteArray> flags = line.mid(2).split(',');
            for (const QByteArray &flag : flags)
                m_entry.fuzzy = m_entry.fuzzy || flag.trimmed() == "fuzzy";
        } else if (line.startsWith("#. ts-id ")) {
            m_entry.tsId = line.mid(int(std::strlen("#. ts-id "))).trimmed();
        }
    }

    void takeKeyword(const QByteArray &line)
    {
        const int end = int(std::find_if(line.begin(), line.end(),
                                         [](char c) { return c == ' ' || c == '\t' || c == '"'; }) -
                            line.begin());
        const QByteArray keyword = line.left(end);
        if (keyword == "msgctxt" || keyword == "msgid")
            endEntryIfWhole();
        if (keyword == "msgctxt" && !m_entry.hasContext && !m_entry.hasSource)
            begin(m_entry.context, m_entry.hasContext);
        else if (keyword == "msgid" && !m_entry.hasSource)
            begin(m_entry.source, m_entry.hasSource);
        else if (keyword == "msgstr" && m_entry.hasSource && !m_entry.hasTranslation)
            begin(m_entry.translation, m_entry.hasTranslation);
        else
            m_fault = QStringLiteral("this isn't expected here");
        if (m_fault.isEmpty())
            takeText(line.mid(end), m_open);
    }

    void begin(QByteArray &text, bool &has)
    {
        has = true;
        m_open = &text;
    }

    void takeText(const QByteArray &part, QByteArray *text)
    {
        if (!text || !takeQuoted(part, *text))
            m_fault = QStringLiteral("this isn't a text in quotation marks");
    }

    void endEntryIfWhole()
    {
        if (m_entry.hasTranslation)
            endEntry();
    }

    void endEntry()
    {
        if (m_fault.isEmpty() && m_entry.hasSource) {
            if (m_entry.hasTranslation)
                takeEntry();
            else
                m_fault = QStringLiteral("an entry has no msgstr");
        } else if (m_fault.isEmpty() && m_entry.hasContext) {
            m_fault = QStringLiteral("an entry has no msgid");
        }
        m_entry = {};
        m_open = nullptr;
    }

    void takeEntry()
    {
        if (m_entry.source.isEmpty() && !m_entry.hasContext) {
            checkHeader(m_entry.translation);
            return;
        }
        if (qint64(m_reading.units.size()) >= limits::translationUnits) {
            m_fault = QStringLiteral("there are too many entries");
            return;
        }
        TranslationUnit unit;
        unit.id = decoded(m_entry.hasContext ? m_entry.context : m_entry.tsId);
        unit.source = decoded(m_entry.source);
        unit.translation = decoded(m_entry.translation);
        unit.unfinished = m_entry.fuzzy;
        m_reading.units.push_back(std::move(unit));
    }

    void checkHeader(const QByteArray &fields)
    {
        static const QRegularExpression charset(QStringLiteral("charset=\\s*([^\\s;]+)"),
                                                QRegularExpression::CaseInsensitiveOption);
        const QString name = charset.match(QString::fromLatin1(fields)).captured(1).toUpper();
        if (!name.isEmpty() && name != QLatin1String("UTF-8") && name != QLatin1String("UTF8") &&
            name != QLatin1String("ASCII") && name != QLatin1String("US-ASCII") &&
            name != QLatin1String("CHARSET"))
            m_fault = QStringLiteral("the file is in %1 and not in UTF-8").arg(name);
    }

    QString decoded(const QByteArray &bytes)
    {
        QString text = textFromUtf8(bytes);
        if (text.toUtf8() != bytes)
            m_fault = QStringLiteral("this isn't UTF-8");
        return text;
    }

    const QByteArray m_bytes;
    int m_place = 0;
    qint64 m_line = 0;
    Entry m_entry;
    QByteArray *m_open = nullptr; // the text that a line of quotation marks goes on with
    TranslationReading m_reading;
    QString m_fault;
};

} // namespace

QByteArray writtenAsPo(const std::vector<TranslationUnit> &units)
{
    QByteArray file = header;
    for (const TranslationUnit &unit : units) {
        file += "\n#. " + unit.context.toUtf8() + '\n';
        writeText(file, "msgctxt ", unit.id);
        writeText(file, "msgid ", unit.source);
        writeText(file, "msgstr ", unit.translation);
    }
    return file;
}

TranslationReading readPo(const QByteArray &bytes)
{
    return PoReader(bytes).read();
}
