#include "reports/preview/report_preview.h"

#include <QAction>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPrinter>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "base/failure_words.h"
#include "base/run_time_failure.h"
#include "controls/boxes.h"
#include "controls/screen_limits.h"
#include "controls/shortcuts.h"
#include "reports/preview/page_view.h"
#include "reports/preview/report_dialogs.h"
#include "reports/report_document.h"

namespace verdane {

using namespace Qt::StringLiterals;

report_preview::report_preview(std::shared_ptr<const report_document> document, const QString& title,
                               QWidget* owner)
    : QWidget(owner, Qt::Window),
      document_(std::move(document)),
      is_french_(is_french),
      is_rest_shown_(document_->is_complete()),
      shortcuts_(new window_shortcuts(*this, is_french_))
{
    setObjectName(u"report_preview"_s);
    setWindowTitle(title);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::NonModal);
    build();
    constexpr double share_of_screen = 0.9;
    resize(QSize(1200, 880).boundedTo(largest_size_on_screen(*this) * share_of_screen));
    pages_->setFocus();
}

void report_preview::build()
{
    pages_ = new page_view(document_, this);
    pages_->setAccessibleName(u"Pages"_s);
    connect(pages_, &page_view::changed, this, &report_preview::show_state);
    // Queued: the first page is on the screen before the others are laid out.
    connect(pages_, &page_view::painted, this, &report_preview::lay_out_rest, Qt::QueuedConnection);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(tool_bar());
    layout->addWidget(pages_, 1);
    shortcuts_->add(shortcut_table::close_preview, [this] { close(); });
    show_state();
}

QToolBar* report_preview::tool_bar()
{
    auto* bar = new QToolBar(this);
    zoom_label_ = new QLabel(bar);
    zoom_label_->setObjectName(u"zoom_percent"_s);
    page_label_ = new QLabel(bar);
    page_label_->setObjectName(u"page_of_pages"_s);
    for (QLabel* label : {zoom_label_, page_label_})
        label->setContentsMargins(8, 0, 8, 0);
    for (const command& what : output_commands())
        bar->addWidget(button_for(what));
    bar->addSeparator();
    for (const command& what : zoom_commands())
        bar->addWidget(button_for(what));
    bar->addWidget(zoom_label_);
    bar->addSeparator();
    const std::vector<command> turning = page_commands();
    bar->addWidget(button_for(turning.front()));
    bar->addWidget(page_label_);
    bar->addWidget(button_for(turning.back()));
    return bar;
}

QToolButton* report_preview::button_for(const command& what)
{
    const QString caption = in_own(what.shown.caption);
    auto* action = new QAction(what.sign.isEmpty() ? caption : what.sign, this);
    action->setToolTip(caption);
    if (what.shown.keys != no_keys) {
        action->setShortcut(what.shown.keys);
        action->setToolTip(tool_tip_of(what.shown, is_french_));
        shortcuts_->mention(what.shown);
    }
    connect(action, &QAction::triggered, this, what.run);
    addAction(action);
    auto* button = new QToolButton(this);
    button->setObjectName(what.name);
    button->setAccessibleName(caption);
    button->setDefaultAction(action);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

std::vector<report_preview::command> report_preview::output_commands()
{
    return {
        {u"print"_s, shortcut_table::print, {}, [this] { print(); }},
        {u"save_pdf"_s, shortcut_table::save_pdf, {}, [this] { save_pdf(); }},
        {u"save_csv"_s, {no_keys, {u"Chiffres (CSV)…", u"Figures (CSV)…"}}, {}, [this] { save_csv(); }},
        {u"save_picture"_s, {no_keys, {u"Image…", u"Picture…"}}, {}, [this] { save_picture(); }},
    };
}

std::vector<report_preview::command> report_preview::zoom_commands()
{
    return {
        {u"zoom_out"_s, shortcut_table::zoom_out, u"−"_s, [this] { pages_->zoom_out(); }},
        {u"zoom_in"_s, shortcut_table::zoom_in, u"+"_s, [this] { pages_->zoom_in(); }},
        {u"fit_width"_s, shortcut_table::fit_width, {}, [this] { pages_->fit_width(); }},
    };
}

std::vector<report_preview::command> report_preview::page_commands()
{
    return {
        {u"previous_page"_s, shortcut_table::previous_page, u"◀"_s,
         [this] { turn(&page_view::previous_page); }},
        {u"next_page"_s, shortcut_table::next_page, u"▶"_s, [this] { turn(&page_view::next_page); }},
    };
}

void report_preview::show_state()
{
    if (page_label_ == nullptr)
        return;
    page_label_->setText(
        in_own({u"Page %1 de %2", u"Page %1 of %2"})
            .arg(pages_->current_page() + 1)
            .arg(document_->is_complete() ? QString::number(document_->pages_so_far()) : u"…"_s));
    zoom_label_->setText(u"%1 %"_s.arg(pages_->zoom()));
}

void report_preview::lay_out_rest()
{
    // The event may arrive after the preview was closed.
    if (is_rest_shown_ || !isVisible())
        return;
    is_rest_shown_ = true;
    guarded([this] { document_->complete(); });
    pages_->show_added_pages();
}

void report_preview::turn(void (page_view::*to_page)())
{
    lay_out_rest();
    (pages_->*to_page)();
}

void report_preview::print()
{
    guarded([this] {
        QPrinter printer(QPrinter::HighResolution);
        printer.setDocName(document_->title());
        const QSizeF page = document_->page_size_mm();
        printer.setPageOrientation(page.width() > page.height() ? QPageLayout::Landscape
                                                                : QPageLayout::Portrait);
        const auto document = document_;
        if (dialogs_of_reports().choose_printer(this, printer, document->page_count()))
            document->print(printer);
    });
}

void report_preview::save_pdf()
{
    save({u"Enregistrer en PDF", u"Save as PDF"}, {u"Document PDF", u"PDF document"}, u"pdf"_s,
         [this](const QString& path) { document_->save_pdf(path); });
}

void report_preview::save_csv()
{
    save({u"Enregistrer les chiffres", u"Save the figures"},
         {u"Chiffres pour un tableur", u"Figures for a spreadsheet"}, u"csv"_s,
         [this](const QString& path) { document_->save_csv(path); });
}

void report_preview::save_picture()
{
    save({u"Enregistrer la page comme image", u"Save the page as a picture"}, {u"Image", u"Picture"},
         u"png"_s, [this](const QString& path) { document_->save_picture(path, pages_->current_page()); });
}

void report_preview::save(const text_pair& caption, const text_pair& kind, const QString& ending,
                          const std::function<void(const QString&)>& write)
{
    guarded([&] {
        const QString proposed = document_->base_name() + u'.' + ending;
        const QPointer<report_preview> still_there(this);
        const QString path =
            dialogs_of_reports().choose_file(this, {in_own(caption), proposed, in_own(kind), ending});
        if (!path.isEmpty() && still_there)
            write(path);
    });
}

void report_preview::guarded(const std::function<void()>& act)
{
    const QPointer<report_preview> still_there(this);
    try {
        act();
    } catch (const run_time_failure& failure) {
        if (!still_there)
            return;
        QMessageBox* box = failure_box(failure, in_own(failure_words(failure.kind())), this).release();
        box->setWindowTitle(windowTitle());
        box->setObjectName(u"message_box"_s);
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->open();
    }
}

}  // namespace verdane
