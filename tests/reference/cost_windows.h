#pragma once

#include <QStringList>

#include <functional>

#include "base/language.h"
#include "controls/boxes.h"
#include "controls/events.h"
#include "controls/failure_guard.h"
#include "reference/f_cost.h"
#include "store/DataEnvironment1.h"
#include "tests/support/hand.h"
#include "tests/support/stored_diary.h"

/// Support for the tests of the cost window.
namespace verdane::testing {

using namespace Qt::StringLiterals;

inline QString cost_window()
{
    return in_language(u"f_cost", u"f_cost_en");
}

/// A store with two rows of costs; the second one is the current row of `rscost`.
class cost_store : public window_diary {
public:
    explicit cost_store(bool french = true, const QString& amounts = u"1,2,3,4,5,6,7,8,9,10,11,12"_s)
        : window_diary(french)
    {
        store.write({u"insert into cost (date) values ('20230101080000')"_s,
                     u"insert into cost (date, fg, cm, vt, ft, ba, tee, tex, nrt, lg, bs, ln, au) values "
                     "('20240614093000', "_s +
                         amounts + u')'});
        Recordset& cost = data_environment().rscost;
        cost.Open();
        cost.Find(u"Date ='20240614093000'"_s);
    }
    ~cost_store() { data_environment().rscost.Close(); }

    /// The totals that the window has reported.
    QStringList totals;
};

inline void in_costs(cost_store& store, const std::function<void(hand&)>& script)
{
    play(
        [&] {
            run_event([&] {
                f_cost window;
                on_signal(window, &f_cost::closed_with_total,
                          [&](const QString& total) { store.totals << total; });
                window.show_modal();
            });
        },
        [&](hand& user) {
            user.wait_for_window(cost_window());
            script(user);
            user.wait_until_closed(cost_window());
        });
}

}  // namespace verdane::testing
