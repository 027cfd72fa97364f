#include "shell/daily_copy.h"

#include <exception>

namespace verdane {

daily_copy::~daily_copy()
{
    if (thread_)
        thread_->wait();
}

void daily_copy::start(const store_location& store, failure_report report)
{
    if (store.where != store_location::place::file || thread_)
        return;
    receiver_ = std::make_unique<QObject>();
    const auto pass_on = [receiver = receiver_.get(),
                          report = std::move(report)](const run_time_failure& failure) {
        QMetaObject::invokeMethod(
            receiver, [failure, report] { report(failure); }, Qt::QueuedConnection);
    };
    // An exception that left the thread would end the program.
    thread_.reset(QThread::create([write = write_, path = store.name, day = QDate::currentDate(), pass_on] {
        try {
            write(path, day);
        } catch (const run_time_failure& failure) {
            pass_on(failure);
        } catch (const std::exception& failure) {
            pass_on({failure_kind::store_other, QString::fromUtf8(failure.what())});
        }
    }));
    thread_->start();
}

text_pair copy_failure_words(failure_kind kind)
{
    switch (kind) {
    case failure_kind::store_full:
        return {
            u"La copie du jour n'a pas été faite : il n'y a plus de place sur le disque. Votre journal est "
            u"intact.",
            u"Today's copy was not made: there is no room left on the disk. Your diary is intact."};
    case failure_kind::store_read_only:
        return {
            u"La copie du jour n'a pas été faite : Verdane n'a pas le droit d'écrire dans le dossier des "
            u"copies. Votre journal est intact.",
            u"Today's copy was not made: Verdane may not write to the folder of the copies. Your diary is "
            u"intact."};
    default:
        return {
            u"La copie du jour n'a pas été faite : son fichier n'a pas pu être écrit et relu. Votre journal "
            u"est intact.",
            u"Today's copy was not made: its file could not be written and read back. Your diary is intact."};
    }
}

}  // namespace verdane
