#pragma once

class QLabel;
class QString;
class QWidget;

namespace verdane {

/// Teaches the toolkit to describe controls to screen readers as this program needs it: a list of choices has
/// the name of its label, with its value apart, and a plain widget that is a window has the role of one.
/// To be called once the application exists; further calls do nothing.
void describe_controls();

/// Names a control for screen readers: the caption without the marks of keys and without its colon.
void name_control(QWidget& control, const QString& caption);

/// The label belongs to the control: it names it, and its mnemonic gives the control the focus.
void label_control(QLabel& label, QWidget& control);

}  // namespace verdane
