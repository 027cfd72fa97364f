#include "statistics/selection_choice.h"

#include <QComboBox>
#include <QListWidget>

#include "records/round_rows.h"
#include "scoring/round_key.h"
#include "store/DataEnvironment1.h"

namespace verdane {

bool is_on(const QComboBox& filter)
{
    return filter.currentIndex() > 0;
}

QString chosen_round_key(const QListWidget& rounds)
{
    return Verdane_tools::key_of_entry(rounds.currentItem()->text());
}

QString chosen_weather(const QComboBox& conditions)
{
    return is_on(conditions) ? QString::number(conditions.currentIndex() - 1) : QString();
}

QString chosen_partner(const QComboBox& partners)
{
    return is_on(partners) ? partners.currentData().toString() : QString();
}

QString chosen_course(const QComboBox& courses)
{
    if (!is_on(courses))
        return {};
    // A course has the same position in its table and in the list.
    Recordset& rows = data_environment().rsvrd_fields;
    rows.Open();
    const QString code = Round_functions::course_code_at(courses.currentIndex() - 1);
    rows.Close();
    return code;
}

}  // namespace verdane
