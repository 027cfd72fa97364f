#pragma once

#include <qnamespace.h>

#include "base/language.h"

/// Every keyboard shortcut of the program: its keys, and the caption that the list of Ctrl+F1 and the tool
/// tips show. To change a shortcut, change its line here. `cancel`, `open_round` and `open_course` are only
/// shown: Qt calls `Form::reject` for Escape, and `on_enter` handles Enter.
///
/// Mnemonics ("&Fichier") are part of the captions of menus and buttons. The keys inside a control are
/// described at its class: `data_grid`, `choice_menu`, `TabStrip`.
namespace verdane {

/// The keys of a command without a shortcut.
inline constexpr QKeyCombination no_keys{Qt::Key_unknown};

struct shortcut {
    QKeyCombination keys;
    text_pair caption;
};

namespace shortcut_table {

// Every window
inline constexpr shortcut open_guide{Qt::Key_F1, {u"Ouvrir le guide", u"Open the guide"}};
inline constexpr shortcut list_of_shortcuts{Qt::CTRL | Qt::Key_F1,
                                            {u"Montrer cette liste", u"Show this list"}};
inline constexpr shortcut cancel{Qt::Key_Escape,
                                 {u"Annuler ou fermer la fenêtre", u"Cancel or close the window"}};

// Round list and course list
inline constexpr shortcut open_round{Qt::Key_Return,
                                     {u"Ouvrir la ronde choisie", u"Open the selected round"}};
inline constexpr shortcut open_course{Qt::Key_Return,
                                      {u"Ouvrir le terrain choisi", u"Open the selected course"}};

// Course editor
inline constexpr shortcut save_course{Qt::CTRL | Qt::Key_S, {u"Enregistrer", u"Save"}};
inline constexpr shortcut close_course{Qt::CTRL | Qt::Key_W, {u"Fermer", u"Close"}};

// Round window
inline constexpr shortcut next_hole{Qt::Key_PageDown, {u"Trou suivant", u"Next hole"}};
inline constexpr shortcut previous_hole{Qt::Key_PageUp, {u"Trou précédent", u"Previous hole"}};
inline constexpr shortcut quick_page{Qt::CTRL | Qt::Key_1, {u"Entrée rapide", u"Quick entry"}};
inline constexpr shortcut detailed_page{Qt::CTRL | Qt::Key_2, {u"Entrée détaillée", u"Detailed Entry"}};
inline constexpr shortcut next_shot{Qt::CTRL | Qt::Key_N, {u"Coup suivant", u"Next shot"}};
inline constexpr shortcut remove_shot{Qt::CTRL | Qt::Key_Delete, {u"Supprimer le coup", u"Remove the shot"}};
inline constexpr shortcut end_of_hole{
    Qt::Key_F5, {u"Fin du trou, carte rafraîchie", u"End of the hole, scorecard refreshed"}};
inline constexpr shortcut putt_report{
    Qt::CTRL | Qt::Key_P, {u"Rapport sur les coups roulés de la ronde", u"Report on the putts of the round"}};

// Report preview
inline constexpr shortcut close_preview{Qt::Key_Escape, {u"Fermer la fenêtre", u"Close the window"}};
inline constexpr shortcut print{Qt::CTRL | Qt::Key_P, {u"Imprimer…", u"Print…"}};
inline constexpr shortcut save_pdf{Qt::CTRL | Qt::Key_S, {u"Enregistrer en PDF…", u"Save as PDF…"}};
inline constexpr shortcut zoom_out{Qt::CTRL | Qt::Key_Minus, {u"Réduire", u"Zoom out"}};
inline constexpr shortcut zoom_in{Qt::CTRL | Qt::Key_Plus, {u"Agrandir", u"Zoom in"}};
inline constexpr shortcut fit_width{Qt::CTRL | Qt::Key_0, {u"Pleine largeur", u"Fit width"}};
inline constexpr shortcut previous_page{Qt::Key_PageUp, {u"Page précédente", u"Previous page"}};
inline constexpr shortcut next_page{Qt::Key_PageDown, {u"Page suivante", u"Next page"}};

}  // namespace shortcut_table

}  // namespace verdane
