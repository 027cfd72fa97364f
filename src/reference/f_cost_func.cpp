#include "reference/f_cost_func.h"

#include <QLineEdit>

#include <algorithm>

#include "base/counts.h"
#include "base/numbers.h"
#include "base/text.h"
#include "reference/f_cost.h"
#include "store/DataEnvironment1.h"
#include "store/tables/cost.h"

namespace verdane::f_cost_func {

using namespace Qt::StringLiterals;

namespace {

Field stored_amount(int index)
{
    return data_environment().rscost.Fields(tables::cost::first_amount + index);
}

/// The total of the twelve boxes, rounded box by box.
int16 total(const f_cost& window)
{
    int16 sum = 0;
    for (int index = 0; index < amount_count; ++index)
        sum = to_int16(plain(sum) + leading_number(window.amounts()(index).text()));
    return sum;
}

}  // namespace

void load(f_cost& window)
{
    for (int index = 0; index < amount_count; ++index) {
        QLineEdit& box = window.amounts()(index);
        box.setText(QString::number(plain(stored_amount(index).int32_or_zero())));
        // Prevents that a longer text is pasted. An amount that is longer already is shown completely.
        box.setMaxLength(std::max(amount_digits, static_cast<int>(box.text().size())));
    }
}

void box_changed(f_cost& window, int index)
{
    QLineEdit& box = window.amounts()(index);
    if (trimmed_blanks(box.text()).isEmpty()) {
        // This calls `box_changed` again, which computes the total. The next digit replaces the "0".
        box.setText(u"0"_s);
        box.selectAll();
        return;
    }
    window.show_total(QString::number(plain(total(window))));
}

key_answer box_key(const f_cost& window, int index, QChar key)
{
    if (key == backspace)
        return key_answer::pass;
    const bool full = trimmed_blanks(window.amounts()(index).text()).size() >= amount_digits;
    return is_plain_digit(key) && !full ? key_answer::pass : key_answer::refuse;
}

void enter_box(f_cost& window, int index)
{
    select_characters(window.amounts()(index), amount_digits);
}

void accept(f_cost& window)
{
    for (int index = 0; index < amount_count; ++index)
        stored_amount(index).set(to_int32(window.amounts()(index).text()));
    data_environment().rscost.Update();
    window.unload();
}

}  // namespace verdane::f_cost_func
