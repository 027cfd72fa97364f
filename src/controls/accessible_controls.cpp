#include "controls/accessible_controls.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

namespace verdane {

namespace {

/// A list of choices. On some desktops the toolkit names it by the entry that is chosen.
class accessible_choice : public QAccessibleWidget {
public:
    explicit accessible_choice(QComboBox& box) : QAccessibleWidget(&box, QAccessible::ComboBox), box_(box) {}

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? box_.currentText() : QAccessibleWidget::text(kind);
    }

    int childCount() const override { return 1; }

    QAccessibleInterface* child(int index) const override
    {
        if (index != 0)
            return nullptr;
        box_.view()->setAccessibleName(text(QAccessible::Name));
        return QAccessible::queryAccessibleInterface(box_.view());
    }

    int indexOfChild(const QAccessibleInterface* entries) const override
    {
        return entries && entries->object() == box_.view() ? 0 : -1;
    }

    QStringList actionNames() const override { return {pressAction(), showMenuAction()}; }

    void doAction(const QString& action) override
    {
        if (action == pressAction() || action == showMenuAction())
            box_.showPopup();
    }

private:
    QComboBox& box_;
};

QAccessibleInterface* describe(const QString& kind, QObject* object)
{
    if (auto* box = qobject_cast<QComboBox*>(object); box && kind == u"QComboBox")
        return new accessible_choice(*box);
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget && kind == u"QWidget" && widget->windowType() == Qt::Window && widget->isWindow())
        return new QAccessibleWidget(widget, QAccessible::Window);
    return nullptr;
}

/// Without the marks: "&Normale :" is spoken as "Normale".
QString spoken(QString caption)
{
    caption = caption.remove(u'&').trimmed();
    if (caption.endsWith(u':'))
        caption.chop(1);
    return caption.trimmed();
}

}  // namespace

void describe_controls()
{
    static const bool once = [] {
        QAccessible::installFactory(describe);
        return true;
    }();
    static_cast<void>(once);
}

void name_control(QWidget& control, const QString& caption)
{
    control.setAccessibleName(spoken(caption));
    // In a spin box the box inside has the focus.
    if (qobject_cast<QAbstractSpinBox*>(&control))
        control.findChild<QLineEdit*>()->setAccessibleName(control.accessibleName());
}

void label_control(QLabel& label, QWidget& control)
{
    label.setBuddy(&control);
    // A label that shows a figure is read out by its text; the relation to its caption is enough.
    if (!qobject_cast<QLabel*>(&control))
        name_control(control, label.text());
}

}  // namespace verdane
