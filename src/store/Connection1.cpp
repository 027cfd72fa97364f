#include "store/Connection1.h"

#include "store/engines/engine.h"
#include "store/engines/engine_choice.h"
#include "store/engines/registered_source.h"
#include "store/fresh_store.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QStandardPaths>
#include <QUuid>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// The value of `Data Source` in the connection string.
QString data_source()
{
    const QString key = u"Data Source="_s;
    const QString text = Connection1::connection_string();
    const qsizetype start = text.indexOf(key) + key.size();
    return text.sliced(start, text.indexOf(u';', start) - start);
}

}  // namespace

Connection1::Connection1()
    : name_(QUuid::createUuid().toString(QUuid::WithoutBraces)), waiting_(std::make_unique<lock_wait>())
{
}

Connection1::~Connection1()
{
    Close();
}

QString Connection1::connection_string()
{
    return u"Provider=MSDASQL.1;Persist Security Info=False;Data Source=Verdbase;Mode=ReadWrite;"_s;
}

QString Connection1::default_path()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + u"/Verdbase.db";
}

void Connection1::Open(const QString& path, soundness_check check)
{
    Open(store_location::file(path), check);
}

void Connection1::Open(const store_location& store, soundness_check check)
{
    open_engine(store, check, [this] {
        create_tables(*engine_, [this](const QString& statement) { Execute(statement); });
    });
}

bool Connection1::OpenExisting(const store_location& store, soundness_check check)
{
    return open_engine(store, check, [this] { abandon(); });
}

bool Connection1::open_engine(const store_location& store, soundness_check check,
                              const std::function<void()>& without_tables)
{
    if (is_open())
        throw run_time_failure(failure_kind::misuse,
                               QString(store.name + u": the connection is open already"));
    location_ = store;
    engine_ = make_engine(name_, store, *waiting_);
    try {
        const bool has_tables = engine_->open(check);
        if (!has_tables)
            without_tables();
        return has_tables;
    } catch (...) {
        abandon();
        throw;
    }
}

void Connection1::check_soundness() const
{
    engine().check_soundness();
}

void Connection1::need_soundness() const
{
    engine().need_soundness();
}

QStringList Connection1::damaged_indexes() const
{
    return engine().damaged_indexes();
}

void Connection1::rebuild_indexes() const
{
    engine().rebuild_indexes();
}

void Connection1::Close()
{
    if (engine_ == nullptr)
        return;
    engine_->close();
    engine_.reset();
}

void Connection1::abandon()
{
    if (engine_ == nullptr)
        return;
    engine_->abandon();
    engine_.reset();
}

bool Connection1::is_open() const
{
    return engine_ != nullptr && engine_->is_open();
}

void Connection1::Execute(const QString& statement)
{
    if (!is_open())
        throw run_time_failure(failure_kind::misuse, QString(statement + u": the connection is closed"));
    need_soundness();
    const lock_wait::limit wait(*waiting_, lock_wait::default_time_out_s);
    count_statement();
    QSqlQuery query(database());
    if (!query.exec(engine_->as_sent(statement)))
        throw engine_->failure(query.lastError(), statement);
}

QString Connection1::identity_script() const
{
    return engine().identity_script();
}

QSqlDatabase Connection1::database() const
{
    return QSqlDatabase::database(name_, false);
}

store_engine& Connection1::engine() const
{
    if (engine_ == nullptr)
        throw run_time_failure(failure_kind::misuse, QString(location_.name + u": the connection is closed"));
    return *engine_;
}

store_location default_store()
{
    const QString source = data_source();
    return is_registered_source(source) ? store_location::source(source)
                                        : store_location::file(Connection1::default_path());
}

QString quoted(const QString& text)
{
    QString inside = text;
    inside.replace(u'\'', u"''"_s);
    return u'\'' + inside + u'\'';
}

}  // namespace verdane
