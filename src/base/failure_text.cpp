#include "base/failure_text.h"

#include <QStringList>

#include "base/failure_words.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

QString round_text(const failure_subject& subject, bool french)
{
    if (subject.last_round.isEmpty() || subject.last_round == subject.round)
        return text_pair{u"Ronde du %1", u"Round of %1"}.in(french).arg(subject.round);
    const text_pair several{u"Rondes du %1 au %2", u"Rounds of %1 to %2"};
    return several.in(french).arg(subject.round, subject.last_round);
}

QString hole_text(int hole, bool is_first, bool french)
{
    const text_pair words = is_first ? text_pair{u"Trou %1", u"Hole %1"} : text_pair{u"trou %1", u"hole %1"};
    return words.in(french).arg(hole);
}

}  // namespace

text_pair words_of_full_list(limited_list list)
{
    switch (list) {
    case limited_list::round_keys:
        return {
            u"Il n'y a plus de place pour enregistrer : Verdane a 366 places, une pour chaque ronde du "
            u"journal et une pour chaque enregistrement jusqu'à sa fermeture. Ce qui était enregistré est "
            u"intact. Relancez Verdane, contrôlez le dernier trou et continuez. Si le journal a presque "
            u"366 rondes, la commande verdane-store archive fait de la place.",
            u"There is no place left to save: Verdane has 366 places, one for each round of the diary and "
            u"one for each save until it is closed. What was saved is intact. Start Verdane again, check "
            u"the last hole and continue. If the diary has almost 366 rounds, the command verdane-store "
            u"archive makes room."};
    case limited_list::stored_rounds:
        return {
            u"Le journal a plus de 366 rondes, et Verdane n'en ouvre pas davantage. Toutes les rondes "
            u"sont intactes. Déplacez les plus anciennes dans un autre fichier avec la commande "
            u"verdane-store archive, puis relancez Verdane.",
            u"The diary has more than 366 rounds, and Verdane opens no more than that. All rounds are "
            u"intact. Move the earliest ones to another file with the command verdane-store archive, then "
            u"start Verdane again."};
    case limited_list::courses:
        return {
            u"Le journal a plus de 51 terrains et départs, et la liste n'en montre pas davantage. Ce qui "
            u"était enregistré est intact, et vous pouvez encore entrer des rondes. Pour rouvrir la "
            u"liste, revenez à une copie du journal d'avant le dernier terrain.",
            u"The diary has more than 51 courses and tees, and the list shows no more than that. What was "
            u"saved is intact, and you can still enter rounds. To open the list again, return to a copy "
            u"of the diary from before the last course was added."};
    case limited_list::putts_of_a_hole:
        return {u"Un trou a plus de cinq coups roulés avec leur distance, et les statistiques n'en comptent "
                u"pas davantage. Ce qui était enregistré est intact. Relancez Verdane, puis choisissez des "
                u"rondes sans ce trou, ou corrigez ses coups.",
                u"A hole has more than five putts with their lengths, and the statistics count no more than "
                u"that. What was saved is intact. Start Verdane again, then choose rounds without this hole, "
                u"or correct its shots."};
    case limited_list::unnamed:
        break;
    }
    return {};
}

QString subject_text(const failure_subject& subject, bool french)
{
    QStringList parts;
    if (!subject.round.isEmpty())
        parts << round_text(subject, french);
    if (!subject.course.isEmpty())
        parts << subject.course;
    if (subject.hole > 0)
        parts << hole_text(subject.hole, parts.isEmpty(), french);
    return parts.isEmpty() ? QString() : parts.join(u", "_s) + u'.';
}

QString failure_text(const run_time_failure& failure, bool french)
{
    const failure_subject subject = subject_of(failure);
    const QString of_list =
        failure.kind() == failure_kind::subscript ? words_of_full_list(subject.list).in(french) : QString();
    const QString words = of_list.isEmpty() ? failure_words(failure.kind()).in(french) : of_list;
    const QString concerned = subject_text(subject, french);
    return concerned.isEmpty() ? words : words + u"\n\n" + concerned;
}

}  // namespace verdane
