#include <QComboBox>
#include <QTest>

#include "scoring/Verdane_tools.h"
#include "statistics/cost_statistics.h"
#include "statistics/f_date_range.h"
#include "statistics/f_date_range_func.h"
#include "statistics/round_statistics.h"
#include "tests/statistics/report_rows.h"
#include "tests/statistics/selection_windows.h"
#include "tests/support/hand_widgets.h"
#include "tests/support/stored_diary.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

int code_of(QString name, QString surname)
{
    return plain(Verdane_tools::name_checksum(name, surname));
}

/// Anne Roy and Anne Ory, whose names have the same letters, and Guy Lee. Anne, either of them, plays on the
/// days 1 and 3, Guy on day 2.
class rounds_with_partners : public stored_diary {
public:
    rounds_with_partners() : anne(code_of(u"Roy"_s, u"Anne"_s))
    {
        const diary_course course = flat_course(u"PINS-0"_s, 4, u"70"_s, u"113"_s);
        book.add(course);
        book.add_partner(u"Anne"_s, u"Ory"_s, code_of(u"Ory"_s, u"Anne"_s));
        book.add_partner(u"Anne"_s, u"Roy"_s, anne);
        const int guy = code_of(u"Lee"_s, u"Guy"_s);
        book.add_partner(u"Guy"_s, u"Lee"_s, guy);
        for (int day = 1; day <= 3; ++day) {
            const int partner = day == 2 ? guy : anne;
            book.add(
                diary_round{key_of_day(day), course, holes_over(course.pars, 0), 0, u"%1-"_s.arg(partner)});
            put_shot(book.store, key_of_day(day), 1, u"before, after, unit, shot_type_value"_s,
                     u"400, 150, 'Yards', 1"_s);
            put_costs(book.store, key_of_day(day), 1);
        }
    }

    QString keys_of_costs() const
    {
        QStringList keys;
        for (const QStringList& row : table_rows(book.store, u"r_cost"_s))
            keys << row.constFirst();
        keys.sort();
        return keys.join(u' ');
    }

    int anne;
};

/// All rounds, with an entry of the list of partners chosen.
selection_arguments all_rounds_with(const QString& partner, statistics_mode mode)
{
    f_date_range window(mode);
    select_all_rounds(window);
    auto& partners = find_control<QComboBox>(window, u"pList"_s);
    partners.setCurrentIndex(partners.findText(partner));
    return f_date_range_func::selection_of(window);
}

void entries_of_partners()
{
    QTest::addColumn<QString>("partner");
    QTest::newRow("Anne Ory") << u"Anne, Ory"_s;
    QTest::newRow("Anne Roy") << u"Anne, Roy"_s;
}

}  // namespace

class test_partner_filter : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void partners_with_the_same_letters_have_an_entry_each()
    {
        const rounds_with_partners store;
        QCOMPARE(code_of(u"Ory"_s, u"Anne"_s), store.anne);
        const f_date_range window;
        QStringList entries = entries_of(find_control<QComboBox>(window, u"pList"_s)).mid(1);
        entries.sort();
        QCOMPARE(entries, (QStringList{u"Anne, Ory"_s, u"Anne, Roy"_s, u"Guy, Lee"_s}));
    }

    void two_partners_with_the_same_code_select_by_that_code_data() { entries_of_partners(); }
    void two_partners_with_the_same_code_select_by_that_code()
    {
        QFETCH(QString, partner);
        const rounds_with_partners store;
        const selection_arguments chosen = all_rounds_with(partner, statistics_mode::round);
        QCOMPARE(chosen.partner_number, QString::number(store.anne));
        QCOMPARE(chosen.partner_clause, u" AND INSTR(GAMES2.PARTNERS,'%1')"_s.arg(store.anne));
        // The report names the one that was chosen.
        QCOMPARE(chosen.partner_text, partner);
    }

    void two_partners_with_the_same_code_select_the_rounds_of_both_data() { entries_of_partners(); }
    void two_partners_with_the_same_code_select_the_rounds_of_both()
    {
        QFETCH(QString, partner);
        const rounds_with_partners store;
        run_progress no_bar;
        QVERIFY(Statistics::rounds_in_stats(all_rounds_with(partner, statistics_mode::round), no_bar));
        QCOMPARE(stats_head(store.book.store, u"round_count"_s).toInt(), 2);
        QVERIFY(Statistics::fill_r_cost(all_rounds_with(partner, statistics_mode::cost), no_bar));
        QCOMPARE(store.keys_of_costs(), QString(key_of_day(1) + u' ' + key_of_day(3)));
    }
};

QTEST_MAIN(test_partner_filter)
#include "test_partner_filter.moc"
