#include <QApplication>
#include <QTest>

#include <functional>

#include "tests/kills/expected_round.h"
#include "tests/shell/program_run.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// Tests `expected_round` with stores that the test writes.
namespace {

const QString drive_pitch_two_putts = u"1,200,1,1,0,0;9,10,2,2,1,1;14,4,3,1,0,0;14,0,3,1,0,0"_s;
const QString two_woods_and_a_chip = u"3,150,1,1,0,0;3,20,1,3,0,0;12,0,2,1,0,0"_s;
constexpr int the_hole = 5;

QString assignments(const QStringList& columns, const std::vector<int>& values)
{
    QStringList pieces;
    for (int i = 0; i < columns.size(); ++i)
        pieces << u"%1%2 = %3"_s.arg(columns[i]).arg(the_hole).arg(values[static_cast<std::size_t>(i)]);
    return pieces.join(u", ");
}

void put_strokes(const reader& store, const stored_hole& hole)
{
    const auto& f = hole.figures;
    store.write(u"update games set " +
                assignments({u"long_"_s, u"approach_"_s, u"putt_"_s, u"missed_"_s, u"pen_water_"_s,
                             u"pen_lost_"_s, u"pen_rule_"_s, u"pen_bounds_"_s},
                            {f[0], f[1], f[2], f[5], f[7], f[8], f[9], f[10]}));
}

void put_situation(const reader& store, const stored_hole& hole)
{
    const auto& f = hole.figures;
    store.write(u"update games2 set " +
                assignments({u"fairway_"_s, u"sand_"_s, u"recovery_"_s}, {f[3], f[4], f[6]}));
    QStringList lengths;
    for (int putt = 1; putt <= putts_of_a_hole; ++putt)
        lengths << u"putt_len_%1_%2 = %3"_s.arg(the_hole).arg(putt).arg(
            hole.putts[static_cast<std::size_t>(putt) - 1]);
    store.write(u"update games2 set " + lengths.join(u", "));
}

/// Replaces the stored shots by the first `count` shots of the hole.
void put_shots(const reader& store, const stored_hole& hole, int count)
{
    QStringList statements{u"delete from Stat_rounds"_s};
    for (int i = 0; i < count; ++i) {
        const stored_shot& shot = hole.shots[static_cast<std::size_t>(i)];
        statements << u"insert into Stat_rounds (date, hole, shot, stickval, shot_type_value, "
                      u"after, unit, fairval, penval, ts) values ('20260614093000', %1, %2, %3, "
                      u"%4, %5, '%6', %7, %8, %9)"_s.arg(the_hole)
                          .arg(shot.number)
                          .arg(shot.club)
                          .arg(shot.kind)
                          .arg(shot.after)
                          .arg(shot.in_feet ? u"Feets"_s : u"Verges"_s)
                          .arg(shot.position)
                          .arg(shot.penalty)
                          .arg(shot.sand ? 1 : 0);
    }
    store.write(statements);
}

void put_hole(const reader& store, const stored_hole& hole)
{
    put_strokes(store, hole);
    put_situation(store, hole);
    put_shots(store, hole, static_cast<int>(hole.shots.size()));
}

const stored_hole& old_hole()
{
    static const stored_hole hole = outcome_of(hole_from(two_woods_and_a_chip));
    return hole;
}

const stored_hole& new_hole()
{
    static const stored_hole hole = outcome_of(hole_from(drive_pitch_two_putts));
    return hole;
}

const QByteArray entering = "entering 5 " + drive_pitch_two_putts.toLatin1() + "\n";
const QByteArray entered_two = entering + "entered 5 1\nentered 5 2\n";
const QByteArray entered_all = entered_two + "entered 5 3\n";
const QByteArray left = entered_all + "left 5\n";
const QByteArray typed = "typed 5 11111111111\n";

using change = std::function<void(const reader&)>;

/// Valid states of a hole after a kill.
void allowed_stores()
{
    QTest::newRow("left, complete") << left << change([](const reader& s) { put_hole(s, new_hole()); });
    QTest::newRow("nothing is changed yet") << entering << change([](const reader&) {});
    QTest::newRow("the last shot is removed")
        << entering << change([](const reader& s) { put_shots(s, old_hole(), 2); });
    QTest::newRow("all shots are removed")
        << entering << change([](const reader& s) { put_shots(s, old_hole(), 0); });
    QTest::newRow("two shots are entered and a third is begun")
        << entered_two << change([](const reader& s) { put_shots(s, new_hole(), 3); });
    QTest::newRow("all shots are entered, the hole is not left")
        << entered_all << change([](const reader& s) { put_shots(s, new_hole(), 4); });
    QTest::newRow("another hole is opened") << entering << change([](const reader& s) {
        s.write(u"insert into Stat_rounds (date, hole, shot, fairval) values "
                u"('20260614093000', 6, 1, 1)"_s);
    });
    QTest::newRow("typed, and committed") << typed << change([](const reader& s) {
        stored_hole ones = old_hole();
        ones.figures.fill(1);
        put_strokes(s, ones);
        put_situation(s, ones);
    });
}

/// Invalid states.
void forbidden_stores()
{
    QTest::newRow("left, and a shot is lost") << left << change([](const reader& s) {
        put_hole(s, new_hole());
        put_shots(s, new_hole(), 3);
    });
    QTest::newRow("left, and the figures are old")
        << left << change([](const reader& s) { put_shots(s, new_hole(), 4); });
    QTest::newRow("left, and the putts are old") << left << change([](const reader& s) {
        put_hole(s, new_hole());
        s.write(u"update games2 set putt_len_5_2 = 0"_s);
    });
    QTest::newRow("a shot that was entered is lost")
        << entered_two << change([](const reader& s) { put_shots(s, new_hole(), 2); });
    QTest::newRow("a shot in the middle is removed")
        << entering << change([](const reader& s) { s.write(u"delete from Stat_rounds where shot = 2"_s); });
    QTest::newRow("an entered shot is incomplete") << entered_two << change([](const reader& s) {
        put_shots(s, new_hole(), 3);
        s.write(u"update Stat_rounds set shot_type_value = null where shot = 1"_s);
    });
    QTest::newRow("the figures are new before the shots are") << entered_two << change([](const reader& s) {
        put_shots(s, new_hole(), 3);
        put_strokes(s, new_hole());
    });
    QTest::newRow("a table is half new") << entered_all << change([](const reader& s) {
        put_shots(s, new_hole(), 4);
        s.write(u"update games set putt_5 = 2"_s);
    });
    QTest::newRow("one table is new, the other old") << entered_all << change([](const reader& s) {
        put_shots(s, new_hole(), 4);
        put_situation(s, new_hole());
    });
    QTest::newRow("typed, one table is new, the other old") << typed << change([](const reader& s) {
        stored_hole ones;
        ones.figures.fill(1);
        put_strokes(s, ones);
    });
    QTest::newRow("the figures are new, the putts old") << entered_all << change([](const reader& s) {
        put_hole(s, new_hole());
        s.write(u"update games2 set putt_len_5_1 = 0, putt_len_5_2 = 0"_s);
    });
    QTest::newRow("another hole has changed")
        << entered_all << change([](const reader& s) { s.write(u"update games set putt_9 = 2"_s); });
    QTest::newRow("a typed table is half new")
        << typed << change([](const reader& s) { s.write(u"update games set pen_rule_5 = 1"_s); });
    QTest::newRow("typing has removed a shot")
        << typed << change([](const reader& s) { put_shots(s, old_hole(), 2); });
}

}  // namespace

class test_expected_round : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QStringList statements;
        for (const QString& table : {u"games"_s, u"games2"_s, u"cost"_s, u"Stat_rounds"_s})
            statements << u"delete from " + table;
        run_.store().write(statements + one_round());
    }

    void a_valid_state_after_a_kill_has_no_fault_data()
    {
        add_columns();
        allowed_stores();
    }
    void a_valid_state_after_a_kill_has_no_fault() { QCOMPARE(fault_after(), QString()); }

    void an_invalid_state_after_a_kill_is_a_fault_data()
    {
        add_columns();
        forbidden_stores();
    }
    void an_invalid_state_after_a_kill_is_a_fault() { QVERIFY(fault_after().startsWith(u"hole ")); }

    void the_compared_state_is_the_expected_one_afterwards()
    {
        expected_round expected(run_.store());
        put_hole(run_.store(), new_hole());
        QCOMPARE(expected.compare(read_log(left)), QString());
        QVERIFY(expected.hole(the_hole) == new_hole());
        QVERIFY(expected.is_entered(the_hole));
        QVERIFY(!expected.is_entered(the_hole + 1));
        QCOMPARE(expected.compare({}), QString());
        put_shots(run_.store(), new_hole(), 3);
        QVERIFY(!expected.compare({}).isEmpty());
    }

    void an_incomplete_line_of_the_log_is_ignored()
    {
        QCOMPARE(read_log(entering + "entered 5 1").shots_entered, 0);
        QCOMPARE(read_log(entered_all + "left 5").holes_left(), 0);
        QCOMPARE(read_log(left).holes_left(), 1);
        QCOMPARE(read_log(left).entering, 0);
    }

private:
    static void add_columns()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<change>("change_of_store");
    }

    QString fault_after() const
    {
        put_hole(run_.store(), old_hole());
        expected_round expected(run_.store());
        QFETCH(change, change_of_store);
        QFETCH(QByteArray, output);
        change_of_store(run_.store());
        return expected.compare(read_log(output));
    }

    const program_run run_{1};
};

QTEST_MAIN(test_expected_round)
#include "test_expected_round.moc"
