#include <QScopeGuard>
#include <QTest>

#include "base/failure_words.h"
#include "tests/server/foreign_source.h"
#include "tests/server/own_server.h"
#include "tests/support/outside_connection.h"
#include "tests/transfer/stored_files.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// A diary whose first round is stored after the others.
struct unsorted_diary : copied_folder {
    unsorted_diary()
    {
        const reader rounds(diary);
        rounds.write(QStringList{u"insert into games select * from games order by rowid limit 1"_s,
                                 u"delete from games where rowid = (select min(rowid) from games)"_s});
    }
};

/// The empty tables of somebody else, one of which was changed by that statement about `games`.
struct changed_target : foreign_source {
    explicit changed_target(const QString& change_of_games)
    {
        open();
        connection.Close();
        change(u"alter table %1.games "_s + change_of_games);
    }

    QString argument() const { return argument_of_store(place); }
};

const QString own_key = u"drop column verdane_row, add primary key (date)"_s;

}  // namespace

/// `verdane-store copy` into tables that somebody else made on a server.
class test_copy_to_others : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tables_that_do_not_keep_the_order_of_rows_are_refused_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("words");
        QTest::newRow("French") << u"fr_FR.UTF-8"_s
                                << u"ne garde pas l'ordre des lignes : la table games a une clé"_s;
        QTest::newRow("English") << u"en_GB.UTF-8"_s
                                 << u"does not keep the order of the rows: table games has a primary key"_s;
    }

    void tables_that_do_not_keep_the_order_of_rows_are_refused()
    {
        QFETCH(QString, language);
        QFETCH(QString, words);
        const unsorted_diary diary;
        const changed_target target(own_key);
        store_run run({u"copy"_s, file_argument(diary.diary), target.argument()});
        run.set_language(language);
        QCOMPARE(run.run(), status(exit_status::failed));
        const QString errors = run.errors();
        QVERIFY2(errors.contains(words) && errors.contains(u"verdane_row.sql"), qPrintable(errors));
        QCOMPARE(run.output(), QString());
        QCOMPARE(target.number(u"select count(*) from games"_s), 0);
    }

    void a_table_that_the_script_leaves_out_is_refused_without_the_script()
    {
        const unsorted_diary diary;
        const changed_target target(own_key + u", add column number bigint auto_increment unique"_s);
        store_run run({u"copy"_s, file_argument(diary.diary), target.argument()});
        QCOMPARE(run.run(), status(exit_status::failed));
        const QString errors = run.errors();
        QVERIFY2(errors.contains(u"table games") && errors.contains(u"Use an empty database") &&
                     !errors.contains(u"verdane_row.sql"),
                 qPrintable(errors));
    }

    void after_the_script_the_copy_is_complete_and_in_order()
    {
        const unsorted_diary diary;
        changed_target target(own_key);
        target.open();
        const QString script = target.connection.identity_script();
        target.connection.Close();
        const outside_connection server(target.place);
        for (const QString& statement : script.split(u";\n"_s, Qt::SkipEmptyParts))
            server.run_unchanged(statement);
        check_copy(diary, target);
    }

    void tables_that_keep_the_order_of_rows_are_accepted_data()
    {
        QTest::addColumn<QString>("change");
        QTest::newRow("no key") << u"drop column verdane_row"_s;
        QTest::newRow("a number of their own")
            << u"drop column verdane_row, add column number bigint auto_increment primary key"_s;
    }

    void tables_that_keep_the_order_of_rows_are_accepted()
    {
        QFETCH(QString, change);
        check_copy(unsorted_diary(), changed_target(change));
    }

    void the_copy_is_complete_with_other_settings_of_new_connections_data()
    {
        QTest::addColumn<QString>("setting");
        QTest::addColumn<QString>("value");
        QTest::newRow("another character set") << u"init_connect"_s << u"'set names utf8mb3'"_s;
        QTest::newRow("a limit of rows") << u"sql_select_limit"_s << u"3"_s;
    }

    void the_copy_is_complete_with_other_settings_of_new_connections()
    {
        QFETCH(QString, setting);
        QFETCH(QString, value);
        const unsorted_diary diary;
        reader(diary.diary)
            .write(QStringList{u"insert into partners (NAME, code) values ('é\U0001F3CC', 7)"_s});
        const changed_target target(u"comment = ''"_s);
        administer(u"set global %1 = %2"_s.arg(setting, value));
        const auto restored =
            qScopeGuard([&setting] { administer(u"set global %1 = default"_s.arg(setting)); });
        check_copy(diary, target);
    }

    void a_copy_whose_statement_fails_writes_only_the_words_and_the_reason()
    {
        const unsorted_diary diary;
        const changed_target target(u"modify column field varchar(1)"_s);
        store_run run({u"copy"_s, file_argument(diary.diary), target.argument()});
        QCOMPARE(run.run(), status(exit_status::failed));
        const QString errors = run.errors();
        QVERIFY2(errors.startsWith(failure_words(failure_kind::source_value).english + u"\ngames ["),
                 qPrintable(errors));
        QCOMPARE(target.number(u"select count(*) from games"_s), 0);
    }

private:
    /// Copies the diary to the target and back.
    static void check_copy(const unsorted_diary& diary, const changed_target& target)
    {
        store_run run({u"copy"_s, file_argument(diary.diary), target.argument()});
        const std::optional<int> ended = run.run();
        QVERIFY2(ended == status(exit_status::done), qPrintable(run.errors()));
        QCOMPARE(store_run({u"copy"_s, target.argument(), file_argument(diary.target)}).run(),
                 status(exit_status::done));
        QCOMPARE(all_rows(diary.target), all_rows(diary.diary));
    }
};

QTEST_GUILESS_MAIN(test_copy_to_others)
#include "test_copy_to_others.moc"
