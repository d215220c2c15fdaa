#include "document/translation/translation_file.h"

#include "document/text_catalogue.h"
#include "document/translation/csv_file.h"
#include "document/translation/po_file.h"
#include "document/translation/xliff_file.h"
#include "gamedata/escaped_utf8.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<TranslationFormat, 3> formats{{
    {"po", "po pot", writtenAsPo, readPo},
    {"xliff", "xlf xliff", writtenAsXliff, readXliff},
    {"csv", "csv", writtenAsCsv, readCsv},
}};

bool hasEnding(const TranslationFormat &format, const QString &path)
{
    const QStringList endings = QString::fromLatin1(format.endings).split(' ');
    return std::any_of(endings.begin(), endings.end(), [&](const QString &ending) {
        return path.endsWith(QLatin1Char('.') + ending, Qt::CaseInsensitive);
    });
}

bool isControl(QChar letter)
{
    return letter < ' ' && letter != '\n' && letter != '\r' && letter != '\t';
}

// Half of a character by itself, or what is no character at all.
bool isNoText(const QString &text, int i)
{
    return isHalfCharacter(text, i) || text[i].unicode() >= 0xfffe;
}

} // namespace

const TranslationFormat *translationFormat(const QString &name)
{
    for (const TranslationFormat &format : formats) {
        if (name == QLatin1String(format.name))
            return &format;
    }
    return nullptr;
}

const TranslationFormat *translationFormatOfFile(const QString &path)
{
    for (const TranslationFormat &format : formats) {
        if (hasEnding(format, path))
            return &format;
    }
    return nullptr;
}

QStringList translationFormatNames()
{
    QStringList names;
    for (const TranslationFormat &format : formats)
        names << QLatin1String(format.name);
    return names;
}

TranslationExport unitsOf(const CampaignData &campaign)
{
    TranslationExport result;
    for (const TextPlace &place : textPlaces(campaign)) {
        const QString text = withLineFeeds(textAt(campaign, place));
        if (text.isEmpty())
            continue;
        if (const std::optional<QString> fault = faultOfText(text))
            return {{}, idOf(place) + QStringLiteral(": ") + *fault};
        result.units.push_back({idOf(place), contextOf(campaign, place), text, {}, false});
    }
    return result;
}

QString withLineFeeds(const QString &text)
{
    return QString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace('\r', '\n');
}

std::optional<QString> faultOfText(const QString &text)
{
    for (int i = 0; i < text.size(); ++i) {
        if (isNoText(text, i))
            return QStringLiteral("it holds bytes that are no text in this encoding");
        if (isControl(text[i]))
            return QStringLiteral("it holds a control character");
    }
    return {};
}
