#include "transfer/command.h"

#include <algorithm>
#include <optional>

#include "transfer/console.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<std::pair<QStringView, text_pair>, 4> stores{{
    {u"file", {u"le fichier de Verdane", u"the file of Verdane"}},
    {u"file:…", {u"un autre fichier, par son chemin", u"another file, by its path"}},
    {u"source",
     {u"la source de données ODBC de Verdane, Verdbase", u"the ODBC data source of Verdane, Verdbase"}},
    {u"source:…", {u"une autre source de données, par son nom", u"another data source, by its name"}},
}};

/// The words begin in one column, on a line of their own if the left part is longer.
QString line(const QString& left, const QString& right)
{
    constexpr int width = 24;
    const QString indented = u"  " + left.leftJustified(width);
    const QString separator = left.size() > width ? u'\n' + QString(width + 3, u' ') : u" "_s;
    return indented + separator + right + u'\n';
}

QString lines_of(const command& shown)
{
    QString text = line(synopsis(shown), shown.words.in(is_french));
    for (const command::option& option : shown.options) {
        if (!option.name.isEmpty())
            text += line(u"  " + option.name, option.words.in(is_french));
    }
    return text;
}

/// The number of options of a command that were given and are removed from the arguments. Nothing if one is
/// missing before another.
std::optional<int> take_options(const command& wanted, QStringList& arguments)
{
    int given = 0;
    int last = 0;
    int place = 0;
    for (const command::option& option : wanted.options) {
        ++place;
        if (!option.name.isEmpty() && arguments.removeAll(option.name.toString()) > 0) {
            ++given;
            last = place;
        }
    }
    return given == last ? std::optional(given) : std::nullopt;
}

}  // namespace

std::span<const command> all_commands()
{
    static const std::array commands{check_command,  copy_command,    restore_command, export_command,
                                     import_command, archive_command, courses_command, sample_command};
    return commands;
}

QString synopsis(const command& shown)
{
    QString options;
    QString end;
    for (const command::option& option : shown.options) {
        if (option.name.isEmpty())
            break;
        options += u" [" + option.name;
        end += u']';
    }
    return shown.name + options + end + u' ' + shown.arguments.in(is_french);
}

QString help_text()
{
    QString text = in_language(u"Travaille sur les journaux de Verdane.\n\nCommandes :\n",
                               u"Works on the diaries of Verdane.\n\nCommands:\n");
    for (const command& each : all_commands())
        text += lines_of(each);
    text += in_language(u"\nUn journal est nommé par :\n", u"\nA diary is named by:\n");
    for (const auto& [name, words] : stores)
        text += line(name.toString(), words.in(is_french));
    text += in_language(u"\nÉtat de sortie :\n", u"\nExit status:\n");
    for (const auto& [status, words] : all_exit_statuses)
        text += line(QString::number(static_cast<int>(status)), words.in(is_french));
    return text;
}

exit_status run_command(QStringList arguments)
{
    const QString name = arguments.isEmpty() ? QString() : arguments.takeFirst();
    const auto commands = all_commands();
    const auto found = std::find_if(commands.begin(), commands.end(),
                                    [&](const command& each) { return each.name == name; });
    if (found == commands.end())
        return refuse(
            exit_status::usage,
            in_language(u"Commande inconnue : %1 (--help)", u"Unknown command: %1 (--help)").arg(name));
    const std::optional<int> options = take_options(*found, arguments);
    return options ? found->run(arguments, *options) : refuse_usage();
}

}  // namespace verdane
