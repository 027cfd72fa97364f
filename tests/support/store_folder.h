#pragma once

#include <QTemporaryDir>

namespace verdane::testing {

/// A fresh store in a temporary folder, which the program has open for the life of this object. The
/// destructor closes all recordsets. The constructor sets the run-wide values to those of a start in the
/// given language.
class store_folder {
public:
    explicit store_folder(bool french = true);
    ~store_folder();

    QString path() const;

private:
    QTemporaryDir folder_;
};

}  // namespace verdane::testing
