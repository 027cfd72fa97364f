#pragma once

#include "controls/control_array.h"
#include "controls/Form.h"

class QBoxLayout;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace verdane {

/// The golf bag: names and average distances of the fourteen clubs; in English `f_sticks_en`. The
/// averages are typed, or computed from the shots of a selection of rounds. Nothing is stored before the
/// final question is answered with Yes.
///
/// The constructor loads it; `rssticks` and `rssticknames` are open until it is unloaded. If no round is
/// stored, a message box reports that and `show_modal` returns at once.
class f_sticks final : public Form {
public:
    f_sticks();

    /// Member i is club i + 1: its name, and its average distance in yards.
    control_array<QLineEdit> sn{u"sn"};
    /// The members after the fourteen averages are boxes without a function.
    control_array<QLineEdit> Text1{u"Text1"};
    QLabel* head = nullptr;
    QPushButton* Command1 = nullptr;
    QPushButton* enr = nullptr;
    QPushButton* Fer = nullptr;
    QGroupBox* Frame1 = nullptr;
    QListWidget* List1 = nullptr;
    QListWidget* List2 = nullptr;
    QComboBox* conditions = nullptr;
    QComboBox* pList = nullptr;
    QComboBox* cmb_courses = nullptr;
    QPushButton* Actualiser = nullptr;

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
    void add_club(QGridLayout& grid, int index);
    QLayout* make_foot();
    QGroupBox* make_filters();
    QWidget* make_list_frame(QStringView name, const QString& words, QListWidget*& list);
    QLayout* make_choices();
    QLayout* make_unread_boxes();
    void wire();
};

}  // namespace verdane
