#include "controls/lock_box.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include "base/program.h"
#include "controls/boxes.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int paint_ms = 50;

class lock_box final : public lock_notice {
public:
    lock_box();
    ~lock_box() override;

    bool keep_waiting() override;

private:
    QPointer<QWidget> owner_;
    QMessageBox box_;
    bool gave_up_ = false;
};

lock_box::lock_box()
    : owner_(active_window()),
      box_(QMessageBox::Information, default_title(),
           in_known_language(
               {u"Le journal est utilisé par un autre programme. Verdane attend qu'il soit libre.",
                u"The diary is in use by another program. Verdane waits until it is free."}),
           QMessageBox::NoButton, owner_)
{
    box_.setObjectName(u"lock_box"_s);
    box_.setTextFormat(Qt::PlainText);
    box_.setInformativeText(
        in_known_language({u"Si vous abandonnez, Verdane s'arrête. Ce qui était enregistré est intact.",
                           u"If you give up, Verdane stops. What was saved is intact."}));
    QPushButton* give_up =
        box_.addButton(in_known_language({u"Abandonner", u"Give Up"}, u" / "), QMessageBox::RejectRole);
    give_up->setObjectName(u"give_up"_s);
    give_up->setAutoDefault(false);
    box_.setEscapeButton(give_up);
    QObject::connect(&box_, &QMessageBox::rejected, &box_, [this] { gave_up_ = true; });
    QObject::connect(give_up, &QPushButton::clicked, &box_, [this] { gave_up_ = true; });
    box_.setWindowModality(Qt::ApplicationModal);
    box_.setFocusPolicy(Qt::StrongFocus);
    box_.setFocus();
    box_.show();
}

lock_box::~lock_box()
{
    box_.hide();
    // Some platforms do not activate the window below.
    if (owner_)
        owner_->activateWindow();
}

bool lock_box::keep_waiting()
{
    QApplication::processEvents(QEventLoop::AllEvents, paint_ms);
    return !gave_up_;
}

}  // namespace

std::unique_ptr<lock_notice> make_lock_box()
{
    return std::make_unique<lock_box>();
}

}  // namespace verdane
