#include <QCommandLineParser>
#include <QCoreApplication>
#include <QHash>
#include <QLocale>
#include <QLoggingCategory>
#include <QTranslator>

#include <csignal>

#include "base/language.h"
#include "base/program.h"
#include "transfer/command.h"
#include "transfer/console.h"

using namespace verdane;
using namespace Qt::StringLiterals;

namespace {

/// French texts of the parser that the toolkit's own translation lacks.
class french_texts : public QTranslator {
public:
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        static const QHash<QByteArray, QString> words{
            {"Displays help on commandline options.", u"Affiche les commandes et les états de sortie."_s},
            {"Displays help including Qt specific options.",
             u"Affiche aussi les options de la boîte à outils."_s}};
        return qstrcmp(context, "QCommandLineParser") == 0 ? words.value(text) : QString();
    }
    bool isEmpty() const override { return false; }
};

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
    // A command is completed also if nobody reads its report.
    std::signal(SIGPIPE, SIG_IGN);
    // The report of a failure contains the text of the driver. Without this, a warning of the toolkit would
    // repeat that text.
    QLoggingCategory::setFilterRules(u"*.warning=false"_s);
    QCoreApplication application(argc, argv);
    // The name decides in which folder the file of the program is.
    QCoreApplication::setApplicationName(u"Verdane"_s);
    QCoreApplication::setApplicationVersion(program_version());
    is_french = QLocale::system().language() == QLocale::French;
    load_toolkit_texts();
    french_texts texts;
    if (is_french)
        QCoreApplication::installTranslator(&texts);
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
