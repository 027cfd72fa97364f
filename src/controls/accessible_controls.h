#pragma once

class QLabel;
class QString;
class QWidget;

namespace verdane {

/// Changes how the toolkit describes two kinds of controls to screen readers: a combo box has the name of its
/// label, and its selected entry as value; a plain widget that is a window has the role of a window. To be
/// called after the application is created; further calls do nothing.
void describe_controls();

/// Names a control for screen readers: the caption without the marks of mnemonics and without its colon.
void name_control(QWidget& control, const QString& caption);

/// Connects a label with its control: the label names the control, and its mnemonic gives it the focus.
void label_control(QLabel& label, QWidget& control);

}  // namespace verdane
