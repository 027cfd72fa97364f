#include "round/places_left.h"

#include "base/language.h"
#include "scoring/limits.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

QString line_of(int places, bool french)
{
    switch (places) {
    case 0:
        return text_pair{u"Plus aucun enregistrement : rouvrez Verdane.",
                         u"No save left: open Verdane again."}
            .in(french);
    case 1:
        return text_pair{u"Encore 1 enregistrement, puis rouvrez Verdane.",
                         u"1 save left, then open Verdane again."}
            .in(french);
    default:
        return text_pair{u"Encore %1 enregistrements, puis rouvrez Verdane.",
                         u"%1 saves left, then open Verdane again."}
            .in(french)
            .arg(places);
    }
}

text_pair advice_of(int places)
{
    if (places == 0)
        return {
            u"Le trou à l'écran ne peut plus être enregistré. Fermez cette fenêtre sans enregistrer, "
            u"fermez Verdane, rouvrez-le et continuez. Ce qui était enregistré est intact.",
            u"The hole on screen can no longer be saved. Close this window without saving, close Verdane, "
            u"open it again and continue. What was saved is intact."};
    return {u"Chaque trou quitté est un enregistrement. Avant le dernier, cliquez OK, fermez Verdane, "
            u"rouvrez-le et continuez.",
            u"Each hole that you leave is one save. Before the last one, click OK, close Verdane, open it "
            u"again and continue."};
}

}  // namespace

places_warning warning_of_places(int places, int rounds, bool french)
{
    if (places > few_places)
        return {};
    places_warning warning{line_of(places, french), advice_of(places).in(french)};
    const text_pair almost_full{
        u" Le journal est presque plein : la commande verdane-store archive fait de la "
        u"place quand Verdane est fermé.",
        u" The diary is almost full: the command verdane-store archive makes room while "
        u"Verdane is closed."};
    if (most_rounds - rounds <= few_places)
        warning.explanation += almost_full.in(french);
    return warning;
}

}  // namespace verdane
