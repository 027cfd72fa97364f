#pragma once

#include <QComboBox>

namespace verdane {

/// The drop-down list of courses. An entry has the course's name, blanks and the tee. The blanks are so many
/// that the closed box does not show the tee; the open list shows name and tee without them.
class course_box : public QComboBox {
public:
    explicit course_box(QWidget* parent = nullptr);

    /// Adds an entry. The last character of the code is that of the tee.
    void add_course(QString name, const QString& code);

    /// The index of the course with that code, 0 when there is none.
    int index_of(const QString& code) const;

    /// Name and tee of the selected course, "Alpha, WHITE"; empty when none is selected.
    QString course() const;

    /// Opens the list in the width of its lines without the padding.
    void showPopup() override;
};

}  // namespace verdane
