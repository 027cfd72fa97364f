#pragma once

#include <QMessageBox>
#include <QString>

#include <functional>

#include "tests/support/hand.h"
#include "tests/support/stored_diary.h"

/// What the tests of the golf bag share.
namespace verdane::testing {

/// "f_sticks", or its twin in the language of this moment.
QString bag_window();

/// A bag with names and averages, and three rounds of which the first two have shots.
class filled_bag : public stored_diary {
public:
    explicit filled_bag(bool french = true);

    /// A shot of a round of the first days; the lengths are before and after it, in yards.
    void shot(int day, int club, const QString& lengths) const;

    /// What the store holds of a club (1 to 14).
    double average(int club) const;
    int shots(int club) const;
    QString name(int club) const;
};

/// Opens the golf bag and lets the script close it.
void in_bag(const std::function<void(hand&)>& script);

/// The question whether names and averages are to be stored.
void answer_keep(hand& user, QMessageBox::StandardButton answer);

/// Works the averages out over lines of the two lists (from 0).
void compute(hand& user, int from, int to);

}  // namespace verdane::testing
