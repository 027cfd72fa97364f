#include <QTest>

#include "store/Recordset.h"
#include "tests/server/foreign_source.h"
#include "tests/server/own_server.h"
#include "tests/support/comma_locale.h"
#include "tests/support/recordset_columns.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// Rows of tables without the identity column, which are found by all their values.
class test_matched_rows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void rows_without_the_identity_column_are_found_by_all_their_values()
    {
        foreign_source bare;
        bare.open();
        remove_row_columns(bare);
        bare.reopen();
        Recordset partners(bare.connection, partners_settings());
        partners.Open();
        add_partner(partners, u"b"_s, 1);
        add_partner(partners, u"B "_s, 1);
        add_partner(partners, u"b"_s, QVariant());
        partners.Fields(u"TEL").set(u"l'é\\"_s);
        partners.Update();
        QCOMPARE(stored_partners(bare), u"B :1:null b::l'é\\ b:1:null"_s);
        partners.Fields(u"TEL").set(QVariant());
        partners.Update();
        partners.Requery();
        partners.Find(u"NAME='b'"_s);
        partners.Delete();
        QCOMPARE(stored_partners(bare).count(u':'), 4);
    }

    void a_row_of_two_hundred_columns_is_found_by_all_its_values()
    {
        foreign_source bare;
        bare.open();
        remove_row_columns(bare);
        bare.reopen();
        const auto rounds = opened(bare, u"select * from games2"_s);
        QVERIFY(column_count(*rounds) > 200);
        for (const QString& key : {u"1"_s, u"2"_s}) {
            rounds->AddNew();
            rounds->Fields(u"date").set(key);
            rounds->Fields(u"PARTNERS").set(u"Zoë; l'ami"_s);
            rounds->Fields(u"putt_len_18_6").set(12);
            rounds->Update();
        }
        rounds->Fields(u"fairway_9").set(1);
        rounds->Update();
        rounds->Fields(u"PARTNERS").set(u""_s);
        rounds->Update();
        const auto stored = bare.outside().rows(
            u"select date, fairway_9, PARTNERS, putt_len_18_6 from games2 order by date"_s);
        QCOMPARE(stored.size(), std::size_t(2));
        QCOMPARE(stored[0][2].toString(), u"Zoë; l'ami"_s);
        QCOMPARE(stored[1][1].toInt(), 1);
        QCOMPARE(stored[1][2].toString(), QString());
        rounds->MoveFirst();
        rounds->Delete();
        QCOMPARE(bare.outside().text(u"select date from games2"_s), u"2"_s);
    }

    void columns_that_the_program_does_not_have_keep_the_values_of_the_server()
    {
        foreign_source bare;
        bare.open();
        remove_row_columns(bare);
        bare.change(u"alter table %1.games2 add column remark varchar(9) not null default 'none', "
                    "add column id int auto_increment primary key"_s);
        bare.reopen();
        const auto rounds = opened(bare, u"select * from games2"_s);
        rounds->AddNew();
        rounds->Fields(u"date").set(u"1"_s);
        rounds->Update();
        for (const int hole : {1, 2}) {
            rounds->Fields(u"fairway_%1"_s.arg(hole)).set(hole);
            rounds->Update();
        }
        QCOMPARE(bare.number(u"select count(*) from games2 where fairway_1 = 1 and fairway_2 = 2 and "
                             "remark = 'none' and id = 1"_s),
                 1);
        rounds->Delete();
        QCOMPARE(bare.number(u"select count(*) from games2"_s), 0);
    }

    void a_row_with_real_numbers_is_found_by_all_its_values()
    {
        const comma_locale locale;
        foreign_source bare;
        bare.open();
        remove_row_columns(bare);
        bare.reopen();
        const auto figures = opened(bare, u"select * from stats"_s);
        const int row = 20;
        figures->MoveTo(row);
        figures->Fields(u"hole_1").set(0.1);
        figures->Fields(u"hole_2").set(72.125);
        figures->Update();
        figures->Fields(u"front_nine").set(-0.375);
        figures->Update();
        figures->Fields(u"hole_1").set(0.2);
        figures->Update();
        figures->Requery();
        figures->Find(u"hole_2=72.125"_s);
        QVERIFY(!figures->eof());
        QCOMPARE(figures->Fields(u"hole_1").to_double(), 0.2);
        QCOMPARE(figures->Fields(u"front_nine").to_double(), -0.375);
        QCOMPARE(bare.number(u"select count(*) from stats where hole_1 = 0.2"_s), 1);
        figures->Delete();
        QCOMPARE(bare.number(u"select count(*) from stats where hole_1 = 0.2"_s), 0);
    }

    void a_row_with_whole_numbers_in_decimals_is_found_by_all_its_values()
    {
        const comma_locale locale;
        foreign_source bare;
        bare.open();
        remove_row_columns(bare);
        bare.change(u"alter table %1.stats modify column round_count decimal(20,2)"_s);
        bare.reopen();
        const auto figures = opened(bare, u"select * from stats"_s);
        figures->Fields(u"round_count").set(12);
        figures->Update();
        figures->Requery();
        QCOMPARE(figures->Fields(u"round_count").value().toDouble(), 12.0);
        figures->Fields(u"round_count").set(13);
        figures->Update();
        QCOMPARE(bare.number(u"select count(*) from stats where round_count = 13"_s), 1);
    }

    void a_yes_of_any_number_is_found_by_all_its_values()
    {
        foreign_source bare;
        bare.open();
        remove_row_columns(bare);
        bare.change(u"insert into %1.stat_rounds (date, hole, ts, dz, cal) values ('1', 4, -1, 0, null)"_s);
        bare.reopen();
        const auto shots = opened(bare, u"select * from Stat_rounds"_s);
        QCOMPARE(shots->Fields(u"ts").value(), QVariant(true));
        shots->Fields(u"hole").set(5);
        shots->Update();
        QCOMPARE(bare.number(u"select count(*) from stat_rounds where hole = 5 and ts = -1"_s), 1);
        shots->Fields(u"ts").set(false);
        shots->Update();
        QCOMPARE(bare.number(u"select count(*) from stat_rounds where ts = 0 and dz = 0 and cal is null"_s),
                 1);
        shots->Delete();
        QCOMPARE(bare.number(u"select count(*) from stat_rounds"_s), 0);
    }
};

QTEST_GUILESS_MAIN(test_matched_rows)
#include "test_matched_rows.moc"
