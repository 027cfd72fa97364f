#include "transfer/sample_season.h"

#include <QDate>
#include <QTime>

#include "base/text.h"
#include "records/course_keys.h"
#include "records/course_rows.h"
#include "records/round_rows.h"
#include "scoring/Verdane_tools.h"
#include "scoring/words.h"
#include "store/DataEnvironment1.h"
#include "store/recovery/counted_rows.h"
#include "store/row_insertion.h"
#include "store/tables/cost.h"
#include "store/tables/courses.h"
#include "store/tables/games.h"
#include "store/tables/games2.h"
#include "store/tables/partners.h"
#include "store/tables/Stat_rounds.h"
#include "transfer/sample_courses.h"
#include "transfer/sample_golfer.h"
#include "transfer/sample_shots.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds_of_season = 26;
constexpr int days_between_rounds = 8;
constexpr unsigned seed = 20250412;

struct person {
    QStringView name;
    QStringView surname;
    QStringView city;
};

constexpr std::array<person, 4> people{{{u"Bergeron", u"Alice", u"Sherbrooke"},
                                        {u"Moreau", u"Hugo", u"Granby"},
                                        {u"Sinclair", u"Nora", u"Kingston"},
                                        {u"Walsh", u"Peter", u"Ottawa"}}};

class season_writer {
public:
    void write()
    {
        for (const entered_course& course : sample_courses()) {
            add_course(course);
            courses_.push_back(
                {course, data_environment().rsvrd_fields.Fields(tables::vrd_fields::code).text()});
        }
        add_partners();
        write_averages();
        for (int round = 0; round < rounds_of_season; ++round)
            add_round(round);
        for (row_insertion* insertion : {&games_, &games2_, &cost_, &shots_})
            insertion->finish();
    }

private:
    struct coded_course {
        entered_course course;
        QString code;
    };

    void add_partners()
    {
        row_insertion insertion(store().engine(), *find_table(tables::partners::table.name));
        for (const person& each : people) {
            QString name = each.name.toString();
            QString surname = each.surname.toString();
            partners_ << QString::number(plain(Verdane_tools::name_checksum(name, surname)));
            insertion.add({each.name.toString(), each.surname.toString(), u""_s, each.city.toString(), u""_s,
                           u""_s, partners_.last().toInt()});
        }
        insertion.finish();
    }

    static void write_averages()
    {
        QStringList assignments;
        for (int club = 1; club < club_count; ++club)
            assignments << u"avg_%1 = %2"_s.arg(club).arg(
                sample_averages.at(static_cast<std::size_t>(club - 1)));
        store().Execute(u"update sticks set "_s + assignments.join(u", "_s));
    }

    static QString key_of(int round)
    {
        const QDate day = QDate(2025, 4, 12).addDays(qint64{round} * days_between_rounds);
        const QTime tee_off = QTime(8, 0).addSecs(60 * (round * 47 % 420));
        return day.toString(u"yyyyMMdd") + tee_off.toString(u"HHmmss");
    }

    void add_round(int round)
    {
        const QString key = key_of(round);
        const auto& [course, code] = courses_.at(static_cast<std::size_t>(round * 7 % 3));
        row_of_round strokes(tables::games::table);
        row_of_round situation(tables::games2::table);
        strokes.set(tables::games::date, key);
        strokes.set(tables::games::field, course.name);
        strokes.set(tables::games::CODEF, code);
        set_day(situation, key, code);
        for (int hole = 1; hole <= hole_count; ++hole)
            add_hole(strokes, situation, {key, hole, course}, round % 2 == 1);
        games_.add(strokes.named().second);
        games2_.add(situation.named().second);
        add_costs(key);
    }

    void set_day(row_of_round& situation, const QString& key, const QString& code)
    {
        const auto weathers = static_cast<int>(weather_words.size());
        QStringList companions;
        for (const QString& partner : partners_) {
            if (golfer_.once_in(3))
                companions << partner;
        }
        situation.set(tables::games2::date, key);
        situation.set(tables::games2::FC, code);
        situation.set(tables::games2::conditionM, int16(golfer_.pick(0, weathers - 1)));
        situation.set(tables::games2::PARTNERS, Round_functions::partners_text(companions));
        situation.set(tables::games2::temperature, int16(golfer_.pick(9, 29)));
    }

    /// A hole without shots has no lengths of putts.
    void add_hole(row_of_round& strokes, row_of_round& situation, const sample_hole& hole, bool with_shots)
    {
        shot_list shots = golfer_.play(hole.yards(), hole.par());
        hole_summary counted = summarise(shots);
        if (with_shots)
            add_shots(shots_, hole, shots);
        else
            counted.putt_lengths.fill(0);
        set_strokes(strokes, hole.number, counted);
        set_situation(situation, hole.number, counted);
    }

    void add_costs(const QString& key)
    {
        std::vector<QVariant> row{key, golfer_.pick(45, 95)};
        while (row.size() <= tables::cost::amount_count)
            row.emplace_back(golfer_.once_in(4) ? golfer_.pick(2, 38) : 0);
        cost_.add(row);
    }

    static Connection1& store() { return data_environment().connection; }

    sample_golfer golfer_{seed};
    std::vector<coded_course> courses_;
    QStringList partners_;
    row_insertion games_{store().engine(), *find_table(tables::games::table.name)};
    row_insertion games2_{store().engine(), *find_table(tables::games2::table.name)};
    row_insertion cost_{store().engine(), *find_table(tables::cost::table.name)};
    row_insertion shots_{store().engine(), *find_table(tables::Stat_rounds::table.name)};
};

}  // namespace

int write_sample_season()
{
    Round_functions::open_courses();
    rebuild_course_keys(data_environment().rsvrd_fields);
    season_writer().write();
    return rounds_of_season;
}

}  // namespace verdane
