#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "DataEnvironment1.h"
#include "diary.h"
#include "f_carte.h"
#include "failures.h"
#include "hand_widgets.h"
#include "language.h"
#include "main_frame.h"
#include "recording_frame.h"
#include "report_dialogs.h"
#include "report_store.h"
#include "store_folder.h"
#include "window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString preview = u"report_preview"_s;

diary_course pebble()
{
    return course_of(u"Pebble Beach"_s, u"Gold"_s);
}

/// A store with a course from two tees and another one, and averages of the clubs.
class stocked_store {
public:
    explicit stocked_store(bool french = true) : folder_(french), book(folder_.path())
    {
        set_report_store(folder_.path());
        book.add(pebble());
        book.add(course_of(u"Carnoustie Championship"_s, u"White"_s));
        book.add(course_of(u"Carnoustie Championship"_s, u"Black"_s));
        for (int club = 1; club <= 14; ++club)
            book.store.write(u"update sticks set avg_%1 = %2"_s.arg(club).arg(250.5 - 10 * club));
    }

    std::vector<QVariant> card(int row) const
    {
        return book.store.rows(u"select * from r_card"_s).at(static_cast<std::size_t>(row - 1));
    }

private:
    store_folder folder_;

public:
    const diary book;
};

QString scorecard_window()
{
    return in_language(u"f_carte", u"f_carte_en");
}

void in_scorecard_window(const std::function<void(hand&)>& script)
{
    play(
        [] {
            f_carte window;
            window.show_modal();
        },
        [&](hand& user) {
            user.wait_for_window(scorecard_window());
            script(user);
            user.click(u"Command1_1"_s);
            user.wait_until_gone(scorecard_window());
        });
}

void close_report(hand& user)
{
    user.wait_until(u"the report"_s, [] { return visible_window(preview) != nullptr; });
    user.look([] {
        QWidget* report = visible_window(preview);
        QCOMPARE(report->windowTitle(), u"Verdane International Inc."_s);
        QVERIFY(report->isMaximized());
        QCOMPARE(report->parentWidget()->objectName(), scorecard_window());
        QCOMPARE(dynamic_cast<const f_carte&>(*form_at_work()).cr2.ReportFileName(),
                 QCoreApplication::applicationDirPath() + in_language(u"\\r_card2.rpt", u"\\r_card2_en.rpt"));
        report->close();
    });
    user.wait_until_gone(preview);
}

void print_card(hand& user, int course)
{
    user.click_row(u"List1"_s, course);
    user.click(u"Command1_0"_s);
}

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

class test_f_carte : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_list_has_a_line_for_each_course_and_tee_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<QStringList>("colours");
        QTest::newRow("French") << true << QStringList{u"OR"_s, u"BLANC"_s, u"Noir"_s};
        QTest::newRow("English") << false << QStringList{u"Gold"_s, u"White"_s, u"Black"_s};
    }
    void the_list_has_a_line_for_each_course_and_tee()
    {
        QFETCH(bool, french);
        QFETCH(QStringList, colours);
        const stocked_store store(french);
        in_scorecard_window([&](hand& user) {
            const QString long_name = u"Carnoustie Championship"_s.leftJustified(50) + u", "_s;
            const QStringList lines{u"Pebble Beach"_s.leftJustified(50) + u", "_s + colours[0],
                                    long_name + colours[1], long_name + colours[2]};
            user.check(user.entries(u"List1"_s) == lines, user.entries(u"List1"_s).join(u'|'));
            user.same(user.selected(u"List1"_s), 0, u"selection"_s);
        });
    }

    void captions_are_those_of_the_language_data() { both_languages(); }
    void captions_are_those_of_the_language()
    {
        QFETCH(bool, french);
        const stocked_store store(french);
        in_scorecard_window([&](hand& user) {
            user.same(user.title(scorecard_window()), in_language(u"Carte de pointage", u"Scorecard"),
                      u"title"_s);
            user.same(user.text(u"Frame1"_s), in_language(u"Terrain / Terte", u"Golf Course / Teeing Area"),
                      u"Frame1"_s);
            user.same(user.text(u"Label1"_s), in_language(u"Choisissez un terrain", u"Select a golf course"),
                      u"Label1"_s);
            user.same(user.text(u"Command1_0"_s), u"OK"_s, u"Command1_0"_s);
            user.same(user.text(u"Command1_1"_s), in_language(u"Annuler", u"Cancel"), u"Command1_1"_s);
            user.check(clipped_controls(user).isEmpty(), clipped_controls(user).join(u','));
        });
    }

    void the_twins_have_the_same_controls()
    {
        QStringList names[2];
        for (const bool french : {true, false}) {
            const stocked_store store(french);
            in_scorecard_window([&](hand& user) { names[french ? 0 : 1] = controls_of_window(user); });
        }
        QCOMPARE(names[0], names[1]);
    }

    void the_card_has_a_row_for_each_nine_data() { both_languages(); }
    void the_card_has_a_row_for_each_nine()
    {
        QFETCH(bool, french);
        const stocked_store store(french);
        in_scorecard_window([](hand& user) {
            print_card(user, 0);
            close_report(user);
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
            QCOMPARE(card[40].toString(), course.rating);
            for (int club = 1; club <= 13; ++club)
                QCOMPARE(card[static_cast<std::size_t>(41 + club)].toDouble(), 250.5 - 10 * club);
            QCOMPARE(card.size(), std::size_t(55));
        }
        QVERIFY(open_recordsets().isEmpty());
    }

    void what_is_no_figure_of_the_card_stays_as_it_was()
    {
        const stocked_store store;
        store.book.store.write(u"update r_card set card_row = 'mine', card_spare = 'too'"_s);
        in_scorecard_window([](hand& user) {
            print_card(user, 1);
            close_report(user);
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
            close_report(user);
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
            close_report(user);
            const auto first = store.book.store.rows(u"select * from r_card"_s);
            print_card(user, 2);
            close_report(user);
            user.check(store.book.store.rows(u"select * from r_card"_s) == first, u"the same table"_s);
            print_card(user, 0);
            close_report(user);
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
            close_report(user);
        });
        for (const QString& words :
             {u"Carnoustie Championship"_s, u"401 435 345 375 387 520 394 167 416 3440"_s,
              in_language(u"Verges 401", u"Yards 401"), in_language(u"75,2 139", u"75.2 139"),
              in_language(u"Distances des bâtons", u"Club distances"), u"1W 241"_s})
            QVERIFY2(text.contains(words), qPrintable(words + u" in "_s + text));
    }

    void a_double_click_prints_the_course()
    {
        const stocked_store store;
        in_scorecard_window([&](hand& user) {
            user.double_click_row(u"List1"_s, 1);
            close_report(user);
        });
        QCOMPARE(store.card(2)[37].toString(), u"Carnoustie Championship"_s);
    }

    void both_course_tables_are_open_for_the_life_of_the_window()
    {
        const stocked_store store;
        recording_frame frame;
        in_scorecard_window([&](hand& user) {
            user.look([&] {
                const QStringList open = open_recordsets();
                QCOMPARE(open, (QStringList{u"rsvrd_fields"_s, u"rsfield_info"_s}));
                QVERIFY(frame.locked);
                QCOMPARE(current_form.data(), form_at_work());
            });
        });
        QVERIFY(open_recordsets().isEmpty());
        QVERIFY(!frame.locked);
    }

    void the_title_bar_and_the_command_close_leave_it_too()
    {
        const stocked_store store;
        for (const bool by_title_bar : {true, false}) {
            recording_frame frame;
            play([] { f_carte().show_modal(); },
                 [&](hand& user) {
                     user.wait_for_window(scorecard_window());
                     if (by_title_bar)
                         user.close_window(scorecard_window());
                     else
                         user.look([] { current_form->closeForm(); });
                     user.wait_until_gone(scorecard_window());
                 });
            QVERIFY(open_recordsets().isEmpty());
            QVERIFY(!frame.locked);
        }
    }

    void without_a_course_there_is_nothing_to_print()
    {
        const store_folder store;
        in_scorecard_window([](hand& user) {
            user.check(user.entries(u"List1"_s).isEmpty(), u"no line"_s);
            user.click(u"Command1_0"_s);
            user.check(!user.is_open(preview), u"no report"_s);
        });
        QVERIFY(open_recordsets().isEmpty());
    }
};

QTEST_MAIN(test_f_carte)
#include "test_f_carte.moc"
