#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

#include "store/Connection1.h"
#include "store/engines/odbc_link.h"
#include "store/engines/registered_source.h"
#include "store/engines/sqlite_odbc_engine.h"
#include "store/Recordset.h"
#include "tests/support/failures.h"
#include "tests/support/reader.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// A name that was not used before: the installer library keeps the settings that it has read for a while.
QString next_name()
{
    static int last = 0;
    return u"diary_%1"_s.arg(++last);
}

void write_file(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qUtf8Printable(path));
}

QByteArray content_of(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A source of SQLite with its file in a temporary folder.
class sqlite_source {
public:
    explicit sqlite_source(bool names_file = true, const QString& driver = driver_file())
    {
        const QString database = names_file ? u"Database=" + path() + u'\n' : QString();
        write_file(folder_.filePath(u"odbc.ini"_s),
                   QString(u'[' + name_ + u"]\nDriver=" + driver + u'\n' + database).toUtf8());
        qputenv("ODBCINI", QFile::encodeName(folder_.filePath(u"odbc.ini"_s)));
    }
    ~sqlite_source() { qputenv("ODBCINI", ini_before_); }
    sqlite_source(const sqlite_source&) = delete;
    sqlite_source& operator=(const sqlite_source&) = delete;

    static QString driver_file() { return setting_of_source(u"Verdbase"_s, u"Driver"_s); }
    const QString& name() const { return name_; }
    QString path() const { return folder_.filePath(u"Verdbase.db"_s); }
    reader file() const { return reader(store_location::file(path())); }
    void open() { connection.Open(store_location::source(name_)); }
    void reopen()
    {
        connection.Close();
        open();
    }

private:
    const QString name_ = next_name();
    QTemporaryDir folder_;
    const QByteArray ini_before_ = qgetenv("ODBCINI");

public:
    // Declared after the folder, so that it is closed before the folder is removed.
    Connection1 connection;
};

/// Creates an empty table again, with a part of its declaration replaced.
void change_declaration(const reader& file, const QString& table, const QString& from, const QString& to)
{
    QString creation = file.text(u"select sql from sqlite_master where name = '%1'"_s.arg(table));
    if (creation.count(from) != 1)
        qFatal("not once: %s in %s", qUtf8Printable(from), qUtf8Printable(creation));
    file.write(QStringList{u"drop table "_s + table, creation.replace(from, to)});
}

/// The details of the failure of an action; empty if it does not fail with that kind.
QString details_of(failure_kind kind, const std::function<void()>& action)
{
    try {
        action();
    } catch (const run_time_failure& failure) {
        return failure.kind() == kind ? failure.details() : QString();
    }
    return {};
}

/// The other process: reads the file and closes it again.
int number_of_partners(const QString& path)
{
    return reader(path).number(u"select count(*) from partners"_s);
}

}  // namespace

namespace {

recordset_settings all_rows_of(const QString& table)
{
    recordset_settings settings;
    settings.name = u"rstest"_s;
    settings.source = u"select * from "_s + table;
    return settings;
}

/// Registers the driver of SQLite under another name, in the folder of the installed drivers.
void register_alias(const QString& alias)
{
    write_file(qEnvironmentVariable("ODBCSYSINI") + u"/odbcinst.ini",
               u"[%1]\nDriver=%2\n"_s.arg(alias, sqlite_source::driver_file()).toUtf8());
}

/// Inserts a partner by an engine for that version of the library, and returns the row with the identity that
/// the engine returned.
QString inserted_partner(const QString& version)
{
    sqlite_source source;
    source.open();
    source.connection.Close();
    const QString connection = u"insertion"_s;
    open_link(connection, source.name(), source_time_out_s);
    sqlite_odbc_engine engine(connection, store_location::source(source.name()), version);
    engine.open(soundness_check::while_opening);
    engine.insert({u"INSERT INTO partners (`NAME`) VALUES ('first')"_s, {}}, u"test"_s);
    const qint64 row = engine.insert({u"INSERT INTO partners (`NAME`) VALUES ('second')"_s, {}}, u"test"_s);
    engine.close();
    return source.file().text(u"select NAME from partners where rowid = %1"_s.arg(row));
}

}  // namespace

/// SQLite over ODBC: what it refuses, and what it leaves unchanged.
class test_sqlite_source : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_new_file_is_created_with_its_tables()
    {
        sqlite_source source;
        source.open();
        QCOMPARE(source.file().number(u"select language from settings"_s), 0);
        QCOMPARE(source.file().text(u"PRAGMA journal_mode"_s), u"wal"_s);
        source.reopen();
        QCOMPARE(source.connection.identity_script(), QString());
    }

    void a_log_without_its_file_is_refused_and_kept()
    {
        sqlite_source source;
        const QByteArray log(4096, 'x');
        for (const bool empty_file : {false, true}) {
            write_file(source.path() + u"-wal", log);
            if (empty_file)
                write_file(source.path(), {});
            QVERIFY(failure_of([&] { source.open(); }) == failure_kind::store_damaged);
            QCOMPARE(content_of(source.path() + u"-wal"), log);
        }
    }

    void a_driver_whose_name_does_not_contain_sqlite_keeps_the_log_of_a_lost_file()
    {
        const QString alias = u"Lite"_s;
        register_alias(alias);
        sqlite_source source(true, alias);
        const QByteArray log(4096, 'x');
        for (const bool empty_file : {false, true}) {
            write_file(source.path() + u"-wal", log);
            if (empty_file)
                write_file(source.path(), {});
            QVERIFY(failure_of([&] { source.open(); }) == failure_kind::store_damaged);
            QCOMPARE(content_of(source.path() + u"-wal"), log);
        }
        QVERIFY(QFile::remove(source.path() + u"-wal"));
        source.open();
        QVERIFY(source.connection.is_open());
    }

    void a_new_row_is_identified_with_every_version_of_the_library()
    {
        QCOMPARE(inserted_partner(u"3.40.1"_s), u"second"_s);
        QCOMPARE(inserted_partner(u"3.34.1"_s), u"second"_s);
    }

    void a_file_of_another_kind_is_refused_and_kept()
    {
        sqlite_source source;
        const QByteArray letter(5000, 'x');
        write_file(source.path(), letter);
        QVERIFY(failure_of([&] { source.open(); }) == failure_kind::store_damaged);
        QCOMPARE(content_of(source.path()), letter);
    }

    void a_source_that_names_no_file_is_refused()
    {
        sqlite_source source(false);
        QVERIFY(failure_of([&] { source.open(); }) == failure_kind::source_database);
    }

    void a_file_that_the_embedded_engine_has_open_is_refused_and_the_other_way_round()
    {
        sqlite_source source;
        Connection1 embedded;
        embedded.Open(source.path());
        QVERIFY(failure_of([&] { source.open(); }) == failure_kind::store_locked);
        embedded.Close();
        source.open();
        QVERIFY(failure_of([&] { embedded.Open(source.path()); }) == failure_kind::store_locked);
    }

    void what_is_committed_after_another_program_has_read_the_file_is_stored()
    {
        sqlite_source source;
        source.open();
        // Only a file that was created before has a log while it is opened.
        source.reopen();
        source.connection.Execute(u"insert into partners (NAME, code) values ('a', 1)"_s);
        QProcess other;
        other.start(QCoreApplication::applicationFilePath(), {u"--read"_s, source.path()});
        QVERIFY(other.waitForFinished(60000));
        QCOMPARE(other.exitCode(), 1);
        source.connection.Execute(u"insert into partners (NAME, code) values ('b', 2)"_s);
        QCOMPARE(source.file().number(u"select count(*) from partners"_s), 2);
        source.connection.Close();
        QCOMPARE(source.file().number(u"select count(*) from partners"_s), 2);
    }

    void tables_and_columns_that_do_not_fit_are_refused_data()
    {
        QTest::addColumn<QStringList>("changes");
        QTest::addColumn<failure_kind>("kind");
        QTest::newRow("missing table") << QStringList{u"drop table partners"_s} << failure_kind::source_table;
        QTest::newRow("missing column")
            << QStringList{u"alter table games drop column missed_18"_s} << failure_kind::source_column;
        QTest::newRow("renamed column") << QStringList{u"alter table games rename column field to course"_s}
                                        << failure_kind::source_column;
        QTest::newRow("moved column") << QStringList{u"alter table partners drop column NAME"_s,
                                                     u"alter table partners add column NAME text"_s}
                                      << failure_kind::source_column;
        QTest::newRow("column of another type")
            << QStringList{u"drop table hand"_s, u"create table hand (hnd text)"_s}
            << failure_kind::source_type;
    }
    void tables_and_columns_that_do_not_fit_are_refused()
    {
        QFETCH(QStringList, changes);
        QFETCH(failure_kind, kind);
        sqlite_source source;
        source.open();
        source.connection.Close();
        source.file().write(changes);
        QVERIFY(failure_of([&] { source.open(); }) == kind);
        QVERIFY(!source.connection.is_open());
    }

    void a_declaration_with_which_values_or_rows_would_change_is_refused_by_name_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<QString>("details");
        const QString code = u"`code` INTEGER"_s;
        QTest::newRow("number of the row") << u"partners"_s << code << code + u" primary key"
                                           << u"partners, 7: code: INTEGER PRIMARY KEY ≠ INTEGER"_s;
        QTest::newRow("table without numbers of rows")
            << u"partners"_s << code + u')' << u"`code` INTEGER, primary key (NAME)) without rowid"_s
            << u"partners: WITHOUT ROWID"_s;
        QTest::newRow("another column with the name of the number")
            << u"partners"_s << code << code + u", rowid int" << u"partners: rowid INT"_s;
        QTest::newRow("computed column of the program")
            << u"partners"_s << code << u"`code` INTEGER generated always as (7)"_s
            << u"partners, 7: code: INTEGER GENERATED ≠ INTEGER"_s;
        QTest::newRow("computed column before those of the program")
            << u"partners"_s << u"(`NAME`"_s << u"(long_name text as (upper(name)), `NAME`"_s
            << u"partners, 1: long_name ≠ NAME"_s;
    }
    void a_declaration_with_which_values_or_rows_would_change_is_refused_by_name()
    {
        QFETCH(QString, table);
        QFETCH(QString, from);
        QFETCH(QString, to);
        sqlite_source source;
        source.open();
        source.connection.Close();
        change_declaration(source.file(), table, from, to);
        const failure_kind kind =
            to.contains(u"long_name") ? failure_kind::source_column : failure_kind::source_type;
        QTEST(details_of(kind, [&] { source.open(); }), "details");
        QVERIFY(!source.connection.is_open());
    }

    void a_further_column_that_is_the_number_of_the_row_or_computed_changes_no_row_data()
    {
        QTest::addColumn<QString>("further");
        QTest::newRow("number of the row") << u"id integer primary key"_s;
        QTest::newRow("number of the row with its name") << u"rowid integer primary key"_s;
        QTest::newRow("computed when it is read") << u"upper_name text not null as (upper(name))"_s;
        QTest::newRow("computed and stored") << u"upper_name text as (upper(name)) stored"_s;
    }
    void a_further_column_that_is_the_number_of_the_row_or_computed_changes_no_row()
    {
        QFETCH(QString, further);
        sqlite_source source;
        source.open();
        source.connection.Close();
        change_declaration(source.file(), u"partners"_s, u"`code` INTEGER"_s, u"`code` INTEGER, " + further);
        source.open();
        Recordset partners(source.connection, all_rows_of(u"partners"_s));
        partners.Open();
        for (const int code : {3, 1, 2}) {
            partners.AddNew();
            partners.Fields(u"NAME").set(u"a"_s);
            partners.Fields(u"code").set(code);
            partners.Update();
        }
        partners.MoveFirst();
        partners.Fields(u"code").set(9);
        partners.Update();
        partners.Fields(u"TEL").set(u"1"_s);
        partners.Update();
        QCOMPARE(source.file().text(u"select group_concat(code || ifnull(TEL, '-'), ' ') from partners"_s),
                 u"91 1- 2-"_s);
    }

    void a_new_row_has_the_defaults_of_the_program_whatever_those_of_the_table_are_data()
    {
        QTest::addColumn<QString>("ending");
        QTest::newRow("none") << QString();
        QTest::newRow("Null") << u" default null"_s;
        QTest::newRow("another one") << u" default 7"_s;
        QTest::newRow("the same") << u" default 0"_s;
    }
    void a_new_row_has_the_defaults_of_the_program_whatever_those_of_the_table_are()
    {
        QFETCH(QString, ending);
        sqlite_source source;
        source.open();
        source.connection.Close();
        const QString column = u"`pen_water_1` SMALLINT"_s;
        change_declaration(source.file(), u"games"_s, column + u" DEFAULT 0", column + ending);
        source.open();
        Recordset rounds(source.connection, all_rows_of(u"games"_s));
        rounds.Open();
        rounds.AddNew();
        rounds.Fields(u"date").set(u"20260614093000"_s);
        rounds.Update();
        QCOMPARE(source.file().number(u"select count(*) from games where pen_water_1 = 0"_s), 1);
        rounds.Fields(u"date").set(u"20260615093000"_s);
        rounds.Update();
        QCOMPARE(source.file().number(u"select count(*) from games where date = '20260615093000'"_s), 1);
    }

    void tables_of_other_applications_are_ignored_and_kept()
    {
        sqlite_source source;
        source.file().write(
            QStringList{u"create table invoices (number int)"_s, u"insert into invoices values (7)"_s});
        source.open();
        source.reopen();
        QCOMPARE(source.file().number(u"select number from invoices"_s), 7);
        QCOMPARE(source.file().number(u"select count(*) from settings"_s), 1);
    }
};

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.value(1) == u"--read")
        return number_of_partners(arguments.value(2));
    test_sqlite_source test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_sqlite_source.moc"
