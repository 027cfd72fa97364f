#include "statistics/putt_tables.h"

#include "base/numbers.h"
#include "statistics/report_texts.h"
#include "store/DataEnvironment1.h"
#include "store/tables/putts.h"

namespace verdane::putt_tables {

using namespace Qt::StringLiterals;

namespace {

namespace s_put1 = tables::s_put1;
namespace s_put2 = tables::s_put2;

const QString blank = u" "_s;

Recordset& by_first()
{
    return data_environment().rss_put1;
}

Recordset& by_start()
{
    return data_environment().rss_put2;
}

void write_bands(Recordset& grid, const tables::column_run& band_j, const by_band<tally>& counts)
{
    for (int j = 1; j <= putt_band_count; ++j)
        grid.Fields(band_j(j)).set(counts[j].sum);
}

void write_by_first(const putt_figures& figures)
{
    by_first().MoveFirst();
    for (int k = 1; k <= most_putts_counted; ++k) {
        write_bands(by_first(), s_put1::band_j, figures.counts.putts_by_first[k]);
        for (int ordinal = s_put1::mean_band_j(1); ordinal <= s_put1::mean_all; ++ordinal)
            by_first().Fields(ordinal).set(blank);
        by_first().MoveNext();
    }
    by_first().MoveLast();
    for (int j = 1; j <= putt_band_count; ++j)
        by_first().Fields(s_put1::mean_band_j(j)).set(mean_text(figures.means.mean_band[j]));
    by_first().Fields(s_put1::mean_all).set(mean_text(figures.means.mean_all));
}

void write_by_start(const putt_figures& figures)
{
    by_start().MoveFirst();
    for (int i = 1; i <= putt_band_count; ++i) {
        write_bands(by_start(), s_put2::band_j, figures.counts.stop_by_start[i]);
        by_start().Fields(s_put2::weighted_mean).set(blank);
        by_start().Fields(s_put2::rating_text).set(blank);
        by_start().MoveNext();
    }
    by_start().MoveLast();
    if (figures.putts > 0)
        by_start().Fields(s_put2::weighted_mean).set(plain_number_text(figures.score()));
}

}  // namespace

void open()
{
    by_first().Open();
    by_start().Open();
}

void write_grids(const putt_figures& figures)
{
    write_by_first(figures);
    write_by_start(figures);
}

void write_captions()
{
    by_first().MoveFirst();
    by_first()
        .Fields(s_put1::axis_first)
        .set(in_language(u"Distance de la balle au trou", u"Ball-To-Hole Distance"));
    by_first()
        .Fields(s_put1::axis_after)
        .set(
            in_language(u"Distance de la balle au trou après le coup", u"Ball-To-Hole Distance after shot "));
    by_start().MoveFirst();
    by_start()
        .Fields(s_put2::axis_after2)
        .set(in_language(u"Distance de la balle au trou après le coup", u"Ball-To-Hole Distance after shot"));
    by_start()
        .Fields(s_put2::axis_first2)
        .set(in_language(u"Distance de la balle au trou", u"Ball-To-Hole Distance"));
}

void write_rating_on_first_row(const text_pair& rating)
{
    by_start().MoveFirst();
    by_start().Fields(s_put2::rating_text).set(rating.in(is_french));
}

void write_rating_on_last_row(const text_pair& rating)
{
    by_start().MoveLast();
    by_start().Fields(s_put2::rating_text).set(rating.in(is_french));
}

void write_range(const QString& from, const QString& to)
{
    by_first().MoveFirst();
    by_first().Fields(s_put1::from_date).set(from);
    by_first().Fields(s_put1::to_date).set(to);
}

void write_choices(const QString& weather, const QString& partner, const QString& course)
{
    by_first().MoveFirst();
    by_first().Fields(s_put1::weather_text).set(weather);
    by_first().Fields(s_put1::partner_text).set(partner);
    by_first().Fields(s_put1::course_text).set(course);
}

void write_round_count(int16 rounds)
{
    by_first().MoveFirst();
    by_first().Fields(s_put1::round_count).set(rounds);
}

void commit_and_close()
{
    for (Recordset* grid : {&by_first(), &by_start()}) {
        grid->UpdateBatch(affect::all);
        grid->Close();
    }
}

}  // namespace verdane::putt_tables
