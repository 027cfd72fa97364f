#include "reports/preview/report_wait.h"

#include <QCoreApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

#include "base/language.h"
#include "controls/boxes.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 ms_before_window = 2000;
constexpr qint64 ms_between_events = 30;

}  // namespace

report_wait::report_wait(QString title) : title_(std::move(title))
{
    since_start_.start();
}

report_wait::~report_wait()
{
    if (window_ && window_->parentWidget() != nullptr)
        window_->parentWidget()->activateWindow();
}

bool report_wait::may_continue()
{
    if (is_stopped_ || since_start_.elapsed() < ms_before_window)
        return !is_stopped_;
    if (!window_)
        open();
    if (!since_events_.isValid() || since_events_.elapsed() >= ms_between_events) {
        QCoreApplication::processEvents();
        since_events_.start();
    }
    return !is_stopped_;
}

void report_wait::open()
{
    window_ = std::make_unique<QDialog>(active_window());
    window_->setObjectName(u"report_wait"_s);
    window_->setWindowTitle(title_);
    window_->setWindowModality(Qt::ApplicationModal);
    auto* words = new QLabel(in_language(u"Le rapport demande plus de temps que d'habitude.",
                                         u"The report takes longer than usual."));
    words->setObjectName(u"report_wait_words"_s);
    auto* stop = new QPushButton(in_language(u"&Arrêter", u"&Stop"));
    stop->setObjectName(u"stop_report"_s);
    auto* layout = new QVBoxLayout(window_.get());
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(16);
    layout->addWidget(words);
    layout->addWidget(stop, 0, Qt::AlignRight);
    // Escape and the close box stop the report, too, because they reject the dialog.
    QObject::connect(stop, &QPushButton::clicked, window_.get(), &QDialog::reject);
    QObject::connect(window_.get(), &QDialog::rejected, window_.get(), [this] { is_stopped_ = true; });
    window_->show();
    window_->raise();
    window_->activateWindow();
}

void show_report_stopped(const QString& title, const QString& where)
{
    show_information(in_language(u"Le rapport a été arrêté. Vos données sont intactes.",
                                 u"The report was stopped. Your data are intact.") +
                         u"\n\n"_s + where,
                     QMessageBox::Information, title);
}

}  // namespace verdane
