#pragma once

#include <QGroupBox>
#include <QStringList>

#include <vector>

#include "round/round_record.h"

class QBoxLayout;
class QComboBox;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace verdane {

class course_box;
class Form;
class temperature_box;

/// What belongs to the round as a whole: course, weather, temperature, partners and costs. The values are
/// only in the controls until the round is saved.
class parameters_pane : public QGroupBox {
    Q_OBJECT

public:
    explicit parameters_pane(const Form& window);

    /// Fills the list of courses. No course is selected, without `course_changed`.
    void fill_courses(const std::vector<listed_course>& courses);
    void select_course(int list_index);
    /// Selects the course of that code, the first one when there is none.
    void select_course(const QString& code);
    int course_index() const;
    /// Name and tee of the selected course, "Alpha, WHITE".
    QString course() const;

    void fill_partners(const std::vector<partner_line>& partners);
    /// The numbers of the selected partners, in the order of the list.
    QStringList selected_partners() const;

    /// Fills the list of weathers and selects the first one.
    void fill_weathers(bool french);
    /// The weather as its index in the list.
    void show_weather(int index);
    int weather_index() const;
    QString weather() const;

    /// In degrees Celsius. An untouched box shows blanks and has the value 0.
    void show_temperature(int celsius);
    int temperature() const;

    void show_costs(const QString& total);

    /// Arranges the controls below each other, for the place next to the quick page, or side by side, for the
    /// place below the shots.
    void arrange(Qt::Orientation orientation);

    /// The controls in the order of the Tab key.
    std::vector<QWidget*> tab_order() const;
    /// The controls that the mouse wheel would change.
    std::vector<QWidget*> wheel_controls() const;

Q_SIGNALS:
    /// The selected course has changed, by the user or by the program.
    void course_changed();
    /// A click on "Details".
    void costs_clicked();

private:
    void lay_out(const Form& window);

    course_box* courses_;
    QComboBox* weathers_;
    temperature_box* temperature_;
    QListWidget* partners_;
    QLineEdit* costs_box_;
    QPushButton* costs_button_;
    QBoxLayout* blocks_;
};

}  // namespace verdane
