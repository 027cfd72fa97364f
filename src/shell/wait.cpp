#include "shell/wait.h"

#include <QVBoxLayout>

#include "controls/control_array.h"
#include "controls/look.h"

namespace verdane {

wait_form::wait_form() : Form(u"wait", twins::one)
{
    setWindowTitle(QStringLiteral("Please Wait"));
    Label1 = named(make_label(QStringLiteral("Please Wait")), u"Label1");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6 * rhythm, 4 * rhythm, 6 * rhythm, 4 * rhythm);
    layout->addWidget(Label1);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace verdane
