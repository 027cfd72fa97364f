#include "shell/unopened_windows.h"

#include <QLabel>
#include <QSvgWidget>
#include <QVBoxLayout>

#include "controls/control_array.h"
#include "controls/look.h"
#include "controls/main_frame.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int left_of_edge_twips = 200;
constexpr int above_edge_twips = 2400;
constexpr QSize window_size(320, 160);
constexpr int image_pixels = 96;

}  // namespace

f_flash::f_flash()
    : Form(u"f_flash", twins::one), picture_(named(new QSvgWidget(u":/art/verdane.svg"_s, this), u"Image1"))
{
    setWindowTitle(u"Verdane"_s);
    resize(window_size);
    picture_->resize(image_pixels, image_pixels);
    if (main_frame()) {
        const QSize frame = main_frame()->frame_widget()->size();
        move(frame.width() - pixels(left_of_edge_twips), frame.height() - pixels(above_edge_twips));
    }
}

void f_flash::activated()
{
    picture_->move(width() / 2, height() / 2);
}

wait_form::wait_form() : Form(u"wait", twins::one)
{
    setWindowTitle(u"Please Wait"_s);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6 * rhythm, 4 * rhythm, 6 * rhythm, 4 * rhythm);
    layout->addWidget(named(make_label(u"Please Wait"_s), u"Label1"));
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

f_report::f_report() : Form(u"f_report", twins::one), cr2_(this)
{
    setWindowTitle(u"Verdane"_s);
    resize(window_size);
}

}  // namespace verdane
