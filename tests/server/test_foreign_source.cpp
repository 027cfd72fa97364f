#include <QScopeGuard>
#include <QTest>

#include <memory>

#include "store/Connection1.h"
#include "store/Recordset.h"
#include "store/schema.h"
#include "tests/server/own_server.h"
#include "tests/support/comma_locale.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/failures.h"
#include "tests/support/outside_connection.h"
#include "tests/support/reader.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// A new database on the server and the connection of the program to it.
struct source {
    store_location place = new_program_store();
    Connection1 connection;

    QString database() const { return file_of(place); }
    reader outside() const { return reader(place); }
    void open() { connection.Open(place); }
    void reopen()
    {
        connection.Close();
        open();
    }
    /// The result of a question that the server itself computes, with its own comparison of numbers.
    int number(const QString& question) const
    {
        const outside_connection server(place);
        QSqlQuery query = server.run_unchanged(question);
        return all_rows(query)[0][0].toInt();
    }
    /// Runs a statement as the administrator, in which %1 is the database.
    void change(const QString& statement) const { administer(statement.arg(database())); }
};

void remove_row_columns(const source& from)
{
    for (const table& each : schema())
        administer(u"alter table %1.%2 drop column verdane_row"_s.arg(from.database(), each.name));
}

std::unique_ptr<Recordset> opened(source& from, const QString& statement)
{
    recordset_settings settings;
    settings.name = u"rstest"_s;
    settings.source = statement;
    auto rows = std::make_unique<Recordset>(from.connection, settings);
    rows->Open();
    return rows;
}

recordset_settings partners_settings(lock_type lock = lock_type::optimistic)
{
    recordset_settings settings;
    settings.name = u"rspartners"_s;
    settings.source = u"select * from partners order by name"_s;
    settings.lock = lock;
    return settings;
}

void add_partner(Recordset& partners, const QString& name, const QVariant& code)
{
    partners.AddNew();
    partners.Fields(u"NAME").set(name);
    partners.Fields(u"code").set(code);
    partners.Update();
}

QString stored_partners(const source& from)
{
    QStringList rows;
    for (const auto& row : from.outside().rows(u"select NAME, code, TEL from partners order by 1, 2, 3"_s))
        rows << row[0].toString() + u':' + row[1].toString() + u':' +
                    (row[2].isNull() ? u"null"_s : row[2].toString());
    return rows.join(u' ');
}

}  // namespace

/// Databases that someone else has made, or that have content of others.
class test_foreign_source : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tables_of_other_applications_are_ignored_and_kept()
    {
        source other;
        other.change(u"create table %1.invoices (number int)"_s);
        other.change(u"insert into %1.invoices values (7)"_s);
        other.open();
        other.reopen();
        QCOMPARE(other.outside().number(u"select number from invoices"_s), 7);
        QCOMPARE(other.outside().number(u"select language from settings"_s), 0);
        QCOMPARE(other.connection.identity_script(), QString());
    }

    void an_interrupted_creation_of_the_tables_is_completed()
    {
        source halved;
        halved.open();
        halved.connection.Close();
        bool dropped = false;
        for (const table& each : schema()) {
            if (dropped)
                administer(u"drop table %1.%2"_s.arg(halved.database(), each.name));
            dropped = dropped || each.name == u"sticknames";
        }
        halved.change(u"delete from %1.sticknames"_s);
        halved.open();
        for (const table& each : schema())
            QCOMPARE(halved.outside().number(u"select count(*) from "_s + each.name), each.fixed_rows);
    }

    void missing_tables_beside_stored_rows_are_refused()
    {
        source damaged;
        damaged.open();
        damaged.connection.Execute(u"insert into games (date) values ('20260614093000')"_s);
        damaged.connection.Close();
        for (const table& each : schema()) {
            if (each.name != u"games")
                administer(u"drop table %1.%2"_s.arg(damaged.database(), each.name));
        }
        QVERIFY(failure_of([&] { damaged.open(); }) == failure_kind::source_table);
        QCOMPARE(damaged.outside().number(u"select count(*) from games"_s), 1);
    }

    void rows_without_the_identity_column_are_found_by_all_their_values()
    {
        source bare;
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
        source bare;
        bare.open();
        remove_row_columns(bare);
        bare.reopen();
        const auto rounds = opened(bare, u"select * from games2"_s);
        QVERIFY(rounds->field_count() > 200);
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
        source bare;
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

    void a_row_with_real_numbers_is_found_by_all_its_values_data()
    {
        QTest::addColumn<QString>("type");
        QTest::newRow("double") << u"double"_s;
        QTest::newRow("decimal") << u"decimal(30,15)"_s;
    }
    void a_row_with_real_numbers_is_found_by_all_its_values()
    {
        QFETCH(QString, type);
        const comma_locale locale;
        source bare;
        bare.open();
        remove_row_columns(bare);
        for (const QString& column : {u"hole_1"_s, u"hole_2"_s, u"front_nine"_s})
            administer(u"alter table %1.stats modify column %2 %3"_s.arg(bare.database(), column, type));
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

    void a_setting_of_the_server_loses_no_save_data()
    {
        QTest::addColumn<QString>("setting");
        QTest::addColumn<QString>("value");
        QTest::newRow("a commit begins a transaction") << u"completion_type"_s << u"'CHAIN'"_s;
        QTest::newRow("a change needs a key") << u"sql_safe_updates"_s << u"1"_s;
    }
    void a_setting_of_the_server_loses_no_save()
    {
        QFETCH(QString, setting);
        QFETCH(QString, value);
        source strict;
        administer(u"set global %1 = %2"_s.arg(setting, value));
        const auto restored =
            qScopeGuard([&setting] { administer(u"set global %1 = default"_s.arg(setting)); });
        strict.open();
        Recordset partners(strict.connection, partners_settings(lock_type::batch_optimistic));
        partners.Open();
        add_partner(partners, u"a"_s, 1);
        partners.UpdateBatch();
        // Without a transaction of its own, unlike the other save.
        strict.connection.Execute(u"insert into partners (name, code) values ('b', 2)"_s);
        strict.reopen();
        QCOMPARE(stored_partners(strict), u"a:1:null b:2:null"_s);
        strict.connection.Execute(u"delete from partners"_s);
        QCOMPARE(stored_partners(strict), QString());
    }

    void a_column_with_a_long_name_is_read()
    {
        source any;
        any.open();
        const QString expression = u"language"_s + u"+language"_s.repeated(20);
        const auto rows = opened(any, u"select %1, language+7 from settings"_s.arg(expression));
        QVERIFY(expression.size() > 128);
        QVERIFY(rows->field_name(0).size() > 100);
        QVERIFY2(expression.startsWith(rows->field_name(0)), qPrintable(rows->field_name(0)));
        QCOMPARE(rows->field_name(1), u"language+7"_s);
        QCOMPARE(rows->Fields(0).to_double(), 0.0);
        QCOMPARE(rows->Fields(1).to_double(), 7.0);
    }

    void a_yes_of_any_number_is_found_by_all_its_values()
    {
        source bare;
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

    void a_value_that_does_not_fit_is_refused_and_nothing_is_lost()
    {
        source narrow;
        narrow.open();
        narrow.change(u"alter table %1.partners modify code tinyint"_s);
        Recordset partners(narrow.connection, partners_settings());
        partners.Open();
        add_partner(partners, u"a"_s, 1);
        partners.Fields(u"TEL").set(QString(40'000, u'é'));
        QVERIFY(failure_of([&] { partners.Update(); }) == failure_kind::source_value);
        partners.CancelUpdate();
        QVERIFY(failure_of([&] { add_partner(partners, QString(40'000, u'é'), 2); }) ==
                failure_kind::source_value);
        partners.CancelUpdate();
        QVERIFY(failure_of([&] { add_partner(partners, u"c"_s, 300); }) == failure_kind::source_value);
        partners.CancelUpdate();
        add_partner(partners, u"b"_s, 2);
        QCOMPARE(stored_partners(narrow), u"a:1:null b:2:null"_s);
    }

    void one_of_two_equal_rows_is_changed()
    {
        source bare;
        bare.open();
        remove_row_columns(bare);
        bare.reopen();
        Recordset partners(bare.connection, partners_settings(lock_type::batch_optimistic));
        partners.Open();
        add_partner(partners, u"a"_s, 1);
        add_partner(partners, u"a"_s, 1);
        partners.UpdateBatch();
        partners.MoveFirst();
        partners.Fields(u"code").set(2);
        partners.UpdateBatch();
        QCOMPARE(stored_partners(bare), u"a:1:null a:2:null"_s);
        partners.MoveFirst();
        partners.Delete();
        partners.UpdateBatch();
        QCOMPARE(stored_partners(bare), u"a:1:null"_s);
    }

    void a_row_that_someone_changed_meanwhile_is_not_overwritten()
    {
        source bare;
        bare.open();
        remove_row_columns(bare);
        bare.reopen();
        Recordset partners(bare.connection, partners_settings());
        partners.Open();
        add_partner(partners, u"a"_s, 1);
        bare.change(u"update %1.partners set code = 5"_s);
        partners.Fields(u"TEL").set(u"1"_s);
        QVERIFY(failure_of([&] { partners.Update(); }) == failure_kind::misuse);
        QCOMPARE(stored_partners(bare), u"a:5:null"_s);
    }

    void deleting_a_row_that_someone_changed_meanwhile_fails_and_keeps_it_data()
    {
        QTest::addColumn<lock_type>("lock");
        QTest::newRow("at once") << lock_type::optimistic;
        QTest::newRow("as a batch") << lock_type::batch_optimistic;
    }
    void deleting_a_row_that_someone_changed_meanwhile_fails_and_keeps_it()
    {
        QFETCH(lock_type, lock);
        source bare;
        bare.open();
        remove_row_columns(bare);
        bare.reopen();
        Recordset partners(bare.connection, partners_settings(lock));
        partners.Open();
        add_partner(partners, u"a"_s, 1);
        partners.UpdateBatch();
        bare.change(u"update %1.partners set code = 5"_s);
        const auto delete_it = [&partners] {
            partners.Delete();
            partners.UpdateBatch();
        };
        QVERIFY(failure_of(delete_it) == failure_kind::misuse);
        QCOMPARE(stored_partners(bare), u"a:5:null"_s);
    }

    void the_script_adds_the_identity_column_to_the_tables_that_lack_it()
    {
        source bare;
        bare.open();
        remove_row_columns(bare);
        bare.change(u"alter table %1.partners modify code smallint primary key"_s);
        bare.reopen();
        const QString script = bare.connection.identity_script();
        QCOMPARE(script.count(u"ALTER TABLE"), static_cast<qsizetype>(schema().size()));
        bare.connection.Close();
        for (const QString& statement : script.split(u";\n"_s, Qt::SkipEmptyParts))
            administer(QString(statement).replace(u"TABLE `"_s, u"TABLE `" + bare.database() + u"`.`"));
        bare.open();
        QCOMPARE(bare.connection.identity_script(), QString());
        Recordset partners(bare.connection, partners_settings());
        partners.Open();
        QCOMPARE(partners.field_count(), static_cast<int>(find_table(u"partners")->columns.size()));
        add_partner(partners, u"a"_s, 1);
        partners.Fields(u"TEL").set(u"1"_s);
        partners.Update();
        QCOMPARE(stored_partners(bare), u"a:1:1"_s);
    }
};

QTEST_GUILESS_MAIN(test_foreign_source)
#include "test_foreign_source.moc"
