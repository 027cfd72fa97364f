#pragma once

#include <QSqlError>
#include <QStringList>

class QSqlDatabase;

namespace verdane {

/// The tables that a template may read: those that the statistics and the scorecard fill, and the names of
/// the clubs, for which the scorecard's table has no column.
const QStringList& readable_tables();

/// Copies these tables, as one moment of the committed rows, from the store file into `database`, which is
/// open, empty and in memory. Rows keep their order, columns their names and types; a text is cut to
/// `most_text_characters`. A table that the store lacks is left out. The result is not valid if everything
/// succeeded.
QSqlError copy_report_tables(QSqlDatabase& database, const QString& store);

}  // namespace verdane
