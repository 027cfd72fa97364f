#include <QTest>

#include "shell/start_up.h"
#include "store/schema.h"
#include "tests/round/entered_shots.h"
#include "tests/server/failing_round.h"
#include "tests/server/own_server.h"
#include "tests/shell/main_windows.h"
#include "tests/shell/program_run.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/store_invariants.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

void remove_row_columns()
{
    for (const table& each : schema())
        administer(u"alter table %1.%2 drop column verdane_row"_s.arg(file_of(program_run::store_place()),
                                                                      each.name));
}

/// Enters holes on both pages, removes a shot and changes a hole that was left.
void play_round(hand& user)
{
    open_the_round(user);
    for (int hole = 1; hole <= 3; ++hole)
        leave_hole(user, hole);
    open_detailed_page(user);
    enter_hole(user);
    user.click_tab(hole_tabs, 5);
    enter_hole(user);
    user.click_cell(details, 1, 3);
    user.click(u"CommandSup"_s);
    user.click_tab(hole_tabs, 6);
    open_quick_page(user);
    user.click_tab(hole_tabs, 2);
    user.fill(u"text_vrd_0"_s, u"7"_s);
    user.click_tab(hole_tabs, 18);
    accept(user);
    user.wait_until_closed(round_window());
}

/// Every row of every table; a row without its identity.
QStringList content_of(const reader& store)
{
    QStringList content;
    for (const table& each : schema()) {
        QStringList columns;
        for (const column& one : each.columns)
            columns << u'`' + one.name + u'`';
        for (const auto& row : store.rows(u"select %1 from `%2`"_s.arg(columns.join(u','), each.name))) {
            QString line = each.name;
            for (const QVariant& value : row)
                line += u'|' + (value.isNull() ? u"null"_s : value.toString());
            content << line;
        }
    }
    content.sort();
    return content;
}

QStringList content_after_round(bool with_identity)
{
    program_run run(2,
                    one_course() + one_round() + one_round(u"20260615093000"_s) +
                        QStringList{u"update sticknames set club_1 = 'D', club_9 = 'F9', club_14 = 'Pu'"_s});
    if (!with_identity)
        remove_row_columns();
    const int status = run.play_through([&](hand& user) {
        if (!with_identity) {
            user.wait_for_window(u"row_script_box"_s);
            user.key(Qt::Key_Return);
        }
        play_round(user);
        quit(user);
    });
    if (status != 0 || !broken_invariants(run.store()).isEmpty())
        return {u"status %1"_s.arg(status), broken_invariants(run.store()).join(u'\n')};
    return content_of(run.store());
}

}  // namespace

/// A round on a source whose tables someone made without the column that identifies a row.
class test_round_without_identity : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare_application(*qApp); }

    void a_round_is_stored_as_on_a_source_with_the_column()
    {
        const QStringList with = content_after_round(true);
        const QStringList without = content_after_round(false);
        QVERIFY2(with.filter(u"Stat_rounds|"_s).size() == 7, qPrintable(with.join(u'\n')));
        QCOMPARE(without, with);
    }
};

QTEST_MAIN(test_round_without_identity)
#include "test_round_without_identity.moc"
