#pragma once

#include <QStringList>

#include <functional>

#include "base/language.h"
#include "controls/boxes.h"
#include "controls/failure_guard.h"
#include "reference/f_cost.h"
#include "store/DataEnvironment1.h"
#include "tests/support/hand.h"
#include "tests/support/reader.h"
#include "tests/support/recording_frame.h"
#include "tests/support/store_folder.h"

/// What the tests of the window of costs share.
namespace verdane::testing {

using namespace Qt::StringLiterals;

inline QString cost_window()
{
    return in_language(u"f_cost", u"f_cost_en");
}

/// A store with one row of costs, on which `rscost` stands while a test runs.
class cost_store {
public:
    explicit cost_store(bool french = true, const QString& amounts = u"1,2,3,4,5,6,7,8,9,10,11,12"_s)
        : folder_(french)
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

private:
    store_folder folder_;

public:
    reader store{folder_.path()};
    recording_frame frame;
    /// What the window told at its closings.
    QStringList totals;
};

inline void in_costs(cost_store& store, const std::function<void(hand&)>& script)
{
    play(
        [&] {
            run_event([&] {
                f_cost window([&](const QString& total) { store.totals << total; });
                window.show_modal();
            });
        },
        [&](hand& user) {
            user.wait_for_window(cost_window());
            script(user);
            user.wait_until_gone(cost_window());
        });
}

}  // namespace verdane::testing
