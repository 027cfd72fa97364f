#include <QImage>
#include <QProgressBar>
#include <QTemporaryDir>
#include <QTest>

#include <map>

#include "controls/interface_language.h"
#include "reports/preview/report_preview.h"
#include "reports/report_document.h"
#include "reports/report_store.h"
#include "statistics/club_statistics.h"
#include "statistics/cost_statistics.h"
#include "statistics/f_carte.h"
#include "statistics/f_carte_func.h"
#include "statistics/putt_statistics.h"
#include "statistics/round_statistics.h"
#include "statistics/season_tables.h"
#include "statistics/selection.h"
#include "store/DataEnvironment1.h"
#include "store/recovery/diary_copy.h"
#include "tests/reports/report_tools.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/full_diary.h"
#include "tests/support/reader.h"
#include "tests/support/recording_frame.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 24;
constexpr int dots_per_inch = 100;

const QStringList reports{u"Stat_rounds"_s, u"statPuts"_s, u"r_statSticks"_s, u"r_cost3"_s, u"r_card2"_s};

/// A store that the program has open, and whose reports are drawn.
class drawn_store {
public:
    drawn_store(const store_location& store, bool french) : french_(french)
    {
        set_interface_language(french);
        data_environment().connection.Open(store);
        set_report_store(store);
    }
    ~drawn_store()
    {
        data_environment().abandon();
        set_interface_language(true);
    }
    drawn_store(const drawn_store&) = delete;
    drawn_store& operator=(const drawn_store&) = delete;

    /// Fills the report tables by the statistics and draws every page. Pages are named "REPORT NUMBER".
    std::map<QString, QImage> pages()
    {
        run([this](const selection_arguments& chosen, const run_controls& controls) {
            run_progress bar(controls.Status);
            season_ = Statistics::season_tables(*Statistics::rounds_in_stats(chosen, bar));
        });
        run([](const selection_arguments& chosen,
               const run_controls& controls) { Statistics::putt_statistics(chosen, controls); },
            clause_form::alone);
        run([](const selection_arguments& chosen, const run_controls& controls) {
            Statistics::club_statistics(chosen, {&controls});
        });
        run([](const selection_arguments& chosen, const run_controls& controls) {
            Statistics::cost_statistics(chosen, controls);
        });
        fill_card();
        return drawn();
    }

private:
    template <typename Statistic>
    void run(Statistic statistic, clause_form form = clause_form::appended)
    {
        selection_arguments chosen;
        chosen.from_key = key_in_diary(0);
        chosen.to_key = key_in_diary(rounds - 1);
        chosen.weather_clause = clause_of(filter::weather, form, {});
        chosen.partner_clause = clause_of(filter::partner, form, {});
        chosen.course_clause = clause_of(filter::course, form, {});
        QProgressBar bar;
        report_control control;
        statistic(chosen, run_controls{bar, control});
        delete control.preview();
    }

    static void fill_card()
    {
        f_carte window;
        f_carte_func::print(window);
        delete window.cr2.preview();
        window.unload();
    }

    std::map<QString, QImage> drawn() const
    {
        std::map<QString, QImage> all;
        for (const QString& name : reports) {
            const QString path = built_template(name + (french_ ? u".rpt"_s : u"_en.rpt"_s));
            const auto document = render_report(path, {}, name == u"Stat_rounds" ? season_ : passed_rows());
            for (int page = 0; page < document->page_count(); ++page)
                all[u"%1 %2"_s.arg(name).arg(page + 1)] = document->page_image(page, dots_per_inch);
        }
        return all;
    }

    recording_frame frame_;
    bool french_;
    passed_rows season_;
};

/// Moves the costs of every second round after the others: the order in which they were entered is not that
/// of their dates.
void enter_costs_out_of_order(const store_location& file)
{
    reader(file).write(QStringList{u"create table moved as select * from cost where rowid % 2 = 0"_s,
                                   u"delete from cost where rowid % 2 = 0"_s,
                                   u"insert into cost select * from moved"_s, u"drop table moved"_s});
}

void copy(const store_location& from, const store_location& to)
{
    Connection1 source;
    source.Open(from);
    Connection1 target;
    target.Open(to);
    copy_diary(source, target, [](const counted_table&) {});
}

}  // namespace

/// The reports of one diary, in a file and on the engine of the tests.
class test_reports_on_engines : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    QTemporaryDir other_folder_;
    store_location file_;
    store_location other_;

private Q_SLOTS:
    void initTestCase()
    {
        file_ = store_location::file(folder_.filePath(u"file/Verdbase.db"_s));
        create_diary(file_, rounds, true);
        clear_sixth_putts(file_);
        enter_costs_out_of_order(file_);
        other_ = new_store_place(other_folder_.path());
        copy(file_, other_);
    }

    void cleanupTestCase() { remove_store_place(other_); }

    void the_pages_are_the_same_to_the_dot_data()
    {
        QTest::addColumn<bool>("french");
        QTest::newRow("French") << true;
        QTest::newRow("English") << false;
    }

    void the_pages_are_the_same_to_the_dot()
    {
        QFETCH(bool, french);
        const auto of_file = drawn_store(file_, french).pages();
        const auto of_other = drawn_store(other_, french).pages();
        QVERIFY(of_file.size() >= static_cast<std::size_t>(reports.size()));
        QVERIFY(of_file.contains(u"Stat_rounds 3"_s));
        QCOMPARE(of_other.size(), of_file.size());
        for (const auto& [name, page] : of_file) {
            QVERIFY2(of_other.contains(name), qPrintable(name));
            QVERIFY2(of_other.at(name) == page, qPrintable(name));
        }
    }
};

QTEST_MAIN(test_reports_on_engines)
#include "test_reports_on_engines.moc"
