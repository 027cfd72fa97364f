#pragma once

#include <QStringList>

#include "controls/control_array.h"
#include "controls/Form.h"
#include "reports/report_control.h"

class QBoxLayout;
class QLayout;
class QListWidget;
class QPushButton;

namespace verdane {

/// The window that prints a blank scorecard of a course (`f_carte`, `f_carte_en`): the holes for the
/// chosen tee, and the distances of the clubs in the bag. It stays open, so that several cards can be
/// printed.
///
/// The constructor loads it; `rsvrd_fields` and `rsfield_info` are open until the window is unloaded.
class f_carte final : public Form {
public:
    f_carte();

    /// Fills the empty list: a line for each row of `vrd_fields`, in table order.
    void show_courses(const QStringList& lines);
    /// The index of the selected line; -1 if the list is empty.
    int selected_course() const;

    report_control& cr2() { return cr2_; }

protected:
    void unloading() override;

private:
    QLayout* make_courses();
    QBoxLayout* make_buttons();
    void connect_events();

    report_control cr2_;
    QListWidget* courses_;
    /// 0 OK, 1 cancel.
    control_array<QPushButton> buttons_{u"Command1"};
};

}  // namespace verdane
