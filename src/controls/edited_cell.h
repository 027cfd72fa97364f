#pragma once

#include <QLineEdit>
#include <QPersistentModelIndex>
#include <QPointer>

#include <functional>
#include <map>
#include <optional>
#include <set>

#include "controls/keys.h"

namespace verdane {

class recordset_model;

/// The cell of a grid whose text is being edited, and the rules of the columns for such texts.
class edited_cell {
public:
    /// A text that the user has typed, and its cell.
    struct typed_text {
        QModelIndex cell;
        QString text;
    };

    /// `model` must outlive the object.
    explicit edited_cell(const recordset_model& model) : model_(model) {}
    edited_cell(const edited_cell&) = delete;
    edited_cell& operator=(const edited_cell&) = delete;

    /// Sets the filter that accepts or refuses each character typed or pasted into a column.
    void set_key_filter(int column, std::function<key_answer(QChar)> filter);
    /// True if the filter of a column refuses the character.
    bool refuses(int column, QChar key) const;
    /// A text that is not valid in this column stays in its cell.
    void keep_refused_text(int column);

    /// The editor of a cell was created: applies the rules of its column.
    void watch(QLineEdit& editor, const QModelIndex& index);
    /// The editor; null if no cell is being edited.
    QLineEdit* editor() const { return editor_; }
    /// Replaces the text of the editor by a typed character; a backspace clears it.
    void type_first(const QString& text);

    /// False if the text is not valid and stays in its cell. The bell rings then, and the text is selected.
    bool may_leave();
    /// The text, if the user has changed it and its cell still exists.
    std::optional<typed_text> changed_text() const;
    /// Returns the editor, which is no longer watched; null if no cell is being edited.
    QLineEdit* release();

private:
    const recordset_model& model_;
    std::map<int, std::function<key_answer(QChar)>> filters_;
    std::set<int> holding_columns_;
    QPointer<QLineEdit> editor_;
    QPersistentModelIndex index_;
};

}  // namespace verdane
