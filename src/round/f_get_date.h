#pragma once

#include "controls/Form.h"

class QCalendarWidget;
class QLayout;
class QLineEdit;
class QPushButton;

namespace verdane {

class f_new_round;

/// The small dialog that settles when a new round was teed off, and with that its key: the one moment
/// at which a round is named. One form for both languages.
class f_get_date : public Form {
public:
    explicit f_get_date(f_new_round& round);

    QCalendarWidget* round_date;
    QLineEdit* Text1;
    QLineEdit* Text2;
    QLineEdit* Text3;
    QPushButton* OKbut;
    QPushButton* Command1;

protected:
    void activated() override;
    void close_requested() override;

private:
    void name_controls();
    QLayout* make_time_line();
    QLayout* make_button_line();
    void connect_events();

    f_new_round& round_;
};

}  // namespace verdane
