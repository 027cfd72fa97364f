#include <QCommandLineParser>
#include <QCoreApplication>
#include <QLocale>

#include "base/language.h"
#include "base/program.h"
#include "transfer/command.h"
#include "transfer/console.h"

using namespace verdane;
using namespace Qt::StringLiterals;

namespace {

void add_options(QCommandLineParser& parser)
{
    for (const command& each : all_commands()) {
        for (const command::option& option : each.options) {
            if (!option.name.isEmpty())
                parser.addOption({option.name.sliced(2).toString(), option.words.in(is_french)});
        }
    }
}

/// The command, its arguments, and the options that were given.
QStringList given_arguments(const QCommandLineParser& parser)
{
    QStringList given = parser.positionalArguments();
    QStringList options = parser.optionNames();
    options.removeDuplicates();
    for (const QString& option : options)
        given << u"--" + option;
    return given;
}

}  // namespace

int main(int argc, char** argv)
{
    let_oversized_writes_fail();
    QCoreApplication application(argc, argv);
    // The name decides in which folder the file of the program is.
    QCoreApplication::setApplicationName(u"Verdane"_s);
    QCoreApplication::setApplicationVersion(program_version());
    is_french = QLocale::system().language() == QLocale::French;
    QCommandLineParser parser;
    parser.setApplicationDescription(help_text());
    parser.addHelpOption();
    parser.addVersionOption();
    add_options(parser);
    parser.addPositionalArgument(u"command"_s, in_language(u"la commande", u"the command"));
    parser.addPositionalArgument(u"arguments"_s, in_language(u"ses arguments", u"its arguments"), u"..."_s);
    if (!parser.parse(QCoreApplication::arguments()))
        return static_cast<int>(refuse(exit_status::usage, parser.errorText()));
    if (parser.isSet(u"help"_s))
        parser.showHelp(0);
    if (parser.isSet(u"version"_s))
        parser.showVersion();
    return static_cast<int>(run_command(given_arguments(parser)));
}
