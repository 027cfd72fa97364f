#include "store/orphan_shots.h"

#include "base/checked_array.h"
#include "base/counts.h"
#include "store/DataEnvironment1.h"
#include "store/tables/Stat_rounds.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int most_orphan_keys = 500;

/// The keys of the missing rounds, from index 1 on. The shots are ordered by key, so a key that differs from
/// the previous one is new.
struct orphan_keys {
    checked_array<QString, most_orphan_keys + 1> keys;
    int16 counter = 0;
    QString last_key = u"xx"_s;

    /// False if the key is the previous one.
    bool add(const QString& key)
    {
        if (key == last_key)
            return false;
        last_key = key;
        counter += 1;
        keys[plain(counter)] = key;
        return true;
    }
};

void open_rounds_and_shots(Recordset& rounds, Recordset& shots)
{
    rounds.set_Source(rounds.settings().source);
    rounds.Open();
    shots.set_Source(tables::Stat_rounds::source_of_removal.toString());
    // All shots of the diary: the requery does not read them, so they are read once.
    shots.Open(row_reading::when_needed);
    shots.Requery();
    shots.MoveFirst();
    rounds.MoveFirst();
}

orphan_keys delete_orphans(Recordset& rounds, Recordset& shots,
                           const std::function<void(const QString&)>& show)
{
    orphan_keys orphans;
    while (!shots.eof()) {
        const QString key = shots.Fields(tables::Stat_rounds::date).text_or_empty();
        rounds.Find(u"date=" + key);
        if (rounds.eof()) {
            if (orphans.add(key))
                show(key);
            shots.Delete();
        }
        rounds.MoveFirst();
        shots.MoveNext();
    }
    shots.UpdateBatch(affect::all_chapters);
    return orphans;
}

/// Always deletes by the last key, whose rows are deleted already; a no-op, kept on purpose.
void delete_again(const orphan_keys& orphans)
{
    for (int pass = 0; pass < plain(orphans.counter); ++pass)
        data_environment().connection.Execute(u"delete from stat_rounds where date=" +
                                              quoted(orphans.keys[plain(orphans.counter)]));
}

}  // namespace

void remove_orphan_shots(const std::function<void(const QString&)>& show)
{
    Recordset& rounds = data_environment().rsgames;
    Recordset& shots = data_environment().rsStat_rounds;
    open_rounds_and_shots(rounds, shots);
    const orphan_keys orphans = delete_orphans(rounds, shots, show);
    show(QString::number(plain(orphans.counter)));
    rounds.Close();
    shots.Close();
    delete_again(orphans);
}

}  // namespace verdane
