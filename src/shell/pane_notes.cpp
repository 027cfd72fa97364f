#include "shell/pane_notes.h"

#include <algorithm>
#include <utility>

#include "base/program.h"
#include "controls/control_array.h"
#include "controls/look.h"
#include "shell/main_menu.h"
#include "store/DataEnvironment1.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

QLabel* make_note(QStringView name, QWidget& pane)
{
    auto* note = named(new QLabel(&pane), name);
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    note->setAutoFillBackground(true);
    note->setMargin(rhythm);
    return note;
}

QString without_mnemonic(QString caption)
{
    return caption.remove(u'&');
}

/// The path to an entry of the menu, "Rounds, New Round".
QString path_in_menu(QStringView entry, bool french)
{
    for (const top_menu& menu : main_menu()) {
        for (const menu_entry& each : menu.entries) {
            if (each.name == entry)
                return without_mnemonic(menu.caption.in(french)) + u", "_s +
                       without_mnemonic(each.caption.in(french));
        }
    }
    return {};
}

/// The command that writes an invented season into the open store, which is empty.
QString sample_command()
{
    const bool is_file = data_environment().connection.location().where == store_location::place::file;
    return command_of_store_program() + (is_file ? u" sample file"_s : u" sample source"_s);
}

QString first_steps_text(bool french)
{
    const text_pair text{u"Il n'y a encore aucun terrain.\n\n"
                         u"1.  Entrez votre terrain : menu %1.\n"
                         u"2.  Entrez votre première ronde : menu %2.\n\n"
                         u"Pour essayer Verdane avec une saison inventée, fermez-le et tapez dans un "
                         u"terminal :\n%3\n\n"
                         u"La touche F1 ouvre le guide.",
                         u"There is no golf course yet.\n\n"
                         u"1.  Enter your golf course: menu %1.\n"
                         u"2.  Enter your first round: menu %2.\n\n"
                         u"To try Verdane with an invented season, close it and type in a terminal:\n"
                         u"%3\n\n"
                         u"The key F1 opens the guide."};
    return text.in(french).arg(path_in_menu(u"mManagF", french), path_in_menu(u"mOpen", french),
                               sample_command());
}

/// The width at which no line of the label is broken.
int width_of_lines(const QLabel& label)
{
    return label.fontMetrics().size(0, label.text()).width() + 2 * (label.margin() + label.frameWidth() + 1);
}

}  // namespace

void pane_notes::set_language(bool french)
{
    french_ = french;
    set_texts();
}

void pane_notes::show_first_steps(bool wanted)
{
    if (wanted == has_first_steps())
        return;
    if (wanted) {
        first_steps_ = make_note(u"first_steps", pane_);
        first_steps_->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
        first_steps_->setMargin(3 * rhythm);
        // The command in it may be a long path: it can be copied.
        first_steps_->setTextInteractionFlags(Qt::TextSelectableByMouse);
        first_steps_->setFocusPolicy(Qt::NoFocus);
    } else {
        delete std::exchange(first_steps_, nullptr);
    }
    set_texts();
}

void pane_notes::show_problem(const text_pair& line, const QString& details)
{
    if (problem_ == nullptr)
        problem_ = make_note(u"problem", pane_);
    problem_text_ = line;
    problem_->setToolTip(details);
    set_texts();
}

void pane_notes::set_texts()
{
    if (first_steps_ != nullptr)
        first_steps_->setText(first_steps_text(french_));
    if (problem_ != nullptr)
        problem_->setText(problem_text_.in(french_));
}

QRect pane_notes::lay_out()
{
    QRect free = pane_.rect();
    if (problem_ != nullptr) {
        const int height = problem_->heightForWidth(free.width());
        problem_->setGeometry(0, free.height() - height, free.width(), height);
        problem_->show();
        free.setHeight(free.height() - height);
    }
    if (first_steps_ != nullptr) {
        const int width = std::min(width_of_lines(*first_steps_), free.width() - 2 * rhythm);
        const int height = first_steps_->heightForWidth(width);
        // In the sky of the picture.
        first_steps_->setGeometry((free.width() - width) / 2, (free.height() - height) / 4, width, height);
        first_steps_->raise();
        first_steps_->show();
    }
    return free;
}

}  // namespace verdane
