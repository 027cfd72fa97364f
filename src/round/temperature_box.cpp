#include "round/temperature_box.h"

#include <QLineEdit>
#include <QRegularExpression>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int coldest = -30;
constexpr int hottest = 50;

}  // namespace

temperature_box::temperature_box(QWidget* parent) : QSpinBox(parent)
{
    setRange(coldest, hottest);
    setFocusPolicy(Qt::StrongFocus);
    lineEdit()->setObjectName(u"Text1"_s);
    lineEdit()->setText(textFromValue(0));
    setAlignment(Qt::AlignRight);
    // The size hint allows for the two blanks only.
    const int figures = fontMetrics().horizontalAdvance(u"-30 C"_s);
    setMinimumWidth(sizeHint().width() + figures);
    connect(lineEdit(), &QLineEdit::textEdited, this, [this] { touched_ = true; });
    connect(this, &QSpinBox::valueChanged, this, [this](int celsius) {
        // While the user types, the text changes only when the box loses the focus.
        if (!touched_ && !lineEdit()->isModified())
            show_value(celsius);
    });
}

void temperature_box::show_value(int celsius)
{
    touched_ = true;
    setValue(celsius);
}

QString temperature_box::textFromValue(int value) const
{
    return touched_ ? QString(QString::number(value) + u" C") : u"  "_s;
}

int temperature_box::valueFromText(const QString& text) const
{
    static const QRegularExpression number(u"-?[0-9]+"_s);
    const auto found = number.match(text);
    return found.hasMatch() ? found.captured().toInt() : value();
}

QValidator::State temperature_box::validate(QString& text, int&) const
{
    static const QRegularExpression whole(u"^ *(-?[0-9]{1,2})? *C?$"_s);
    static const QRegularExpression begun(u"^ *- *C?$"_s);
    if (begun.match(text).hasMatch())
        return QValidator::Intermediate;
    const auto found = whole.match(text);
    if (!found.hasMatch())
        return QValidator::Invalid;
    const int celsius = found.captured(1).toInt();
    return celsius < coldest || celsius > hottest ? QValidator::Intermediate : QValidator::Acceptable;
}

void temperature_box::stepBy(int steps)
{
    touched_ = true;
    QSpinBox::stepBy(steps);
}

}  // namespace verdane
