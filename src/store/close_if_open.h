#pragma once

#include "store/Recordset.h"

namespace verdane {

/// Closes a recordset that another window may or may not have left open, as the window of the partners
/// does when it could not store them. What is pending is dropped.
inline void close_if_open(Recordset& recordset)
{
    if (recordset.is_open())
        recordset.Close();
}

}  // namespace verdane
