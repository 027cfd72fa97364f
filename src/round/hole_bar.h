#pragma once

#include <QWidget>

#include <functional>
#include <vector>

#include "controls/control_array.h"
#include "records/round_rows.h"

class QComboBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace verdane {

class Form;
class TabStrip;

/// Which hole is on screen, the tabs and the list that choose it, its card, and when the round was teed off.
/// Holes are numbered 1 to 18.
class hole_bar : public QWidget {
    Q_OBJECT

public:
    explicit hole_bar(Form& window);

    /// `check` runs before a click on a tab is accepted; false keeps the selected tab.
    void set_before_tab_click(std::function<bool()> check);

    /// The hole on screen; 0 before the first one is shown.
    int16 hole() const { return hole_; }
    /// Makes a hole the one on screen: shows its number and selects its tab. The list does not change.
    void show_hole(int16 hole);

    /// The row of tabs, which the window places above its other content.
    QWidget* tab_strip() const;
    /// The hole whose tab is selected; while a click is handled, the one to be shown.
    int selected_tab() const;
    /// Acts as a click on the tab of a hole.
    void click_tab(int hole);
    void set_tab_tip(const QString& text);

    /// Fills the list and selects hole 1 in it, with `list_changed`.
    void fill_list();
    /// The hole that is selected in the list; while `list_changed` is handled, the one to be shown.
    int16 listed_hole() const;
    /// Selects a hole in the list without `list_changed`.
    void select_in_list_silently(int hole);

    void show_card(const Round_functions::hole_card& card);
    /// The card on screen; zeros before the first hole is shown.
    Round_functions::hole_card card() const;

    /// Date and time of the tee-off, as the user reads them.
    void show_tee_off(const QString& date, const QString& time);
    void clear_date();
    QString date() const;
    /// Disables the button that chooses the date.
    void lock_date();

    /// The name is kept in a hidden box.
    void set_course_name(const QString& name);

    /// The controls in the order of the Tab key.
    std::vector<QWidget*> tab_order() const;
    /// The control that the mouse wheel would change.
    QWidget* wheel_control() const;

Q_SIGNALS:
    /// The entry of the list has changed, by the user or by the program.
    void list_changed();
    /// A tab was clicked, also the selected one.
    void tab_clicked();

private:
    QLineEdit* add_figure(QHBoxLayout& line, int index, const QString& caption, int characters);
    QLineEdit* add_hidden(int index);
    void add_hole_choice(QHBoxLayout& line, const Form& window);
    void add_date(QHBoxLayout& line, const Form& window);

    int16 hole_ = 0;
    TabStrip* hole_tabs_;
    QComboBox* hole_list_ = nullptr;
    QLabel* number_ = nullptr;
    QLineEdit* par_box_ = nullptr;
    QLineEdit* length_box_ = nullptr;
    QLineEdit* stroke_index_box_ = nullptr;
    QLineEdit* date_box_ = nullptr;
    QLineEdit* time_box_ = nullptr;
    QPushButton* date_button_ = nullptr;
    QLineEdit* course_name_box_ = nullptr;
    /// The number of the hole on screen, in a hidden box.
    QLineEdit* hole_box_ = nullptr;
    control_array<QLineEdit> text_{u"text"};
    control_array<QLabel> labels_{u"Label"};
};

}  // namespace verdane
