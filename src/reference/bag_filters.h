#pragma once

#include <QGroupBox>
#include <QString>

#include "statistics/selection_filters.h"

class QLayout;
class QListWidget;

namespace verdane {

class Form;

/// The right half of the golf bag: the rounds from which the averages are computed, selected by their range,
/// the weather, a partner and a course.
class bag_filters : public QGroupBox {
    Q_OBJECT

public:
    /// Makes the filters in the language of their window.
    explicit bag_filters(const Form& window);

    void fill_weather();
    /// Fills both lists of rounds from the store. False if it has no round.
    bool fill_rounds();
    void fill_partners_and_courses();

    /// The selection of the user.
    selection_arguments selection() const;

Q_SIGNALS:
    /// A click on the update button.
    void update_clicked();

private:
    QWidget* make_list_frame(QStringView name, QStringView label_name, const QString& words,
                             QListWidget& list);
    QLayout* make_choices();
    QLayout* make_disabled_boxes();

    const Form& window_;
    selection_controls controls_;
};

}  // namespace verdane
