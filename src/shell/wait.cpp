#include "shell/wait.h"

#include <QVBoxLayout>

#include "controls/control_array.h"
#include "controls/look.h"

namespace verdane {

using namespace Qt::StringLiterals;

wait_form::wait_form() : Form(u"wait", twins::one)
{
    setWindowTitle(u"Please Wait"_s);
    Label1 = named(make_label(u"Please Wait"_s), u"Label1");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6 * rhythm, 4 * rhythm, 6 * rhythm, 4 * rhythm);
    layout->addWidget(Label1);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace verdane
