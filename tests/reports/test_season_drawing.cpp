#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <cmath>

#include "reports/fill/template_fill.h"
#include "reports/query/report_snapshot.h"
#include "reports/template/template_reader.h"
#include "tests/reports/invented_season.h"
#include "tests/reports/report_tools.h"
#include "tests/reports/season_shapes.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// The width of a drawing, in tenths of a millimetre. What extends beyond it is cut.
constexpr double width_of_paper = 2630;

/// The drawings of the round report as they are laid out.
QStringList drawings_of(const passed_rows& passed)
{
    const template_file source = read_template(built_template(u"Stat_rounds_en.rpt"_s));
    const QString body = fill_body(source, report_snapshot(source, {}, passed));
    static const QRegularExpression form(u"<svg.*?</svg>"_s, QRegularExpression::DotMatchesEverythingOption);
    QStringList drawings;
    for (auto found = form.globalMatch(body); found.hasNext();)
        drawings << found.next().captured();
    return drawings;
}

/// Numbers of a drawing have one decimal.
bool are_equal(const season_shape& seen, const season_shape& expected)
{
    return seen.kind == expected.kind && seen.colour == expected.colour &&
           std::equal(seen.numbers.begin(), seen.numbers.end(), expected.numbers.begin(),
                      expected.numbers.end(), [](double a, double b) { return std::abs(a - b) < 0.11; });
}

void compare(const std::vector<season_shape>& seen, const std::vector<season_shape>& expected)
{
    for (std::size_t i = 0; i < std::min(seen.size(), expected.size()); ++i)
        QVERIFY2(are_equal(seen[i], expected[i]),
                 qPrintable(words_of(seen[i]) + u", expected " + words_of(expected[i])));
    QCOMPARE(seen.size(), expected.size());
    for (const season_shape& shape : seen) {
        const double radius = shape.kind == u"point" || shape.kind == u"end" ? shape.numbers.at(2) : 0;
        QVERIFY2(shape.numbers.at(0) + radius <= width_of_paper, qPrintable(words_of(shape)));
    }
}

}  // namespace

/// The places of all points, bars and lines on the pages about the handicap and the season.
class test_season_drawing : public QObject {
    Q_OBJECT

    store_folder store_;

private Q_SLOTS:
    void initTestCase()
    {
        set_report_store(store_.location());
        fill_stats(store_.location(), 40, u"Links"_s);
    }

    void every_shape_is_where_a_second_computation_places_it_data()
    {
        QTest::addColumn<int>("rounds");
        QTest::addColumn<int>("courses");
        QTest::addColumn<int>("most_holes");
        QTest::newRow("1 round") << 1 << 1 << 18;
        QTest::newRow("4 rounds") << 4 << 1 << 18;
        QTest::newRow("5 rounds") << 5 << 1 << 18;
        QTest::newRow("40 rounds, 10 courses") << 40 << 10 << 18;
        QTest::newRow("41 rounds") << 41 << 3 << 18;
        QTest::newRow("366 rounds, 10 courses") << 366 << 10 << 18;
        QTest::newRow("366 rounds, 51 courses") << 366 << 51 << 18;
        QTest::newRow("unfinished rounds only") << 12 << 2 << 12;
        QTest::newRow("rounds without strokes") << 6 << 2 << 0;
    }
    void every_shape_is_where_a_second_computation_places_it()
    {
        QFETCH(int, rounds);
        QFETCH(int, courses);
        QFETCH(int, most_holes);
        const passed_rows passed =
            invented_season_tables({.rounds = rounds, .courses = courses, .most_holes = most_holes});
        const QStringList drawings = drawings_of(passed);
        // Page 1 has a drawing, and the list of the rounds one on each of its pages. The courses come last.
        compare(shapes_in_drawing(drawings.at(1)), shapes_of_handicap(passed));
        compare(shapes_in_drawing(drawings.at(drawings.size() - 2)), shapes_of_season(passed));
    }
};

QTEST_MAIN(test_season_drawing)
#include "test_season_drawing.moc"
