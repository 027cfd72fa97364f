#include <QTest>

#include "base/failure_text.h"
#include "base/failure_words.h"

using namespace verdane;
using namespace Qt::StringLiterals;

namespace {

const failure_subject whole_round{.round = u"2026-05-31 12:00:00"_s, .course = u"Alpha"_s};
const failure_subject hole_of_round{.round = u"2026-05-31 12:00:00"_s, .course = u"Alpha"_s, .hole = 4};

/// The failure of a routine that is called with what it works on, from the inside outwards.
failure_with_subject failure_within(const std::vector<failure_subject>& subjects,
                                    failure_kind kind = failure_kind::overflow)
{
    std::function<void()> routine = [kind] { throw run_time_failure(kind, u"details"_s); };
    for (const failure_subject& subject : subjects)
        routine = [subject, inner = routine] { concerning([&subject] { return subject; }, inner); };
    try {
        routine();
    } catch (const run_time_failure& failure) {
        return {failure, subject_of(failure)};
    }
    return {run_time_failure(failure_kind::misuse, u"no failure"_s), {}};
}

}  // namespace

/// What the user reads about a failure: the text of its kind or its list, and what it concerns.
class test_failure_text : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_rounds_and_the_hole_are_named_in_both_languages_data()
    {
        QTest::addColumn<failure_subject>("subject");
        QTest::addColumn<QString>("french");
        QTest::addColumn<QString>("english");
        QTest::newRow("nothing") << failure_subject() << QString() << QString();
        QTest::newRow("round") << whole_round << u"Ronde du 2026-05-31 12:00:00, Alpha."_s
                               << u"Round of 2026-05-31 12:00:00, Alpha."_s;
        QTest::newRow("hole of a round") << hole_of_round << u"Ronde du 2026-05-31 12:00:00, Alpha, trou 4."_s
                                         << u"Round of 2026-05-31 12:00:00, Alpha, hole 4."_s;
        QTest::newRow("hole") << failure_subject{.hole = 18} << u"Trou 18."_s << u"Hole 18."_s;
        QTest::newRow("round without course")
            << failure_subject{.round = u"A"_s} << u"Ronde du A."_s << u"Round of A."_s;
        QTest::newRow("several rounds") << failure_subject{.round = u"A"_s, .last_round = u"B"_s}
                                        << u"Rondes du A au B."_s << u"Rounds of A to B."_s;
        QTest::newRow("the first round is the last")
            << failure_subject{.round = u"A"_s, .last_round = u"A"_s} << u"Ronde du A."_s << u"Round of A."_s;
    }
    void the_rounds_and_the_hole_are_named_in_both_languages()
    {
        QFETCH(failure_subject, subject);
        QTEST(subject_text(subject, true), "french");
        QTEST(subject_text(subject, false), "english");
    }

    void the_subject_follows_the_text_of_the_kind_in_a_paragraph_of_its_own()
    {
        const failure_with_subject failure = failure_within({hole_of_round});
        for (const bool french : {true, false}) {
            QCOMPARE(failure_text(failure, french), failure_words(failure_kind::overflow).in(french) +
                                                        u"\n\n" + subject_text(hole_of_round, french));
        }
        QCOMPARE(failure_text(failure_within({}), false), failure_words(failure_kind::overflow).in(false));
        QCOMPARE(failure.details(), u"details"_s);
    }

    void a_full_list_has_a_text_of_its_own_only_for_an_index_outside_it()
    {
        const failure_subject putts{.list = limited_list::putts_of_a_hole};
        for (const bool french : {true, false}) {
            QCOMPARE(failure_text(failure_within({putts}, failure_kind::subscript), french),
                     words_of_full_list(limited_list::putts_of_a_hole).in(french));
            QCOMPARE(failure_text(failure_within({putts}), french),
                     failure_words(failure_kind::overflow).in(french));
            QCOMPARE(failure_text(failure_within({}, failure_kind::subscript), french),
                     failure_words(failure_kind::subscript).in(french));
        }
    }

    void every_full_list_has_a_text_that_says_what_is_safe_and_what_to_do()
    {
        for (const limited_list list : {limited_list::round_keys, limited_list::stored_rounds,
                                        limited_list::courses, limited_list::putts_of_a_hole}) {
            const text_pair words = words_of_full_list(list);
            QVERIFY(words.in(true).contains(u"intact"));
            QVERIFY(words.in(false).contains(u"intact"));
            QVERIFY(words.in(false).contains(u"tart Verdane again") ||
                    words.in(false).contains(u"return to a copy"));
            QVERIFY(words.in(true).endsWith(u'.') && words.in(false).endsWith(u'.'));
        }
        QCOMPARE(words_of_full_list(limited_list::unnamed).in(true), QString());
        for (const limited_list list : {limited_list::round_keys, limited_list::stored_rounds}) {
            for (const bool french : {true, false})
                QVERIFY(words_of_full_list(list).in(french).contains(u"verdane-store archive"));
        }
    }

    void what_was_added_nearer_to_the_cause_is_kept_data()
    {
        QTest::addColumn<failure_subject>("inner");
        QTest::addColumn<failure_subject>("outer");
        QTest::addColumn<failure_subject>("known");
        const failure_subject other{.round = u"other"_s, .last_round = u"last"_s, .hole = 9};
        QTest::newRow("nothing inside") << failure_subject() << hole_of_round << hole_of_round;
        QTest::newRow("the hole inside") << failure_subject{.hole = 4} << whole_round << hole_of_round;
        QTest::newRow("another hole outside")
            << failure_subject{.hole = 4}
            << failure_subject{.round = whole_round.round, .course = u"Alpha"_s, .hole = 1} << hole_of_round;
        QTest::newRow("a round without hole inside") << whole_round << other << whole_round;
        QTest::newRow("the list inside") << failure_subject{.list = limited_list::courses}
                                         << failure_subject{.list = limited_list::round_keys}
                                         << failure_subject{.list = limited_list::courses};
    }
    void what_was_added_nearer_to_the_cause_is_kept()
    {
        QFETCH(failure_subject, inner);
        QFETCH(failure_subject, outer);
        QTEST(failure_within({inner, outer}).subject(), "known");
    }

    void the_subject_is_read_for_failures_of_figures_only()
    {
        for (const failure_kind kind :
             {failure_kind::overflow, failure_kind::subscript, failure_kind::invalid_null})
            QCOMPARE(failure_within({hole_of_round}, kind).subject(), hole_of_round);
        for (const failure_kind kind : {failure_kind::source_lost, failure_kind::store_full,
                                        failure_kind::misuse, failure_kind::report_output})
            QCOMPARE(failure_within({hole_of_round}, kind).subject(), failure_subject());
    }

    void a_failure_while_the_subject_is_read_is_ignored()
    {
        const failure_with_subject first(run_time_failure(failure_kind::overflow, u"the first one"_s),
                                         failure_subject{.hole = 4});
        const failure_with_subject failure = with_subject(first, []() -> failure_subject {
            throw run_time_failure(failure_kind::source_lost, u"the second one"_s);
        });
        QCOMPARE(failure.details(), u"the first one"_s);
        QCOMPARE(failure.kind(), failure_kind::overflow);
        QCOMPARE(failure.subject(), failure_subject{.hole = 4});
    }

    void the_result_of_a_routine_without_failure_is_returned()
    {
        bool was_read = false;
        const auto subject = [&was_read] {
            was_read = true;
            return failure_subject();
        };
        QCOMPARE(concerning(subject, [] { return 7; }), 7);
        QVERIFY(!was_read);
    }
};

QTEST_GUILESS_MAIN(test_failure_text)
#include "test_failure_text.moc"
