#include <QRandomGenerator>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTest>

#include <algorithm>
#include <map>

#include "store/store_files.h"
#include "tests/store/store_fixture.h"
#include "tests/support/failures.h"
#include "tests/support/full_diary.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::bytes_of;
using testing::failure_of;
using testing::reader;

namespace {

constexpr int page_size = 4096;
constexpr int size_of_header = 100;
constexpr int rounds = 6;
constexpr int flips_of_file = 200;
constexpr int flips_of_each_index = 40;

/// The content of a file: the rows of all tables, and the results of look-ups by the indexes.
struct content {
    QStringList rows;
    QStringList by_index;
    QStringList by_scan;

    bool operator==(const content&) const = default;
};

/// Reads a file on one connection, which takes much less time than a connection for each statement.
class one_connection {
public:
    explicit one_connection(const QString& path)
        : database_(QSqlDatabase::addDatabase(u"QSQLITE"_s, u"content"_s))
    {
        database_.setDatabaseName(path);
        if (!database_.open())
            qFatal("cannot open %s", qUtf8Printable(path));
    }
    ~one_connection()
    {
        database_ = QSqlDatabase();
        QSqlDatabase::removeDatabase(u"content"_s);
    }
    one_connection(const one_connection&) = delete;
    one_connection& operator=(const one_connection&) = delete;

    /// Each row as one text.
    QStringList rows(const QString& statement) const
    {
        QSqlQuery query(database_);
        query.setForwardOnly(true);
        if (!query.exec(statement))
            qFatal("%s: %s", qUtf8Printable(statement), qUtf8Printable(query.lastError().text()));
        const int columns = query.record().count();
        QStringList texts;
        while (query.next()) {
            QString& text = texts.emplace_back();
            for (int i = 0; i < columns; ++i)
                text += (query.isNull(i) ? u"null"_s : query.value(i).toString()) + u'|';
        }
        return texts;
    }

private:
    QSqlDatabase database_;
};

QString keys_of_rounds()
{
    QStringList keys;
    for (int round = 0; round < rounds; ++round)
        keys << u"('" + testing::key_in_diary(round) + u"')";
    return u"with keys(k) as (values " + keys.join(u", ") +
           u"), holes(h) as (select 1 union all select h + 1 "
           u"from holes where h < 18) ";
}

/// The rows that the round window and the statistics look up for every key of the diary, with or without
/// indexes.
QStringList lookups(const one_connection& store, bool indexed)
{
    const auto way = [indexed](const QString& index) {
        return indexed ? QString(u"indexed by " + index) : u"not indexed"_s;
    };
    QStringList found = store.rows(
        keys_of_rounds() + u"select k, h, (select group_concat(shot || ':' || after || ':' || rowid) from "
                           u"(select shot, after, rowid from Stat_rounds %1 where date = k and hole = h "
                           u"order by shot, rowid)) from keys, holes"_s.arg(way(u"shots_by_hole"_s)));
    for (const QString& table : {u"games"_s, u"games2"_s, u"cost"_s})
        found += store.rows(keys_of_rounds() + u"select k, (select group_concat(rowid) from %1 %2 where "
                                               u"date = k) from keys"_s.arg(table, way(table + u"_by_date")));
    return found;
}

content content_of(const QString& path)
{
    const one_connection store(path);
    content all;
    for (const QString& name : store.rows(u"select name from sqlite_master where type = 'table'"_s))
        all.rows +=
            store.rows(u"select '%1', rowid, * from `%1` not indexed order by rowid"_s.arg(name.chopped(1)));
    all.by_index = lookups(store, true);
    all.by_scan = lookups(store, false);
    return all;
}

/// Replaces the file of a store and removes the engine's other files.
void put(const QString& path, const QByteArray& bytes)
{
    for (const QStringView suffix : {u"-wal", u"-shm"})
        QFile::remove(path + suffix);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
        qFatal("cannot write the file");
}

/// The bits of some bytes of a file, by their position from its start.
std::vector<qint64> random_bits(QRandomGenerator& random, qint64 first_byte, qint64 bytes, int count)
{
    std::vector<qint64> bits;
    for (int i = 0; i < count; ++i)
        bits.push_back(first_byte * 8 + static_cast<qint64>(random.bounded(static_cast<quint32>(bytes * 8))));
    return bits;
}

QByteArray flipped(QByteArray bytes, qint64 bit)
{
    const auto at = static_cast<qsizetype>(bit / 8);
    bytes[at] = static_cast<char>(bytes[at] ^ (1 << (bit % 8)));
    return bytes;
}

int rows_that_differ(const QStringList& some, const QStringList& others)
{
    if (some.size() != others.size())
        return static_cast<int>(std::max(some.size(), others.size()));
    int count = 0;
    for (qsizetype i = 0; i < some.size(); ++i)
        count += some[i] != others[i] ? 1 : 0;
    return count;
}

}  // namespace

/// Files with one wrong bit or a missing end.
class test_file_damage : public QObject {
    Q_OBJECT

private:
    QTemporaryDir folder_;
    QString path_ = folder_.filePath(u"Verdbase.db"_s);
    QByteArray sound_bytes_;
    content sound_;
    /// The name of the table or index that a page belongs to; pages count from 1.
    std::map<int, QString> owners_;

private Q_SLOTS:
    void initTestCase()
    {
        testing::create_diary(path_, rounds, true);
        const reader store(path_);
        store.write(u"pragma wal_checkpoint(truncate)"_s);
        for (const auto& page : store.rows(u"select pageno, name from dbstat"_s))
            owners_[page[0].toInt()] = page[1].toString();
        sound_bytes_ = bytes_of(path_);
        sound_ = content_of(path_);
        QCOMPARE(sound_.by_index, sound_.by_scan);
        QCOMPARE(sound_bytes_.size() % page_size, 0);
    }

    /// A wrong bit in an index, in the list of tables or between the rows never reaches a window. A wrong bit
    /// inside a value of a row is another valid value: only that row differs, and every index agrees with it.
    void a_flipped_bit_is_refused_or_changes_no_lookup_data()
    {
        QTest::addColumn<QString>("index");
        QTest::newRow("anywhere in the file") << QString();
        for (const char* index : {"shots_by_hole", "games_by_date", "games2_by_date", "cost_by_date"})
            QTest::newRow(index) << QString::fromLatin1(index);
    }

    void a_flipped_bit_is_refused_or_changes_no_lookup()
    {
        QFETCH(QString, index);
        int refused = 0;
        for (const qint64 bit : bits_to_flip(index)) {
            put(path_, flipped(sound_bytes_, bit));
            refused += look_at(bit) ? 1 : 0;
            if (QTest::currentTestFailed())
                return;
        }
        QVERIFY2(refused > 0, "no file was refused");
    }

    void a_file_without_its_end_is_refused_and_unchanged()
    {
        std::vector<qsizetype> missing;
        for (int pages = 1; pages <= 12; ++pages)
            missing.push_back(pages * page_size);
        for (const int bytes : {4097, 8191, 9000})
            missing.push_back(bytes);
        for (const qsizetype bytes : missing) {
            put(path_, sound_bytes_.chopped(bytes));
            QVERIFY2(is_refused(), qPrintable(u"%1 bytes missing"_s.arg(bytes)));
        }
    }

    void a_file_without_any_number_of_bytes_of_its_last_page_is_refused()
    {
        put(path_, sound_bytes_);
        QFile file(path_);
        for (int missing = 1; missing < page_size; ++missing) {
            const qint64 size = sound_bytes_.size() - missing;
            QVERIFY(file.resize(size));
            QVERIFY2(failure_of([&] { check_store_files(path_); }) == failure_kind::store_damaged,
                     qPrintable(u"%1 bytes missing"_s.arg(missing)));
            QCOMPARE(QFileInfo(path_).size(), size);
        }
        QCOMPARE(bytes_of(path_), sound_bytes_.chopped(page_size - 1));
    }

    /// Before the check the start may have read rows, but it has not written any.
    void a_damaged_file_that_is_checked_later_is_not_written_data()
    {
        using write = std::function<void(Connection1&)>;
        QTest::addColumn<write>("write");
        QTest::newRow("a changed row") << write([](Connection1& connection) {
            Recordset partners(connection, {u"rstest"_s, testing::all_partners});
            partners.Open();
            partners.Fields(u"name").set(u"changed"_s);
            partners.Update();
        });
        QTest::newRow("a new row") << write([](Connection1& connection) {
            Recordset partners(connection, {u"rstest"_s, testing::all_partners});
            partners.Open();
            partners.AddNew();
            partners.Fields(u"name").set(u"new"_s);
            partners.Update();
        });
        QTest::newRow("a removed row") << write([](Connection1& connection) {
            Recordset partners(connection, {u"rstest"_s, testing::all_partners});
            partners.Open();
            partners.Delete();
        });
        QTest::newRow("a statement") << write(
            [](Connection1& connection) { connection.Execute(u"delete from partners"_s); });
    }

    void a_damaged_file_that_is_checked_later_is_not_written()
    {
        QFETCH(std::function<void(Connection1&)>, write);
        const QByteArray damaged = flipped(sound_bytes_, bit_of_shot_in_index());
        put(path_, damaged);
        Connection1 connection;
        connection.Open(path_, soundness_check::later);
        QVERIFY(failure_of([&] { write(connection); }) == failure_kind::store_damaged);
        connection.Close();
        QCOMPARE(bytes_of(path_), damaged);
    }

    /// Copies restored by other programs have such a mode.
    void a_damaged_file_in_another_journal_mode_is_refused_while_it_is_opened()
    {
        put(path_, sound_bytes_);
        reader(path_).text(u"pragma journal_mode=delete"_s);
        const QByteArray damaged = flipped(bytes_of(path_), bit_of_shot_in_index());
        put(path_, damaged);
        Connection1 connection;
        QVERIFY(failure_of([&] { connection.Open(path_, soundness_check::later); }) ==
                failure_kind::store_damaged);
        QCOMPARE(bytes_of(path_), damaged);
    }

    /// The files after a crash that interrupted the copying of the log into the file. The log has every page.
    void a_file_that_its_log_repairs_is_opened_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("first page only") << sound_bytes_.left(page_size);
        QTest::newRow("a page and a half") << sound_bytes_.left(page_size + page_size / 2);
        QTest::newRow("last page not complete") << sound_bytes_.chopped(1);
        QTest::newRow("half a header") << sound_bytes_.left(50);
        QTest::newRow("first page not written") << QByteArray(page_size, '\0') + sound_bytes_.mid(page_size);
        QTest::newRow("first page half written")
            << QByteArray(page_size / 2, '\0') + sound_bytes_.mid(page_size / 2);
    }

    void a_file_that_its_log_repairs_is_opened()
    {
        QFETCH(QByteArray, file);
        const QByteArray log = log_of_all_pages();
        for (const soundness_check check : {soundness_check::later, soundness_check::while_opening}) {
            put(path_, file);
            put_log(log);
            Connection1 connection;
            connection.Open(path_, check);
            connection.need_soundness();
            QVERIFY(content_of(path_) == sound_);
        }
    }

    void a_flipped_bit_in_the_header_of_a_file_with_a_log_is_refused_or_changes_nothing()
    {
        const QByteArray log = log_of_settings();
        put(path_, sound_bytes_);
        put_log(log);
        const content sound = content_of(path_);
        for (int byte = 0; byte < size_of_header; ++byte) {
            const QByteArray damaged = flipped(sound_bytes_, byte * 8 + byte % 8);
            put(path_, damaged);
            put_log(log);
            bool refused = false;
            {
                Connection1 connection;
                refused = failure_of([&] { connection.Open(path_); }).has_value();
            }
            const QByteArray place = QByteArray::number(byte);
            if (refused)
                QVERIFY2(bytes_of(path_) == damaged && bytes_of(path_ + u"-wal") == log, place);
            else
                QVERIFY2(content_of(path_) == sound, place);
        }
    }

    void a_damaged_file_with_a_log_is_refused_and_both_are_unchanged()
    {
        const QByteArray log = log_of_settings();
        const QByteArray damaged = flipped(sound_bytes_, bit_of_shot_in_index());
        put(path_, damaged);
        put_log(log);
        QVERIFY(is_refused());
        QCOMPARE(bytes_of(path_ + u"-wal"), log);
    }

private:
    std::vector<qint64> bits_to_flip(const QString& index) const
    {
        QRandomGenerator random(20260614);
        if (index.isEmpty())
            return random_bits(random, 0, sound_bytes_.size(), flips_of_file);
        std::vector<qint64> bits;
        int pages = 0;
        for (const auto& [page, owner] : owners_)
            pages += owner == index ? 1 : 0;
        for (const auto& [page, owner] : owners_) {
            if (owner != index)
                continue;
            const auto some = random_bits(random, qint64(page - 1) * page_size, page_size,
                                          (flips_of_each_index + pages - 1) / pages);
            bits.insert(bits.end(), some.begin(), some.end());
        }
        return bits;
    }

    bool is_in_a_table(qint64 bit) const
    {
        const auto owner = owners_.find(static_cast<int>(bit / 8 / page_size) + 1);
        return owner != owners_.end() && !owner->second.endsWith(u"_by_date") &&
               owner->second != u"shots_by_hole" && owner->second != u"sqlite_schema";
    }

    /// Opens the file with the wrong bit. True if it was refused as damaged.
    bool look_at(qint64 bit)
    {
        const QByteArray place = u"bit %1 of byte %2 (%3)"_s.arg(bit % 8)
                                     .arg(bit / 8)
                                     .arg(owners_[static_cast<int>(bit / 8 / page_size) + 1])
                                     .toUtf8();
        if (is_refused())
            return true;
        const content now = content_of(path_);
        if (!is_in_a_table(bit)) {
            check(now == sound_, place + " changes what is read");
            return false;
        }
        check(now.by_index == now.by_scan, place + " makes an index differ from its table");
        check(rows_that_differ(now.rows, sound_.rows) <= 1, place + " changes several rows");
        return false;
    }

    static void check(bool holds, const QByteArray& words) { QVERIFY2(holds, words.constData()); }

    /// True if the file is refused as damaged and unchanged.
    bool is_refused() const
    {
        const QByteArray before = bytes_of(path_);
        Connection1 connection;
        const auto failure = failure_of([&] { connection.Open(path_); });
        connection.Close();
        return failure == failure_kind::store_damaged && bytes_of(path_) == before;
    }

    /// A bit of the key of a round in the index of the shots.
    qint64 bit_of_shot_in_index() const
    {
        const auto page = std::find_if(owners_.begin(), owners_.end(), [this](const auto& entry) {
            return entry.second == u"shots_by_hole" && key_in_page(entry.first) >= 0;
        });
        return key_in_page(page->first) * 8;
    }

    qint64 key_in_page(int page) const
    {
        const qint64 start = qint64(page - 1) * page_size;
        const qint64 found = sound_bytes_.indexOf(testing::key_in_diary(1).toLatin1(), start);
        return found >= 0 && found < start + page_size ? found : -1;
    }

    /// The log of a sound file in which `statements` were run.
    QByteArray log_after(const QStringList& statements) const
    {
        put(path_, sound_bytes_);
        QByteArray log;
        {
            Connection1 connection;
            connection.Open(path_);
            for (const QString& statement : statements)
                connection.Execute(statement);
            log = bytes_of(path_ + u"-wal");
        }
        if (log.isEmpty())
            qFatal("the store has no log");
        return log;
    }

    QByteArray log_of_settings() const { return log_after({u"update settings set language = 1"_s}); }

    QByteArray log_of_all_pages() const { return log_after({u"vacuum"_s}); }

    void put_log(const QByteArray& bytes) const
    {
        QFile file(path_ + u"-wal");
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
};

QTEST_GUILESS_MAIN(test_file_damage)
#include "test_file_damage.moc"
