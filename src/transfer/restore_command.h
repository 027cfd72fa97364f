#pragma once

#include <QStringList>

#include "transfer/exit_status.h"

namespace verdane {

/// `restore COPY STORE`: puts a copy of a diary, the file `file:PATH`, in the place of the file of a diary,
/// which may be missing or damaged. The copy is checked for damage and written anew, row by row and compared,
/// before anything is changed. The old file, and its write-ahead log, are kept under another name in the
/// folder `copies`. If the process is killed, the place has the old diary, the new one, or none, and then the
/// old one is in `copies` and the command can be repeated.
exit_status run_restore(const QStringList& arguments);

}  // namespace verdane
