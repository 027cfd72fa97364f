#include "reference/course_general_page.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include <array>

#include "base/language.h"
#include "base/text.h"
#include "controls/decimal_box.h"
#include "controls/Form.h"
#include "controls/keys.h"
#include "controls/look.h"
#include "scoring/course_checks.h"
#include "scoring/words.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int address_characters = 255;
/// Tee, rating and slope have boxes of the same width.
constexpr int short_box_width = 20 * rhythm;
constexpr int box_height = 4 * rhythm;

/// Rating and slope: digits up to the limit, and any number of points.
key_answer figure_key(const QLineEdit& box, QChar key)
{
    if (key == u'.' || key == backspace)
        return key_answer::pass;
    const bool full = trimmed_blanks(box.text()).size() >= course_figure_characters;
    return may_be_in_course_figure(key) && !full ? key_answer::pass : key_answer::refuse;
}

key_answer name_key(QChar key)
{
    return may_be_in_course_name(key) || key == backspace ? key_answer::pass : key_answer::refuse;
}

}  // namespace

course_general_page::course_general_page(const Form& window) : tee_box_(named(new QComboBox, u"departure"))
{
    make_boxes();
    for (const text_pair& tee : tee_words)
        tee_box_->addItem(tee.in(window.french()));
    lay_out(window);
    connect_events();
    for (const box which : {rating, slope}) {
        take_comma_as_point(boxes_(which));
        explain_decimal_mark(boxes_(which),
                             window.caption(u"Chiffres seulement, avec un point comme signe décimal : 71.3",
                                            u"Digits only, with a point as the decimal mark: 71.3"));
    }
}

void course_general_page::make_boxes()
{
    boxes_.add(name, new QLineEdit)->setMaxLength(course_name_characters);
    for (const box which : {rating, slope})
        boxes_.add(which, make_number_box(course_figure_characters))->setFixedWidth(short_box_width);
    for (const box which : {address_1, address_2, address_3})
        boxes_.add(which, new QLineEdit)->setMaxLength(address_characters);
    for (const auto& [index, edit] : boxes_.members())
        edit->setMinimumHeight(box_height);
}

void course_general_page::lay_out(const Form& window)
{
    QGridLayout* grid = make_grid(3 * rhythm);
    add_labelled_box(*grid, u"lbl_name", window.caption(u"Nom :", u"Name :"), name);
    add_tee(*grid, window.caption(u"Départ :", u"Teeing Area :"));
    add_labelled_box(*grid, u"lbl_rating", window.caption(u"Moyenne :", u"Rating :"), rating);
    add_labelled_box(*grid, u"lbl_slope", window.caption(u"Difficulté :", u"Slope :"), slope);
    add_address(*grid, window);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(grid->rowCount(), 1);
}

void course_general_page::add_labelled_box(QGridLayout& grid, QStringView label, const QString& caption,
                                           box which)
{
    const int row = grid.rowCount();
    grid.addWidget(named(make_label(caption, &boxes_(which)), label), row, 0);
    grid.addWidget(&boxes_(which), row, 1);
}

void course_general_page::add_tee(QGridLayout& grid, const QString& caption)
{
    tee_box_->setFixedWidth(short_box_width);
    tee_box_->setMinimumHeight(box_height);
    const int row = grid.rowCount();
    grid.addWidget(named(make_label(caption, tee_box_), u"lbl_departure"), row, 0);
    grid.addWidget(tee_box_, row, 1, Qt::AlignLeft);
}

void course_general_page::add_address(QGridLayout& grid, const Form& window)
{
    add_labelled_box(grid, u"lbl_address", window.caption(u"Adresse :", u"Address :"), address_1);
    const QString line = window.caption(u"Adresse", u"Address");
    for (const box which : {address_2, address_3}) {
        boxes_(which).setAccessibleName(line + u' ' + QString::number(which - address_1 + 1));
        grid.addWidget(&boxes_(which), grid.rowCount(), 1);
    }
}

void course_general_page::connect_events()
{
    filter_keys(boxes_(name), name_key);
    for (const box which : {rating, slope})
        filter_keys(boxes_(which), [this, which](QChar key) { return figure_key(boxes_(which), key); });
    for (const auto& [index, edit] : boxes_.members())
        connect(edit, &QLineEdit::textChanged, this, &course_general_page::changed);
}

QString course_general_page::text(box which) const
{
    return boxes_(which).text();
}

QString course_general_page::trimmed_text(box which) const
{
    return trimmed_blanks(text(which)).toString();
}

void course_general_page::set_text(box which, const QString& text)
{
    boxes_(which).setText(text);
}

int course_general_page::tee() const
{
    return tee_box_->currentIndex();
}

QString course_general_page::tee_text() const
{
    return tee_box_->currentText();
}

void course_general_page::select_tee(int digit)
{
    tee_box_->setCurrentIndex(digit);
}

void course_general_page::lock_tee()
{
    tee_box_->setEnabled(false);
}

void course_general_page::focus_name()
{
    boxes_(name).setFocus();
}

std::vector<QWidget*> course_general_page::tab_order() const
{
    return {&boxes_(name),      tee_box_,           &boxes_(rating),   &boxes_(slope),
            &boxes_(address_1), &boxes_(address_2), &boxes_(address_3)};
}

}  // namespace verdane
