#pragma once

#include <QAbstractTableModel>
#include <QString>

#include <functional>
#include <utility>
#include <vector>

#include "store/Recordset.h"

namespace verdane {

/// One column of a grid that is bound to a recordset.
struct bound_column {
    int ordinal;      ///< of the column of the recordset
    QString caption;  ///< the text in the header
    bool locked = false;
    /// The texts of the values of a yes/no column; Null is shown as no.
    QString yes = {};
    QString no = {};
};

/// Binds a table view to a recordset: the rows of the model are those of the recordset, and the current row
/// of the view is the current row of the recordset. Leaving a row commits it if the lock of the recordset
/// does.
///
/// Other code may change the recordset (add and remove rows, open it again); `refresh` updates the model.
/// While unbound the model has no rows.
class recordset_model : public QAbstractTableModel {
public:
    recordset_model(Recordset& source, std::vector<bound_column> columns, QObject* parent = nullptr);

    Recordset& source() const { return source_; }
    const bound_column& column(int place) const { return columns_[static_cast<std::size_t>(place)]; }

    void bind();
    void unbind();
    bool is_bound() const { return bound_; }
    /// Updates the rows of the model from the recordset.
    void refresh();

    /// Sets what is called before a row that was written through this model is left and committed.
    void set_before_row_commit(std::function<void()> routine) { before_row_commit_ = std::move(routine); }
    /// Calls that routine if the current row was written since it became current.
    void finish_row();
    /// Makes a row the current one, after `finish_row` for the row that is left. A failure of the commit is a
    /// failure of this function.
    void move_to(int row);

    /// False if the text is not valid in the column: not a number, or a number outside its range.
    bool takes(int column, const QString& text) const;
    /// Writes a text into a cell, whose row becomes the current one. In a column of numbers an empty text is
    /// Null. False if the text is not valid in the column; then nothing is written.
    bool write(int row, int column, const QString& text);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

private:
    bool holds(const QModelIndex& index) const;
    int rows_now() const;
    void follow_row_count();
    QString text_of(int row, const bound_column& column) const;
    Qt::Alignment alignment_of(const bound_column& column) const;

    Recordset& source_;
    std::vector<bound_column> columns_;
    std::function<void()> before_row_commit_;
    bool bound_ = false;
    bool row_written_ = false;
    int rows_ = 0;
};

}  // namespace verdane
