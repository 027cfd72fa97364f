#include <QComboBox>
#include <QCoreApplication>
#include <QTest>

#include "base/language.h"
#include "reports/query/report_snapshot.h"
#include "round/f_new_round.h"
#include "statistics/putt_statistics.h"
#include "store/DataEnvironment1.h"
#include "tests/round/entered_shots.h"
#include "tests/round/round_windows.h"
#include "tests/support/hand_widgets.h"
#include "tests/support/languages.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString report = u"report_preview"_s;
const QString button = u"b_putts"_s;

/// A store that reports can read.
struct reported_store : golfer_store {
    explicit reported_store(bool french = true) : golfer_store(french)
    {
        set_report_store(data_environment().connection.location());
    }
};

/// Waits for the report above the round window and closes it.
void close_report(hand& user)
{
    user.wait_until(u"the report"_s, [] { return visible_window(report) != nullptr; });
    user.look([] {
        QWidget* preview = visible_window(report);
        QCOMPARE(preview->windowTitle(), u"Verdane International Inc."_s);
        QCOMPARE(preview->parentWidget()->objectName(), round_window());
        preview->close();
    });
    user.wait_until_closed(report);
}

void check_control(hand& user)
{
    with_round(user, [](f_new_round& window) {
        QCOMPARE(window.cr2().page_zoom().value_or(0), 75);
        QCOMPARE(window.cr2().ReportFileName(), QCoreApplication::applicationDirPath() +
                                                    in_language(u"\\statPuts.rpt", u"\\statPuts_en.rpt"));
    });
}

/// The bands of a row (from 1) of a report table that are above 0, as "band=count".
QString bands(const round_store& store, const QString& table, int row)
{
    const auto rows = store.store.rows(
        u"select band_1, band_2, band_3, band_4, band_5, band_6, band_7 from %1 order by rowid"_s.arg(table));
    const auto& wanted = rows[static_cast<std::size_t>(row - 1)];
    QStringList above_0;
    for (int band = 1; band <= 7; ++band) {
        const QString count = wanted[static_cast<std::size_t>(band - 1)].toString();
        if (count.toInt() > 0)
            above_0 << u"%1=%2"_s.arg(band).arg(count);
    }
    return above_0.join(u' ');
}

/// Every value of the only row of a table.
QString whole_row(const round_store& store, const QString& table)
{
    const auto rows = store.store.rows(u"select * from "_s + table);
    QStringList values;
    for (const QVariant& value : rows.at(0))
        values << (value.isNull() ? u"null"_s : value.toString());
    return values.join(u'|');
}

QString head(const round_store& store, const QString& column)
{
    return store.text(u"select %1 from s_put1 order by rowid limit 1"_s.arg(column));
}

}  // namespace

class test_round_putts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_report_includes_the_putts_of_the_current_hole_data() { both_languages(); }
    void the_report_includes_the_putts_of_the_current_hole()
    {
        QFETCH(bool, french);
        const reported_store round(french);
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_hole(user);
            user.click(button);
            close_report(user);
            check_control(user);
            // The hole is unchanged, and more shots can be entered.
            user.check(user.visible(details), u"the grid is visible"_s);
            accept(user);
        });
        // Putts from 30 and from 4 feet.
        QCOMPARE(bands(round.store, u"s_put1"_s, 2), u"3=1"_s);
        QCOMPARE(bands(round.store, u"s_put2"_s, 3), u"6=1"_s);
        QCOMPARE(bands(round.store, u"s_put2"_s, 7), u"7=1"_s);
        QCOMPARE(head(round.store, u"from_date"_s),
                 in_language(u"Ronde : 14 Jun 2024 Alpha, BLANC", u"Round : 14 Jun 2024 Alpha, WHITE"));
        QCOMPARE(head(round.store, u"to_date"_s),
                 in_language(u"Conditions atmosphériques : Ensoleillé", u"Weather conditions : Sunny"));
        QCOMPARE(round.shots(1), 4);
        QCOMPARE(stored_putts(round.store, 1), entered_putts);
    }

    void the_button_of_the_report_commits_a_holed_putt_and_opens_the_report()
    {
        const reported_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_hole(user);
            user.type(u"0"_s);
            user.press_and_release(button);
            user.answer(refusal_of_shot());
            close_report(user);
            accept(user);
        });
        QCOMPARE(bands(round.store, u"s_put1"_s, 2), u"3=1"_s);
        QCOMPARE(round.shots(1), 4);
    }

    void a_stored_round_is_reported_from_its_quick_page_by_the_keyboard()
    {
        const reported_store round;
        const QString key = u"20240614093000"_s;
        round.store.add_round(key);
        round.store.store.write(
            u"update games2 set putt_len_3_1 = 52, putt_len_3_2 = 6 where date = '%1'"_s.arg(key));
        in_stored_round(key, [&](hand& user) {
            user.key(Qt::Key_P, Qt::ControlModifier);
            close_report(user);
            discard(user);
        });
        QCOMPARE(bands(round.store, u"s_put1"_s, 2), u"1=1"_s);
        QCOMPARE(bands(round.store, u"s_put2"_s, 1), u"5=1"_s);
    }

    void a_report_stores_nothing_of_a_hole_that_is_then_discarded()
    {
        const reported_store round;
        round.store.add_round(key_of_keyed_round());
        const QString games = whole_row(round.store, u"games"_s);
        const QString games2 = whole_row(round.store, u"games2"_s);
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            open_detailed_page(user);
            enter_hole(user);
            user.click(button);
            close_report(user);
            discard(user);
        });
        QCOMPARE(whole_row(round.store, u"games"_s), games);
        QCOMPARE(whole_row(round.store, u"games2"_s), games2);
        // The report showed the entered shots.
        QCOMPARE(bands(round.store, u"s_put1"_s, 2), u"3=1"_s);
    }

    void a_round_without_putts_has_an_empty_report()
    {
        const reported_store round;
        in_keyed_round([&](hand& user) {
            user.click(button);
            close_report(user);
            discard(user);
        });
        for (int row = 1; row <= 5; ++row)
            QCOMPARE(bands(round.store, u"s_put1"_s, row), QString());
        QCOMPARE(round.store.text(u"select rating_text from s_put2 order by rowid limit 1"_s), u"N/A"_s);
    }

    void quick_figures_are_kept_by_a_report_from_the_detailed_page()
    {
        const reported_store round;
        in_keyed_round([&](hand& user) {
            user.type(u"11200001000"_s);
            open_detailed_page(user);
            user.click(button);
            close_report(user);
            user.same(user.grid_rows(details), 1, u"the blank shot"_s);
            open_quick_page(user);
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), u"1 1 2 0 0 0 0 1 0 0 0"_s);
        QCOMPARE(round.shots(1), 0);
    }

    void an_incomplete_shot_is_reported_before_the_report_opens()
    {
        const reported_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_incomplete_second_shot(user);
            user.click(button);
            user.answer(refusal_of_shot(u" 2"_s));
            close_report(user);
            user.click(u"CommandSup"_s);
            accept(user);
        });
        QCOMPARE(round.shots(1), 1);
    }

    void the_report_of_a_round_is_closed_with_its_window()
    {
        const reported_store round;
        in_keyed_round([&](hand& user) {
            user.click(button);
            user.wait_until(u"the report"_s, [] { return visible_window(report) != nullptr; });
            discard(user);
            user.wait_until_closed(report);
        });
    }
};

QTEST_MAIN(test_round_putts)
#include "test_round_putts.moc"
