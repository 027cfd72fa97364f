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

/// A combo box. On some desktops the toolkit uses the selected entry as its name.
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

/// The caption without the mark of a mnemonic and without a colon: "&Normale :" is read as "Normale".
QString caption_to_read(QString caption)
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
    control.setAccessibleName(caption_to_read(caption));
    // The focus is in the line edit of a spin box.
    if (qobject_cast<QAbstractSpinBox*>(&control))
        control.findChild<QLineEdit*>()->setAccessibleName(control.accessibleName());
}

void label_control(QLabel& label, QWidget& control)
{
    label.setBuddy(&control);
    // A label that shows a figure is read by its text; naming it would replace that text.
    if (!qobject_cast<QLabel*>(&control))
        name_control(control, label.text());
}

}  // namespace verdane
