#include "statistics/club_table.h"

#include "scoring/round_key.h"
#include "statistics/report_texts.h"
#include "store/DataEnvironment1.h"
#include "store/tables/golf_bag.h"
#include "store/tables/stat_sticks.h"

namespace verdane::club_table {

using namespace Qt::StringLiterals;

namespace {

using namespace tables::stat_sticks;

/// The columns of `club_texts`.
constexpr std::array columns_of_texts{shot_count, longest,    average,     pct_fairway, pct_right,
                                      pct_left,   pct_missed, pct_penalty, pct_holed};
static_assert(columns_of_texts.size() == std::tuple_size_v<club_texts>);

Recordset& clubs_of_report()
{
    return data_environment().rsstat_sticks;
}

}  // namespace

club_texts texts_of(const club_sums& sums)
{
    if (sums.shots <= 0) {
        club_texts zeros;
        zeros.fill(u"0"_s);
        return zeros;
    }
    const auto share = [&sums](int16 part) { return share_text(part, sums.shots); };
    const QString mean =
        sums.clean_shots > 0 ? average_text(sums.distance_sum / plain(sums.clean_shots)) : QString();
    return {count_text(sums.shots), count_text(sums.longest), mean,
            share(sums.in_fairway), share(sums.right),        share(sums.left),
            share(sums.missed),     share(sums.penalised),    share(sums.holed)};
}

void open()
{
    clubs_of_report().Open();
    clubs_of_report().MoveFirst();
}

void write_heading(const selection_arguments& chosen)
{
    Recordset& report = clubs_of_report();
    const QString from = Verdane_tools::key_text(chosen.from_key);
    // French in both languages; the English template has a separate heading.
    report.Fields(heading_text).set(QString(u"STATISTIQUES SUR VOS BÂTONS DE " + from));
    report.Fields(from_date).set(from);
    report.Fields(to_date).set(Verdane_tools::key_text(chosen.to_key));
    report.Fields(course_text).set(chosen.course_text);
    report.Fields(partner_text).set(chosen.partner_text);
    report.Fields(weather_text).set(chosen.weather_text);
}

void write_names()
{
    Recordset& names = data_environment().rssticknames;
    names.Open();
    names.MoveFirst();
    clubs_of_report().MoveFirst();
    for (int k = 1; k <= club_count; ++k) {
        clubs_of_report().Fields(club_name).set(names.Fields(tables::sticknames::club(k)).text_or_empty());
        clubs_of_report().MoveNext();
    }
    names.Close();
    clubs_of_report().MoveFirst();
}

void write_figures(const bag_sums& clubs)
{
    for (int s = 1; s < club_count; ++s) {
        const club_texts texts = texts_of(clubs[s]);
        for (std::size_t i = 0; i < texts.size(); ++i)
            clubs_of_report().Fields(columns_of_texts[i]).set(texts[i]);
        clubs_of_report().UpdateBatch(affect::all_chapters);
        clubs_of_report().MoveNext();
    }
}

void write_round_count_and_close(int16 rounds)
{
    Recordset& report = clubs_of_report();
    report.MoveFirst();
    report.Fields(round_count).set(rounds);
    report.Update();
    report.Close();
}

}  // namespace verdane::club_table
