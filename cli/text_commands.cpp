#include "cli/text_commands.h"

#include "cli/campaign_commands.h"
#include "document/campaign_data.h"
#include "document/one_line.h"
#include "document/text_exchange.h"
#include "document/text_file.h"
#include "document/translation/translation_file.h"
#include "document/translation/translation_import.h"
#include "gamedata/game_loading.h"
#include "gamedata/report.h"

#include <QFile>

#include <cerrno>
#include <cstdio>

namespace {

// In which format a file of texts stands; no other than the editor's own has a record.
struct TextFormat
{
    const TranslationFormat *translation = nullptr; // null: the editor's lines
    bool known = true;
};

// What the option says, else the file's ending, else the editor's own.
TextFormat formatOf(const CommandOptions &options, const QString &path)
{
    const QString format = QStringLiteral("format");
    if (!options.contains(format))
        return {translationFormatOfFile(path)};
    const QString name = options.value(format);
    if (name == QLatin1String("txt"))
        return {};
    const TranslationFormat *found = translationFormat(name);
    return {found, found != nullptr};
}

ExitStatus unknownFormat(const CommandOptions &options)
{
    const QStringList names = translationFormatNames() + QStringList{QStringLiteral("txt")};
    return wrongUsage(
        QStringLiteral("There is no format \"%1\", only %2.")
            .arg(options.value(QStringLiteral("format")), names.join(QStringLiteral(", "))));
}

ExitStatus incorrectText(const QString &path, const QString &reason)
{
    return failed(
        mainWindowText("Cannot read file %1 - incorrect campaign text:\n%2.").arg(path, reason));
}

// On standard error, a line for each: none of them is in the way of the rest.
void tell(const QString &path, const TranslationReport &report)
{
    const auto say = [&](const QString &text) {
        std::fprintf(stderr, "%s: %s\n", path.toLocal8Bit().constData(),
                     text.toLocal8Bit().constData());
    };
    for (const TranslationNote &note : report.notes)
        say(note.id.isEmpty() ? note.what : oneLine(note.id) + QStringLiteral(": ") + note.what);
    if (!report.notes.empty()) {
        say(QStringLiteral("%1 of %2 texts taken")
                .arg(QString::number(report.taken), QString::number(report.texts)));
    }
}

ExitStatus takeTranslationsFrom(const QString &path, QFile &file, const TranslationFormat &format,
                                bool force, CampaignData &campaign)
{
    const QByteArray bytes = readTextFile(file);
    if (bytes.isNull())
        return cannotRead(path, file.error() == QFile::NoError ? qt_error_string(EFBIG)
                                                               : file.errorString());
    const TranslationReading reading = format.read(bytes);
    if (!reading.error.isEmpty())
        return incorrectText(path, reading.error);
    const TranslationReport report = takeTranslations(campaign, reading.units, force);
    QStringList faults;
    for (const TranslationNote &fault : report.faults)
        faults << (fault.id.isEmpty() ? fault.what
                                      : oneLine(fault.id) + QStringLiteral(": ") + fault.what);
    if (!faults.isEmpty())
        return incorrectText(path, faults.join('\n'));
    tell(path, report);
    return exitDone;
}

} // namespace

ExitStatus runExportTexts(const QStringList &arguments, const CommandOptions &options)
{
    const TextFormat format = formatOf(options, arguments[1]);
    if (!format.known)
        return unknownFormat(options);
    loadGame();
    CampaignData campaign;
    if (const ExitStatus status = readCampaignFile(arguments[0], campaign))
        return status;
    if (!format.translation)
        return saved(arguments[1], saveFileSafely(arguments[1], {exportedTexts(campaign)}));
    const TranslationExport texts = unitsOf(campaign);
    if (!texts.error.isEmpty()) {
        return failed(QStringLiteral("Cannot export the texts of %1:\n%2; see --encoding.")
                          .arg(arguments[0], texts.error));
    }
    return saved(arguments[1],
                 saveFileSafely(arguments[1], {format.translation->write(texts.units)}));
}

ExitStatus runImportTexts(const QStringList &arguments, const CommandOptions &options)
{
    const QString &path = arguments[1];
    const TextFormat format = formatOf(options, path);
    const bool force = options.contains(QStringLiteral("force"));
    if (!format.known)
        return unknownFormat(options);
    if (force && !format.translation)
        return wrongUsage(QStringLiteral("A file of lines knows nothing of changes to force."));
    loadGame();
    CampaignData campaign;
    if (const ExitStatus status = readCampaignFile(arguments[0], campaign))
        return status;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) // a pipe is welcome: texts may come from another program
        return cannotRead(path, file.errorString());
    if (format.translation) {
        if (const ExitStatus status =
                takeTranslationsFrom(path, file, *format.translation, force, campaign))
            return status;
    } else if (!importTextsFrom(file, campaign)) {
        return incorrectText(path, file.errorString());
    }
    return saved(arguments[2], campaign.saveTo(arguments[2]));
}
