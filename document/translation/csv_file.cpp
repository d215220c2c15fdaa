// A row is a line of fields. A field that holds the separator, a quotation mark or a line end
// stands in quotation marks; each one inside is doubled. The first row names the columns.
#include "document/translation/csv_file.h"

#include "document/translation/file_text.h"
#include "gamedata/escaped_utf8.h"
#include "gamedata/limits.h"

#include <QStringList>

#include <optional>

namespace {

constexpr char idColumn[] = "id";
constexpr char contextColumn[] = "context";
constexpr char sourceColumn[] = "source";
constexpr char translationColumn[] = "translation";

QByteArray quotedField(const QString &text)
{
    return '"' + text.toUtf8().replace('"', "\"\"") + '"';
}

bool isLineEnd(QChar letter)
{
    return letter == '\n' || letter == '\r';
}

// The rows of a table.
class Rows
{
public:
    explicit Rows(const QString &text) : m_text(text) { findSeparator(); }

    bool atEnd() const { return m_place >= m_text.size(); }
    // Of the row read last: where it begins, counted from 1, and what is wrong with it.
    qint64 line() const { return m_rowLine; }
    const QString &fault() const { return m_fault; }

    QStringList next()
    {
        m_rowLine = m_line;
        QStringList fields;
        do {
            if (fields.size() == limits::csvColumns)
                m_fault = QStringLiteral("there are too many columns");
            else
                fields << field();
        } while (m_fault.isEmpty() && takeSeparator());
        if (m_fault.isEmpty() && !atEnd() && !takeLineEnd())
            m_fault = QStringLiteral("something follows a closing quotation mark");
        return fields;
    }

private:
    // The first of the characters that part fields in any country; quoted names of columns hold
    // none. Some spreadsheets tell it in a line of its own.
    void findSeparator()
    {
        const QString told = QStringLiteral("sep=");
        if (m_text.startsWith(told, Qt::CaseInsensitive) && m_text.size() > told.size()) {
            m_separator = m_text[told.size()];
            m_place = told.size() + 1;
            takeLineEnd();
            return;
        }
        for (const QChar letter : m_text) {
            if (letter == ',' || letter == ';' || letter == '\t') {
                m_separator = letter;
                return;
            }
            if (isLineEnd(letter))
                return;
        }
    }

    QString field()
    {
        if (atEnd() || m_text[m_place] != '"') {
            const int begin = m_place;
            while (!atEnd() && m_text[m_place] != m_separator && !isLineEnd(m_text[m_place]))
                ++m_place;
            return m_text.mid(begin, m_place - begin);
        }
        QString text;
        for (;;) {
            const int end = m_text.indexOf('"', m_place + 1);
            const QString part = m_text.mid(m_place + 1, end < 0 ? -1 : end - m_place - 1);
            m_line += part.count('\n');
            text += part;
            m_place = end < 0 ? m_text.size() : end + 1;
            if (end < 0)
                m_fault = QStringLiteral("a quotation mark isn't closed");
            if (end < 0 || atEnd() || m_text[m_place] != '"')
                return text;
            text += '"';
        }
    }

    bool takeSeparator()
    {
        const bool there = !atEnd() && m_text[m_place] == m_separator;
        m_place += there ? 1 : 0;
        return there;
    }

    bool takeLineEnd()
    {
        if (atEnd() || !isLineEnd(m_text[m_place]))
            return false;
        const bool two =
            m_text[m_place] == '\r' && m_place + 1 < m_text.size() && m_text[m_place + 1] == '\n';
        m_place += two ? 2 : 1;
        ++m_line;
        return true;
    }

    const QString m_text;
    QChar m_separator = ',';
    int m_place = 0;
    qint64 m_line = 1;
    qint64 m_rowLine = 1;
    QString m_fault;
};

struct Columns
{
    int id = -1;
    int source = -1;
    int translation = -1;
};

std::optional<Columns> columnsOf(const QStringList &names)
{
    Columns columns;
    for (int i = names.size() - 1; i >= 0; --i) {
        const QString name = names[i].trimmed().toLower();
        if (name == QLatin1String(idColumn))
            columns.id = i;
        else if (name == QLatin1String(sourceColumn))
            columns.source = i;
        else if (name == QLatin1String(translationColumn))
            columns.translation = i;
    }
    if (columns.id < 0 || columns.source < 0 || columns.translation < 0)
        return {};
    return columns;
}

} // namespace

QByteArray writtenAsCsv(const std::vector<TranslationUnit> &units)
{
    QByteArray file = utf8Mark + QByteArray(idColumn) + ',' + contextColumn + ',' + sourceColumn +
                      ',' + translationColumn + "\r\n";
    for (const TranslationUnit &unit : units) {
        file += quotedField(unit.id) + ',' + quotedField(unit.context) + ',' +
                quotedField(unit.source) + ',' + quotedField(unit.translation) + "\r\n";
    }
    return file;
}

TranslationReading readCsv(const QByteArray &bytes)
{
    const QString text = textOfFile(bytes);
    if (text.isNull())
        return {{}, QStringLiteral("the file isn't in UTF-8")};
    Rows rows(text);
    const std::optional<Columns> columns = columnsOf(rows.next());
    if (!columns) {
        return unreadable(rows.line(),
                          QStringLiteral("the columns id, source and translation aren't named"));
    }
    TranslationReading reading;
    while (rows.fault().isEmpty() && !rows.atEnd()) {
        const QStringList fields = rows.next();
        if (fields == QStringList{QString()})
            continue; // an empty line
        if (qint64(reading.units.size()) >= limits::translationUnits)
            return unreadable(rows.line(), QStringLiteral("there are too many rows"));
        TranslationUnit unit;
        unit.id = fields.value(columns->id);
        unit.source = fields.value(columns->source);
        unit.translation = fields.value(columns->translation);
        reading.units.push_back(std::move(unit));
    }
    return rows.fault().isEmpty() ? reading : unreadable(rows.line(), rows.fault());
}
