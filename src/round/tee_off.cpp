#include "round/tee_off.h"

#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/language.h"
#include "controls/accessible_controls.h"
#include "controls/boxes.h"
#include "controls/control_array.h"
#include "controls/events.h"
#include "controls/look.h"
#include "controls/scrolled_content.h"
#include "records/Main_module.h"
#include "scoring/Verdane_tools.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int time_digits = 3;
constexpr std::int16_t part_width = 2;

QLineEdit* make_time_box(const QString& start, QStringView name)
{
    QLineEdit* box = named(make_number_box(time_digits), name);
    box->setText(start);
    return box;
}

QString padded(const QLineEdit& box)
{
    QString text = box.text();
    return Verdane_tools::pad_zero(text, part_width);
}

bool user_confirms()
{
    return ask_yes_no(
        in_language(u"Cette date est définitive. Êtes vous sûr de la date et l'heure enregistrée ? ",
                    u"You will not be able to change this date afterwards. Do you want to use this date and "
                    u"time? "));
}

}  // namespace

QString tee_off_moment::key() const
{
    return date.toString(u"yyyyMMdd") + hours + minutes + seconds;
}

QString tee_off_moment::time_text() const
{
    return hours + u':' + minutes + u':' + seconds;
}

f_get_date::f_get_date()
    : Form(u"f_get_date", twins::one),
      calendar_(named(new QCalendarWidget, u"round_date")),
      hours_box_(make_time_box(u"12"_s, u"Text1")),
      minutes_box_(make_time_box(u"00"_s, u"Text2")),
      seconds_box_(make_time_box(u"00"_s, u"Text3")),
      ok_button_(named(make_end_button(u"OK"_s), u"OKbut")),
      cancel_button_(named(make_end_button(u"Annuler"_s), u"Command1"))
{
    setWindowTitle(u"Date et heure du coup de départ"_s);
    calendar_->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar_->setSelectedDate(QDate::currentDate());
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(2 * rhythm, 2 * rhythm, 2 * rhythm, 2 * rhythm);
    page->setSpacing(2 * rhythm);
    auto* content = new QVBoxLayout;
    content->setSpacing(2 * rhythm);
    content->addWidget(calendar_, 1);
    content->addLayout(make_time_line());
    name_controls();
    page->addWidget(scrolled(content), 1);
    page->addLayout(make_button_line());
    take_size(sizeHint());
    connect_events();
}

void f_get_date::name_controls()
{
    const std::pair<QWidget*, QString> boxes[] = {{calendar_, caption(u"Date", u"Date")},
                                                  {hours_box_, caption(u"Heures", u"Hours")},
                                                  {minutes_box_, caption(u"Minutes", u"Minutes")},
                                                  {seconds_box_, caption(u"Secondes", u"Seconds")}};
    for (const auto& [box, name] : boxes)
        name_control(*box, name);
    // The calendar does not name its parts for screen readers.
    const std::pair<QString, QString> parts[] = {
        {u"qt_calendar_prevmonth"_s, caption(u"Mois précédent", u"Previous month")},
        {u"qt_calendar_nextmonth"_s, caption(u"Mois suivant", u"Next month")},
        {u"qt_calendar_yearedit"_s, caption(u"Année", u"Year")},
        {u"qt_calendar_calendarview"_s, caption(u"Jours", u"Days")}};
    for (const auto& [part, name] : parts) {
        if (auto* control = calendar_->findChild<QWidget*>(part))
            name_control(*control, name);
    }
}

QLayout* f_get_date::make_time_line()
{
    auto* line = new QHBoxLayout;
    line->setSpacing(rhythm);
    line->addStretch();
    const std::pair<QLineEdit*, QString> boxes[] = {
        {hours_box_, u"h"_s}, {minutes_box_, u"min"_s}, {seconds_box_, u"s"_s}};
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
    for (QPushButton* button : {ok_button_, cancel_button_})
        line->addWidget(button);
    return line;
}

void f_get_date::connect_events()
{
    on_click(*ok_button_, [this] { accept_moment(); });
    on_click(*cancel_button_, [this] { cancel(); });
    set_cancel_button(*cancel_button_);
    connect(calendar_, &QCalendarWidget::activated, this,
            [this](const QDate& date) { run_event([&] { select_date(date); }); });
}

void f_get_date::activated()
{
    if (!is_french) {
        cancel_button_->setText(u"Cancel"_s);
        setWindowTitle(u"Tee Off Date and Time"_s);
    }
    ok_button_->setFocus(Qt::OtherFocusReason);
}

void f_get_date::close_requested()
{
    cancel();
}

tee_off_moment f_get_date::moment() const
{
    return {calendar_->selectedDate(), padded(*hours_box_), padded(*minutes_box_), padded(*seconds_box_)};
}

void f_get_date::accept_moment()
{
    const tee_off_moment chosen = moment();
    if (!Verdane_tools::key_free(chosen.key())) {
        show_information(in_language(u"Une ronde à la date et à l'heure choisie existe déjà.",
                                     u"A round with the selected date and time already exists."));
        return;
    }
    if (!user_confirms())
        return;
    Q_EMIT moment_chosen(chosen);
    unload();
}

void f_get_date::cancel()
{
    Q_EMIT canceled();
    unload();
}

void f_get_date::select_date(const QDate& date)
{
    calendar_->setSelectedDate(date);
    ok_button_->setFocus(Qt::OtherFocusReason);
}

}  // namespace verdane
