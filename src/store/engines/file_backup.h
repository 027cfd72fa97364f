#pragma once

#include <QString>

/// Copies of the file of the embedded engine. The functions open their files on connections of their own and
/// can be called from any thread.
namespace verdane {

/// Copies all committed pages of a store to an empty file. The store may be open on other connections;
/// neither they nor this function wait. Returns after the copy has reached the disk. Fails like
/// `store_engine::change`; the file is then incomplete.
void back_up(const QString& store, const QString& copy);

/// Checks a copy as the store is checked when it is opened, without changing anything. Fails with
/// `store_damaged`, or with `store_unreachable` if it cannot be opened.
void check_copy(const QString& path);

/// Fails with `store_locked` if another connection has the file of a store open, by whatever name: the lock
/// file excludes only programs that use the same name. Changes nothing, and fails for no other reason: a
/// damaged or missing file passes.
void need_sole_use(const QString& path);

}  // namespace verdane
