#include <QTemporaryDir>
#include <QTest>

#include <sqlite3.h>

#include <functional>
#include <memory>

#include "base/program.h"
#include "records/Main_module.h"
#include "store/DataEnvironment1.h"
#include "tests/round/entered_shots.h"
#include "tests/round/round_windows.h"
#include "tests/server/own_server.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/outside_connection.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// A fresh store with a round, which the program has open.
class open_diary {
public:
    explicit open_diary(const store_location& place)
    {
        set_interface_language(true);
        Main_module::round_keys.clear();
        Main_module::round_key_count = 0;
        Main_module::club_names_kept = true;
        data_environment().connection.Open(place);
        const diary book(place);
        book.add(course_of_pars(u"4"_s));
        book.add(blank_round{key_of_keyed_round()});
        for (const int club : {1, 9, 14})
            book.store.write(u"update sticknames set club_%1 = 'F%1'"_s.arg(club));
    }
    ~open_diary() { data_environment().abandon(); }
    open_diary(const open_diary&) = delete;
    open_diary& operator=(const open_diary&) = delete;

private:
    recording_frame frame_;
};

/// The statements that an engine has run for the program since the construction, as the engine reports them.
class statement_log {
public:
    virtual ~statement_log() = default;
    virtual QStringList statements() const = 0;
};

/// The trace of SQLite, of every connection of this process: the driver of ODBC uses the same copy of the
/// library as the embedded engine.
class log_of_file : public statement_log {
public:
    /// From now on new connections are traced. They are recorded while there is a log.
    static void trace_new_connections() { sqlite3_auto_extension(reinterpret_cast<void (*)()>(trace)); }

    log_of_file() { current_ = this; }
    ~log_of_file() override { current_ = nullptr; }
    QStringList statements() const override { return statements_; }

private:
    static int trace(sqlite3* connection, const char**, const sqlite3_api_routines*)
    {
        return sqlite3_trace_v2(connection, SQLITE_TRACE_STMT, run, nullptr);
    }
    static int run(unsigned, void*, void*, void* text)
    {
        if (current_ != nullptr)
            current_->statements_ << QString::fromUtf8(static_cast<const char*>(text));
        return 0;
    }

    static inline log_of_file* current_ = nullptr;
    QStringList statements_;
};

bool is_on_server(const store_location& place)
{
    return place.where == store_location::place::source && engine_of_tests() == test_engine::mariadb;
}

/// The general log of the server, which contains everything that its clients send. The driver prepares a
/// statement that returns rows before it runs it, and closes it afterwards; only the run is a statement, as
/// in the server's own count `Questions`.
class log_of_server : public statement_log {
public:
    log_of_server()
    {
        administer(u"set global log_output = 'TABLE'"_s);
        administer(u"truncate table mysql.general_log"_s);
        administer(u"set global general_log = on"_s);
    }
    ~log_of_server() override { administer(u"set global general_log = off"_s); }

    QStringList statements() const override
    {
        // The program is the holder of the lock.
        const QString database = file_of(data_environment().connection.location());
        const QString question = u"select concat(command_type, ' ', argument) from mysql.general_log where "
                                 "command_type in ('Query', 'Execute') and "
                                 "thread_id = is_used_lock(concat('verdane ', md5('%1')))"_s.arg(database);
        const outside_connection server(store_location::source(administrator_source()));
        QSqlQuery query = server.run_unchanged(question);
        QStringList sent;
        for (const auto& row : all_rows(query))
            sent << row[0].toString();
        return sent;
    }
};

using step = std::function<void(hand&)>;

/// What a step in the open round sends to the store at `place`.
QStringList sent_by(const step& before, const step& measured, const store_location& place)
{
    const open_diary diary(place);
    QStringList sent;
    in_stored_round(key_of_keyed_round(), [&](hand& user) {
        before(user);
        std::unique_ptr<statement_log> log;
        user.look([&] {
            if (is_on_server(place))
                log = std::make_unique<log_of_server>();
            else
                log = std::make_unique<log_of_file>();
        });
        measured(user);
        user.look([&] {
            sent = log->statements();
            log.reset();
        });
        open_quick_page(user);
        discard(user);
    });
    return sent;
}

void leave_first_hole(hand& user)
{
    user.click_tab(hole_tabs, 2);
}

}  // namespace

/// What the program sends to a registered source and to the embedded engine, counted by the server or by
/// SQLite.
class test_statement_counts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { log_of_file::trace_new_connections(); }

    void a_change_of_the_hole_sends_no_more_statements_than_on_the_file_data()
    {
        QTest::addColumn<step>("before");
        QTest::addColumn<step>("measured");
        QTest::addColumn<int>("least");
        QTest::newRow("figures changed")
            << step([](hand& user) { user.type(u"12345678123"_s); }) << step(leave_first_hole) << 2;
        QTest::newRow("nothing changed") << step([](hand& user) {
            for (const int hole : {2, 3, 1})
                user.click_tab(hole_tabs, hole);
        }) << step(leave_first_hole) << 0;
        QTest::newRow("shots entered") << step([](hand& user) {
            open_detailed_page(user);
            enter_hole(user);
        }) << step(leave_first_hole) << 2;
    }
    void a_change_of_the_hole_sends_no_more_statements_than_on_the_file()
    {
        QFETCH(step, before);
        QFETCH(step, measured);
        QFETCH(int, least);
        const QTemporaryDir folder;
        const QStringList to_file =
            sent_by(before, measured, store_location::file(folder.filePath(u"Verdbase.db"_s)));
        const QStringList to_source = sent_by(before, measured, new_program_store());
        const QString both = to_file.join(u'\n') + u"\n\n" + to_source.join(u'\n');
        QVERIFY2(to_file.size() >= least && to_source.size() >= least, qPrintable(both));
        QVERIFY2(to_source.size() <= to_file.size(), qPrintable(both));
    }
};

QTEST_MAIN(test_statement_counts)
#include "test_statement_counts.moc"
