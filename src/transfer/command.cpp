#include "transfer/command.h"

#include <algorithm>

#include "transfer/check_command.h"
#include "transfer/console.h"
#include "transfer/copy_command.h"
#include "transfer/restore_command.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array commands{
    command{u"check",
            {u"JOURNAL", u"STORE"},
            {u"vérifie un journal et dit comment réparer ce qui ne va pas",
             u"checks a diary and reports how to repair what is wrong"},
            {{{u"--repair",
               {u"répare ce qui ne demande aucun choix, après avoir fait une copie",
                u"repairs what needs no choice, after making a copy"}},
              {u"--make-rounds",
               {u"fait aussi une ronde des coups qui n'en ont pas",
                u"also makes a round of shots that have none"}}}},
            run_check},
    command{u"copy",
            {u"DE VERS", u"FROM TO"},
            {u"copie un journal, ligne par ligne, à un endroit vide, et compare les deux",
             u"copies a diary, row by row, into an empty store, and compares both"},
            {},
            run_copy},
    command{u"restore",
            {u"COPIE JOURNAL", u"COPY STORE"},
            {u"remet une copie à la place d'un journal, dont le fichier est gardé",
             u"puts a copy in the place of a diary, whose file is kept"},
            {},
            run_restore},
};

constexpr std::array<std::pair<QStringView, text_pair>, 4> stores{{
    {u"file", {u"le fichier de Verdane", u"the file of Verdane"}},
    {u"file:…", {u"un autre fichier, par son chemin", u"another file, by its path"}},
    {u"source",
     {u"la source de données ODBC de Verdane, Verdbase", u"the ODBC data source of Verdane, Verdbase"}},
    {u"source:…", {u"une autre source de données, par son nom", u"another data source, by its name"}},
}};

QString line(const QString& left, const QString& right)
{
    constexpr int width = 24;
    return u"  " + left.leftJustified(width) + u' ' + right + u'\n';
}

QString lines_of(const command& shown)
{
    QString text = line(shown.name + u' ' + shown.arguments.in(is_french), shown.words.in(is_french));
    for (const command::option& option : shown.options) {
        if (!option.name.isEmpty())
            text += line(u"  " + option.name, option.words.in(is_french));
    }
    return text;
}

}  // namespace

std::span<const command> all_commands()
{
    return commands;
}

QString help_text()
{
    QString text = in_language(u"Travaille sur les journaux de Verdane.\n\nCommandes :\n",
                               u"Works on the diaries of Verdane.\n\nCommands:\n");
    for (const command& each : commands)
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
    const auto found = std::find_if(commands.begin(), commands.end(),
                                    [&](const command& each) { return each.name == name; });
    if (found == commands.end())
        return refuse(
            exit_status::usage,
            in_language(u"Commande inconnue : %1 (--help)", u"Unknown command: %1 (--help)").arg(name));
    return found->run(arguments);
}

}  // namespace verdane
