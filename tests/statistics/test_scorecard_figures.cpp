#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "base/language.h"
#include "reports/preview/report_dialogs.h"
#include "reports/query/report_snapshot.h"
#include "statistics/f_carte.h"
#include "statistics/f_carte_func.h"
#include "tests/statistics/scorecard_windows.h"
#include "tests/support/failures.h"
#include "tests/support/window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// Saves the report that is open as a PDF file, as a user would, and gives its text.
QString printed_text(hand& user, const QString& path)
{
    user.wait_for_window(preview);
    user.look([&] { dialogs_of_reports().choose_file = [path](auto*, const auto&) { return path; }; });
    user.click(u"save_pdf"_s);
    user.wait_until(u"the printed card"_s, [&] { return QFile(path).size() > 0; });
    QProcess reader;
    reader.start(u"pdftotext"_s, {u"-layout"_s, path, u"-"_s});
    user.check(reader.waitForFinished(), u"pdftotext"_s);
    return QString::fromUtf8(reader.readAllStandardOutput()).simplified();
}

}  // namespace

class test_scorecard_figures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_card_has_a_row_for_each_nine_data() { both_languages(); }
    void the_card_has_a_row_for_each_nine()
    {
        QFETCH(bool, french);
        const stocked_store store(french);
        store.book.store.write(u"update vrd_fields set tee = 'OR' where code = '%1'"_s.arg(pebble().code));
        in_scorecard_window([](hand& user) {
            print_card(user, 0);
            close_card(user);
        });
        const diary_course course = pebble();
        for (int row = 1; row <= 2; ++row) {
            const std::vector<QVariant> card = store.card(row);
            for (int i = 0; i < 9; ++i) {
                const auto hole = static_cast<std::size_t>(i + (row - 1) * 9);
                const auto at = static_cast<std::size_t>(i);
                QCOMPARE(card[1 + at].toInt(), course.yards[hole]);
                QCOMPARE(card[10 + at].toInt(), static_cast<int>(hole) + 1);
                QCOMPARE(card[19 + at].toInt(), course.stroke_index[hole]);
                QCOMPARE(card[28 + at].toInt(), course.pars[hole]);
            }
            QCOMPARE(card[37].toString(), u"Pebble Beach"_s);
            QCOMPARE(card[38].toString(), course.slope);
            QCOMPARE(card[39].toString(), u"OR"_s);
            QCOMPARE(card[40].toString(), course.rating);
            for (int club = 1; club <= 13; ++club)
                QCOMPARE(card[static_cast<std::size_t>(41 + club)].toDouble(), 250.5 - 10 * club);
            QCOMPARE(card.size(), std::size_t(55));
        }
        QVERIFY(open_recordsets().isEmpty());
    }

    void unused_columns_of_the_card_are_not_changed()
    {
        const stocked_store store;
        store.book.store.write(u"update r_card set card_row = 'mine', card_spare = 'too'"_s);
        in_scorecard_window([](hand& user) {
            print_card(user, 1);
            close_card(user);
        });
        for (int row = 1; row <= 2; ++row) {
            QCOMPARE(store.card(row)[0].toString(), u"mine"_s);
            QCOMPARE(store.card(row)[41].toString(), u"too"_s);
        }
    }

    void the_clubs_are_those_of_the_last_row_of_the_bag()
    {
        const stocked_store store;
        store.book.store.write(u"insert into sticks (avg_1, avg_13) values (199.5, 77)"_s);
        in_scorecard_window([](hand& user) {
            print_card(user, 0);
            close_card(user);
        });
        for (int row = 1; row <= 2; ++row) {
            QCOMPARE(store.card(row)[42].toDouble(), 199.5);
            QCOMPARE(store.card(row)[54].toDouble(), 77.0);
        }
    }

    void printing_twice_gives_the_same_table_and_another_course_replaces_it()
    {
        const stocked_store store;
        in_scorecard_window([&](hand& user) {
            print_card(user, 2);
            close_card(user);
            const auto first = store.book.store.rows(u"select * from r_card"_s);
            print_card(user, 2);
            close_card(user);
            user.check(store.book.store.rows(u"select * from r_card"_s) == first, u"the same table"_s);
            print_card(user, 0);
            close_card(user);
            user.check(store.card(1)[37].toString() == u"Pebble Beach"_s, u"another course"_s);
            user.check(user.is_open(scorecard_window()), u"the window stays open"_s);
        });
        QCOMPARE(store.book.store.number(u"select count(*) from r_card"_s), 2);
    }

    void the_printed_card_has_the_holes_of_the_chosen_tee_data() { both_languages(); }
    void the_printed_card_has_the_holes_of_the_chosen_tee()
    {
        QFETCH(bool, french);
        const stocked_store store(french);
        const QTemporaryDir folder;
        QString text;
        in_scorecard_window([&](hand& user) {
            print_card(user, 1);
            text = printed_text(user, folder.filePath(u"card.pdf"_s));
            close_card(user);
        });
        for (const QString& words :
             {u"Carnoustie Championship"_s, u"401 435 345 375 387 520 394 167 416 3440"_s,
              in_language(u"Verges 401", u"Yards 401"), in_language(u"75,2 139", u"75.2 139"),
              in_language(u"Distances des bâtons", u"Club distances"), u"1W 241"_s})
            QVERIFY2(text.contains(words), qPrintable(words + u" in "_s + text));
    }

    void a_course_without_its_holes_fails_and_the_card_is_not_changed()
    {
        const stocked_store store;
        store.book.store.write(u"delete from field_info where FIELD_CODE = '%1'"_s.arg(pebble().code));
        const auto before = store.book.store.rows(u"select * from r_card"_s);
        f_carte window;
        QCOMPARE(failure_of([&] { f_carte_func::print(window); }), failure_kind::misuse);
        QVERIFY(window.cr2().preview() == nullptr);
        QCOMPARE(store.book.store.rows(u"select * from r_card"_s), before);
        window.unload();
    }

    void the_report_starts_when_the_card_is_written_and_closed()
    {
        const stocked_store store;
        set_report_store(u"nowhere.sqlite"_s);
        f_carte window;
        QCOMPARE(failure_of([&] { f_carte_func::print(window); }), failure_kind::store_unreachable);
        QVERIFY(window.cr2().preview() == nullptr);
        QCOMPARE(window.cr2().WindowState(), report_control::maximised);
        QVERIFY(!window.cr2().page_zoom());
        QCOMPARE(store.card(2)[37].toString(), u"Pebble Beach"_s);
        QCOMPARE(open_recordsets(), (QStringList{u"rsvrd_fields"_s, u"rsfield_info"_s}));
        window.unload();
    }

    void the_printed_card_has_the_names_of_the_bag_without_the_putter()
    {
        const stocked_store store(false);
        store.book.store.write(u"update sticknames set club_1 = 'Big one', club_14 = 'Putter'"_s);
        const QTemporaryDir folder;
        QString text;
        in_scorecard_window([&](hand& user) {
            print_card(user, 0);
            text = printed_text(user, folder.filePath(u"card.pdf"_s));
            close_card(user);
        });
        QVERIFY2(text.contains(u"Big one 241"_s), qPrintable(text));
        QVERIFY2(text.contains(u" 121"_s) && !text.contains(u"Putter"_s), qPrintable(text));
    }
};

QTEST_MAIN(test_scorecard_figures)
#include "test_scorecard_figures.moc"
