#include <QCommandLineParser>
#include <QCoreApplication>
#include <QLocale>
#include <QTextStream>

#include "base/language.h"
#include "base/oversized_writes.h"
#include "base/version.h"
#include "transfer/copy_command.h"

using namespace verdane;
using namespace Qt::StringLiterals;

namespace {

QString description()
{
    return in_language(
        u"Travaille sur les journaux de Verdane.\n\n"
        "Commandes :\n"
        "  copy DE VERS    copie un journal, ligne par ligne, à un endroit vide, et compare les deux\n\n"
        "DE et VERS :\n"
        "  file            le fichier de Verdane\n"
        "  file:CHEMIN     un autre fichier\n"
        "  source          la source de données ODBC de Verdane, Verdbase\n"
        "  source:NOM      une autre source de données\n\n"
        "État de sortie : 0 copié et vérifié, 1 échec (la destination est comme avant), 2 ligne de commande\n"
        "incorrecte, 3 destination non vide, 4 journal utilisé par un autre programme, 5 aucun journal à "
        "copier.",
        u"Works on the diaries of Verdane.\n\n"
        "Commands:\n"
        "  copy FROM TO    copies a diary, row by row, into an empty store, and compares both\n\n"
        "FROM and TO:\n"
        "  file            the file of Verdane\n"
        "  file:PATH       another file\n"
        "  source          the ODBC data source of Verdane, Verdbase\n"
        "  source:NAME     another data source\n\n"
        "Exit status: 0 copied and checked, 1 failure (the target is as before), 2 wrong command line,\n"
        "3 target not empty, 4 diary in use by another program, 5 no diary to copy.");
}

exit_status run_command(QStringList arguments)
{
    const QString command = arguments.isEmpty() ? QString() : arguments.takeFirst();
    if (command == u"copy")
        return run_copy(arguments);
    QTextStream(stderr)
        << in_language(u"Commande inconnue : %1 (--help)", u"Unknown command: %1 (--help)").arg(command)
        << Qt::endl;
    return exit_status::usage;
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
    parser.setApplicationDescription(description());
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(u"command"_s, in_language(u"la commande", u"the command"), u"copy"_s);
    parser.addPositionalArgument(u"arguments"_s, in_language(u"DE VERS", u"FROM TO"), u"FROM TO"_s);
    if (!parser.parse(QCoreApplication::arguments())) {
        QTextStream(stderr) << parser.errorText() << Qt::endl;
        return static_cast<int>(exit_status::usage);
    }
    if (parser.isSet(u"help"_s))
        parser.showHelp(0);
    if (parser.isSet(u"version"_s))
        parser.showVersion();
    return static_cast<int>(run_command(parser.positionalArguments()));
}
