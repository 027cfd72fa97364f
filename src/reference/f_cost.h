#pragma once

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
    Q_OBJECT

public:
    /// Loads the window. Fails with `overflow` when the total of the stored amounts exceeds 16 bits.
    f_cost();

    /// The text in the box of an amount, 0 to 11. Amount i is ordinal i + 1 of the table.
    QString amount(int index) const;
    /// Shows a stored amount completely, and limits the length of a text that is pasted over it.
    void show_stored_amount(int index, int amount);
    /// Shows "0" and selects it, so that the next digit replaces it.
    void show_zero(int index);
    /// Selects the digits of an amount.
    void select_amount(int index);
    void show_total(const QString& total);

Q_SIGNALS:
    /// The window closes, and showed this total last. If it was not closed by OK, this is the total of what
    /// was typed, while the row has its old amounts.
    void closed_with_total(const QString& total);

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
};

}  // namespace verdane
