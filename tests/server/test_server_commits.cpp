#include <QTest>

#include <memory>

#include "store/commits.h"
#include "store/Connection1.h"
#include "tests/server/own_server.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/failures.h"
#include "tests/support/reader.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// Which statements a server commits together.
class test_server_commits : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void relaxed_commits_are_one_commit_and_the_next_statement_is_another()
    {
        const store_location place = new_program_store();
        const reader outside(place);
        const QString count = u"select count(*) from partners"_s;
        Connection1 program;
        program.Open(place);
        {
            relaxed_commits outer(program);
            {
                relaxed_commits inner(program);
                program.Execute(u"insert into partners (NAME, code) values ('a', 1)"_s);
            }
            program.Execute(u"insert into partners (NAME, code) values ('b', 2)"_s);
            QCOMPARE(outside.number(count), 0);
        }
        QCOMPARE(outside.number(count), 2);
        program.Execute(u"insert into partners (NAME, code) values ('c', 3)"_s);
        QCOMPARE(outside.number(count), 3);
    }

    void relaxed_commits_that_the_server_refuses_close_the_connection_data()
    {
        QTest::addColumn<bool>("finished");
        QTest::newRow("scope that is finished") << true;
        QTest::newRow("scope that is left by a failure") << false;
    }
    void relaxed_commits_that_the_server_refuses_close_the_connection()
    {
        QFETCH(bool, finished);
        const store_location place = new_program_store();
        Connection1 program;
        program.Open(place);
        auto scope = std::make_unique<relaxed_commits>(program);
        program.Execute(u"insert into partners (NAME, code) values ('a', 1)"_s);
        administer(u"set global read_only = 1"_s);
        const auto failure = failure_of([&] { finished ? scope->finish() : scope.reset(); });
        administer(u"set global read_only = 0"_s);
        QCOMPARE(failure.has_value(), finished);
        QVERIFY(!program.is_open());
        QCOMPARE(reader(place).number(u"select count(*) from partners"_s), 0);
    }

    void a_single_commit_among_relaxed_ones_is_stored_at_its_end()
    {
        const store_location place = new_program_store();
        const reader outside(place);
        Connection1 program;
        program.Open(place);
        const relaxed_commits scratch(program);
        single_commit together(program);
        program.Execute(u"insert into partners (NAME, code) values ('a', 1)"_s);
        together.finish();
        QCOMPARE(outside.number(u"select count(*) from partners"_s), 1);
    }
};

QTEST_GUILESS_MAIN(test_server_commits)
#include "test_server_commits.moc"
