#include "controls/decimal_box.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolTip>
#include <QValidator>

#include <utility>

namespace verdane {

namespace {

class comma_replacement : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString& text, int&) const override
    {
        text.replace(u',', u'.');
        return Acceptable;
    }
};

class comma_watch : public QObject {
public:
    comma_watch(QLineEdit& box, QString hint) : QObject(&box), box_(box), hint_(std::move(hint))
    {
        box.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress)
            look_for_comma(static_cast<QKeyEvent*>(event)->text());
        else if (event->type() == QEvent::InputMethod)
            look_for_comma(static_cast<QInputMethodEvent*>(event)->commitString());
        return false;
    }

private:
    void look_for_comma(const QString& typed)
    {
        if (typed.contains(u','))
            show_hint();
    }

    void show_hint() { QToolTip::showText(box_.mapToGlobal(QPoint(0, box_.height())), hint_, &box_); }

    QLineEdit& box_;
    const QString hint_;
};

}  // namespace

void take_comma_as_point(QLineEdit& box)
{
    box.setValidator(new comma_replacement(&box));
}

void explain_decimal_mark(QLineEdit& box, const QString& hint)
{
    new comma_watch(box, hint);
}

}  // namespace verdane
