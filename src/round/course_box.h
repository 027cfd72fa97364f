#pragma once

#include <QComboBox>

namespace verdane {

/// The drop-down of courses. An entry is the course's name, padded so wide that the tee behind it is
/// out of the closed box's view; the open list shows name and tee side by side.
class course_box : public QComboBox {
public:
    explicit course_box(QWidget* parent = nullptr);

    /// Adds a line for the course of that code, the last character of which names the tee.
    void add_course(QString name, const QString& code);

    /// The place of the course with that code; the first place when there is none.
    int place_of(const QString& code) const;

    /// Name and tee of the course chosen, "Alpha, WHITE"; empty when there is none.
    QString course() const;

    /// Opens the list as wide as its lines look, not as they are padded.
    void showPopup() override;
};

}  // namespace verdane
