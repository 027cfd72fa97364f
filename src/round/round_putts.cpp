#include "round/round_putts.h"

#include <QComboBox>
#include <QLineEdit>

#include "round/course_box.h"
#include "round/detailed_page.h"
#include "round/f_new_round.h"
#include "round/round_boxes.h"
#include "round/shot_entry.h"
#include "statistics/putt_statistics.h"

namespace verdane::f_new_round_func {

void report_putts(f_new_round& window)
{
    if (!finish_typing(window))
        return;
    // A hole of which nothing is told keeps the figures of the quick page.
    if (on_detailed_page(window) && !hole_is_untold())
        finish_hole(window);
    const QString round = window.caption(u"Ronde : ", u"Round : ") + window.text(round_box::date).text() +
                          u' ' + window.cmb_courses->course();
    const QString weather = window.caption(u"Conditions atmosphériques : ", u"Weather conditions : ") +
                            window.conditions->currentText();
    Statistics::one_round_putt_report(window.cr2, round, weather);
}

}  // namespace verdane::f_new_round_func
