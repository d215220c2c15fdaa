#include "cli/json_writer.h"

#include "cli/standard_output.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <charconv>

namespace {

// Qt escapes; of its list of one text only the text is taken.
QByteArray quoted(const QString &text)
{
    const QByteArray list = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

} // namespace

JsonWriter::JsonWriter(StandardOutput &output) : m_output(output) {}

void JsonWriter::beginObject()
{
    begin('{');
}

void JsonWriter::endObject()
{
    close('}');
}

void JsonWriter::beginArray()
{
    begin('[');
}

void JsonWriter::endArray()
{
    close(']');
}

void JsonWriter::key(const QString &name)
{
    separate();
    m_output.write(quoted(name) + ": ");
    m_afterKey = true;
}

void JsonWriter::value(const QString &text)
{
    raw(quoted(text));
}

void JsonWriter::null()
{
    raw("null");
}

void JsonWriter::end()
{
    m_output.write('\n');
}

void JsonWriter::begin(char bracket)
{
    raw(QByteArray(1, bracket));
    ++m_depth;
    m_empty = true;
}

void JsonWriter::close(char bracket)
{
    --m_depth;
    if (!m_empty)
        newLine();
    m_empty = false;
    m_output.write(bracket);
}

// Lists of a stranger's file have millions of numbers: none of them costs an allocation.
void JsonWriter::integer(qint64 number)
{
    std::array<char, 24> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    separate();
    m_output.write(digits.data(), int(end - digits.data()));
}

void JsonWriter::raw(const QByteArray &token)
{
    separate();
    m_output.write(token);
}

void JsonWriter::separate()
{
    if (!m_afterKey && m_depth > 0) {
        if (!m_empty)
            m_output.write(',');
        newLine();
    }
    m_afterKey = false;
    m_empty = false;
}

void JsonWriter::newLine()
{
    m_output.write('\n');
    m_output.write(' ', 2 * m_depth);
}
