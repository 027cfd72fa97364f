#include "round/detailed_page.h"

#include <QHBoxLayout>
#include <QPushButton>

#include <utility>

#include "base/language.h"
#include "controls/accessible_controls.h"
#include "controls/boxes.h"
#include "controls/events.h"
#include "controls/Form.h"
#include "controls/look.h"
#include "controls/shortcuts.h"
#include "round/shot_grid.h"

namespace verdane {

using namespace Qt::StringLiterals;

detailed_page::detailed_page(Form& window, shot_rows& rows, std::function<hole_on_screen()> hole)
    : QGroupBox(window.caption(u"Coups", u"Shots")),
      window_(window),
      rows_(rows),
      entry_(rows, std::move(hole)),
      grid_(new shot_grid(window, rows, entry_))
{
    setObjectName(u"Framedet"_s);
    name_control(*grid_, title());
    grid_->set_up_columns();
    // The grid keeps its space while it is hidden, so that no other control moves.
    QSizePolicy policy = grid_->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    grid_->setSizePolicy(policy);
    auto* lines = new QVBoxLayout(this);
    lines->setContentsMargins(rhythm, rhythm, rhythm, rhythm);
    lines->setSpacing(rhythm);
    lines->addWidget(grid_, 1);
    lines->addLayout(make_commands());
    hide();
    connect_events();
}

QPushButton* detailed_page::make_command(const text_pair& caption, QStringView name, const shortcut& keys)
{
    QPushButton* button = named(make_button(caption.in(window_.french())), name);
    window_.shortcuts().add(keys, *button);
    return button;
}

QLayout* detailed_page::make_commands()
{
    next_button_ = make_command({u"Coup suivant", u"Next Shot"}, u"CommandSuiv", shortcut_table::next_shot);
    remove_button_ = make_command({u"Supprimer", u"Remove"}, u"CommandSup", shortcut_table::remove_shot);
    finish_button_ = make_command({u"Fin - Rafraichir carte de pointage", u"End - Refresh Scorecard"},
                                  u"b_carte", shortcut_table::end_of_hole);
    auto* line = new QHBoxLayout;
    line->setSpacing(rhythm);
    line->addWidget(next_button_);
    line->addWidget(remove_button_);
    line->addStretch();
    line->addWidget(finish_button_);
    return line;
}

void detailed_page::connect_events()
{
    const std::pair<QPushButton*, void (detailed_page::*)()> commands[] = {
        {next_button_, &detailed_page::next_shot},
        {remove_button_, &detailed_page::remove_shot},
        {finish_button_, &detailed_page::finish_hole}};
    for (const auto& [button, routine] : commands) {
        on_click(*button, [this, pressed = routine] {
            if (finish_typing())
                (this->*pressed)();
        });
    }
    on_signal(*grid_, &shot_grid::next_shot_wanted, [this] { next_shot(); });
    on_signal(*grid_, &shot_grid::last_column_chosen, [this] { next_button_->setFocus(Qt::TabFocusReason); });
}

bool detailed_page::finish_typing()
{
    return grid_->commit_cell();
}

void detailed_page::enter()
{
    grid_->set_club_names(shot_entry::club_names());
    grid_->set_up_columns();
}

void detailed_page::enter_again()
{
    const int row = grid_->currentIndex().row();
    // Shots that could not be opened before are not opened without an action of the user.
    if (rows_.is_open()) {
        rows_.commit();
        rows_.reopen();
    }
    grid_->bound_model().move_to(row);
    grid_->ReBind();
    focus_grid();
}

void detailed_page::focus_grid()
{
    grid_->setFocus(Qt::OtherFocusReason);
}

void detailed_page::focus_club()
{
    grid_->set_Col(shot_grid::club_column);
    focus_grid();
}

void detailed_page::unbind()
{
    grid_->unbind();
}

void detailed_page::show_incomplete(const QString& number)
{
    show_information(window_.caption(u"Il faut indiquer le bâton et le type de coup (VRD) pour le coup",
                                     u"Please indicate a golf club and the type of shot (VRD) for the shot") +
                         number,
                     QMessageBox::Critical);
}

bool detailed_page::open_hole_shots()
{
    if (entry_.hole().key.isEmpty()) {
        show_information(window_.caption(u"Veuillez d'abord choisir la date de la ronde.",
                                         u"Please enter the round's date."),
                         QMessageBox::Critical);
        return false;
    }
    grid_->hide();
    grid_->unbind();
    entry_.load_hole();
    grid_->bind();
    grid_->show();
    return true;
}

bool detailed_page::check_shots()
{
    if (!rows_.has_hole())
        return true;
    const int incomplete = entry_.check_shots();
    grid_->ReBind();
    if (incomplete == 0)
        return true;
    show_incomplete(u' ' + QString::number(incomplete));
    return false;
}

blank_shot detailed_page::drop_blank_shot()
{
    if (!entry_.drop_blank_shot())
        return {false, check_shots()};
    grid_->ReBind();
    return {true, std::nullopt};
}

/// Called when the hole has no shots any more.
void detailed_page::start_hole_again()
{
    grid_->unbind();
    entry_.add_first_shot();
    grid_->bind();
    grid_->ReBind();
}

void detailed_page::next_shot()
{
    if (!entry_.hole_is_loaded())
        return;
    if (rows_.empty()) {
        start_hole_again();
        return;
    }
    const std::optional<int16> distance = entry_.prepare_next_shot();
    if (!distance) {
        grid_->ReBind();
        show_incomplete(QString());
        grid_->take_keyboard();
        return;
    }
    finish_hole();
    entry_.add_shot(*distance);
    grid_->ReBind();
    grid_->set_Col(entry_.PUT_MODE() ? shot_grid::distance_column : shot_grid::club_column);
    grid_->take_keyboard();
}

void detailed_page::remove_shot()
{
    if (!entry_.hole_is_loaded() || !rows_.on_a_row()) {
        show_information(window_.caption(u"Choisissez le coup que vous voulez supprimer.",
                                         u"Please select the shot you wish to remove."),
                         QMessageBox::Critical);
        return;
    }
    rows_.remove_current();
    grid_->ReBind();
    if (!rows_.empty())
        check_shots();
    entry_.set_put_mode_by_last_shot();
}

void detailed_page::finish_hole()
{
    if (!entry_.hole_is_loaded())
        return;
    drop_blank_shot();
    summarise_hole();
    if (rows_.empty())
        start_hole_again();
}

void detailed_page::summarise_hole()
{
    const std::optional<hole_summary> summary = entry_.summarise_hole();
    if (!summary)
        return;
    grid_->ReBind();
    Q_EMIT summarised(*summary);
}

void detailed_page::show_finish_button(bool visible)
{
    finish_button_->setVisible(visible);
}

std::vector<QWidget*> detailed_page::tab_order() const
{
    return {grid_, next_button_, remove_button_, finish_button_};
}

}  // namespace verdane
