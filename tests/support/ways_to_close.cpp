#include "tests/support/ways_to_close.h"

#include <QTest>

#include "controls/Form.h"

namespace verdane::testing {

std::vector<way_to_close> ways_to_close(const std::function<QString()>& window,
                                        std::vector<way_to_close> buttons)
{
    std::vector<way_to_close> ways = std::move(buttons);
    ways.push_back({"the title bar", [window](hand& user) { user.close_window(window()); }});
    ways.push_back({"Escape", [](hand& user) { user.key(Qt::Key_Escape); }});
    ways.push_back({"the command Close of the main window",
                    [](hand& user) { user.look([] { current_form->closeForm(); }); }});
    return ways;
}

void every_way_to_close(const std::vector<way_to_close>& ways)
{
    QTest::addColumn<leaving>("leave");
    for (const way_to_close& way : ways)
        QTest::newRow(way.name) << way.leave;
}

}  // namespace verdane::testing
