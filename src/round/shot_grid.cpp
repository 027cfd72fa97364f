#include "round/shot_grid.h"

#include <QHeaderView>

#include <algorithm>
#include <array>

#include "base/language.h"
#include "controls/choice_menu.h"
#include "controls/events.h"
#include "controls/Form.h"
#include "controls/keys.h"
#include "controls/look.h"
#include "round/shot_entry.h"
#include "round/shot_rows.h"
#include "scoring/limits.h"
#include "scoring/words.h"
#include "store/tables/Stat_rounds.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

namespace Stat_rounds = tables::Stat_rounds;

struct column_layout {
    int ordinal;
    text_pair caption;
    int width_twips;  ///< 0: hidden
    bool locked;
    bool yes_or_no;
};

constexpr std::array columns{
    column_layout{Stat_rounds::hole, {u"Trou", u"Shot"}, 0, false, false},
    column_layout{Stat_rounds::shot, {u"Coup", u"Shot"}, 700, false, false},
    column_layout{Stat_rounds::stick, {u"Bâton", u"Club"}, 700, true, false},
    column_layout{Stat_rounds::after, {u"Distance restante", u"Remaining Distance"}, 2000, false, false},
    column_layout{Stat_rounds::unit, {u"Unités", u"Units"}, 700, true, false},
    column_layout{Stat_rounds::shot_type, {u"VRD", u"VRD"}, 1740, false, false},
    column_layout{Stat_rounds::beyong_hole, {u"Dépassement", u"Beyond hole"}, 1740, true, true},
    column_layout{Stat_rounds::missed, {u"Raté", u"Missed "}, 700, true, true},
    column_layout{Stat_rounds::ts, {u"Trappe de sable", u"Sand Trap "}, 1300, true, true},
    column_layout{Stat_rounds::dz, {u"Distance zéro", u"Distance zero"}, 1200, true, true},
    column_layout{Stat_rounds::faireway, {u"Allée", u"Fairway "}, 1500, true, false},
    column_layout{Stat_rounds::penality, {u"Pénalité", u"Penalty "}, 1200, false, false},
    column_layout{Stat_rounds::shot, {u"Shot", u"Shot"}, 0, false, false},
};

constexpr std::array yes_no_words{yes_word, no_word};
constexpr std::array unit_words_of_both{feet_words, yards_words};

/// The largest width of the column of clubs.
constexpr int widest_club_twips = 1000;
/// Free pixels next to the text of a cell.
constexpr int cell_margin = 6;
constexpr int narrowest_column_twips = 600;

std::vector<bound_column> bound_columns(bool french)
{
    std::vector<bound_column> bound;
    for (const column_layout& column : columns) {
        bound_column next{column.ordinal, column.caption.in(french), column.locked};
        if (column.yes_or_no) {
            next.yes = yes_word.in(french);
            next.no = no_word.in(french);
        }
        bound.push_back(next);
    }
    return bound;
}

const column_layout& layout_of(int column)
{
    return columns[static_cast<std::size_t>(column)];
}

template <typename Words>
QStringList captions_of(bool french, const Words& words)
{
    QStringList captions;
    for (const text_pair& word : words)
        captions << word.in(french);
    return captions;
}

int widest(const QFontMetrics& font, const QStringList& words)
{
    int width = 0;
    for (const QString& word : words)
        width = std::max(width, font.horizontalAdvance(word));
    return width;
}

}  // namespace

shot_grid::shot_grid(Form& window, shot_rows& rows, const shot_entry& entry)
    : data_grid(rows.make_model(bound_columns(window.french()))),
      rows_(rows),
      entry_(entry),
      french_(window.french())
{
    setObjectName(u"details"_s);
    add_menus(window);
    set_key_filter(distance_column, digits_only);
    keep_refused_text(distance_column);
    QHeaderView& heads = *horizontalHeader();
    heads.setDefaultAlignment(Qt::AlignCenter | static_cast<Qt::Alignment>(Qt::TextWordWrap));
    heads.setMinimumSectionSize(pixels(narrowest_column_twips));
    heads.setFixedHeight(2 * heads.fontMetrics().lineSpacing() + rhythm);
    verticalHeader()->setDefaultSectionSize(3 * rhythm + rhythm / 2);
    on_signal(*this, &shot_grid::column_updated,
              [this](int column) { run_on_row(&shot_grid::cell_typed, column); });
}

choice_menu* shot_grid::make_menu(Form& window, QStringView name, control_array<QAction>& entries, int first,
                                  const QStringList& captions, entry_routine chosen)
{
    auto* menu = named(new choice_menu(&window), name);
    int number = first;
    for (const QString& caption : captions) {
        QAction* entry = entries.add(number, menu->add_choice(QString(), caption));
        on_signal(*entry, &QAction::triggered, [this, number, chosen](bool) { run_on_row(chosen, number); });
        ++number;
    }
    return menu;
}

void shot_grid::add_menus(Form& window)
{
    const QStringList unnamed_clubs(club_count, QString());
    set_cell_menu(club_column,
                  make_menu(window, u"mSticks", club_entries_, 1, unnamed_clubs, &shot_grid::club_chosen));
    set_cell_menu(kind_column, make_menu(window, u"mshot", kind_entries_, 1, captions_of(french_, kind_words),
                                         &shot_grid::kind_chosen));
    choice_menu* yes_or_no = make_menu(window, u"mon", yes_no_entries_, 0, captions_of(french_, yes_no_words),
                                       &shot_grid::yes_or_no_chosen);
    for (const int column : {beyond_column, missed_column, sand_column, zero_column})
        set_cell_menu(column, yes_or_no);
    set_cell_menu(position_column,
                  make_menu(window, u"mAlle", position_entries_, 1, captions_of(french_, position_words),
                            &shot_grid::position_chosen));
    set_cell_menu(penalty_column, make_menu(window, u"mpen", penalty_entries_, 1,
                                            captions_of(french_, penalty_words), &shot_grid::penalty_chosen));
}

void shot_grid::set_club_names(const QStringList& names)
{
    for (int club = 1; club <= names.size(); ++club)
        choice_menu::set_caption(club_entries_(club), names[club - 1]);
}

/// All texts that the cells of a column can show.
QStringList shot_grid::words_of_cells(int column) const
{
    switch (column) {
    case club_column: {
        QStringList names;
        for (const auto& [club, entry] : club_entries_.members())
            names << choice_menu::caption_of(*entry);
        return names;
    }
    case unit_column:
        return captions_of(french_, unit_words_of_both);
    case kind_column:
        return captions_of(french_, kind_words);
    case position_column:
        return captions_of(french_, position_words);
    case penalty_column:
        return captions_of(french_, penalty_words);
    default:
        return layout_of(column).yes_or_no ? captions_of(french_, yes_no_words) : QStringList();
    }
}

/// The width that the texts of a column need. A word of its caption never wraps.
int shot_grid::width_of_words(int column) const
{
    const QFontMetrics font = fontMetrics();
    const QStringList heads = layout_of(column).caption.in(french_).split(u' ');
    const int button =
        has_cell_button(column) ? cell_menus::button_in(QRect(0, 0, 100, 10)).width() : cell_margin;
    const int cells = widest(font, words_of_cells(column)) + cell_margin + button;
    return std::max(widest(font, heads) + rhythm + rhythm / 2,
                    column == club_column ? std::min(cells, pixels(widest_club_twips)) : cells);
}

void shot_grid::set_up_columns()
{
    for (int column = 0; column < static_cast<int>(columns.size()); ++column) {
        const int twips = layout_of(column).width_twips;
        setColumnHidden(column, twips == 0);
        if (twips > 0)
            setColumnWidth(column, std::max(pixels(twips), width_of_words(column)));
    }
}

void shot_grid::run_on_row(entry_routine routine, int value)
{
    if (rows_.on_a_row())
        (this->*routine)(value);
}

void shot_grid::show_row(int next_column)
{
    ReBind();
    set_Col(next_column);
}

void shot_grid::club_chosen(int entry)
{
    rows_.current().set_club(entry, choice_menu::caption_of(club_entries_(entry)));
    show_row(distance_column);
}

void shot_grid::kind_chosen(int entry)
{
    rows_.current().set_kind(entry);
    if (entry == putt) {
        Q_EMIT next_shot_wanted();
        // The current row is the new shot, or the same one if the message was shown.
        rows_.current().make_putt();
    }
    show_row(entry == putt ? distance_column : kind_column);
}

void shot_grid::position_chosen(int entry)
{
    rows_.current().set_position(entry);
    show_row(Col() + 1);
}

void shot_grid::penalty_chosen(int entry)
{
    rows_.current().set_penalty(entry);
    Q_EMIT last_column_chosen();
    ReBind();
}

void shot_grid::yes_or_no_chosen(int entry)
{
    rows_.current().set_yes_or_no(bound_model().column(Col()).ordinal, entry == 0);
    show_row(Col() + 1);
}

void shot_grid::cell_typed(int column)
{
    rows_.current().set_par(entry_.hole().card.par);
    if (column == distance_column && rows_.current().distance_changed() && rows_.on_last_row())
        Q_EMIT next_shot_wanted();
    show_row(entry_.PUT_MODE() ? club_column : unit_column);
}

}  // namespace verdane
