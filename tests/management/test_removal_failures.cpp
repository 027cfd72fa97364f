#include <QApplication>
#include <QProcess>
#include <QTest>

#include "base/program.h"
#include "store/DataEnvironment1.h"
#include "store/orphan_shots.h"
#include "tests/management/removal_windows.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/failure_boxes.h"
#include "tests/support/recording_frame.h"
#include "tests/support/refused_change.h"
#include "tests/support/test_store.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// A failure ends the program, so it is provoked in a child process: this program again, with a store.
namespace {

constexpr int not_reached = 77;

/// Removes the second round of three, which fails at some table.
int run_child(const store_location& place, failure_kind kind)
{
    set_interface_language(true);
    data_environment().connection.Open(place);
    if (kind == missing_part_of_engine())
        reader(place).write(u"alter table cost rename to money"_s);
    const recording_frame frame;
    in_list([kind](hand& user) {
        user.click_row(u"List1"_s, 1);
        user.click(u"Command1_3"_s);
        user.answer(question_on_removal(), QMessageBox::Yes);
        user.answer(failure_box(kind));
    });
    return not_reached;
}

/// Creates a store with three rounds, changed by a statement.
void create_store(const store_location& place, const QStringList& harm)
{
    Connection1().Open(place);
    const reader store(place);
    add_rounds(store, 3);
    store.write(harm);
}

/// A trigger that refuses to delete those rows of the second round that meet a condition.
QString refuse_deletion(const QString& table, const QString& condition = u"1"_s)
{
    return refuse(u"delete"_s, table, u"old.date = '%1' and %2"_s.arg(key_of_day(2), condition));
}

/// The shots of the second round, as "hole.shot".
QString shots_left(const reader& store)
{
    return store.text(
        u"select ifnull(group_concat(place, ' '), '') from (select hole || '.' || shot as place "
        "from Stat_rounds where date = '%1' order by hole, shot)"_s.arg(key_of_day(2)));
}

}  // namespace

class test_removal_failures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_failure_at_a_table_leaves_its_rows_and_those_of_the_later_tables_data()
    {
        QTest::addColumn<QString>("harm");
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("shots");
        const QString all = u"1.1 1.2 2.1 2.2"_s;
        QTest::newRow("at the strokes")
            << refuse_deletion(u"games"_s) << u"1,2,3 | 1,2,3 | 1,2,3 | 1,2,3"_s << all;
        QTest::newRow("at the situation")
            << refuse_deletion(u"games2"_s) << u"1,3 | 1,2,3 | 1,2,3 | 1,2,3"_s << all;
        QTest::newRow("at the first shot")
            << refuse_deletion(u"Stat_rounds"_s) << u"1,3 | 1,3 | 1,2,3 | 1,2,3"_s << all;
        QTest::newRow("at a later shot")
            << refuse_deletion(u"Stat_rounds"_s, u"old.hole = 2 and old.shot = 2"_s)
            << u"1,3 | 1,3 | 1,2,3 | 1,2,3"_s << u"2.2"_s;
        QTest::newRow("at the costs")
            << refuse_deletion(u"cost"_s) << u"1,3 | 1,3 | 1,3 | 1,2,3"_s << QString();
    }
    void a_failure_at_a_table_leaves_its_rows_and_those_of_the_later_tables()
    {
        QFETCH(QString, harm);
        QFETCH(QString, left);
        QFETCH(QString, shots);
        const test_store place;
        create_store(place.location(), {harm});
        remove_in_child(place.location(), failure_kind::store_other);
        QCOMPARE(days_stored(reader(place.location())), left);
        QCOMPARE(shots_left(reader(place.location())), shots);
    }

    void a_missing_table_is_a_failure_after_the_earlier_tables_were_changed()
    {
        const test_store place;
        create_store(place.location(), {});
        remove_in_child(place.location(), missing_part_of_engine());
        const reader store(place.location());
        QCOMPARE(store.text(u"select group_concat(substr(date, 8, 1)) from games"_s), u"1,3"_s);
        QCOMPARE(shots_left(store), QString());
    }

    void the_clean_up_removes_the_shots_that_a_failed_removal_left()
    {
        const test_store place;
        create_store(place.location(), {refuse_deletion(u"Stat_rounds"_s, u"old.hole = 2"_s)});
        remove_in_child(place.location(), failure_kind::store_other);
        QCOMPARE(shots_left(reader(place.location())), u"2.1 2.2"_s);
        reader(place.location()).write(refuse_no_more());
        data_environment().connection.Open(place.location());
        QStringList shown;
        remove_orphan_shots([&](const QString& text) { shown << text; });
        QCOMPARE(shown, (QStringList{key_of_day(2), u"1"_s}));
        data_environment().connection.Close();
        QCOMPARE(days_stored(reader(place.location())), u"1,3 | 1,3 | 1,3 | 1,2,3"_s);
    }

private:
    static void remove_in_child(const store_location& place, failure_kind kind)
    {
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(),
                    {u"--child"_s, place.name, QString::number(static_cast<int>(kind))});
        QVERIFY(child.waitForFinished(120000));
        const QByteArray output = child.readAllStandardError();
        QVERIFY2(!output.contains("FAIL!"), output.constData());
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), 1);
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.value(1) == u"--child")
        return run_child(store_called(arguments.value(2)),
                         static_cast<failure_kind>(arguments.value(3).toInt()));
    test_removal_failures test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_removal_failures.moc"
