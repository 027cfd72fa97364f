#include "shell/f_report.h"

namespace verdane {

namespace {

constexpr QSize window_size(320, 160);

}  // namespace

f_report::f_report() : Form(u"f_report", twins::one), cr2(this)
{
    setWindowTitle(QStringLiteral("Verdane"));
    resize(window_size);
}

}  // namespace verdane
