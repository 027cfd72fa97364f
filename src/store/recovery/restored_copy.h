#pragma once

#include <QStringList>

#include <optional>

#include "store/store_location.h"

namespace verdane {

struct restored_files {
    /// The old files, which are kept under other names in the folder `copies`; that of the diary first.
    QStringList kept;
    /// Whether the place had the file of a diary, and not only a log of one.
    bool replaced = false;
};

/// Puts a copy of a diary in the place of the file of a diary, which may be missing or damaged; both are
/// files. The copy is checked for damage and written anew, row by row and compared, before anything is
/// changed. The old file, and its logs, are kept under another name in the folder `copies`. If the process is
/// killed, the place has the old diary with its logs, the new one, or none. If it has none, the old one is in
/// `copies`, and the restoration can be repeated. A link to a file stays a link. The new file has the
/// permissions of the old one.
///
/// Without a value, the copy has no rows and nothing was changed. Fails like `Connection1::OpenExisting`,
/// `write_closed_copy`, `keep_files` and `replace_file`, and with `store_locked` if another program uses one
/// of the files, by whatever name.
std::optional<restored_files> restore_copy(const store_location& copy, const store_location& place);

}  // namespace verdane
