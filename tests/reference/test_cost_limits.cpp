#include <QApplication>
#include <QProcess>
#include <QTest>

#include "base/language.h"
#include "base/program.h"
#include "store/Connection1.h"
#include "tests/reference/cost_windows.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/failure_boxes.h"
#include "tests/support/refused_change.h"
#include "tests/support/test_store.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// A failure that ends the program is provoked in a child process: this program again, with a case and a
/// store.
namespace {

constexpr int not_reached = 77;

/// The total of twelve amounts of 9999 exceeds 16 bits; that of three of them and 2770 is the largest.
const QString too_much = QStringList(12, u"9999"_s).join(u',');
const QString full = u"9999,9999,9999,2770,0,0,0,0,0,0,0,0"_s;

const failure_subject round_of_costs{.round = u"2024-06-14 09:30:00"_s};

void create_store(const store_location& place, const QString& amounts)
{
    Connection1().Open(place);
    reader(place).write(u"insert into cost (date, fg, cm, vt, ft, ba, tee, tex, nrt, lg, bs, ln, au) values "
                        "('20240614093000', "_s +
                        amounts + u')');
}

QString amounts_in(const store_location& place)
{
    QStringList amounts;
    const auto rows = reader(place).rows(u"select * from cost"_s);
    for (const QVariant& amount : rows.at(0))
        amounts << amount.toString();
    return amounts.mid(1, 12).join(u',');
}

void type_too_much(hand& user)
{
    user.wait_for_window(cost_window());
    user.same(user.text(u"Text1"_s), u"32767"_s, u"the largest total"_s);
    user.fill(u"cost_11"_s, u"1"_s);
    user.answer(failure_box(failure_kind::overflow, round_of_costs));
}

void accept_what_is_refused(hand& user)
{
    user.wait_for_window(cost_window());
    user.fill(u"cost_0"_s, u"25"_s);
    user.fill(u"cost_11"_s, u"7"_s);
    user.click(u"OKButton"_s);
    user.answer(failure_box(failure_kind::store_other));
}

int run_child(const store_location& place, const QString& limit)
{
    set_interface_language(limit != u"typing");
    data_environment().connection.Open(place);
    const recording_frame frame;
    data_environment().rscost.Open();
    play([] { run_event([] { f_cost().show_modal(); }); },
         [&](hand& user) {
             if (limit == u"loading")
                 user.answer(failure_box(failure_kind::overflow, round_of_costs));
             else if (limit == u"typing")
                 type_too_much(user);
             else
                 accept_what_is_refused(user);
         });
    return not_reached;
}

}  // namespace

class test_cost_limits : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_failure_ends_the_program_and_keeps_the_stored_amounts_data()
    {
        QTest::addColumn<QString>("limit");
        QTest::addColumn<QString>("amounts");
        QTest::newRow("a total beyond 16 bits while typing") << u"typing"_s << full;
        QTest::newRow("a total beyond 16 bits while loading") << u"loading"_s << too_much;
        QTest::newRow("a row that the store refuses") << u"accepting"_s << u"1,2,3,4,5,6,7,8,9,10,11,12"_s;
    }
    void a_failure_ends_the_program_and_keeps_the_stored_amounts()
    {
        QFETCH(QString, limit);
        QFETCH(QString, amounts);
        const test_store store;
        create_store(store.location(), amounts);
        if (limit == u"accepting")
            reader(store.location()).write(refuse(u"update"_s, u"cost"_s));
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {u"--limit"_s, store.location().name, limit});
        QVERIFY(child.waitForFinished(120000));
        const QByteArray output = child.readAllStandardError();
        QVERIFY2(!output.contains("FAIL!"), output.constData());
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), 1);
        QCOMPARE(amounts_in(store.location()), amounts);
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.value(1) == u"--limit")
        return run_child(store_called(arguments.value(2)), arguments.value(3));
    test_cost_limits test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_cost_limits.moc"
