#include "tests/support/ways_out.h"

#include <QTest>

#include "controls/Form.h"
#include "controls/main_frame.h"

namespace verdane::testing {

std::vector<way_out> ways_out(const std::function<QString()>& window, std::vector<way_out> buttons)
{
    std::vector<way_out> ways = std::move(buttons);
    ways.push_back({"the title bar", [window](hand& user) { user.close_window(window()); }});
    ways.push_back({"Escape", [](hand& user) { user.key(Qt::Key_Escape); }});
    ways.push_back({"the command Close of the main window",
                    [](hand& user) { user.look([] { current_form->closeForm(); }); }});
    return ways;
}

void every_way_out(const std::vector<way_out>& ways)
{
    QTest::addColumn<leaving>("leave");
    for (const way_out& way : ways)
        QTest::newRow(way.name) << way.leave;
}

}  // namespace verdane::testing
