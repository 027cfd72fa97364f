#pragma once

#include <QStyledItemDelegate>

class QLineEdit;

namespace verdane {

class data_grid;

/// Paints the cells of a grid with their buttons, and the cell with the cursor with a frame and, if its text
/// can be edited, a caret. Creates the editor of a cell.
class cell_delegate : public QStyledItemDelegate {
public:
    explicit cell_delegate(data_grid& grid);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    /// Does nothing: the grid writes the text (`data_grid::commit_cell`).
    void setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const override {}
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    bool eventFilter(QObject* editor, QEvent* event) override;

private:
    void paint_with_button(QPainter& painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const;
    void paint_cursor(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
    bool key_pressed(const QKeyEvent& event) const;
    /// True if the editor keeps the focus.
    bool focus_lost(QLineEdit& editor, Qt::FocusReason why) const;

    data_grid& grid_;
};

}  // namespace verdane
