#pragma once

#include <QObject>
#include <QStringList>

#include <vector>

#include "base/counts.h"
#include "controls/control_array.h"
#include "scoring/limits.h"

class QFrame;
class QGridLayout;
class QLineEdit;
class QWidget;

namespace verdane {

class Form;

/// The figures of the eighteen holes in the course editor: a page for the front nine and one for the back
/// nine. The index of a hole is its number less 1.
class course_holes : public QObject {
    Q_OBJECT

public:
    enum figure { yards, stroke_index, par };

    explicit course_holes(const Form& window);

    /// Makes the page of the nine holes from that index on. `number` is the page's number, which is part of
    /// the names of its headings.
    QFrame* make_page(int number, int first_index);

    QString text(figure which, int index) const;
    void set(figure which, int index, int16 value);

    /// The sum of the lengths from `first` up to, not including, `end`. Fails with `overflow` on a length or
    /// a sum that exceeds 16 bits.
    int16 yards_between(int first, int end) const;

    void focus_yards(int index);
    /// The boxes of a page in the order of the Tab key: lengths, then stroke indexes, then pars, as a
    /// published scorecard lists them.
    std::vector<QWidget*> tab_order(int first_index) const;

Q_SIGNALS:
    /// A length was left and accepted.
    void yards_entered();

private:
    QLineEdit& box(figure which, int index) const;
    void add_headings(QGridLayout& grid, int number);
    void add_hole(QGridLayout& grid, int index);
    void add_box(figure which, int index, const QString& accessible_name);
    bool may_leave(figure which, int index);
    QStringList other_indexes(int index) const;
    static void refuse(QLineEdit& refused, const QString& reason);

    const Form& window_;
    control_array<QLineEdit> yards_{u"txt_verge"};
    control_array<QLineEdit> stroke_indexes_{u"txt_hnd"};
    control_array<QLineEdit> pars_{u"txt_normal"};
};

}  // namespace verdane
