#include "round/f_get_date.h"

#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "controls/accessible_controls.h"
#include "controls/control_array.h"
#include "controls/events.h"
#include "controls/look.h"
#include "controls/scrolled_content.h"
#include "round/f_get_date_func.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int time_digits = 3;

QLineEdit* make_time_box(const QString& start, QStringView name)
{
    QLineEdit* box = named(make_number_box(time_digits), name);
    box->setText(start);
    return box;
}

}  // namespace

f_get_date::f_get_date(f_new_round& round)
    : Form(u"f_get_date", twins::one),
      round_date(named(new QCalendarWidget, u"round_date")),
      Text1(make_time_box(u"12"_s, u"Text1")),
      Text2(make_time_box(u"00"_s, u"Text2")),
      Text3(make_time_box(u"00"_s, u"Text3")),
      OKbut(named(make_button(u"OK"_s), u"OKbut")),
      Command1(named(make_button(u"Annuler"_s), u"Command1")),
      round_(round)
{
    setWindowTitle(u"Date et heure du coup de départ"_s);
    round_date->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    round_date->setSelectedDate(QDate::currentDate());
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(2 * rhythm, 2 * rhythm, 2 * rhythm, 2 * rhythm);
    page->setSpacing(2 * rhythm);
    auto* content = new QVBoxLayout;
    content->setSpacing(2 * rhythm);
    content->addWidget(round_date, 1);
    content->addLayout(make_time_line());
    name_controls();
    page->addWidget(scrolled(content), 1);
    page->addLayout(make_button_line());
    take_size(sizeHint());
    connect_events();
}

void f_get_date::name_controls()
{
    const std::pair<QWidget*, QString> boxes[] = {{round_date, caption(u"Date", u"Date")},
                                                  {Text1, caption(u"Heures", u"Hours")},
                                                  {Text2, caption(u"Minutes", u"Minutes")},
                                                  {Text3, caption(u"Secondes", u"Seconds")}};
    for (const auto& [box, name] : boxes)
        name_control(*box, name);
    // The calendar has no name for its own parts.
    const std::pair<QString, QString> parts[] = {
        {u"qt_calendar_prevmonth"_s, caption(u"Mois précédent", u"Previous month")},
        {u"qt_calendar_nextmonth"_s, caption(u"Mois suivant", u"Next month")},
        {u"qt_calendar_yearedit"_s, caption(u"Année", u"Year")},
        {u"qt_calendar_calendarview"_s, caption(u"Jours", u"Days")}};
    for (const auto& [part, name] : parts) {
        if (auto* control = round_date->findChild<QWidget*>(part))
            name_control(*control, name);
    }
}

QLayout* f_get_date::make_time_line()
{
    auto* line = new QHBoxLayout;
    line->setSpacing(rhythm);
    line->addStretch();
    const std::pair<QLineEdit*, QString> boxes[] = {{Text1, u"h"_s}, {Text2, u"min"_s}, {Text3, u"s"_s}};
    for (const auto& [box, unit] : boxes) {
        line->addWidget(box);
        line->addWidget(make_label(unit, box));
    }
    line->addStretch();
    return line;
}

QLayout* f_get_date::make_button_line()
{
    auto* line = new QHBoxLayout;
    line->setSpacing(rhythm);
    line->addStretch();
    for (QPushButton* button : {OKbut, Command1}) {
        button->setMinimumWidth(12 * rhythm);
        line->addWidget(button);
    }
    return line;
}

void f_get_date::connect_events()
{
    on_click(*OKbut, [this] { f_get_date_func::accept_date(*this, round_); });
    on_click(*Command1, [this] { f_get_date_func::cancel(*this, round_); });
    set_cancel_button(*Command1);
    connect(round_date, &QCalendarWidget::activated, this,
            [this](const QDate& date) { run_event([&] { f_get_date_func::date_chosen(*this, date); }); });
}

void f_get_date::activated()
{
    f_get_date_func::activate(*this);
}

void f_get_date::close_requested()
{
    f_get_date_func::cancel(*this, round_);
}

}  // namespace verdane
