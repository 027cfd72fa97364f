#include <QTest>

#include "records/round_list.h"
#include "store/DataEnvironment1.h"
#include "tests/support/failures.h"
#include "tests/support/reader.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::Round_functions;
using namespace Qt::StringLiterals;
using testing::failure_of;

class test_round_list : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        folder_ = std::make_unique<testing::store_folder>();
        testing::reader(folder_->location())
            .write({
                u"insert into games (date, field) values ('20240607150000', ' Les Pins ')"_s,
                u"insert into games (date, putt_18) values ('20230102081530', 2)"_s,
            });
    }

    void cleanup()
    {
        if (rsgames().is_open())
            rsgames().Close();
        folder_.reset();
    }

    void rounds_are_in_time_order_after_a_statement_without_an_order()
    {
        rsgames().set_Source(u"Select * from games"_s);
        open_rounds_in_time_order();
        QCOMPARE(rsgames().Fields(u"date").text(), u"20230102081530"_s);
        QVERIFY(failure_of([] { open_rounds_in_time_order(); }) == failure_kind::misuse);
    }

    void a_line_has_key_course_and_the_mark_of_an_incomplete_round()
    {
        open_rounds_in_time_order();
        const QStringList lines{u"2023-01-02 08:15:30 |  - "_s, u"2024-06-07 15:00:00 |  - Les Pins**"_s};
        QCOMPARE(round_list_lines(), lines);
        QVERIFY(rsgames().eof());
        rsgames().MoveFirst();
        QCOMPARE(round_list_lines(course_names::in_capitals).last(),
                 u"2024-06-07 15:00:00 |  - LES PINS**"_s);
    }

    void a_store_without_rounds_has_no_lines()
    {
        testing::reader(folder_->location()).write(u"delete from games"_s);
        open_rounds_in_time_order();
        QVERIFY(round_list_lines().isEmpty());
    }

private:
    static Recordset& rsgames() { return data_environment().rsgames; }

    std::unique_ptr<testing::store_folder> folder_;
};

QTEST_GUILESS_MAIN(test_round_list)
#include "test_round_list.moc"
