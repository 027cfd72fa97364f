#include "controls/edited_cell.h"

#include <utility>

#include "controls/box_focus.h"
#include "controls/boxes.h"
#include "controls/recordset_model.h"

namespace verdane {

void edited_cell::set_key_filter(int column, std::function<key_answer(QChar)> filter)
{
    filters_[column] = std::move(filter);
}

bool edited_cell::refuses(int column, QChar key) const
{
    const auto filter = filters_.find(column);
    return filter != filters_.end() && filter->second(key) == key_answer::refuse;
}

void edited_cell::keep_refused_text(int column)
{
    holding_columns_.insert(column);
}

void edited_cell::watch(QLineEdit& editor, const QModelIndex& index)
{
    editor_ = &editor;
    index_ = index;
    if (holding_columns_.count(index.column()) > 0)
        when_left(editor, [this, box = &editor] { return editor_ != box || may_leave(); });
    const auto filter = filters_.find(index.column());
    if (filter == filters_.end())
        return;
    filter_keys(editor, filter->second);
    filter_pasted_text(editor, filter->second);
}

void edited_cell::type_first(const QString& text)
{
    if (!editor_ || text.isEmpty())
        return;
    editor_->setText(text.front() == backspace ? QString() : text);
    editor_->setModified(true);
}

bool edited_cell::may_leave()
{
    if (!editor_ || !editor_->isModified() || !index_.isValid() ||
        holding_columns_.count(index_.column()) == 0 || model_.takes(index_.column(), editor_->text()))
        return true;
    ring_bell();
    editor_->setFocus(Qt::OtherFocusReason);
    editor_->selectAll();
    return false;
}

std::optional<edited_cell::typed_text> edited_cell::changed_text() const
{
    if (!editor_ || !editor_->isModified() || !index_.isValid())
        return std::nullopt;
    return typed_text{index_, editor_->text()};
}

QLineEdit* edited_cell::release()
{
    return std::exchange(editor_, nullptr);
}

}  // namespace verdane
