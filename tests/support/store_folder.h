#pragma once

#include <QTemporaryDir>

namespace verdane::testing {

/// A fresh store in a temporary folder, opened as the program's own for the life of this object; no
/// recordset is left open afterwards. The run-wide values are put back as at a start, in the wanted
/// language.
class store_folder {
public:
    explicit store_folder(bool french = true);
    ~store_folder();

    QString path() const;

private:
    QTemporaryDir folder_;
};

}  // namespace verdane::testing
