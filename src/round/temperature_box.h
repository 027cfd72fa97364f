#pragma once

#include <QSpinBox>

namespace verdane {

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
