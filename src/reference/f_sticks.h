#pragma once

#include "controls/control_array.h"
#include "controls/Form.h"
#include "statistics/selection.h"

class QBoxLayout;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;

namespace verdane {

class bag_filters;

/// The golf bag (`f_sticks`, `f_sticks_en`): names and average distances of the fourteen clubs. The averages
/// are typed, or computed from the shots of a selection of rounds. Nothing is stored before the final
/// question is answered with Yes.
///
/// The constructor loads it; `rssticks` and `rssticknames` are open until it is unloaded. If no round is
/// stored, a message box reports that and `show_modal` returns at once.
class f_sticks final : public Form {
public:
    f_sticks();

    /// A club by its number less 1: its name, and the text of its average distance in yards.
    QString name(int club) const;
    void set_name(int club, const QString& name);
    QString average(int club) const;
    void set_average(int club, const QString& average);

    /// The explanation above the bag.
    void set_explanation(const QString& text);

    /// Fills the filters. False if no round is stored; the later lists are not filled then.
    bool fill_filters();
    void show_filters();
    /// The selection of the user in the filters.
    selection_arguments selection() const;

    /// Sets the window's width, at least what its controls need.
    void widen_to(int twips);

    void closeForm() override;

protected:
    void unloading() override;
    void close_requested() override;

private:
    void lay_out();
    QBoxLayout* make_bag_column();
    QGroupBox* make_bag();
    void add_club(QGridLayout& grid, int club);
    QLayout* make_foot();
    void connect_events();

    control_array<QLineEdit> names_{u"sn"};
    /// The further members of `Text1` belong to the filters.
    control_array<QLineEdit> averages_{u"Text1"};
    QLabel* explanation_ = nullptr;
    bag_filters* filters_;
    QPushButton* filters_button_;
    QPushButton* ok_;
    QPushButton* cancel_;
};

}  // namespace verdane
