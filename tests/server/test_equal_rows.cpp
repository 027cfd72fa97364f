#include <QTest>

#include <utility>

#include "store/schema.h"
#include "tests/server/foreign_source.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// Equal rows of tables without the column that identifies a row.
class test_equal_rows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void each_of_several_equal_rows_is_changed_in_its_place_data()
    {
        QTest::addColumn<lock_type>("lock");
        QTest::addColumn<QString>("change");
        for (const auto& [name, change] :
             {std::pair("no key", QString()),
              std::pair("a key of others", u"add column id int auto_increment primary key"_s),
              std::pair("an index", u"add index by_hole (hole_1)"_s)}) {
            QTest::addRow("%s, at once", name) << lock_type::optimistic << change;
            QTest::addRow("%s, as a batch", name) << lock_type::batch_optimistic << change;
        }
    }
    void each_of_several_equal_rows_is_changed_in_its_place()
    {
        QFETCH(lock_type, lock);
        QFETCH(QString, change);
        foreign_source bare;
        bare.open();
        remove_row_columns(bare);
        bare.change(u"update %1.stats set stat_line = null"_s);
        if (!change.isEmpty())
            bare.change(u"alter table %1.stats "_s + change);
        bare.reopen();
        const auto figures = opened(bare, u"select * from stats"_s, lock);
        // The new values of some rows are the old ones of others.
        for (const int value : {1, 2, 0}) {
            int row = 0;
            for (figures->MoveFirst(); !figures->eof(); figures->MoveNext(), ++row)
                figures->Fields(u"hole_1").set(value == 0 ? row / 2 : value + row % 2);
            figures->UpdateBatch();
        }
        figures->MoveTo(5);
        figures->Delete();
        figures->UpdateBatch();
        QStringList expected;
        for (int row = 0; row < find_table(u"stats")->fixed_rows; ++row) {
            if (row != 5)
                expected << QString::number(row / 2);
        }
        QCOMPARE(bare.stored(u"select hole_1, hole_2 from stats"_s), expected);
    }

    void a_row_is_deleted_from_its_place_among_equal_rows_data()
    {
        QTest::addColumn<lock_type>("lock");
        QTest::newRow("at once") << lock_type::optimistic;
        QTest::newRow("as a batch") << lock_type::batch_optimistic;
    }
    void a_row_is_deleted_from_its_place_among_equal_rows()
    {
        QFETCH(lock_type, lock);
        foreign_source bare;
        bare.open();
        remove_row_columns(bare);
        bare.change(u"insert into %1.hand values (1), (2), (1), (3), (1), (4), (1)"_s);
        bare.reopen();
        const auto rounds = opened(bare, u"select * from hand"_s, lock);
        for (const int row : {2, 3}) {
            rounds->MoveTo(row);
            rounds->Delete();
        }
        rounds->UpdateBatch();
        QCOMPARE(bare.stored(u"select hnd from hand"_s),
                 (QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"1"_s}));
    }
};

QTEST_GUILESS_MAIN(test_equal_rows)
#include "test_equal_rows.moc"
