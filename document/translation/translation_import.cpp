#include "document/translation/translation_import.h"

#include "document/text_bytes.h"
#include "document/text_catalogue.h"
#include "document/translation/translation_file.h"

#include <QHash>

#include <optional>
#include <utility>

namespace {

// In the line ends of `model`.
QString withLineEndsOf(const QString &model, const QString &text)
{
    QString lines = withLineFeeds(text);
    if (model.contains(QLatin1String("\r\n")))
        lines.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    else if (model.contains('\r') && !model.contains('\n'))
        lines.replace('\n', '\r');
    return lines;
}

class Import
{
public:
    Import(CampaignData &campaign, const std::vector<TranslationUnit> &units, bool force)
        : m_campaign(campaign), m_units(units), m_force(force)
    {
    }

    TranslationReport run()
    {
        indexUnits();
        bool anyKnown = false;
        for (const TextPlace &place : textPlaces(m_campaign)) {
            const QString id = idOf(place);
            const TranslationUnit *unit = m_byId.take(id);
            anyKnown = anyKnown || unit;
            visit(place, id, unit);
        }
        if (!anyKnown)
            m_report.faults.push_back({{}, QStringLiteral("no text of this campaign is in it")});
        noteUnknown();
        if (!m_report.faults.empty())
            return m_report;
        for (const auto &[place, text] : m_taken)
            setTextAt(m_campaign, place, text);
        m_report.taken = int(m_taken.size());
        return m_report;
    }

private:
    void note(const QString &id, const QString &what) { m_report.notes.push_back({id, what}); }
    void refuse(const QString &id, const QString &what) { m_report.faults.push_back({id, what}); }

    void indexUnits()
    {
        for (const TranslationUnit &unit : m_units) {
            if (unit.id.isEmpty())
                continue;
            if (m_byId.contains(unit.id))
                refuse(unit.id, QStringLiteral("stands in the file twice"));
            m_byId.insert(unit.id, &unit);
        }
    }

    void visit(const TextPlace &place, const QString &id, const TranslationUnit *unit)
    {
        const QString text = textAt(m_campaign, place);
        m_report.texts += text.isEmpty() ? 0 : 1;
        if (!unit) {
            if (!text.isEmpty())
                note(id, QStringLiteral("new, the file lacks it"));
        } else if (unit->translation.isEmpty()) {
            note(id, QStringLiteral("missing, it isn't translated"));
        } else if (unit->unfinished) {
            note(id, QStringLiteral("unfinished, not taken"));
        } else {
            const bool changed = withLineFeeds(unit->source) != withLineFeeds(text);
            if (changed)
                note(id, m_force ? QStringLiteral("changed since, taken all the same")
                                 : QStringLiteral("changed since, not taken"));
            if (!changed || m_force)
                take(place, id, withLineEndsOf(text, unit->translation));
        }
    }

    void take(const TextPlace &place, const QString &id, const QString &text)
    {
        const int longest = longestText(place.kind);
        if (const std::optional<QString> fault = faultOfText(text)) {
            refuse(id, *fault);
        } else if (longest > 0 && text.size() > longest) {
            refuse(id, QStringLiteral("it has %1 letters, at most %2 fit")
                           .arg(QString::number(text.size()), QString::number(longest)));
        } else if (const QString lost = lostLetter(text); !lost.isEmpty()) {
            refuse(id, QStringLiteral("the campaign's encoding can't hold %1").arg(named(lost)));
        } else {
            m_taken.emplace_back(place, text);
        }
    }

    // With its number too: where it is told it may be as unknown.
    static QString named(const QString &letter)
    {
        const QString number = QString::number(letter.toUcs4().first(), 16).toUpper();
        return QStringLiteral("\"%1\" (U+%2)").arg(letter, number.rightJustified(4, '0'));
    }

    // The first character that the campaign's encoding doesn't give back; empty if it does so with
    // all.
    static QString lostLetter(const QString &text)
    {
        if (textFromBytes(bytesFromText(text)) == text)
            return {};
        for (int i = 0; i < text.size(); ++i) {
            QString letter = text.mid(i, text[i].isHighSurrogate() ? 2 : 1);
            if (textFromBytes(bytesFromText(letter)) != letter)
                return letter;
            i += letter.size() - 1;
        }
        return text.left(1); // only all together they don't come back
    }

    void noteUnknown()
    {
        for (const TranslationUnit &unit : m_units) {
            if (unit.id.isEmpty() || m_byId.contains(unit.id))
                note(unit.id, QStringLiteral("unknown, the campaign has no such text"));
        }
    }

    CampaignData &m_campaign;
    const std::vector<TranslationUnit> &m_units;
    const bool m_force;
    QHash<QString, const TranslationUnit *> m_byId; // those not met in the campaign yet
    std::vector<std::pair<TextPlace, QString>> m_taken;
    TranslationReport m_report;
};

} // namespace

TranslationReport takeTranslations(CampaignData &campaign,
                                   const std::vector<TranslationUnit> &units, bool force)
{
    return Import(campaign, units, force).run();
}
