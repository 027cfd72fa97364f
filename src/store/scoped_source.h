#pragma once

#include <QString>

#include <utility>

#include "store/Recordset.h"

namespace verdane {

/// Sets the statement of a recordset for one use. The destructor sets the statement that is in force
/// afterwards, also when a failure ends the scope.
///
/// Only the text changes: a recordset that is open keeps its rows, and its next `Open` or `Requery` runs the
/// new statement. Open and close the recordset within the scope.
class scoped_source {
public:
    /// Afterwards the statement that is in force now.
    scoped_source(Recordset& recordset, const QString& statement)
        : scoped_source(recordset, statement, recordset.Source())
    {
    }

    scoped_source(Recordset& recordset, const QString& statement, QString afterwards)
        : recordset_(recordset), afterwards_(std::move(afterwards))
    {
        recordset_.set_Source(statement);
    }

    ~scoped_source()
    {
        if (!stays_)
            recordset_.set_Source(afterwards_);
    }

    /// The statement of the scope stays in force after it.
    void leave_in_force() { stays_ = true; }

    scoped_source(const scoped_source&) = delete;
    scoped_source& operator=(const scoped_source&) = delete;

private:
    Recordset& recordset_;
    const QString afterwards_;
    bool stays_ = false;
};

}  // namespace verdane
