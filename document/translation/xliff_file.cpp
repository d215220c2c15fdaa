// Of a file, nested:
//
//    xliff version="1.2"
//      file, body, group ...             any of them
//        trans-unit id="..."
//          source                        the text
//          target state="..."            the translation, if there is one
//          note                          for the translator
//          context-group, context        the id of a text that came here by way of a PO file
//
// In texts g and mrk stand around parts of them, and ph for a control character, as Qt's tools
// write them. All other elements, with what is in them, mean nothing here.
#include "document/translation/xliff_file.h"

#include "document/translation/file_text.h"
#include "gamedata/limits.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>

namespace {

constexpr char gettextContext[] = "x-gettext-msgctxt"; // where Qt's tools keep a PO file's context

void writeUnit(QXmlStreamWriter &xml, const TranslationUnit &unit)
{
    xml.writeStartElement(QStringLiteral("trans-unit"));
    xml.writeAttribute(QStringLiteral("id"), unit.id);
    xml.writeAttribute(QStringLiteral("xml:space"), QStringLiteral("preserve"));
    xml.writeTextElement(QStringLiteral("source"), unit.source);
    if (!unit.translation.isEmpty())
        xml.writeTextElement(QStringLiteral("target"), unit.translation);
    xml.writeTextElement(QStringLiteral("note"), unit.context);
    xml.writeEndElement();
}

// "trans-unit" of "x:trans-unit".
QStringRef localName(const QXmlStreamReader &xml)
{
    const QStringRef name = xml.qualifiedName();
    return name.mid(name.lastIndexOf(':') + 1);
}

bool isUnfinished(const QString &state)
{
    return state == QLatin1String("new") || state.startsWith(QLatin1String("needs-"));
}

// What the XML reader must not be given: it holds each attribute of an element against all others,
// so that thousands take it minutes, and each entity that a document type declares as well. Where
// the text isn't XML this may take one thing for another, but there the reader stops, too.
class Inspector
{
public:
    explicit Inspector(const QString &text) : m_text(text) {}

    // What is wrong, or nothing.
    QString fault()
    {
        while (m_fault.isEmpty() && (m_place = m_text.indexOf('<', m_place)) >= 0)
            takeMarkup();
        return m_fault;
    }

    qint64 line() const { return m_text.leftRef(m_place).count('\n') + 1; }

private:
    bool begins(const char *markup) const
    {
        return m_text.midRef(m_place, 9).startsWith(QLatin1String(markup));
    }

    void takeMarkup()
    {
        if (begins("<!--"))
            skipTo("-->");
        else if (begins("<![CDATA["))
            skipTo("]]>");
        else if (begins("<?"))
            skipTo("?>");
        else if (begins("<!"))
            m_fault = QStringLiteral("document types aren't taken");
        else
            takeTag();
    }

    void skipTo(const char *end)
    {
        const int found = m_text.indexOf(QLatin1String(end), m_place + 2);
        m_place = found < 0 ? m_text.size() : found;
    }

    void takeTag()
    {
        int attributes = 0;
        for (; m_place < m_text.size() && m_text[m_place] != '>'; ++m_place) {
            const QChar letter = m_text[m_place];
            if (letter == '=' && ++attributes > limits::xliffAttributes) {
                m_fault = QStringLiteral("an element has too many attributes");
                return;
            }
            if (letter == '"' || letter == '\'') {
                const int end = m_text.indexOf(letter, m_place + 1);
                m_place = end < 0 ? m_text.size() : end;
            }
        }
    }

    const QString &m_text;
    int m_place = 0;
    QString m_fault;
};

class XliffReader
{
public:
    explicit XliffReader(const QString &text) : m_xml(text)
    {
        // Names are told apart without their prefixes, which would have to be looked for in all
        // declarations around.
        m_xml.setNamespaceProcessing(false);
    }

    TranslationReading read()
    {
        if (next() && enter() && localName(m_xml) == QLatin1String("xliff")) {
            const QString version = attribute("version");
            if (version.startsWith(QLatin1String("1.")))
                readInside();
            else
                fail(QStringLiteral("this is XLIFF %1, only 1.2 is known").arg(version));
        } else {
            fail(QStringLiteral("this isn't an XLIFF file"));
        }
        while (!m_xml.atEnd() && m_fault.isEmpty())
            next();
        if (m_xml.hasError() && m_fault.isEmpty())
            fail(m_xml.errorString());
        return m_fault.isEmpty() ? m_reading : unreadable(m_faultLine, m_fault);
    }

private:
    void fail(const QString &what)
    {
        if (!m_fault.isEmpty())
            return;
        m_fault = m_xml.hasError() ? m_xml.errorString() : what;
        if (m_fault.endsWith('.'))
            m_fault.chop(1);
        m_faultLine = m_xml.lineNumber();
    }

    // The next token that says something. False at the end, or where something is wrong.
    bool next()
    {
        while (m_fault.isEmpty() && !m_xml.atEnd()) {
            const QXmlStreamReader::TokenType token = m_xml.readNext();
            if (token == QXmlStreamReader::EntityReference)
                fail(QStringLiteral("an entity isn't known"));
            else if (token != QXmlStreamReader::StartDocument &&
                     token != QXmlStreamReader::Comment &&
                     token != QXmlStreamReader::ProcessingInstruction)
                return !m_xml.hasError();
        }
        return false;
    }

    // Whether the token begins an element, and not one too deep.
    bool enter()
    {
        if (!m_xml.isStartElement())
            return false;
        if (++m_depth > limits::xliffLevels)
            fail(QStringLiteral("elements are nested too deeply"));
        return m_fault.isEmpty();
    }

    QString attribute(const char *name) const
    {
        return m_xml.attributes().value(QLatin1String(name)).toString();
    }

    // Reads on to the end of the element at hand, units on the way included.
    void readInside()
    {
        const int outside = m_depth - 1;
        while (m_depth > outside && next()) {
            if (m_xml.isEndElement())
                --m_depth;
            else if (enter() && localName(m_xml) == QLatin1String("trans-unit"))
                readUnit();
        }
    }

    void skip()
    {
        const int outside = m_depth - 1;
        while (m_depth > outside && next()) {
            if (m_xml.isEndElement())
                --m_depth;
            else
                enter();
        }
    }

    void readUnit()
    {
        if (qint64(m_reading.units.size()) >= limits::translationUnits)
            fail(QStringLiteral("there are too many trans-units"));
        TranslationUnit unit;
        unit.id = attribute("id");
        const int outside = m_depth - 1;
        while (m_depth > outside && next()) {
            if (m_xml.isEndElement()) {
                --m_depth;
            } else if (enter()) {
                if (localName(m_xml) == QLatin1String("source")) {
                    unit.source = text();
                } else if (localName(m_xml) == QLatin1String("target")) {
                    unit.unfinished = isUnfinished(attribute("state"));
                    unit.translation = text();
                } else if (attribute("context-type") == QLatin1String(gettextContext)) {
                    unit.id = text();
                } else if (localName(m_xml) != QLatin1String("context-group")) {
                    skip();
                }
            }
        }
        m_reading.units.push_back(std::move(unit));
    }

    // The text of the element at hand.
    QString text()
    {
        QString text;
        const int outside = m_depth - 1;
        while (m_depth > outside && next()) {
            if (m_xml.isEndElement())
                --m_depth;
            else if (m_xml.isCharacters())
                text += m_xml.text();
            else if (enter())
                takeMark(text);
        }
        return text;
    }

    // An element inside a text.
    void takeMark(QString &text)
    {
        const QStringRef name = localName(m_xml);
        if (name == QLatin1String("ph"))
            takeControlCharacter(text);
        else if (name != QLatin1String("g") && name != QLatin1String("mrk"))
            fail(QStringLiteral("the element %1 isn't expected in a text").arg(name));
    }

    void takeControlCharacter(QString &text)
    {
        const QString type = attribute("ctype");
        if (type == QLatin1String("x-ch-n"))
            text += '\n';
        else if (type == QLatin1String("x-ch-r"))
            text += '\r';
        else if (type == QLatin1String("x-ch-t"))
            text += '\t';
        else
            fail(QStringLiteral("a placeholder isn't known"));
        if (m_fault.isEmpty())
            skip();
    }

    QXmlStreamReader m_xml;
    int m_depth = 0; // of the element at hand
    TranslationReading m_reading;
    QString m_fault;
    qint64 m_faultLine = 0;
};

} // namespace

QByteArray writtenAsXliff(const std::vector<TranslationUnit> &units)
{
    QByteArray file;
    QXmlStreamWriter xml(&file);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(2);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("xliff"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("1.2"));
    xml.writeDefaultNamespace(QStringLiteral("urn:oasis:names:tc:xliff:document:1.2"));
    xml.writeStartElement(QStringLiteral("file"));
    xml.writeAttribute(QStringLiteral("original"), QStringLiteral("campaign"));
    xml.writeAttribute(QStringLiteral("datatype"), QStringLiteral("plaintext"));
    xml.writeAttribute(QStringLiteral("source-language"), QStringLiteral("und"));
    xml.writeStartElement(QStringLiteral("body"));
    for (const TranslationUnit &unit : units)
        writeUnit(xml, unit);
    xml.writeEndDocument();
    return file;
}

TranslationReading readXliff(const QByteArray &bytes)
{
    const QString text = textOfFile(bytes);
    if (text.isNull())
        return {{}, QStringLiteral("the file isn't in UTF-8")};
    Inspector inspector(text);
    const QString fault = inspector.fault();
    return fault.isEmpty() ? XliffReader(text).read() : unreadable(inspector.line(), fault);
}
