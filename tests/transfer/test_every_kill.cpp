#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <map>
#include <memory>

#include "tests/transfer/every_command.h"
#include "tests/transfer/killed_run.h"
#include "tests/transfer/stored_files.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// Changes with every file of a folder that is not in a folder for what is not complete. The index of the log
/// is left out, which the engine makes anew after a kill.
QByteArray state_of(const QString& folder)
{
    QCryptographicHash state(QCryptographicHash::Md5);
    for (const QString& name : names_below(folder)) {
        if (name.contains(u"unfinished-") || name.endsWith(u"-shm") || name.endsWith(u".lock"))
            continue;
        state.addData(name.toUtf8());
        state.addData(content_of(folder + u'/' + name));
    }
    return state.result();
}

/// The copies that a command has made in the folder `copies`, which are complete.
QStringList kept_in(const QString& folder)
{
    const QDir copies(folder + u"/copies");
    QStringList paths;
    for (const QString& name : copies.entryList({u"*.db"_s}, QDir::Files))
        paths << copies.filePath(name);
    return paths;
}

/// What a kill at some writes has left.
struct left_folder {
    QTemporaryDir folder;
    int number = 0;
};

/// Runs a command once, and looks at its folder before each write.
class killed_command {
public:
    explicit killed_command(const tested_command& command)
        : command_(command), whole_(command, small_diary()), before_(content_of_files(command, whole_.path()))
    {
        if (store_run(whole_.arguments()).run() != status(exit_status::done))
            qFatal("%s fails", qPrintable(command.name));
        after_ = content_of_files(command, whole_.path());
    }

    /// The first fault; empty if there is none.
    QString fault_of_kills()
    {
        const command_folder folder(command_, small_diary());
        QByteArray last;
        int number = 0;
        run_by_writes(folder.arguments(), [&] {
            ++number;
            const QByteArray state = state_of(folder.path());
            if (fault_.isEmpty() && state != last)
                look_at(folder.path(), number);
            last = state;
            keep(folder.path(), number);
        });
        if (fault_.isEmpty() && changed_ != number_of_changed())
            return u"no look at the last change"_s;
        return number > 10 ? fault_ : u"too few writes"_s;
    }

    QString fault_of_repetitions()
    {
        for (const auto& [kind, left] : left_) {
            const QString fault = fault_of_repetition(left->folder.path());
            if (!fault.isEmpty())
                return u"%1: after write %2: %3"_s.arg(kind, QString::number(left->number), fault);
        }
        return {};
    }

private:
    int number_of_changed() const
    {
        return static_cast<int>(
            std::count_if(command_.files.begin(), command_.files.end(),
                          [&](const QString& name) { return before_.at(name) != after_.at(name); }));
    }

    /// The number of changed files that have their new content, if they are the first of the changed ones.
    std::optional<int> changed_in(const folder_content& content) const
    {
        int changed = 0;
        bool is_old = false;
        for (const QString& name : command_.files) {
            const QStringList& found = content.at(name);
            if (before_.at(name) == after_.at(name) ? found != before_.at(name)
                                                    : found != before_.at(name) && found != after_.at(name))
                return std::nullopt;
            if (before_.at(name) == after_.at(name))
                continue;
            const bool is_new = found == after_.at(name);
            if (is_new && is_old)
                return std::nullopt;
            is_old = !is_new;
            changed += is_new ? 1 : 0;
        }
        return changed;
    }

    void look_at(const QString& folder, int number)
    {
        const QTemporaryDir copy;
        const QString path = copy.filePath(u"copy"_s);
        copy_folder(folder, path);
        const auto changed = changed_in(content_of_files(command_, path));
        for (const QString& kept : kept_in(path)) {
            if (content_at(kept) != before_.at(u"Verdbase.db"_s))
                fault_ = u"write %1: %2 is incomplete"_s.arg(QString::number(number), kept);
        }
        if (!changed)
            fault_ = u"write %1: neither the old content nor the new one"_s.arg(number);
        else
            changed_ = *changed;
    }

    /// Keeps the first folder of each kind.
    void keep(const QString& folder, int number)
    {
        static const QRegularExpression random(u"unfinished-[A-Za-z0-9]{6}"_s);
        const QString kind = QString::number(changed_) + u' ' +
                             names_below(folder).join(u' ').replace(random, u"unfinished"_s);
        auto& left = left_[kind];
        if (left != nullptr)
            return;
        left = std::make_unique<left_folder>();
        left->number = number;
        left->folder.remove();
        copy_folder(folder, left->folder.path());
    }

    QString fault_of_repetition(const QString& folder) const
    {
        store_run run(command_.arguments(folder));
        const auto ended = run.run();
        if (ended != status(exit_status::done) && ended != status(command_.again))
            return u"status %1, %2"_s.arg(QString::number(ended.value_or(-1)), run.errors());
        const QStringList unfinished = names_below(folder).filter(u"unfinished"_s);
        if (!unfinished.isEmpty())
            return unfinished.join(u", "_s) + u" is left";
        return content_of_files(command_, folder) == after_ ? QString() : u"another content"_s;
    }

    const tested_command& command_;
    const command_folder whole_;
    folder_content before_;
    folder_content after_;
    QString fault_;
    /// The number of changed files that have their new content.
    int changed_ = 0;
    std::map<QString, std::unique_ptr<left_folder>> left_;
};

}  // namespace

/// Each command of `verdane-store`, killed at each of its writes.
class test_every_kill : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_kill_at_any_write_leaves_each_file_whole_and_the_command_can_be_repeated_data()
    {
        QTest::addColumn<int>("index");
        for (std::size_t i = 0; i < every_command().size(); ++i)
            QTest::newRow(qPrintable(every_command()[i].name)) << static_cast<int>(i);
    }

    void a_kill_at_any_write_leaves_each_file_whole_and_the_command_can_be_repeated()
    {
        QFETCH(int, index);
        killed_command killed(every_command()[static_cast<std::size_t>(index)]);
        QCOMPARE(killed.fault_of_kills(), QString());
        QCOMPARE(killed.fault_of_repetitions(), QString());
    }
};

QTEST_GUILESS_MAIN(test_every_kill)
#include "test_every_kill.moc"
