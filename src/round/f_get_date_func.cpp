#include "round/f_get_date_func.h"

#include <QCalendarWidget>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>

#include "base/language.h"
#include "controls/boxes.h"
#include "records/round_columns.h"
#include "round/f_get_date.h"
#include "round/f_new_round.h"
#include "round/round_boxes.h"
#include "scoring/Verdane_tools.h"
#include "store/DataEnvironment1.h"

namespace verdane::f_get_date_func {

using namespace Qt::StringLiterals;

namespace {

constexpr std::int16_t part_width = 2;

/// The moment as the three boxes and the calendar tell it.
struct tee_off {
    QDate date;
    QString hours;
    QString minutes;
    QString seconds;

    QString key() const { return date.toString(u"yyyyMMdd") + hours + minutes + seconds; }
    QString time_text() const { return hours + u':' + minutes + u':' + seconds; }
};

/// Nothing filters the boxes: what is no time passes through into the key.
QString padded(const QLineEdit& box)
{
    QString text = box.text();
    return Verdane_tools::pad_zero(text, part_width);
}

tee_off read_tee_off(const f_get_date& dialog)
{
    return {dialog.round_date->selectedDate(), padded(*dialog.Text1), padded(*dialog.Text2),
            padded(*dialog.Text3)};
}

bool user_is_sure()
{
    return ask_yes_no(
        in_language(u"Cette date est définitive. Êtes vous sûr de la date et l'heure enregistrée ? ",
                    u"You will not be able to change this date afterwards. Do you want to use this date and "
                    u"time? "));
}

void name_round(f_new_round& round, const tee_off& moment)
{
    round.text(round_box::date).setText(QLocale::system().toString(moment.date, QLocale::ShortFormat));
    round.text(round_box::time).setText(moment.time_text());
    DataEnvironment1& store = data_environment();
    for (Recordset* recordset : {&store.rsgames2, &store.rsgames, &store.rscost})
        recordset->Fields(round_columns::date).set(moment.key());
    round.date_value = moment.key();
    round.b_getdat->setEnabled(false);
}

}  // namespace

void activate(f_get_date& dialog)
{
    if (!is_french) {
        dialog.Command1->setText(u"Cancel"_s);
        dialog.setWindowTitle(u"Tee Off Date and Time"_s);
    }
    dialog.OKbut->setFocus(Qt::OtherFocusReason);
}

void date_chosen(f_get_date& dialog, const QDate& date)
{
    dialog.round_date->setSelectedDate(date);
    dialog.OKbut->setFocus(Qt::OtherFocusReason);
}

void cancel(f_get_date& dialog, f_new_round& round)
{
    round.get_date_canceled = true;
    dialog.unload();
}

void accept_date(f_get_date& dialog, f_new_round& round)
{
    const tee_off moment = read_tee_off(dialog);
    if (!Verdane_tools::key_free(moment.key())) {
        tell(in_language(u"Une ronde à la date et à l'heure choisie existe déjà.",
                         u"A round with the selected date and time already exists."));
        return;
    }
    if (!user_is_sure())
        return;
    name_round(round, moment);
    dialog.unload();
}

}  // namespace verdane::f_get_date_func
