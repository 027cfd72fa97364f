#pragma once

#include <QString>

#include <vector>

#include "controls/control_array.h"
#include "reference/course_page.h"

class QComboBox;
class QGridLayout;
class QLineEdit;

namespace verdane {

class Form;

/// The first page of the course editor: name, tee, rating, slope and three lines of address.
class course_general_page : public course_page {
    Q_OBJECT

public:
    /// The members of the control array `text`.
    enum box { slope = 0, name = 1, rating = 2, address_1 = 3, address_2 = 4, address_3 = 5 };

    /// Makes the page in the language of its window.
    explicit course_general_page(const Form& window);

    QString text(box which) const;
    QString trimmed_text(box which) const;
    void set_text(box which, const QString& text);

    /// The digit of the selected tee, 0 to 7, and its name; -1 and an empty name if there is none.
    int tee() const;
    QString tee_text() const;
    void select_tee(int digit);
    /// Disables the tee, which is part of the course's key and cannot be changed later.
    void lock_tee();

    void focus_name();
    /// The boxes in the order of the Tab key.
    std::vector<QWidget*> tab_order() const;

Q_SIGNALS:
    /// A text has changed. A change of the tee is not reported.
    void changed();

private:
    void make_boxes();
    void lay_out(const Form& window);
    void add_labelled_box(QGridLayout& grid, QStringView label, const QString& caption, box which);
    void add_tee(QGridLayout& grid, const QString& caption);
    void add_address(QGridLayout& grid, const Form& window);
    void connect_events();

    control_array<QLineEdit> boxes_{u"text"};
    QComboBox* tee_box_;
};

}  // namespace verdane
