#pragma once

#include <QDate>
#include <QString>

#include "controls/Form.h"

class QCalendarWidget;
class QLayout;
class QLineEdit;
class QPushButton;

namespace verdane {

/// The moment of a tee-off. Hours, minutes and seconds are the texts of the boxes, filled up with zeros to
/// two characters; any text is possible.
struct tee_off_moment {
    QDate date;
    QString hours;
    QString minutes;
    QString seconds;

    /// The round key: date, hours, minutes, seconds.
    QString key() const;
    /// "09:05:00".
    QString time_text() const;
};

/// The dialog in which the user chooses when a new round was teed off, and so its key, which cannot be
/// changed afterwards. One form for both languages.
class f_get_date : public Form {
    Q_OBJECT

public:
    f_get_date();

Q_SIGNALS:
    /// The user has confirmed a moment that no other round has. The dialog is still open.
    void moment_chosen(const tee_off_moment& moment);
    /// The dialog is cancelled or closed. It is still open.
    void canceled();

protected:
    void activated() override;
    void close_requested() override;

private:
    void name_controls();
    QLayout* make_time_line();
    QLayout* make_button_line();
    void connect_events();
    tee_off_moment moment() const;

    /// Refuses a moment that another round has, asks for confirmation and reports the moment. Fails with
    /// `subscript` when `round_keys` is full.
    void accept_moment();
    void cancel();
    /// After a double click on a date: selects it and focuses OK. The dialog stays open.
    void select_date(const QDate& date);

    QCalendarWidget* calendar_;
    QLineEdit* hours_box_;
    QLineEdit* minutes_box_;
    QLineEdit* seconds_box_;
    QPushButton* ok_button_;
    QPushButton* cancel_button_;
};

}  // namespace verdane
