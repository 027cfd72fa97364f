#pragma once

#include <QTest>

namespace verdane::testing {

/// The two rows of a test that holds in both languages.
inline void both_languages()
{
    QTest::addColumn<bool>("french");
    QTest::newRow("French") << true;
    QTest::newRow("English") << false;
}

}  // namespace verdane::testing
