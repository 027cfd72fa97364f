#include "statistics/f_carte.h"

#include <QFontDatabase>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "controls/events.h"
#include "controls/list_box.h"
#include "controls/look.h"
#include "controls/scrolled_content.h"
#include "statistics/f_carte_func.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

// A course name padded to its width, and the tee.
constexpr int characters_of_a_line = 60;
constexpr int lines_in_view = 12;

}  // namespace

f_carte::f_carte()
    : Form(u"f_carte"),
      cr2_(this),
      courses_(named(make_list_box(characters_of_a_line, lines_in_view), u"List1"))
{
    setWindowTitle(caption(u"Carte de pointage", u"Scorecard"));
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(2 * rhythm, 2 * rhythm, 2 * rhythm, 2 * rhythm);
    rows->setSpacing(2 * rhythm);
    rows->addWidget(scrolled(make_courses()), 1);
    rows->addLayout(make_buttons());
    courses_->setFocus();
    connect_events();
    take_size(sizeHint());
    f_carte_func::load(*this);
}

QLayout* f_carte::make_courses()
{
    auto* frame = named(new QGroupBox(caption(u"Terrain / Terte", u"Golf Course / Teeing Area")), u"Frame1");
    auto* heading =
        named(make_label(caption(u"Choisissez un terrain", u"Select a golf course"), courses_), u"Label1");
    // The names are padded with blanks to align the tees.
    courses_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    auto* inside = new QVBoxLayout(frame);
    inside->setContentsMargins(rhythm, rhythm, rhythm, rhythm);
    inside->setSpacing(rhythm / 2);
    inside->addWidget(heading);
    inside->addWidget(courses_);
    auto* content = new QVBoxLayout;
    content->addWidget(frame);
    return content;
}

QBoxLayout* f_carte::make_buttons()
{
    auto* foot = new QHBoxLayout;
    foot->setSpacing(rhythm);
    foot->addStretch(1);
    foot->addWidget(buttons_.add(0, make_button(u"OK"_s)));
    foot->addWidget(buttons_.add(1, make_button(caption(u"Annuler", u"Cancel"))));
    return foot;
}

void f_carte::connect_events()
{
    on_click(buttons_(0), [this] { f_carte_func::print(*this); });
    take_double_click_as_one(buttons_(0));
    on_click(buttons_(1), [this] { f_carte_func::cancel(*this); });
    set_cancel_button(buttons_(1));
    on_double_click(*courses_, [this] { f_carte_func::print(*this); });
}

void f_carte::show_courses(const QStringList& lines)
{
    fill_list_box(*courses_, lines);
}

int f_carte::selected_course() const
{
    return courses_->currentRow();
}

void f_carte::unloading()
{
    f_carte_func::unload();
}

}  // namespace verdane
