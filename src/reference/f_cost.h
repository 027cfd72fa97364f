#pragma once

#include <functional>

#include "controls/control_array.h"
#include "controls/Form.h"

class QGridLayout;
class QLayout;
class QLineEdit;
class QPushButton;

namespace verdane {

/// The twelve costs of a round (`f_cost`, `f_cost_en`). It edits the current row of `rscost`, to which the
/// caller has moved; only OK changes the row.
class f_cost : public Form {
public:
    /// Called when the window closes, with the total that it showed last. If it was not closed by OK, this
    /// is the total of what was typed, while the row has its old amounts.
    using total_listener = std::function<void(const QString& total)>;

    /// Loads the window. Fails with `overflow` when the total of the stored amounts exceeds 16 bits.
    explicit f_cost(total_listener closed_with_total);

    /// The boxes of the amounts. Member i is ordinal i + 1 of the table.
    const control_array<QLineEdit>& amounts() const { return amounts_; }
    void show_total(const QString& total);

protected:
    void activated() override;
    void unloading() override;

private:
    void lay_out();
    QLayout* make_amounts();
    void add_amount(QGridLayout& grid, int index, const QString& caption);
    void add_total(QGridLayout& grid);
    QLayout* make_foot();
    void connect_events();

    control_array<QLineEdit> amounts_{u"cost"};
    QLineEdit* total_;
    QPushButton* ok_;
    total_listener closed_with_total_;
};

}  // namespace verdane
