#pragma once

#include <QAbstractTableModel>
#include <QString>

#include <functional>
#include <vector>

#include "store/Recordset.h"

namespace verdane {

/// One column of a grid that is bound to a recordset.
struct bound_column {
    QString field;    ///< the recordset's column, capitals or not
    QString caption;  ///< the words above the column
    bool locked = false;
    /// The words for a yes/no column; Null reads as no.
    QString yes = {};
    QString no = {};
};

/// Binds a table view to a recordset: its rows are the recordset's rows, the view's current row is the
/// recordset's current row. Leaving a row commits it as the recordset's lock says.
///
/// The recordset may be worked on behind the model's back (rows added, removed, read again): what the
/// model shows follows at the next `refresh`. While unbound it has no rows, whatever the recordset is.
class recordset_model : public QAbstractTableModel {
public:
    recordset_model(Recordset& source, std::vector<bound_column> columns, QObject* parent = nullptr);

    Recordset& source() const { return source_; }
    const bound_column& column(int place) const { return columns_[static_cast<std::size_t>(place)]; }

    void bind();
    void unbind();
    bool is_bound() const { return bound_; }
    /// Shows again what the recordset holds.
    void refresh();

    /// Runs before a row that was written through this model is left and so committed.
    std::function<void()> before_row_commit;
    /// Runs `before_row_commit` when the current row was written since it was entered.
    void finish_row();
    /// Makes a row the recordset's current one; the row that is left is finished first. Fails as the
    /// commit does.
    void move_to(int row);

    /// False when the column cannot take the text: no number, or one outside the column's range.
    bool takes(int column, const QString& text) const;
    /// Writes a text into a cell, whose row becomes the current one. An empty text is Null in a column
    /// of numbers. False, and nothing is written, when the column cannot take the text.
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
    bool bound_ = false;
    bool row_written_ = false;
    int rows_ = 0;
};

}  // namespace verdane
