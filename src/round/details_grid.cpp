#include "round/details_grid.h"

#include <QAction>
#include <QHeaderView>

#include <algorithm>
#include <array>

#include "base/language.h"
#include "controls/choice_menu.h"
#include "controls/data_grid.h"
#include "controls/events.h"
#include "controls/keys.h"
#include "controls/look.h"
#include "controls/main_frame.h"
#include "round/f_new_round.h"
#include "round/shot_menus.h"
#include "scoring/shot_words.h"
#include "store/DataEnvironment1.h"

namespace verdane {

namespace {

namespace shown = f_new_round_func::details_column;

struct details_layout {
    QStringView field;
    text_pair caption;
    int width_twips;  ///< 0: hidden
    bool locked;
    bool yes_or_no;
};

constexpr std::array columns{
    details_layout{u"HOLE", {u"Trou", u"Shot"}, 0, false, false},
    details_layout{u"Shot", {u"Coup", u"Shot"}, 700, false, false},
    details_layout{u"STICK", {u"Bâton", u"Club"}, 700, true, false},
    details_layout{u"AFTER", {u"Distance restante", u"Remaining Distance"}, 2000, false, false},
    details_layout{u"unit", {u"Unités", u"Units"}, 700, true, false},
    details_layout{u"SHOT_TYPE", {u"VRD", u"VRD"}, 1740, false, false},
    details_layout{u"BEYONG_HOLE", {u"Dépassement", u"Beyond hole"}, 1740, true, true},
    details_layout{u"MISSED", {u"Raté", u"Missed "}, 700, true, true},
    details_layout{u"TS", {u"Trappe de sable", u"Sand Trap "}, 1300, true, true},
    details_layout{u"DZ", {u"Distance zéro", u"Distance zero"}, 1200, true, true},
    details_layout{u"Faireway", {u"Allée", u"Fairway "}, 1500, true, false},
    details_layout{u"Penality", {u"Pénalité", u"Penalty "}, 1200, false, false},
    details_layout{u"Shot", {u"Shot", u"Shot"}, 0, false, false},
};

std::vector<bound_column> bound_columns(const f_new_round& window)
{
    std::vector<bound_column> bound;
    for (const details_layout& column : columns) {
        bound_column next{column.field.toString(), column.caption.in(window.french()), column.locked};
        if (column.yes_or_no) {
            next.yes = yes_word.in(window.french());
            next.no = no_word.in(window.french());
        }
        bound.push_back(next);
    }
    return bound;
}

/// A menu whose entries lead to a routine, told apart by their number.
template <typename Routine>
choice_menu* make_menu(f_new_round& window, QStringView name, control_array<QAction>& entries, int first,
                       const QStringList& captions, Routine chosen)
{
    auto* menu = named(new choice_menu(&window), name);
    int number = first;
    for (const QString& caption : captions) {
        QAction* entry = entries.add(number, menu->add_choice(QString(), caption));
        QObject::connect(entry, &QAction::triggered, menu,
                         [&window, number, chosen] { run_event([&] { chosen(window, number); }); });
        ++number;
    }
    return menu;
}

template <typename Words>
QStringList captions_of(const f_new_round& window, const Words& words)
{
    QStringList captions;
    for (const text_pair& word : words)
        captions << word.in(window.french());
    return captions;
}

QStringList no_names_yet()
{
    QStringList names;
    for (int club = 0; club < club_menu_count; ++club)
        names << QString();
    return names;
}

QStringList names_of_clubs(const f_new_round& window)
{
    QStringList names;
    for (const auto& [club, entry] : window.ms1.members())
        names << choice_menu::caption_of(*entry);
    return names;
}

void give_menus(f_new_round& window, data_grid& details)
{
    using namespace f_new_round_func;
    details.set_cell_menu(shown::club,
                          make_menu(window, u"mSticks", window.ms1, 1, no_names_yet(), club_chosen));
    details.set_cell_menu(shown::kind, make_menu(window, u"mshot", window.mshots, 1,
                                                 captions_of(window, kind_words), kind_chosen));
    choice_menu* mon =
        make_menu(window, u"mon", window.mb, 0, captions_of(window, std::array{yes_word, no_word}),
                  [](f_new_round& round, int entry) { yes_or_no_chosen(round, entry == 0); });
    for (const int column : {shown::beyond, shown::missed, shown::sand, shown::zero})
        details.set_cell_menu(column, mon);
    details.set_cell_menu(shown::position, make_menu(window, u"mAlle", window.ma, 1,
                                                     captions_of(window, position_words), position_chosen));
    details.set_cell_menu(shown::penalty, make_menu(window, u"mpen", window.mp, 1,
                                                    captions_of(window, penalty_words), penalty_chosen));
}

/// A club's name may make its column this wide, and no wider.
constexpr int widest_club_twips = 1000;
/// What a cell leaves free beside its words.
constexpr int cell_margin = 6;

/// What the cells of a column may say.
QStringList words_of_cells(const f_new_round& window, int column)
{
    switch (column) {
    case shown::club:
        return names_of_clubs(window);
    case shown::unit:
        return captions_of(window, std::array{feet_words, yards_words});
    case shown::kind:
        return captions_of(window, kind_words);
    case shown::position:
        return captions_of(window, position_words);
    case shown::penalty:
        return captions_of(window, penalty_words);
    default:
        return columns[static_cast<std::size_t>(column)].yes_or_no
                   ? captions_of(window, std::array{yes_word, no_word})
                   : QStringList();
    }
}

int widest(const QFontMetrics& font, const QStringList& words)
{
    int width = 0;
    for (const QString& word : words)
        width = std::max(width, font.horizontalAdvance(word));
    return width;
}

/// What the words of a narrow column need where the font is wide.
int width_of_words(const f_new_round& window, int column)
{
    const data_grid& details = *window.details;
    const QFontMetrics font = details.fontMetrics();
    const QStringList heads =
        columns[static_cast<std::size_t>(column)].caption.in(window.french()).split(u' ');
    const int button =
        details.has_cell_button(column) ? data_grid::button_in(QRect(0, 0, 100, 10)).width() : cell_margin;
    const int cells = widest(font, words_of_cells(window, column)) + cell_margin + button;
    return std::max(widest(font, heads) + rhythm + rhythm / 2,
                    column == shown::club ? std::min(cells, pixels(widest_club_twips)) : cells);
}

}  // namespace

data_grid* make_details(f_new_round& window)
{
    auto* details =
        named(new data_grid(new recordset_model(data_environment().rsStat_rounds, bound_columns(window))),
              u"details");
    give_menus(window, *details);
    details->set_key_filter(shown::distance, digits_only);
    details->hold_refused_text(shown::distance);
    details->column_updated = [&window](int column) { f_new_round_func::column_updated(window, column); };
    QHeaderView& heads = *details->horizontalHeader();
    heads.setDefaultAlignment(Qt::AlignCenter | static_cast<Qt::Alignment>(Qt::TextWordWrap));
    heads.setMinimumSectionSize(pixels(600));
    heads.setFixedHeight(2 * heads.fontMetrics().lineSpacing() + rhythm);
    details->verticalHeader()->setDefaultSectionSize(3 * rhythm + rhythm / 2);
    return details;
}

void set_up_columns(f_new_round& window)
{
    data_grid& details = *window.details;
    for (std::size_t column = 0; column < columns.size(); ++column) {
        const details_layout& laid_out = columns[column];
        const int place = static_cast<int>(column);
        details.setColumnHidden(place, laid_out.width_twips == 0);
        if (laid_out.width_twips > 0)
            details.setColumnWidth(place,
                                   std::max(pixels(laid_out.width_twips), width_of_words(window, place)));
    }
}

}  // namespace verdane
