#pragma once

#include <QColor>

class QApplication;
class QBoxLayout;
class QFormLayout;
class QGridLayout;
class QLabel;
class QLineEdit;
class QString;
class QWidget;

/// The look of all windows: style and palette of the platform, one accent colour, distances in multiples of 8
/// pixels, numbers aligned to the right.
namespace verdane {

/// The unit of all distances, in pixels.
constexpr int rhythm = 8;

/// The pixels of a length in twips (1/1440 inch) at 96 pixels an inch.
constexpr int pixels(int twips)
{
    return twips / 15;
}

QColor accent_green();

/// Sets the accent colour in the palette of the application.
void apply_look(QApplication& application);

/// A box for a whole number, as wide as `digits` digits.
QLineEdit* make_number_box(int digits);

/// A box of the same width that shows a figure and cannot have the focus.
QLineEdit* make_figure(int digits);

/// A label. It names its control, `buddy`, for screen readers, and gives it the focus by the mnemonic of its
/// caption, if there is one.
QLabel* make_label(const QString& caption, QWidget* buddy = nullptr);

}  // namespace verdane
