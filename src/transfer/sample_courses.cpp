#include "transfer/sample_courses.h"

#include "base/language.h"
#include "scoring/words.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

using hole_numbers = std::array<int, hole_count>;

struct scorecard {
    QStringView name;
    QStringView rating;
    QStringView slope;
    int tee = 0;
    hole_numbers yards;
    hole_numbers pars;
    hole_numbers stroke_indexes;
};

constexpr hole_numbers pars_of_valley{4, 5, 3, 4, 4, 4, 3, 4, 5, 4, 4, 3, 5, 4, 4, 3, 4, 5};
constexpr hole_numbers indexes_of_valley{7, 3, 17, 11, 1, 13, 15, 9, 5, 8, 2, 18, 4, 12, 10, 16, 14, 6};

constexpr std::array<scorecard, 3> cards{{
    {u"Golf du Vallon",
     u"70.8",
     u"126",
     0,
     {372, 508, 164, 391, 418, 355, 181, 384, 497, 366, 421, 152, 515, 378, 402, 176, 349, 524},
     pars_of_valley,
     indexes_of_valley},
    {u"Golf du Vallon",
     u"68.3",
     u"119",
     5,
     {341, 476, 141, 362, 389, 327, 158, 351, 468, 338, 392, 133, 481, 349, 371, 151, 322, 490},
     pars_of_valley,
     indexes_of_valley},
    {u"Birch Lake",
     u"69.6",
     u"122",
     1,
     {401, 337, 189, 520, 364, 412, 148, 379, 483, 352, 171, 398, 409, 502, 333, 160, 387, 425},
     {4, 4, 3, 5, 4, 4, 3, 4, 5, 4, 3, 4, 4, 5, 4, 3, 4, 4},
     {5, 15, 9, 3, 13, 1, 17, 11, 7, 14, 10, 6, 2, 8, 16, 18, 12, 4}},
}};

entered_course::hole_texts texts_of(const hole_numbers& numbers)
{
    entered_course::hole_texts texts;
    std::size_t hole = 0;
    for (QString& text : texts)
        text = QString::number(numbers.at(hole++));
    return texts;
}

entered_course course_of(const scorecard& card)
{
    entered_course course;
    course.name = card.name.toString();
    course.rating = card.rating.toString();
    course.slope = card.slope.toString();
    course.tee = card.tee;
    course.tee_text = tee_words.at(static_cast<std::size_t>(card.tee)).in(is_french);
    course.yards = texts_of(card.yards);
    course.pars = texts_of(card.pars);
    course.stroke_indexes = texts_of(card.stroke_indexes);
    return course;
}

}  // namespace

std::vector<entered_course> sample_courses()
{
    std::vector<entered_course> courses;
    for (const scorecard& card : cards)
        courses.push_back(course_of(card));
    return courses;
}

}  // namespace verdane
