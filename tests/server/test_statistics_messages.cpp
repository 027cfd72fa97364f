#include <QTest>

#include <vector>

#include "controls/boxes.h"
#include "tests/server/own_server.h"
#include "tests/statistics/selection_windows.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/outside_connection.h"
#include "tests/support/stored_diary.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

using box_answer = std::function<void(hand&)>;

/// A statistic that finds nothing to print.
struct empty_run {
    const char* name;
    statistics_mode mode;
    QStringList tables;
    std::vector<box_answer> boxes;
    /// Changes the diary, which has two rounds, the first of them with a shot or not.
    QString loss = {};
    bool has_shot = false;
};

void answer_no_detailed_round(hand& user)
{
    answer_plain(user, u"Verdane n'a trouvé aucune ronde détaillée avec les conditions choisies",
                 u"Verdane could not find any detailed rounds with the chosen parameters.");
}

void answer_missing_course(hand& user)
{
    user.answer({u"Fatal Error : 1 "_s, QMessageBox::Critical, QString(), QMessageBox::Ok});
}

const std::vector<empty_run>& empty_runs()
{
    using enum statistics_mode;
    static const QStringList tables_of_rounds{u"stats"_s, u"hand"_s, u"games"_s};
    static const std::vector<empty_run> all{
        {"rounds, none selected", round, tables_of_rounds, {answer_no_detail, answer_no_round}},
        {"rounds, one without its course",
         round,
         tables_of_rounds,
         {answer_no_detail, answer_missing_course},
         u"update vrd_fields set code = 'X-0'"_s},
        {"rounds, one with a shot and without its course",
         round,
         tables_of_rounds,
         {answer_missing_course},
         u"update vrd_fields set code = 'X-0'"_s,
         true},
        {"putts", putt, {u"s_put1"_s, u"s_put2"_s}, {answer_no_detailed_round}},
        {"clubs", club, {u"stat_sticks"_s}, {answer_no_shots}},
        {"costs", cost, {u"r_cost"_s}, {answer_no_detailed_round}},
    };
    return all;
}

int open_transactions()
{
    const outside_connection server(store_location::source(administrator_source()));
    QSqlQuery query = server.run_unchanged(u"select count(*) from information_schema.innodb_trx"_s);
    return all_rows(query)[0][0].toInt();
}

/// Changes a table as an administrator does, which waits for every transaction that has used the table. A
/// wait of some seconds ends the test.
void alter_table(const store_location& place, const QString& name)
{
    outside_connection(place).run_unchanged(u"alter table %1 comment = 'changed'"_s.arg(name));
}

}  // namespace

/// The message boxes of the statistics. The user may be away while one is shown.
class test_statistics_messages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_message_box_is_shown_while_no_transaction_is_open_data()
    {
        QTest::addColumn<int>("index");
        for (std::size_t i = 0; i < empty_runs().size(); ++i)
            QTest::newRow(empty_runs()[i].name) << static_cast<int>(i);
    }

    void a_message_box_is_shown_while_no_transaction_is_open()
    {
        QFETCH(int, index);
        const empty_run& empty = empty_runs()[static_cast<std::size_t>(index)];
        const stored_diary diary;
        diary.book.add_days(diary_course{}, 2);
        if (empty.has_shot)
            diary.book.add(diary_shot{.key = key_of_day(1)});
        if (!empty.loss.isEmpty())
            diary.store.write(empty.loss);
        in_selection_window(
            [&](hand& user) {
                if (empty.loss.isEmpty())
                    select_range(user, 1, 0);
                run(user, empty.mode);
                for (const box_answer& answer : empty.boxes) {
                    user.wait_for_window(u"message_box"_s);
                    user.same(open_transactions(), 0, u"open transactions"_s);
                    for (const QString& table : empty.tables)
                        alter_table(diary.location(), table);
                    answer(user);
                }
            },
            empty.mode);
    }
};

QTEST_MAIN(test_statistics_messages)
#include "test_statistics_messages.moc"
