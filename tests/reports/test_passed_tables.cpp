#include <QTemporaryDir>
#include <QTest>

#include "reports/preview/page_view.h"
#include "reports/preview/report_preview.h"
#include "reports/query/report_snapshot.h"
#include "reports/report_control.h"
#include "reports/report_document.h"
#include "reports/template/template_file.h"
#include "reports/template/template_reader.h"
#include "tests/reports/report_tools.h"
#include "tests/support/failures.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// The tables that a statistic passes to its report in memory.
class test_passed_tables : public QObject {
    Q_OBJECT

    store_folder store_;
    QTemporaryDir folder_;

    static passed_row step(int first, const QVariant& last, int take, int is_current)
    {
        return {{u"first_rounds"_s, first},
                {u"last_rounds"_s, last},
                {u"take"_s, take},
                {u"is_current"_s, is_current}};
    }

    /// The rows of a query of a template, as texts with commas between the values.
    QStringList rows_of(const QString& sql, const passed_rows& passed)
    {
        const template_file source = read_template(
            template_file_in(folder_.path(), u"t.rpt"_s, u"query q = "_s + sql, u"{{#q}}{{/q}}"_s));
        QStringList lines;
        for (const auto& row : report_snapshot(source, {}, passed).rows(source.queries.front()).rows) {
            QStringList values;
            for (const QVariant& value : row)
                values << (value.isValid() ? value.toString() : u"null"_s);
            lines << values.join(u',');
        }
        return lines;
    }

private Q_SLOTS:
    void initTestCase() { set_report_store(store_.location()); }

    void a_query_reads_the_rows_that_were_passed()
    {
        const passed_rows passed{{u"season_ladder"_s, {step(0, 4, 0, 1), step(20, QVariant(), 10, 0)}}};
        QCOMPARE(rows_of(u"select * from season_ladder order by first_rounds"_s, passed),
                 (QStringList{u"0,4,0,1"_s, u"20,null,10,0"_s}));
    }

    void numbers_and_texts_keep_their_types()
    {
        const passed_rows passed{{u"season_holes"_s,
                                  {{{u"is_best"_s, 1},
                                    {u"rank"_s, 1},
                                    {u"course"_s, u"17"_s},
                                    {u"hole"_s, 3},
                                    {u"par"_s, 4},
                                    {u"plays"_s, 2},
                                    {u"mean_over"_s, -0.5}}}}};
        QCOMPARE(
            rows_of(u"select typeof(course), typeof(hole), typeof(mean_over) from season_holes"_s, passed),
            QStringList{u"text,integer,real"_s});
    }

    void every_passed_table_exists_without_rows_when_nothing_was_passed()
    {
        QVERIFY(!passed_tables().empty());
        for (const passed_table& table : passed_tables())
            QCOMPARE(rows_of(u"select count(*), group_concat(%1) from %2"_s.arg(
                                 table.columns.join(u") || group_concat("_s), table.name),
                             {}),
                     QStringList{u"0,null"_s});
    }

    void a_long_text_is_cut()
    {
        passed_row row;
        for (const passed_table& table : passed_tables())
            if (table.name == u"season_courses")
                for (const QString& column : table.columns)
                    row[column] = 1;
        row[u"course"_s] = QString(1001, u'x');
        const passed_rows passed{{u"season_courses"_s, {row}}};
        QCOMPARE(rows_of(u"select length(course), substr(course, -2) from season_courses"_s, passed),
                 QStringList{u"1000,x…"_s});
    }

    void rows_that_do_not_fit_are_misuse()
    {
        passed_row without_column = step(0, 4, 0, 1);
        without_column.erase(u"take"_s);
        passed_row with_unknown_column = step(0, 4, 0, 1);
        with_unknown_column[u"taken"_s] = 0;
        passed_row with_wrong_name = with_unknown_column;
        with_wrong_name.erase(u"take"_s);
        for (const passed_row& row : {without_column, with_unknown_column, with_wrong_name})
            QCOMPARE(failure_of([&] {
                         rows_of(u"select * from season"_s, {{u"season_ladder"_s, {row}}});
                     }),
                     std::optional(failure_kind::misuse));
        const passed_rows other_table{{u"stats"_s, {}}};
        QCOMPARE(failure_of([&] { rows_of(u"select * from season"_s, other_table); }),
                 std::optional(failure_kind::misuse));
    }

    void the_name_of_a_passed_table_is_no_table_of_the_store()
    {
        for (const passed_table& table : passed_tables())
            QVERIFY(!stored_tables().contains(table.name, Qt::CaseInsensitive));
    }

    void a_control_passes_its_rows_to_the_report()
    {
        const QString path = template_file_in(
            folder_.path(), u"t.rpt"_s, u"query q = select take from season_ladder"_s,
            u"{{#q}}<p style=\"page-break-after: always\">{{take}}</p>{{/q}}{{^q}}<p>none</p>{{/q}}"_s);
        report_control control;
        control.set_ReportFileName(QString(path).replace(u"/t.rpt"_s, u"\\t.rpt"_s));
        control.Action(report_control::run_now);
        QVERIFY(control.preview() != nullptr);
        QCOMPARE(preview_pages(control), 1);
        control.pass_rows({{u"season_ladder"_s, {step(0, 0, 1, 0), step(1, 1, 2, 0)}}});
        control.Action(report_control::run_now);
        QCOMPARE(preview_pages(control), 2);
        delete control.preview();
    }

private:
    /// The pages of the preview, counted by turning them.
    static int preview_pages(const report_control& control)
    {
        page_view& pages = control.preview()->pages();
        int before = -1;
        while (pages.current_page() != before) {
            before = pages.current_page();
            pages.next_page();
        }
        return before + 1;
    }
};

QTEST_MAIN(test_passed_tables)
#include "test_passed_tables.moc"
