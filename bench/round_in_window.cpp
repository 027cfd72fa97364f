#include "bench/round_in_window.h"

#include <QApplication>
#include <QTimer>

#include "controls/TabStrip.h"
#include "records/round_list.h"
#include "round/f_new_round.h"
#include "store/DataEnvironment1.h"

namespace verdane::bench {

using namespace Qt::StringLiterals;

void open_tables_of_list()
{
    Round_functions::open_rounds_in_time_order();
    data_environment().rsfield_info.Open();
}

void in_round_window(const QString& key, const std::function<void(f_new_round&)>& work)
{
    QTimer::singleShot(0, qApp, [&] {
        auto& window = dynamic_cast<f_new_round&>(*open_form(u"f_new_round"));
        work(window);
        window.unload();
    });
    open_stored_round(key);
}

void on_detailed_page_of(const QString& key, const std::function<void(f_new_round&)>& work)
{
    in_round_window(key, [&](f_new_round& window) {
        click_tab_of_shots(window);
        Form::paint_now();
        work(window);
    });
}

void click_tab_of_shots(f_new_round& window)
{
    window.findChild<TabStrip*>(u"TabStrip2"_s)->click(static_cast<int>(round_page::detailed));
}

}  // namespace verdane::bench
