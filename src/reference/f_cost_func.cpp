#include "reference/f_cost_func.h"

#include "base/counts.h"
#include "base/failure_subject.h"
#include "base/numbers.h"
#include "base/text.h"
#include "records/round_subject.h"
#include "reference/f_cost.h"
#include "store/DataEnvironment1.h"
#include "store/tables/cost.h"

namespace verdane::f_cost_func {

namespace {

Field stored_amount(int index)
{
    return data_environment().rscost.Fields(tables::cost::first_amount + index);
}

failure_subject round_of_costs()
{
    return Round_functions::subject_of_round(data_environment().rscost.Fields(tables::cost::date).trimmed());
}

/// The total of the twelve boxes, rounded box by box.
int16 total(const f_cost& window)
{
    int16 sum = 0;
    for (int index = 0; index < amount_count; ++index)
        sum = to_int16(plain(sum) + leading_number(window.amount(index)));
    return sum;
}

}  // namespace

void load(f_cost& window)
{
    for (int index = 0; index < amount_count; ++index)
        window.show_stored_amount(index, plain(stored_amount(index).int32_or_zero()));
}

void box_changed(f_cost& window, int index)
{
    if (trimmed_blanks(window.amount(index)).isEmpty()) {
        // This calls `box_changed` again, which computes the total.
        window.show_zero(index);
        return;
    }
    const int16 sum = concerning(round_of_costs, [&window] { return total(window); });
    window.show_total(QString::number(plain(sum)));
}

key_answer box_key(const f_cost& window, int index, QChar key)
{
    if (key == backspace)
        return key_answer::pass;
    const bool full = trimmed_blanks(window.amount(index)).size() >= amount_digits;
    return is_plain_digit(key) && !full ? key_answer::pass : key_answer::refuse;
}

void enter_box(f_cost& window, int index)
{
    window.select_amount(index);
}

void accept(f_cost& window)
{
    for (int index = 0; index < amount_count; ++index)
        stored_amount(index).set(to_int32(window.amount(index)));
    data_environment().rscost.Update();
    window.unload();
}

}  // namespace verdane::f_cost_func
