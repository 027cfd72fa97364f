#include <QAbstractItemModelTester>
#include <QTest>

#include "controls/recordset_model.h"
#include "store/DataEnvironment1.h"
#include "store/tables/Stat_rounds.h"
#include "tests/support/failures.h"
#include "tests/support/reader.h"
#include "tests/support/refused_change.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

namespace Stat_rounds = tables::Stat_rounds;

std::vector<bound_column> shot_columns()
{
    return {{Stat_rounds::shot, u"Coup"_s},
            {Stat_rounds::stick, u"Bâton"_s, true},
            {Stat_rounds::after, u"Distance restante"_s},
            {Stat_rounds::missed, u"Raté"_s, false, u"Oui"_s, u"Non"_s}};
}

/// Three shots of one hole in the store, and a model bound to them, checked by QAbstractItemModelTester.
struct bound_shots {
    bound_shots()
    {
        for (const QString& shot : {u"1, 'D', 200, 0"_s, u"2, 'F5', 30, 1"_s, u"3, 'Pu', null, null"_s})
            store.write(u"insert into Stat_rounds (shot, stick, after, missed) values (" + shot + u')');
        source.Open();
        model.bind();
    }

    QString shown(int row, int column) const { return model.index(row, column).data().toString(); }

    store_folder folder;
    reader store{folder.location()};
    Recordset& source = data_environment().rsStat_rounds;
    recordset_model model{source, shot_columns()};
    QAbstractItemModelTester checker{&model, QAbstractItemModelTester::FailureReportingMode::QtTest};
};

}  // namespace

class test_recordset_model : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_bound_model_shows_rows_captions_and_texts_of_yes_and_no()
    {
        const bound_shots shots;
        QCOMPARE(shots.model.rowCount(), 3);
        QCOMPARE(shots.model.headerData(2, Qt::Horizontal).toString(), u"Distance restante"_s);
        QCOMPARE(shots.shown(1, 1), u"F5"_s);
        QCOMPARE(shots.shown(1, 3), u"Oui"_s);
        QCOMPARE(shots.shown(0, 3), u"Non"_s);
        QCOMPARE(shots.shown(2, 2), QString());
        QCOMPARE(shots.shown(2, 3), u"Non"_s);
    }

    void an_unbound_model_has_no_rows()
    {
        bound_shots shots;
        shots.model.unbind();
        QCOMPARE(shots.model.rowCount(), 0);
        shots.model.refresh();
        QCOMPARE(shots.model.rowCount(), 0);
        shots.model.bind();
        QCOMPARE(shots.model.rowCount(), 3);
    }

    void a_model_of_a_closed_recordset_has_no_rows_until_it_is_opened_and_refreshed()
    {
        bound_shots shots;
        shots.source.Close();
        QCOMPARE(shots.shown(0, 0), QString());
        shots.model.refresh();
        QCOMPARE(shots.model.rowCount(), 0);
        shots.source.Open();
        shots.model.refresh();
        QCOMPARE(shots.model.rowCount(), 3);
    }

    void refresh_shows_rows_added_and_removed_by_other_code()
    {
        bound_shots shots;
        shots.source.AddNew();
        shots.source.Fields(u"shot").set(4);
        shots.model.refresh();
        QCOMPARE(shots.model.rowCount(), 4);
        QCOMPARE(shots.shown(3, 0), u"4"_s);
        shots.source.MoveFirst();
        shots.source.Delete();
        shots.source.MoveFirst();
        shots.source.Delete();
        QCOMPARE(shots.shown(3, 0), QString());
        shots.model.refresh();
        QCOMPARE(shots.model.rowCount(), 2);
        QCOMPARE(shots.shown(0, 0), u"3"_s);
    }

    void writing_makes_the_row_current_and_leaving_it_commits()
    {
        bound_shots shots;
        QVERIFY(shots.model.setData(shots.model.index(1, 2), u"45"_s));
        QCOMPARE(shots.source.position(), 1);
        QCOMPARE(shots.store.number(u"select after from Stat_rounds where shot = 2"_s), 30);
        shots.model.move_to(0);
        QCOMPARE(shots.store.number(u"select after from Stat_rounds where shot = 2"_s), 45);
    }

    void before_row_commit_is_called_once_before_the_commit()
    {
        bound_shots shots;
        int finished = 0;
        shots.model.set_before_row_commit([&] {
            ++finished;
            shots.source.Fields(u"unit").set(u"done"_s);
        });
        shots.model.move_to(1);
        QCOMPARE(finished, 0);
        shots.model.write(1, 2, u"44"_s);
        shots.model.move_to(2);
        shots.model.move_to(0);
        QCOMPARE(finished, 1);
        QCOMPARE(shots.store.text(u"select unit from Stat_rounds where shot = 2"_s), u"done"_s);
    }

    void a_locked_column_is_not_written()
    {
        bound_shots shots;
        QVERIFY(!shots.model.setData(shots.model.index(0, 1), u"Pu"_s));
        QVERIFY(!shots.source.pending());
    }

    void a_text_that_is_not_valid_in_the_column_is_not_written_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("text");
        QTest::newRow("not a number") << 2 << u"12a"_s;
        QTest::newRow("too large") << 2 << u"32768"_s;
        QTest::newRow("neither yes nor no") << 3 << u"peut-être"_s;
    }
    void a_text_that_is_not_valid_in_the_column_is_not_written()
    {
        QFETCH(int, column);
        QFETCH(QString, text);
        bound_shots shots;
        QVERIFY(!shots.model.setData(shots.model.index(0, column), text));
        QVERIFY(!shots.source.pending());
    }

    void an_empty_text_is_Null_in_a_column_of_numbers()
    {
        bound_shots shots;
        QVERIFY(shots.model.setData(shots.model.index(0, 2), QString()));
        QVERIFY(shots.source.Fields(u"after").is_null());
    }

    void the_texts_of_yes_and_no_are_written_as_values()
    {
        bound_shots shots;
        QVERIFY(shots.model.setData(shots.model.index(0, 3), u"Oui"_s));
        QVERIFY(shots.source.Fields(u"missed").yes());
        QVERIFY(shots.model.setData(shots.model.index(0, 3), u"Non"_s));
        QVERIFY(!shots.source.Fields(u"missed").yes());
    }

    void a_row_beyond_the_last_is_neither_made_current_nor_written()
    {
        bound_shots shots;
        shots.model.move_to(7);
        QCOMPARE(shots.source.position(), 0);
        QVERIFY(!shots.model.write(7, 2, u"1"_s));
    }

    void a_failure_of_the_commit_is_a_failure_of_move_to()
    {
        bound_shots shots;
        shots.store.write(refuse(u"update"_s, u"Stat_rounds"_s));
        shots.model.write(0, 2, u"1"_s);
        QVERIFY(failure_of([&] { shots.model.move_to(1); }).has_value());
        QCOMPARE(shots.source.position(), 0);
    }
};

QTEST_MAIN(test_recordset_model)

#include "test_recordset_model.moc"
