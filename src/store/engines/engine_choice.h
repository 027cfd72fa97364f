#pragma once

#include <QString>

#include <memory>

#include "store/engines/engine.h"

/// Which engine a store is on.
namespace verdane {

class lock_wait;

enum class source_kind { mariadb, sqlite, unsupported };

/// Which engine a source belongs to. `server` is the value of `version()`, `sqlite` that of
/// `sqlite_version()`; empty if the source has no such function. MariaDB before 10.5 is unsupported.
source_kind kind_of_source(const QString& server, const QString& sqlite);

/// Connects to a registered source and returns the engine for it, which the caller opens. Until then its
/// statements have the time-out of the opening. Fails
/// like `open_link`, like `check_store_files` for a file, with `source_engine` if the source belongs to
/// another engine, and as `kind_of_unusable_server` returns it if the server does not run its first query.
std::unique_ptr<store_engine> engine_of_source(const QString& name, const store_location& where);

/// The engine of a store, which the caller opens. Fails like `engine_of_source` if the store is a source.
/// `waiting` is how its statements wait for the lock of another program; it must exist as long as the engine.
std::unique_ptr<store_engine> make_engine(const QString& name, const store_location& where,
                                          lock_wait& waiting);

}  // namespace verdane
