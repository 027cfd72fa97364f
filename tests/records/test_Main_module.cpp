#include <QTest>

#include "base/failure_subject.h"
#include "base/language.h"
#include "records/course_rows.h"
#include "records/Main_module.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::failure_of;

namespace {

/// The list that the failure of a routine names.
template <typename Work>
limited_list full_list(Work&& work)
{
    try {
        work();
    } catch (const run_time_failure& failure) {
        return subject_of(failure).list;
    }
    return limited_list::unnamed;
}

}  // namespace

class test_Main_module : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Main_module::round_keys.clear();
        Main_module::round_key_count = 0;
    }

    void a_key_is_appended_at_the_next_index()
    {
        Main_module::append_round_key(u"20030614093000"_s);
        Main_module::append_round_key(u"20030615093000"_s);
        QCOMPARE(plain(Main_module::round_key_count), 2);
        QCOMPARE(Main_module::round_keys[1], u"20030615093000"_s);
        QCOMPARE(Main_module::round_keys[2], QString());
    }

    void a_key_that_the_list_has_is_appended_again()
    {
        Main_module::append_round_key(u"20030614093000"_s);
        Main_module::append_round_key(u"20030614093000"_s);
        QCOMPARE(plain(Main_module::round_key_count), 2);
    }

    void the_list_takes_366_keys_and_no_more()
    {
        for (int i = 0; i < 366; ++i)
            Main_module::append_round_key(QString::number(i));
        QCOMPARE(plain(Main_module::round_key_count), 366);
        QVERIFY(failure_of([] { Main_module::append_round_key(u"x"_s); }) == failure_kind::subscript);
        QCOMPARE(full_list([] { Main_module::append_round_key(u"x"_s); }), limited_list::round_keys);
        QCOMPARE(plain(Main_module::round_key_count), 366);
        QCOMPARE(Main_module::round_keys[365], u"365"_s);
    }

    void each_key_takes_a_place_and_equal_keys_are_one_round()
    {
        QCOMPARE(Main_module::places_left(), 366);
        QCOMPARE(Main_module::rounds_with_key(), 0);
        for (const char* key : {"A", "B", "A", "A"})
            Main_module::append_round_key(QString::fromLatin1(key));
        QCOMPARE(Main_module::places_left(), 362);
        QCOMPARE(Main_module::rounds_with_key(), 2);
        for (int i = 0; i < 362; ++i)
            Main_module::append_round_key(u"A"_s);
        QCOMPARE(Main_module::places_left(), 0);
        QCOMPARE(Main_module::rounds_with_key(), 2);
    }

    void a_tee_has_the_name_of_the_current_language()
    {
        is_french = true;
        QCOMPARE(Verdane_tools::tee_name(u"6"), u"Vert"_s);
        QCOMPARE(Verdane_tools::tee_name(u"0"), u"BLANC"_s);
        is_french = false;
        QCOMPARE(Verdane_tools::tee_name(u"6"), u"Green"_s);
        QCOMPARE(Verdane_tools::tee_name(u"0"), u"White"_s);
        is_french = true;
    }

    void a_key_is_free_until_a_round_has_it()
    {
        const QString key = u"20030614093000"_s;
        QVERIFY(Verdane_tools::key_free(key));
        Main_module::append_round_key(u"20030614093001"_s);
        QVERIFY(Verdane_tools::key_free(key));
        Main_module::append_round_key(key);
        Main_module::append_round_key(u"20030614093002"_s);
        QVERIFY(!Verdane_tools::key_free(key));
        QVERIFY(!Verdane_tools::key_free(u" 20030614093000 "_s));
    }

    void the_first_unused_entry_is_searched_too()
    {
        QVERIFY(!Verdane_tools::key_free(u""));
        Main_module::round_keys[0] = u"20030614093000"_s;
        QVERIFY(!Verdane_tools::key_free(u"20030614093000"));
        Main_module::round_keys[0].clear();
        Main_module::round_keys[1] = u"20030614093000"_s;
        QVERIFY(Verdane_tools::key_free(u"20030614093000"));
    }

    void a_search_of_a_full_list_fails_whether_it_has_the_key_or_not()
    {
        for (int i = 0; i < 365; ++i)
            Main_module::append_round_key(QString::number(i));
        QVERIFY(Verdane_tools::key_free(u"20030614093000"));
        Main_module::append_round_key(u"last"_s);
        QVERIFY(failure_of([] { Verdane_tools::key_free(u"20030614093000"); }) == failure_kind::subscript);
        QVERIFY(failure_of([] { Verdane_tools::key_free(u"0"); }) == failure_kind::subscript);
        QCOMPARE(full_list([] { Verdane_tools::key_free(u"0"); }), limited_list::round_keys);
    }

    void there_are_fourteen_clubs()
    {
        Main_module::club_names[13] = u"Pu"_s;
        QCOMPARE(Main_module::club_names[13], u"Pu"_s);
        QVERIFY(failure_of([] { Main_module::club_names[14] = QString(); }) == failure_kind::subscript);
    }
};

QTEST_GUILESS_MAIN(test_Main_module)
#include "test_Main_module.moc"
