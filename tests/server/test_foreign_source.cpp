#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include "store/Recordset.h"
#include "store/recovery/diary_copy.h"
#include "store/schema.h"
#include "tests/server/foreign_source.h"
#include "tests/server/own_server.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/failures.h"
#include "tests/support/outside_connection.h"
#include "tests/support/recordset_columns.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

void run_script(const foreign_source& in, const QString& script)
{
    for (const QString& statement : script.split(u";\n"_s, Qt::SkipEmptyParts))
        administer(QString(statement).replace(u"TABLE `"_s, u"TABLE `" + in.database() + u"`.`"));
}

void restart_server(const QStringList& options = {})
{
    stop_server();
    start_server(options);
}

/// True if the first column has the name that `text` begins with, of more than `least` letters.
bool first_column_begins(Recordset& rows, const QString& text, qsizetype least)
{
    for (qsizetype size = text.size(); size > least; --size) {
        if (!failure_of([&] { rows.Fields(text.first(size)); }))
            return rows.Fields(text.first(size)).ordinal() == 0;
    }
    return false;
}

}  // namespace

/// Databases that someone else has made, or that have content of others.
class test_foreign_source : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tables_of_other_applications_are_ignored_and_kept()
    {
        foreign_source other;
        other.change(u"create table %1.invoices (number int)"_s);
        other.change(u"insert into %1.invoices values (7)"_s);
        other.open();
        other.reopen();
        QCOMPARE(other.outside().number(u"select number from invoices"_s), 7);
        QCOMPARE(other.outside().number(u"select language from settings"_s), 0);
        QCOMPARE(other.connection.identity_script(), QString());
    }

    void tables_of_the_same_names_in_another_database_are_ignored_and_kept()
    {
        administer(u"create database verdbase_of_others"_s);
        const auto dropped = qScopeGuard([] { administer(u"drop database verdbase_of_others"_s); });
        administer(u"create table verdbase_of_others.games (remark text)"_s);
        foreign_source own;
        own.open();
        own.reopen();
        QCOMPARE(own.outside().number(u"select language from settings"_s), 0);
        QCOMPARE(own.connection.identity_script(), QString());
        QCOMPARE(own.number(u"select count(*) from information_schema.columns where table_schema = "
                            "'verdbase_of_others'"_s),
                 1);
    }

    void an_interrupted_creation_of_the_tables_is_completed()
    {
        foreign_source halved;
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
        foreign_source damaged;
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

    void an_edited_golf_bag_is_kept_when_a_missing_table_is_created_again()
    {
        foreign_source edited;
        edited.open();
        edited.connection.Execute(u"update sticknames set club_1 = 'Driver'"_s);
        edited.connection.Execute(u"update settings set language = 2"_s);
        edited.connection.Close();
        administer(u"drop table %1.%2"_s.arg(edited.database(), schema().back().name));
        edited.open();
        QCOMPARE(edited.outside().number(u"select count(*) from sticknames where club_1 = 'Driver'"_s), 1);
        QCOMPARE(edited.outside().number(u"select language from settings"_s), 2);
    }

    void an_edited_golf_bag_that_the_account_may_not_read_is_kept()
    {
        foreign_source edited;
        edited.open();
        edited.connection.Execute(u"update sticknames set club_1 = 'Driver'"_s);
        edited.connection.Close();
        administer(u"drop table %1.%2"_s.arg(edited.database(), schema().back().name));
        for (const table& each : schema())
            administer(u"grant %1 on %2.%3 to golfer@localhost"_s.arg(
                each.name == u"sticknames" ? u"insert, delete"_s : u"all"_s, edited.database(), each.name));
        administer(u"revoke all on `verdbase%`.* from golfer@localhost"_s);
        const auto failed = failure_of([&] { edited.open(); });
        administer(u"grant all on `verdbase%`.* to golfer@localhost"_s);
        QVERIFY(failed == failure_kind::source_read_only);
        QCOMPARE(edited.outside().number(u"select count(*) from sticknames where club_1 = 'Driver'"_s), 1);
    }

    void a_failure_is_described_in_the_language_in_which_errors_are_recognised()
    {
        foreign_source other;
        administer(u"set global lc_messages = 'fr_FR'"_s);
        const auto restored = qScopeGuard([] { administer(u"set global lc_messages = 'en_US'"_s); });
        other.open();
        try {
            other.connection.Execute(u"delete from nowhere"_s);
            QFAIL("the table was found");
        } catch (const run_time_failure& failure) {
            QVERIFY2(failure.details().contains(u"doesn't exist"), qPrintable(failure.details()));
        }
    }

    void a_start_releases_its_first_lock_before_it_takes_the_next_one()
    {
        foreign_source other;
        other.open();
        other.connection.Close();
        administer(u"set global log_output = 'TABLE', global general_log = on"_s);
        const auto stopped = qScopeGuard([] { administer(u"set global general_log = off"_s); });
        administer(u"truncate table mysql.general_log"_s);
        other.open();
        const outside_connection server(store_location::source(administrator_source()));
        QSqlQuery query =
            server.run_unchanged(u"select regexp_substr(argument, '(get|release)_lock') from "
                                 "mysql.general_log where command_type in ('Query', 'Execute') and "
                                 "argument regexp '^(select get|do release)_lock' order by event_time"_s);
        QStringList locks;
        for (const auto& row : all_rows(query))
            locks << row[0].toString();
        QCOMPARE(locks, (QStringList{u"get_lock"_s, u"release_lock"_s, u"get_lock"_s}));
    }

    void a_setting_of_the_server_loses_no_save_data()
    {
        QTest::addColumn<QString>("setting");
        QTest::addColumn<QString>("value");
        QTest::newRow("a commit begins a transaction") << u"completion_type"_s << u"'CHAIN'"_s;
        QTest::newRow("a change needs a key") << u"sql_safe_updates"_s << u"1"_s;
        QTest::newRow("a statement commits nothing") << u"autocommit"_s << u"0"_s;
        QTest::newRow("other words and quotes")
            << u"sql_mode"_s << u"'ANSI,IGNORE_SPACE,NO_AUTO_VALUE_ON_ZERO,ORACLE'"_s;
        QTest::newRow("an unused connection ends after a second") << u"wait_timeout"_s << u"1"_s;
    }
    void a_setting_of_the_server_loses_no_save()
    {
        QFETCH(QString, setting);
        QFETCH(QString, value);
        foreign_source strict;
        administer(u"set global %1 = %2"_s.arg(setting, value));
        const auto restored =
            qScopeGuard([&setting] { administer(u"set global %1 = default"_s.arg(setting)); });
        strict.open();
        Recordset partners(strict.connection, partners_settings(lock_type::batch_optimistic));
        partners.Open();
        add_partner(partners, u"a"_s, 1);
        partners.UpdateBatch();
        if (setting == u"wait_timeout")
            QThread::msleep(2500);
        // Without a transaction of its own, unlike the other save.
        strict.connection.Execute(u"insert into partners (name, code) values ('b', 2)"_s);
        strict.reopen();
        QCOMPARE(stored_partners(strict), u"a:1:null b:2:null"_s);
        strict.connection.Execute(u"delete from partners"_s);
        QCOMPARE(stored_partners(strict), QString());
    }

    void a_text_is_stored_and_read_unchanged_whatever_the_character_set_of_the_server_is_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::newRow("of each connection") << QStringList{u"--init-connect=set names utf8mb3"_s};
        QTest::newRow("instead of that of the client")
            << QStringList{u"--skip-character-set-client-handshake"_s, u"--character-set-server=latin1"_s};
    }
    void a_text_is_stored_and_read_unchanged_whatever_the_character_set_of_the_server_is()
    {
        QFETCH(QStringList, options);
        restart_server(options);
        const auto restored = qScopeGuard([] { restart_server(); });
        foreign_source other;
        other.open();
        Recordset partners(other.connection, partners_settings());
        partners.Open();
        const QString name = u"é\U0001F3CC"_s;
        add_partner(partners, name, 1);
        partners.Close();
        other.reopen();
        QCOMPARE(other.stored(u"select hex(NAME) from partners"_s), QStringList{u"C3A9F09F8F8C"_s});
        partners.Open();
        QCOMPARE(partners.Fields(u"NAME").text_or_empty(), name);
        partners.Find(u"NAME='%1'"_s.arg(name));
        QVERIFY(!partners.eof());
    }

    void a_setting_of_the_server_changes_no_rows_that_are_read_data()
    {
        QTest::addColumn<QString>("setting");
        QTest::addColumn<int>("value");
        QTest::newRow("the number of rows is limited") << u"sql_select_limit"_s << 3;
        QTest::newRow("long selections are refused") << u"max_join_size"_s << 3;
        QTest::newRow("the beginnings of texts are sorted") << u"max_sort_length"_s << 64;
    }
    void a_setting_of_the_server_changes_no_rows_that_are_read()
    {
        QFETCH(QString, setting);
        QFETCH(int, value);
        foreign_source other;
        administer(u"set global %1 = %2"_s.arg(setting).arg(value));
        const auto restored =
            qScopeGuard([&setting] { administer(u"set global %1 = default"_s.arg(setting)); });
        other.open();
        Recordset partners(other.connection, partners_settings());
        partners.Open();
        QStringList names;
        for (int code = 9; code > 0; --code) {
            names.prepend(QString(40, u'a') + QString::number(code));
            add_partner(partners, names.front(), code);
        }
        partners.Requery();
        QStringList found;
        for (; !partners.eof(); partners.MoveNext())
            found << partners.Fields(u"NAME").text_or_empty();
        QCOMPARE(found, names);
    }

    void a_copy_of_which_rows_are_not_returned_fails()
    {
        foreign_source from;
        from.open();
        from.connection.Execute(u"insert into partners (name) values ('a'), ('b')"_s);
        const QTemporaryDir folder;
        Connection1 to;
        to.Open(folder.filePath(u"Verdbase.db"_s));
        from.connection.Execute(u"set session sql_select_limit = 1"_s);
        const auto copy = [&] { copy_diary(from.connection, to, [](const counted_table&) {}); };
        QVERIFY(failure_of(copy) == failure_kind::store_other);
        QCOMPARE(reader(to.location()).number(u"select count(*) from partners"_s), 0);
        from.reopen();
        copy();
        QCOMPARE(reader(to.location()).number(u"select count(*) from partners"_s), 2);
    }

    void a_column_with_a_long_name_is_read()
    {
        foreign_source any;
        any.open();
        const QString expression = u"language"_s + u"+language"_s.repeated(20);
        const auto rows = opened(any, u"select %1, language+7 from settings"_s.arg(expression));
        QVERIFY(expression.size() > 128);
        QVERIFY(first_column_begins(*rows, expression, 100));
        QCOMPARE(rows->Fields(u"language+7").ordinal(), 1);
        QCOMPARE(rows->Fields(0).to_double(), 0.0);
        QCOMPARE(rows->Fields(1).to_double(), 7.0);
    }

    void a_value_that_does_not_fit_is_refused_and_nothing_is_lost()
    {
        foreign_source narrow;
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

    void a_character_that_a_column_cannot_store_is_refused_and_nothing_is_lost()
    {
        foreign_source other;
        other.open();
        other.change(u"alter table %1.partners modify NAME text character set latin1"_s);
        other.reopen();
        Recordset partners(other.connection, partners_settings());
        partners.Open();
        add_partner(partners, u"a"_s, 1);
        QVERIFY(failure_of([&] { add_partner(partners, u"Zoë \U0001F3CC"_s, 2); }) ==
                failure_kind::source_value);
        partners.CancelUpdate();
        QCOMPARE(stored_partners(other), u"a:1:null"_s);
    }

    void the_script_adds_the_identity_column_to_the_tables_that_lack_it()
    {
        foreign_source bare;
        bare.open();
        remove_row_columns(bare);
        bare.change(u"alter table %1.partners modify code smallint primary key"_s);
        bare.reopen();
        const QString script = bare.connection.identity_script();
        QCOMPARE(script.count(u"ALTER TABLE"), static_cast<qsizetype>(schema().size()));
        bare.connection.Close();
        run_script(bare, script);
        bare.open();
        QCOMPARE(bare.connection.identity_script(), QString());
        Recordset partners(bare.connection, partners_settings());
        partners.Open();
        QCOMPARE(column_count(partners), static_cast<int>(find_table(u"partners")->columns.size()));
        add_partner(partners, u"a"_s, 1);
        partners.Fields(u"TEL").set(u"1"_s);
        partners.Update();
        QCOMPARE(stored_partners(bare), u"a:1:1"_s);
    }

    void the_script_leaves_out_a_table_in_which_the_server_numbers_another_column()
    {
        foreign_source numbered;
        numbered.open();
        remove_row_columns(numbered);
        numbered.change(u"alter table %1.partners modify code int auto_increment primary key"_s);
        numbered.change(u"alter table %1.cost add column verdane_row int"_s);
        numbered.reopen();
        const QString script = numbered.connection.identity_script();
        QCOMPARE(script.count(u"ADD COLUMN"), static_cast<qsizetype>(schema().size()) - 1);
        numbered.connection.Close();
        run_script(numbered, script);
        numbered.open();
        QCOMPARE(numbered.connection.identity_script(), QString());
        Recordset partners(numbered.connection, partners_settings());
        partners.Open();
        add_partner(partners, u"a"_s, 7);
        partners.Fields(u"TEL").set(u"1"_s);
        partners.Update();
        QCOMPARE(stored_partners(numbered), u"a:7:1"_s);
    }

    void a_column_with_the_name_of_the_identity_column_is_not_trusted_data()
    {
        QTest::addColumn<QString>("definition");
        QTest::newRow("no key") << u"int default 1"_s;
        QTest::newRow("unique and not numbered") << u"int unique"_s;
        QTest::newRow("part of a key, left out by the script")
            << u"int default 1, add primary key (verdane_row, name(9))"_s;
        QTest::newRow("a number that can occur twice")
            << u"int auto_increment invisible, add index (verdane_row)"_s;
    }
    void a_column_with_the_name_of_the_identity_column_is_not_trusted()
    {
        QFETCH(QString, definition);
        foreign_source bare;
        bare.open();
        bare.change(u"alter table %1.partners drop column verdane_row"_s);
        bare.change(u"insert into %1.partners (name, code) values ('a', 1), ('b', 2)"_s);
        bare.change(u"alter table %1.partners add column verdane_row "_s + definition);
        bare.reopen();
        Recordset partners(bare.connection, partners_settings());
        partners.Open();
        partners.Find(u"NAME='b'"_s);
        partners.Fields(u"TEL").set(u"1"_s);
        partners.Update();
        QCOMPARE(bare.stored(u"select concat(NAME, ifnull(TEL, '-')) from partners order by 1"_s),
                 (QStringList{u"a-"_s, u"b1"_s}));
        const QString script = bare.connection.identity_script();
        bare.connection.Close();
        run_script(bare, script);
        bare.open();
        QCOMPARE(bare.connection.identity_script(), QString());
    }

    void a_new_row_has_the_defaults_of_the_program_whatever_those_of_the_table_are_data()
    {
        QTest::addColumn<QString>("change");
        QTest::newRow("none") << u"alter table %1.games alter column pen_water_1 drop default"_s;
        QTest::newRow("another one") << u"alter table %1.games alter column pen_water_1 set default 7"_s;
        QTest::newRow("the same") << u"alter table %1.games alter column pen_water_1 set default 0"_s;
    }
    void a_new_row_has_the_defaults_of_the_program_whatever_those_of_the_table_are()
    {
        QFETCH(QString, change);
        foreign_source other;
        other.open();
        other.change(change);
        other.reopen();
        const auto rounds = opened(other, u"select * from games"_s);
        rounds->AddNew();
        rounds->Fields(u"date").set(u"20260614093000"_s);
        rounds->Update();
        QCOMPARE(other.number(u"select count(*) from games where pen_water_1 = 0"_s), 1);
        rounds->Fields(u"date").set(u"20260615093000"_s);
        rounds->Update();
        QCOMPARE(other.number(u"select count(*) from games where date = '20260615093000'"_s), 1);
    }
};

QTEST_GUILESS_MAIN(test_foreign_source)
#include "test_foreign_source.moc"
