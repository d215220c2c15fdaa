// cmped-cli: the editor's readers and writers for scripts.
#include "cli/commands.h"
#include "cli/standard_output.h"
#include "gamedata/game_dir.h"
#include "gamedata/game_search.h"
#include "gamedata/locale_codec.h"
#include "gamedata/report.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QLoggingCategory>

#include <csignal>
#include <cstdlib>

namespace {

struct Options
{
    QCommandLineOption game{QStringLiteral("game"),
                            QStringLiteral("the game's folder, if it isn't this program's own"),
                            QStringLiteral("DIR")};
    QCommandLineOption encoding{QStringLiteral("encoding"),
                                QStringLiteral("of texts in campaigns, such as Windows-1251"),
                                QStringLiteral("NAME")};
    QCommandLineOption help{QStringLiteral("help"), QStringLiteral("shows this text")};
    QCommandLineOption version{QStringLiteral("version"), QStringLiteral("shows the version")};
};

// Messages go to standard error. Where the editor would end without a word there is one here, so
// that a script's log tells why.
void reportToStandardError()
{
    static bool told = false;
    static Reporter writer;
    writer = setReporter({[](const QString &title, const QString &text) {
                              told = true;
                              writer.showError(title, text);
                          },
                          [](int) {
                              if (!told)
                                  failed(mainWindowText("Unable to generate image"));
                              std::exit(exitFailed);
                          }});
}

QString describe(const Options &options)
{
    QString text;
    for (const QCommandLineOption &option :
         {options.game, options.encoding, options.help, options.version}) {
        const QString name =
            QStringLiteral("--%1 %2").arg(option.names().constFirst(), option.valueName());
        text += QStringLiteral("  %1  %2\n").arg(name.leftJustified(15), option.description());
    }
    return text;
}

ExitStatus print(const QString &text)
{
    StandardOutput output;
    output.write(text.toLocal8Bit());
    return output.finish();
}

ExitStatus runCommand(const QStringList &words)
{
    if (words.isEmpty())
        return wrongUsage(QStringLiteral("A command is missing."));
    const Command *command = findCommand(words.constFirst());
    if (!command)
        return wrongUsage(QStringLiteral("There is no command \"%1\".").arg(words.constFirst()));
    const CommandWords taken = wordsOf(*command, words.mid(1));
    if (!taken.fault.isEmpty())
        return wrongUsage(taken.fault);
    return taken.help ? print(helpOf(*command)) : command->run(taken.arguments, taken.options);
}

ExitStatus runCommandLine()
{
    const Options options;
    QCommandLineParser parser;
    // What follows the command belongs to it: it has options of its own.
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parser.addOptions({options.game, options.encoding, options.help, options.version});
    if (!parser.parse(QCoreApplication::arguments()))
        return wrongUsage(parser.errorText());
    if (parser.isSet(options.help))
        return print(helpText(describe(options)));
    if (parser.isSet(options.version))
        return print(QStringLiteral("cmped-cli " CMPED_VERSION "\n"));
    const QString encoding = parser.value(options.encoding);
    if (!setLocaleCodec(encoding))
        return wrongUsage(
            QStringLiteral("The encoding \"%1\" is unknown or can't name files.").arg(encoding));
    // File names on the command line go through the same codec as on the way to the disk.
    parser.parse(QCoreApplication::arguments());
    setGameRoot(parser.isSet(options.game) ? parser.value(options.game)
                                           : findGame(QCoreApplication::applicationDirPath()));
    return runCommand(parser.positionalArguments());
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    // A limit on the size of files is an error like a full disk, not the end of the process.
    std::signal(SIGXFSZ, SIG_IGN);
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    reportToStandardError();
    return runCommandLine();
}
