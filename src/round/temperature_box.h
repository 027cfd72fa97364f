#pragma once

#include <QSpinBox>

namespace verdane {

/// The temperature in degrees Celsius, -30 to 50. Its text (`Text1`) is two blanks until the value was
/// touched or shown, then the value followed by " C".
class temperature_box : public QSpinBox {
public:
    explicit temperature_box(QWidget* parent = nullptr);

    /// Sets the value and shows it, also when it is the one that the box holds already.
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
