#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "base/language.h"
#include "base/run_time_failure.h"
#include "reports/preview/report_preview.h"
#include "reports/preview/report_wait.h"
#include "reports/query/report_snapshot.h"
#include "reports/query/report_tables.h"
#include "reports/report_control.h"
#include "reports/report_document.h"
#include "reports/template/template_reader.h"
#include "store/Connection1.h"
#include "tests/reports/report_tools.h"
#include "tests/support/failures.h"
#include "tests/support/other_program.h"
#include "tests/support/reader.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString endless = u"query all =\n    with recursive c(n) as (select 1 union all select n + 1 from c)\n"
                        "    select count(*) as n from c\n"_s;

/// A new store in a file without a log, so that an exclusive lock blocks its readers.
store_location file_without_log(const QTemporaryDir& folder)
{
    const QString logged = folder.filePath(u"logged.sqlite"_s);
    const QString copy = folder.filePath(u"locked.sqlite"_s);
    for (const QString& file : {logged, copy})
        QFile::remove(file);
    Connection1().Open(logged);
    reader(logged).write(u"vacuum into '%1'"_s.arg(copy));
    return store_location::file(copy);
}

QWidget* open_window(const QString& name)
{
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == name && window->isVisible())
            return window;
    return nullptr;
}

/// Presses Stop or Escape in the window that opens while a report runs, then OK, and stores the texts.
class stopping_user : public QObject {
public:
    explicit stopping_user(bool with_escape)
    {
        QObject::connect(&timer_, &QTimer::timeout, this, [this, with_escape] { look(with_escape); });
        timer_.start(50);
    }

    QStringList words;
    QMessageBox::Icon icon = QMessageBox::NoIcon;

private:
    void look(bool with_escape)
    {
        if (auto* box = qobject_cast<QMessageBox*>(open_window(u"message_box"_s))) {
            words += {box->windowTitle(), box->text()};
            icon = box->icon();
            timer_.stop();
            box->accept();
        } else if (QWidget* wait = open_window(u"report_wait"_s)) {
            auto* stop = wait->findChild<QAbstractButton*>(u"stop_report"_s);
            if (words.isEmpty())
                words = {wait->windowTitle(), stop->text()};
            if (with_escape)
                QTest::keyClick(wait, Qt::Key_Escape);
            else
                QTest::mouseClick(stop, Qt::LeftButton);
        }
    }

    QTimer timer_;
};

}  // namespace

class test_template_queries : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    store_folder store_;

    QString written(const QString& head, const QString& body = u"x"_s)
    {
        return template_file_in(folder_.path(), u"try.rpt"_s, head, body);
    }

private Q_SLOTS:
    void init() { set_report_store(store_.location()); }

    void a_query_that_does_not_only_select_from_the_report_tables_is_refused_with_file_and_line_data()
    {
        QTest::addColumn<QString>("sql");
        QTest::addColumn<QString>("words");
        const auto add = [](const QString& sql, const QString& words) {
            QTest::newRow(qPrintable(sql)) << sql << words;
        };
        for (const QString& table : {u"games"_s, u"cost"_s, u"settings"_s, u"Stat_rounds"_s, u"nowhere"_s})
            add(u"select * from "_s + table, table + u" is none of them"_s);
        add(u"select name from sqlite_master"_s, u"sqlite_master is none of them"_s);
        add(u"select count(*) from sqlite_schema"_s, u"sqlite_schema is none of them"_s);
        add(u"select (select sql from sqlite_master limit 1) as s"_s, u"sqlite_master is none of them"_s);
        add(u"pragma table_info(stats)"_s, u"PRAGMA is refused"_s);
        add(u"select name from pragma_table_info('stats')"_s, u"pragma_table_info is none of them"_s);
        add(u"select count(*) from pragma_database_list"_s, u"a new table is refused"_s);
        add(u"attach '%1' as other"_s.arg(folder_name), u"ATTACH is refused"_s);
        add(u"detach main"_s, u"DETACH is refused"_s);
        add(u"vacuum into 'copy.db'"_s, u"ATTACH is refused"_s);
        for (const QString& writing :
             {u"delete from stats"_s, u"update stats set hole_1 = 1"_s, u"insert into hand values (1)"_s,
              u"replace into hand values (1)"_s, u"with a as (select 1) delete from hand"_s})
            add(writing, u"a statement that writes is refused"_s);
        add(u"create table t(a)"_s, u"a new table is refused"_s);
        add(u"create temp table t as select 1"_s, u"a new table is refused"_s);
        add(u"select load_extension('x')"_s, u"load_extension is refused"_s);
        for (const QString& other : {u"begin"_s, u"savepoint s"_s, u"reindex"_s})
            add(other, u"any other statement is refused"_s);
    }
    void a_query_that_does_not_only_select_from_the_report_tables_is_refused_with_file_and_line()
    {
        QFETCH(QString, sql);
        QFETCH(QString, words);
        const QString before = reader(store_.location()).text(u"select count(*) from sqlite_master"_s);
        QCOMPARE(
            failure_of_template(written(u"\nquery bad =\n    "_s + sql + u'\n')),
            u"try.rpt:2: query bad: a query can only select from the report tables and the queries above it; "_s +
                words);
        QCOMPARE(reader(store_.location()).text(u"select count(*) from sqlite_master"_s), before);
    }

    void a_query_reads_each_stored_report_table_whole_and_the_queries_above_it_data()
    {
        QTest::addColumn<QString>("table");
        for (const QString& table : stored_tables())
            QTest::newRow(qPrintable(table)) << table;
    }
    void a_query_reads_each_stored_report_table_whole_and_the_queries_above_it()
    {
        QFETCH(QString, table);
        const template_file source = read_template(written(
            u"query it = select * from %1\nquery how_many = select count(*) as n from it\n"_s.arg(table)));
        const report_snapshot snapshot(source);
        const report_rows rows = snapshot.rows(source.queries[0]);
        const reader store(store_.location());
        QCOMPARE(QString::number(rows.columns.size()),
                 store.text(u"select count(*) from pragma_table_info('%1')"_s.arg(table)));
        QCOMPARE(QString::number(rows.rows.size()), store.text(u"select count(*) from "_s + table));
        QCOMPARE(snapshot.rows(source.queries[1]).rows[0][0].toInt(), static_cast<int>(rows.rows.size()));
    }

    void a_query_with_too_many_rows_or_characters_is_refused_with_file_and_line()
    {
        QCOMPARE(failure_of_template(
                     written(u"query bad = with recursive c(n) as (select 1 union all select n + 1 from c)"
                             " select n from c\n"_s)),
                 u"try.rpt:1: query bad: more than 10000 rows"_s);
        QCOMPARE(failure_of_template(
                     written(u"query bad = with recursive c(n) as (select 1 union all select n + 1 from c)"
                             " select hex(zeroblob(90000)) as n from c\n"_s)),
                 u"try.rpt:1: query bad: more than 10000000 characters"_s);
        const QString too_big =
            failure_of_template(written(u"query bad = select hex(zeroblob(99999999)) as n\n"_s));
        QVERIFY2(too_big.startsWith(u"try.rpt:1: query bad: string or blob too big"_s), qPrintable(too_big));
    }

    void a_query_ends_when_the_report_is_stopped()
    {
        int questions = 0;
        QString where;
        try {
            render_report(written(u"\n"_s + endless), [&questions] { return ++questions < 50; });
        } catch (const report_stopped& stopped) {
            where = stopped.where();
        }
        QCOMPARE(where, u"try.rpt:2: query all"_s);
        QCOMPARE(questions, 50);
    }

    void many_short_queries_end_when_the_report_is_stopped()
    {
        int questions = 0;
        const QString path =
            written(u"query rows = with recursive c(n) as (select 1 union all select n + 1 from c "
                    "where n < 9000) select n from c\nquery inner = select :n as m\n"_s,
                    u"{{#rows}}{{#inner}}{{m}}{{/inner}}{{/rows}}"_s);
        QVERIFY_THROWS_EXCEPTION(report_stopped,
                                 render_report(path, [&questions] { return ++questions < 50; }));
        QCOMPARE(questions, 50);
    }

    void a_user_stops_an_endless_query_and_the_program_continues_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<bool>("with_escape");
        QTest::addColumn<QStringList>("words");
        QTest::newRow("French") << true << false
                                << QStringList{u"Verdane International Inc."_s, u"&Arrêter"_s,
                                               u"Verdane International Inc."_s,
                                               u"Le rapport a été arrêté. Vos données sont intactes.\n\n"
                                               "try.rpt:1: query all"_s};
        QTest::newRow("English, Escape")
            << false << true
            << QStringList{u"Verdane International Inc."_s, u"&Stop"_s, u"Verdane International Inc."_s,
                           u"The report was stopped. Your data are intact.\n\n"
                           "try.rpt:1: query all"_s};
    }
    void a_user_stops_an_endless_query_and_the_program_continues()
    {
        QFETCH(bool, french);
        QFETCH(bool, with_escape);
        QFETCH(QStringList, words);
        is_french = french;
        written(endless);
        report_control control;
        control.set_WindowTitle(u"Verdane International Inc."_s);
        control.set_ReportFileName(folder_.path() + u"\\try.rpt"_s);
        stopping_user user(with_escape);
        control.Action(report_control::run_now);
        QCOMPARE(user.words, words);
        QCOMPARE(user.icon, QMessageBox::Information);
        QVERIFY(control.preview() == nullptr && open_window(u"report_wait"_s) == nullptr);
        written(u"query one = select 1 as n\n"_s);
        control.Action(report_control::run_now);
        QVERIFY(control.preview() != nullptr);
        delete control.preview();
    }

    void a_query_that_could_not_be_stopped_is_refused_with_file_and_line_data()
    {
        QTest::addColumn<QString>("sql");
        QTest::addColumn<QString>("words");
        const QString list = u"trim takes a list of at most 1000 characters"_s;
        for (const QString& name : {u"trim"_s, u"ltrim"_s, u"rtrim"_s})
            QTest::newRow(qPrintable(name)) << name + u"('x', hex(zeroblob(501)))"_s << list;
        const QString repeated = u"printf repeats a character at most 9999 times"_s;
        QTest::newRow("precision") << u"printf('%.1000000000c', 'x')"_s << repeated;
        QTest::newRow("precision as a value") << u"printf('%-3.*c', 1e9, 'x')"_s << repeated;
        const QString too_big = u"string or blob too big"_s;
        QTest::newRow("search") << u"instr(hex(zeroblob(450000)), hex(zeroblob(220000)) || 'b')"_s << too_big;
        QString doubled = u"(with q0 as (select 1 as x)"_s;
        for (int step = 1; step < 26; ++step)
            doubled += u", q%1 as (select a.x from q%2 a, q%2 b)"_s.arg(step).arg(step - 1);
        QTest::newRow("doubling steps") << doubled + u" select x from q25)"_s << u"out of memory"_s;
    }
    void a_query_that_could_not_be_stopped_is_refused_with_file_and_line()
    {
        QFETCH(QString, sql);
        QFETCH(QString, words);
        const QString complaint = failure_of_template(written(u"query bad = select "_s + sql + u" as n\n"_s));
        QVERIFY2(complaint.startsWith(u"try.rpt:1: query bad: "_s + words), qPrintable(complaint));
    }

    void a_report_waits_until_another_program_unlocks_the_store()
    {
        set_report_store(file_without_log(folder_));
        other_program other(report_store(), kept_from::reading_and_writing);
        QTimer timer;
        bool seen = false;
        QObject::connect(&timer, &QTimer::timeout, this, [&] {
            seen = seen || open_window(u"lock_box"_s) != nullptr;
            if (seen)
                other.release();
        });
        timer.start(50);
        QCOMPARE(failure_of_template(written(u"query one = select * from stats\n"_s)), QString());
        QVERIFY(seen && open_window(u"lock_box"_s) == nullptr);
    }

    void a_user_who_gives_up_waiting_for_a_lock_ends_the_report_as_locked()
    {
        set_report_store(file_without_log(folder_));
        other_program other(report_store(), kept_from::reading_and_writing);
        QTimer timer;
        bool gave_up = false;
        QObject::connect(&timer, &QTimer::timeout, this, [&gave_up] {
            if (QWidget* box = open_window(u"lock_box"_s)) {
                box->findChild<QAbstractButton*>(u"give_up"_s)->click();
                gave_up = true;
            }
        });
        timer.start(50);
        const QString path = written(u"query one = select * from stats\n"_s);
        QCOMPARE(failure_of([&] { render_report(path); }), failure_kind::store_locked);
        QVERIFY(gave_up);
    }

    void an_open_window_gets_no_input_while_a_report_runs()
    {
        QLineEdit other;
        other.show();
        QVERIFY(QTest::qWaitForWindowExposed(&other));
        QTimer timer;
        bool took_input = false;
        bool is_modal = false;
        QObject::connect(&other, &QLineEdit::textEdited, this, [&] { took_input = true; });
        QObject::connect(&timer, &QTimer::timeout, this, [&] {
            QWidget* wait = open_window(u"report_wait"_s);
            if (wait == nullptr)
                return;
            is_modal =
                QApplication::activeModalWidget() == wait && wait->windowModality() == Qt::ApplicationModal;
            QTest::keyClick(other.windowHandle(), Qt::Key_A);
            QTest::mouseClick(other.windowHandle(), Qt::LeftButton);
            wait->close();
        });
        timer.start(50);
        report_wait wait(u"x"_s);
        QTRY_VERIFY_WITH_TIMEOUT(!wait.may_continue(), 30'000);
        QVERIFY(is_modal && !took_input);
    }

    void a_text_of_a_table_longer_than_its_limit_ends_with_an_ellipsis_in_every_column()
    {
        // Only a file has texts in columns of numbers.
        const store_location file = file_without_log(folder_);
        set_report_store(file);
        const reader store(file);
        const QStringList columns =
            store.text(u"select group_concat(name, ',') from pragma_table_info('stats')"_s).split(u',');
        QStringList values;
        for (const QString& column : columns)
            values.append(column + u" = '"_s + QString(40'000, u'W') + u"'"_s);
        store.write(u"update stats set "_s + values.join(u", "_s));
        const template_file source = read_template(written(u"query it = select * from stats\n"_s));
        const report_rows rows = report_snapshot(source).rows(source.queries[0]);
        QCOMPARE(rows.rows.size(), std::size_t(34));
        for (const auto& row : rows.rows)
            for (const QVariant& value : row)
                QCOMPARE(value.toString(), QString(999, u'W') + u'…');
        for (const QString& name : {u"Stat_rounds.rpt"_s, u"Stat_rounds_en.rpt"_s})
            QVERIFY(render_report(built_template(name))->page_count() > 0);
    }

    void a_text_at_the_limit_and_a_number_are_copied_whole()
    {
        reader(store_.location())
            .write(u"update r_card set card_name = '%1', card_yards_1 = 345, card_club_1 = 187.25"_s.arg(
                QString(1000, u'é')));
        const template_file source =
            read_template(written(u"query it = select card_name, card_yards_1, card_club_1 from r_card\n"_s));
        const report_rows rows = report_snapshot(source).rows(source.queries[0]);
        QCOMPARE(rows.rows[0][0].toString(), QString(1000, u'é'));
        QCOMPARE(rows.rows[0][1].toInt(), 345);
        QCOMPARE(rows.rows[0][2].toDouble(), 187.25);
    }

    void a_file_that_is_no_store_is_a_failure_of_the_store()
    {
        QFile file(folder_.filePath(u"none.sqlite"_s));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(QByteArray(4096, 'x')) == 4096);
        file.close();
        set_report_store(file.fileName());
        const QString path = written(u"query one = select 1 as n\n"_s);
        QCOMPARE(failure_of([&] { render_report(path); }), failure_kind::store_damaged);
    }

private:
    const QString folder_name = u"/nowhere/other.db"_s;
};

QTEST_MAIN(test_template_queries)
#include "test_template_queries.moc"
