#pragma once

#include <QString>

namespace verdane {

/// True if the file of a new store may not have that path, because the engine, the lock, a copy or an
/// interrupted command would use or remove it: a name that ends like their files (`-journal`, `-wal`, `-shm`,
/// `.lock`, `.unfinished`, `.restored`, `.source`, `.part`, in any case), a file in a folder `copies`, or a
/// file in the folder of an unfinished command. The target of a link has to be free, too.
bool is_reserved_name(const QString& path);

}  // namespace verdane
