#pragma once

#include <QString>

#include "tests/support/diary.h"
#include "tests/support/reader.h"
#include "tests/support/recording_frame.h"
#include "tests/support/store_folder.h"

/// The stores that tests work on.
namespace verdane::testing {

/// A fresh store, which the program has open for the life of this object. `book` adds courses, rounds and
/// shots to it, `store` reads what is committed; both use separate connections.
class stored_diary {
public:
    explicit stored_diary(bool french = true) : folder_(french) {}

    const store_location& location() const { return folder_.location(); }
    /// The file of a store of the embedded engine.
    QString path() const { return folder_.path(); }
    /// The value of a statement as text; "null" for Null and where there is no row.
    QString text(const QString& statement) const;
    int number(const QString& statement) const { return store.number(statement); }

private:
    store_folder folder_;

public:
    const reader store{folder_.location()};
    const diary book{store};
};

/// The same for the test of a window, with a main window that records its requests.
class window_diary : public stored_diary {
public:
    using stored_diary::stored_diary;
    recording_frame frame;
};

}  // namespace verdane::testing
