#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QSpinBox>
#include <QStringList>

#include <vector>

#include "round/round_record.h"

class QBoxLayout;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace verdane {

class Form;

/// The drop-down list of courses. An entry has the course's name, blanks and the tee. The blanks are so many
/// that the closed box does not show the tee; the open list shows name and tee without them.
class course_box : public QComboBox {
public:
    explicit course_box(QWidget* parent = nullptr);

    /// Adds an entry. The last character of the code is that of the tee.
    void add_course(QString name, const QString& code);

    /// The index of the course with that code, 0 when there is none.
    int index_of(const QString& code) const;

    /// Name and tee of the selected course, "Alpha, WHITE"; empty when none is selected.
    QString course() const;

    /// Opens the list in the width of its lines without the padding.
    void showPopup() override;
};

/// The temperature in degrees Celsius, -30 to 50. Its text box is `Text1`. The text is two blanks until the
/// user changes the value or `show_value` sets it, then the value followed by " C".
class temperature_box : public QSpinBox {
public:
    explicit temperature_box(QWidget* parent = nullptr);

    /// Sets the value and shows it, also when the value does not change.
    void show_value(int celsius);

protected:
    QString textFromValue(int value) const override;
    int valueFromText(const QString& text) const override;
    QValidator::State validate(QString& text, int& place) const override;
    void stepBy(int steps) override;

private:
    bool touched_ = false;
};

/// What belongs to the round as a whole: course, weather, temperature, partners and costs. The values are
/// only in the controls until the round is saved.
class parameters_pane : public QGroupBox {
    Q_OBJECT

public:
    explicit parameters_pane(const Form& window);

    /// Fills the list of courses. No course is selected, without `course_changed`.
    void fill_courses(const std::vector<course_line>& courses);
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
