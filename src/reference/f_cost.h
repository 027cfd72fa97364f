#pragma once

#include <functional>

#include "controls/control_array.h"
#include "controls/Form.h"

class QGridLayout;
class QLayout;
class QLineEdit;
class QPushButton;

namespace verdane {

/// The twelve amounts of money of a round (`f_cost`, `f_cost_en`). It edits the current row of
/// `rscost`, which whoever opens the window has placed; the row changes only through OK.
class f_cost : public Form {
public:
    /// Told, however the window closes, the total that it showed last. After any way out but OK that
    /// is the total of what was typed, while the row keeps its old amounts.
    using total_listener = std::function<void(const QString& total)>;

    /// Made, the window is loaded. Fails with `overflow` when the stored amounts are more together
    /// than 16 bits hold.
    explicit f_cost(total_listener closed_with_total);

    /// Member i is ordinal i + 1 of `cost`.
    control_array<QLineEdit> cost{u"cost"};
    /// The sum of the twelve.
    QLineEdit* Text1;
    QPushButton* OKButton;

protected:
    void activated() override;
    void unloading() override;

private:
    void lay_out();
    QLayout* make_amounts();
    void add_amount(QGridLayout& grid, int index, const QString& caption);
    void add_total(QGridLayout& grid);
    QLayout* make_foot();
    void wire();

    total_listener closed_with_total_;
};

}  // namespace verdane
