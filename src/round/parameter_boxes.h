#pragma once

#include <QComboBox>
#include <QSpinBox>

namespace verdane {

/// The drop-down list of courses. An entry has the course's name, blanks and the tee. With the blanks the
/// tee is outside the closed box. The open list shows name and tee without them.
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

}  // namespace verdane
