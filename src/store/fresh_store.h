#pragma once

#include <QString>
#include <QVariant>

#include <functional>
#include <vector>

namespace verdane {

class store_engine;
struct table;

/// Runs a statement of a connection that is open: `Connection1::Execute`.
using statement_runner = std::function<void(const QString&)>;

/// Creates every table of `schema`, its fixed rows and the indexes in one transaction. After a failure none
/// of them exists.
void create_tables(store_engine& engine, const statement_runner& run);

/// The values of a row of a table of fixed size in a new store. Rows count from 0.
std::vector<QVariant> fixed_row(const table& fixed, int row);

/// Replaces the rows of a table of fixed size with those of a new store. The caller commits. Fails with the
/// kind that fits the engine's error.
void renew_fixed_rows(store_engine& engine, const statement_runner& run, const table& renewed);

/// A statement that creates an index of the store.
struct index_creation {
    QString name;
    QString statement;
};

/// The indexes that a store lacks. Fails with the kind that fits the engine's error.
std::vector<index_creation> missing_indexes(const store_engine& engine);

}  // namespace verdane
