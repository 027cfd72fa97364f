#include "round/round_lists.h"

#include "records/round_rows.h"
#include "store/DataEnvironment1.h"
#include "store/Recordset.h"
#include "store/tables/courses.h"
#include "store/tables/partners.h"

namespace verdane::round_lists {

namespace {

namespace vrd_fields = tables::vrd_fields;

/// A column without a value is left out of the text.
partner_line line_of_current_partner(Recordset& partners)
{
    partner_line line;
    line.text = partners.Fields(tables::partners::SURNAME).text_or_empty() + u',' +
                partners.Fields(tables::partners::NAME).text_or_empty();
    line.number = QString::number(plain(partners.Fields(tables::partners::code).int32_or_zero()));
    line.selected = Round_functions::partner_in_round(line.number) >= 1;
    return line;
}

}  // namespace

std::vector<course_line> course_lines()
{
    Recordset& courses = data_environment().rsvrd_fields;
    std::vector<course_line> lines;
    for (courses.MoveFirst(); !courses.eof(); courses.MoveNext())
        lines.push_back(
            {courses.Fields(vrd_fields::name).text_or_empty(), courses.Fields(vrd_fields::code).trimmed()});
    return lines;
}

std::vector<partner_line> open_partner_lines()
{
    Recordset& partners = data_environment().rspartners;
    close_if_open(partners);
    partners.Open();
    std::vector<partner_line> lines;
    if (partners.empty())
        return lines;
    for (partners.MoveFirst(); !partners.eof(); partners.MoveNext())
        lines.push_back(line_of_current_partner(partners));
    return lines;
}

}  // namespace verdane::round_lists
