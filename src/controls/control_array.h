#pragma once

#include <QObject>
#include <QString>
#include <QStringView>

#include <map>

#include "base/run_time_failure.h"

namespace verdane {

/// Sets the object name of a control, by which tests, scripts and screen readers find it.
template <typename Control>
Control* named(Control* control, QStringView name)
{
    control->setObjectName(name.toString());
    return control;
}

/// Controls with one name and an index each. The object name of a member is NAME_INDEX.
template <typename Control>
class control_array {
public:
    explicit control_array(QStringView name) : name_(name.toString()) {}

    /// Adds a control and names it. Returns the control.
    Control* add(int index, Control* control)
    {
        using namespace Qt::StringLiterals;
        members_[index] = named(control, u"%1_%2"_s.arg(name_).arg(index));
        return control;
    }

    /// The member of that index; fails with `subscript` when there is none.
    Control& operator()(int index) const
    {
        using namespace Qt::StringLiterals;
        const auto found = members_.find(index);
        if (found == members_.end())
            throw run_time_failure(failure_kind::subscript,
                                   u"there is no control %1(%2)"_s.arg(name_).arg(index));
        return *found->second;
    }

    const std::map<int, Control*>& members() const { return members_; }

private:
    QString name_;
    std::map<int, Control*> members_;
};

}  // namespace verdane
