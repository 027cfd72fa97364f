#include "shell/f_report.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize window_size(320, 160);

}  // namespace

f_report::f_report() : Form(u"f_report", twins::one), cr2(this)
{
    setWindowTitle(u"Verdane"_s);
    resize(window_size);
}

}  // namespace verdane
