#pragma once

#include <QTest>

namespace verdane::testing {

/// One row of data for each language, in the column `french`.
inline void both_languages()
{
    QTest::addColumn<bool>("french");
    QTest::newRow("French") << true;
    QTest::newRow("English") << false;
}

}  // namespace verdane::testing
