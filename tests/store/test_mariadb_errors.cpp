#include <QTest>

#include "store/engines/engine_choice.h"
#include "store/engines/mariadb_errors.h"

using namespace verdane;
using namespace Qt::StringLiterals;

/// What the errors and the version of a source mean.
class test_mariadb_errors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void an_error_of_a_statement_has_its_meaning_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("text");
        QTest::addColumn<failure_kind>("kind");
        const auto row = [](const char* name, int code, failure_kind kind, const QString& text = u"text"_s) {
            QTest::newRow(name) << code << text << kind;
        };
        row("no error after a lost connection", 0, failure_kind::source_lost, QString());
        row("server gone", 2006, failure_kind::source_lost);
        row("server lost", 2013, failure_kind::source_lost);
        row("broken pipe", 5014, failure_kind::source_lost);
        row("connection killed", 1927, failure_kind::source_lost);
        row("server shut down", 1053, failure_kind::source_lost);
        row("lock not free in time", 1205, failure_kind::store_locked);
        row("deadlock, in which no program has to be closed", 1213, failure_kind::store_other);
        row("node that has lost the others", 1047, failure_kind::source_lost);
        row("password that has to be changed first", 1820, failure_kind::source_password);
        row("right on a table missing", 1142, failure_kind::source_read_only);
        row("read-only server", 1290, failure_kind::source_read_only);
        row("missing table", 1146, failure_kind::source_part);
        row("missing column", 1054, failure_kind::source_part);
        row("full table", 1114, failure_kind::source_full);
        row("full disk while a file is written", 1026, failure_kind::source_full,
            u"Error writing file './verdbase/games' (errno: 28 \"No space left on device\")"_s);
        row("other error on a file", 1026, failure_kind::store_other,
            u"Error writing file './verdbase/games' (errno: 5 \"Input/output error\")"_s);
        row("another number with the same digits", 1026, failure_kind::store_other,
            u"Error writing file './verdbase/games' (errno: 128 \"Out of memory in engine\")"_s);
        row("full disk while the server writes a temporary file", 3, failure_kind::source_full,
            u"Error writing file '/tmp/#sql/fd=52' (Errcode: 28 \"No space left on device\")"_s);
        row("full disk while the server makes a temporary file", 1, failure_kind::source_full,
            u"Can't create/write to file '/tmp/#sql.MAI' (Errcode: 28 \"No space left on device\")"_s);
        row("quota used up while the server writes a file", 3, failure_kind::source_full,
            u"Error writing file './ddl_recovery.log' (Errcode: 122 \"Internal (unspecified) error in "
            u"handler\")"_s);
        row("internal error of the storage engine", 1030, failure_kind::store_other,
            u"Got error 122 \"Internal (unspecified) error in handler\" from storage engine InnoDB"_s);
        row("temporary folder without rights", 1, failure_kind::store_other,
            u"Can't create/write to file '/tmp/#sql.MAI' (Errcode: 13 \"Permission denied\")"_s);
        row("full disk while a table is created", 1005, failure_kind::source_full,
            u"Can't create table `verdbase`.`games` (errno: 28 \"No space left on device\")"_s);
        row("full disk while a table of the storage engine is created", 1005, failure_kind::source_full,
            u"Can't create table `verdbase`.`games` (errno: 135 \"No more room in record file\")"_s);
        row("table that cannot be created", 1005, failure_kind::store_other,
            u"Can't create table `verdbase`.`games` (errno: 150 \"Foreign key constraint is incorrectly "
            u"formed\")"_s);
        row("full disk during a commit", 1180, failure_kind::source_full,
            u"Got error 28 \"No space left on device\" during COMMIT"_s);
        row("other error during a commit", 1180, failure_kind::store_other,
            u"Got error 5 \"Input/output error\" during COMMIT"_s);
        row("full disk of the storage engine", 1030, failure_kind::source_full,
            u"Got error 28 \"No space left on device\" from storage engine InnoDB"_s);
        row("text too long", 1406, failure_kind::source_value);
        row("number too large", 1264, failure_kind::source_value);
        row("text in a number", 1366, failure_kind::source_value);
        row("wrong syntax", 1064, failure_kind::store_other);
    }
    void an_error_of_a_statement_has_its_meaning()
    {
        QFETCH(int, code);
        QFETCH(QString, text);
        QTEST(kind_of_mariadb_error(code, text), "kind");
    }

    void an_error_of_opening_has_its_meaning_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<failure_kind>("kind");
        QTest::newRow("wrong password") << 1045 << failure_kind::source_password;
        QTest::newRow("password that has to be changed first") << 1820 << failure_kind::source_password;
        QTest::newRow("account locked") << 4151 << failure_kind::source_password;
        QTest::newRow("host not allowed") << 1130 << failure_kind::source_host;
        QTest::newRow("host blocked") << 1129 << failure_kind::source_host;
        QTest::newRow("error of encryption") << 2026 << failure_kind::source_login;
        QTest::newRow("method of login missing") << 2059 << failure_kind::source_login;
        QTest::newRow("method of login too old") << 1251 << failure_kind::source_login;
        QTest::newRow("too many connections of an account") << 1203 << failure_kind::source_busy;
        QTest::newRow("limit of an account") << 1226 << failure_kind::source_busy;
        QTest::newRow("database denied") << 1044 << failure_kind::source_database;
        QTest::newRow("unknown database") << 1049 << failure_kind::source_database;
        QTest::newRow("no socket") << 2002 << failure_kind::source_stopped;
        QTest::newRow("unknown host") << 2005 << failure_kind::source_stopped;
        QTest::newRow("too many connections") << 1040 << failure_kind::source_busy;
        QTest::newRow("no answer in time") << 2013 << failure_kind::source_silent;
    }
    void an_error_of_opening_has_its_meaning()
    {
        QFETCH(int, code);
        QTEST(kind_of_mariadb_opening(code), "kind");
    }

    void a_server_that_does_not_run_the_first_query_cannot_be_used()
    {
        QVERIFY(kind_of_unusable_server(1047, u"WSREP has not yet prepared node"_s) ==
                failure_kind::source_stopped);
        QVERIFY(kind_of_unusable_server(2013, u"Lost connection"_s) == failure_kind::source_silent);
        QVERIFY(kind_of_unusable_server(0, QString()) == failure_kind::source_silent);
        const QString from_server = u"[ma-3.1.17][10.11.6-MariaDB]text"_s;
        QVERIFY(kind_of_unusable_server(1820, from_server) == failure_kind::source_password);
        QVERIFY(kind_of_unusable_server(1290, from_server) == failure_kind::source_read_only);
        QVERIFY(kind_of_unusable_server(1969, from_server) == failure_kind::store_other);
        QVERIFY(!kind_of_unusable_server(1, u"no such function: version (1)"_s));
        QVERIFY(!kind_of_unusable_server(195, u"not a recognized built-in function name"_s));
    }

    void a_source_of_an_unknown_engine_is_unsupported_data()
    {
        QTest::addColumn<QString>("server");
        QTest::addColumn<QString>("sqlite");
        QTest::addColumn<source_kind>("kind");
        QTest::newRow("MariaDB") << u"10.11.6-MariaDB-0+deb12u1"_s << QString() << source_kind::mariadb;
        QTest::newRow("oldest MariaDB") << u"10.5.0-MariaDB"_s << QString() << source_kind::mariadb;
        QTest::newRow("newer MariaDB") << u"11.4.2-MariaDB-log"_s << QString() << source_kind::mariadb;
        QTest::newRow("too old MariaDB") << u"10.4.34-MariaDB"_s << QString() << source_kind::unsupported;
        QTest::newRow("SQLite") << QString() << u"3.40.1"_s << source_kind::sqlite;
        QTest::newRow("MySQL") << u"8.0.33"_s << QString() << source_kind::unsupported;
        QTest::newRow("PostgreSQL") << u"PostgreSQL 15.4 on x86_64"_s << QString()
                                    << source_kind::unsupported;
        QTest::newRow("neither function") << QString() << QString() << source_kind::unsupported;
    }
    void a_source_of_an_unknown_engine_is_unsupported()
    {
        QFETCH(QString, server);
        QFETCH(QString, sqlite);
        QTEST(kind_of_source(server, sqlite), "kind");
    }
};

QTEST_GUILESS_MAIN(test_mariadb_errors)
#include "test_mariadb_errors.moc"
