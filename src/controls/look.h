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

/// The quiet look that all windows share: the platform's own style and palette, one accent green, an
/// 8-pixel rhythm, numbers right-aligned.
namespace verdane {

constexpr int rhythm = 8;

QColor accent_green();

/// Sets the accent for the whole program.
void apply_look(QApplication& application);

/// A box for a whole number of up to `digits` digits: narrow and right-aligned.
QLineEdit* make_number_box(int digits);

/// A box that shows a figure and takes no focus and no key.
QLineEdit* make_figure(int digits);

/// A label. It names the control that it belongs to for screen readers, and gives keyboard access to it when
/// the caption holds a mnemonic.
QLabel* make_label(const QString& caption, QWidget* buddy = nullptr);

}  // namespace verdane
