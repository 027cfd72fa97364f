#include "shell/f_about.h"

#include <QDir>
#include <QFileInfo>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QSvgWidget>
#include <QVBoxLayout>

#include <algorithm>

#include "base/program.h"
#include "controls/boxes.h"
#include "controls/control_array.h"
#include "controls/events.h"
#include "controls/look.h"
#include "controls/main_frame.h"
#include "controls/scrolled_content.h"
#include "store/DataEnvironment1.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int emblem_pixels = 80;
constexpr int text_pixels = 320;
/// A longer path is scrolled in its box.
constexpr int most_path_pixels = 640;

QLabel* make_text(const QString& text, double size = 1.0)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(text_pixels);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * size);
    font.setBold(size > 1.0);
    label->setFont(font);
    return label;
}

QFrame* make_line()
{
    auto* line = new QFrame;
    line->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    return line;
}

QString text_of_store(const Form& window)
{
    const store_location& where = data_environment().connection.location();
    if (where.where == store_location::place::source)
        return window.caption(u"Source de données ODBC ", u"ODBC data source ") + where.name;
    return QDir::toNativeSeparators(where.name);
}

/// The path of the file or the name of the source, in a box so that it can be copied.
QLineEdit* make_store_box(const Form& window)
{
    auto* box = named(new QLineEdit(text_of_store(window)), u"store");
    box->setReadOnly(true);
    box->setCursorPosition(0);
    const int wanted = box->fontMetrics().horizontalAdvance(box->text()) + 3 * rhythm;
    box->setMinimumWidth(std::min(wanted, most_path_pixels));
    return box;
}

#ifdef Q_OS_WIN
QString registry_value(const QString& key, const QString& value)
{
    const QSettings registry(u"HKEY_LOCAL_MACHINE\\"_s + key, QSettings::NativeFormat);
    return registry.value(value).toString();
}
#else
QString registry_value(const QString&, const QString&)
{
    return {};
}
#endif

}  // namespace

f_about::f_about() : Form(u"f_about"), ok_(named(make_button(u"OK"_s), u"cmdOK"))
{
    setWindowTitle(caption(u"À propos de VERDANE", u"About VERDANE"));
    lay_out();
    on_click(*ok_, [this] { unload(); });
}

QLayout* f_about::make_texts()
{
    const auto text = [](QStringView name, const QString& words, double size = 1.0) {
        return named(make_text(words, size), name);
    };
    control_array<QFrame> lines(u"Line1");
    auto* texts = new QVBoxLayout;
    texts->setSpacing(rhythm);
    texts->addWidget(text(u"lblTitle", caption(u"VERDANE pour PC", u"VERDANE for PC"), 1.6));
    texts->addWidget(text(u"lblVersion", QString(u"Version " + program_version())));
    texts->addWidget(lines.add(0, make_line()));
    texts->addWidget(
        text(u"lblDescription", caption(u"Le journal et les statistiques de vos rondes de golf.",
                                        u"The diary and the statistics of your rounds of golf.")));
    QLineEdit* store = make_store_box(*this);
    texts->addWidget(named(make_label(caption(u"Journal :", u"Diary:"), store), u"lbl_store"));
    texts->addWidget(store);
    texts->addWidget(text(u"lblDisclaimer",
                          caption(u"Vos rondes restent dans ce journal : Verdane n'envoie rien ailleurs.",
                                  u"Your rounds stay in this diary: Verdane sends nothing elsewhere.")));
    texts->addWidget(lines.add(1, make_line()));
    texts->addWidget(text(u"Label1", u"Verdane International Inc."_s));
    return texts;
}

QLayout* f_about::make_buttons()
{
    // French in both twins.
    auto* information = named(make_button(u"&Infos système"_s), u"cmdSysInfo");
    on_click(*information, [] { show_system_information(); });
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(rhythm);
    buttons->addStretch();
    buttons->addWidget(information);
    buttons->addWidget(ok_);
    return buttons;
}

void f_about::lay_out()
{
    auto* emblem = new QSvgWidget(u":/art/verdane.svg"_s);
    emblem->setFixedSize(emblem_pixels, emblem_pixels);
    auto* top = new QHBoxLayout;
    top->setSpacing(3 * rhythm);
    top->addWidget(emblem, 0, Qt::AlignTop);
    top->addLayout(make_texts());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(3 * rhythm, 3 * rhythm, 3 * rhythm, 2 * rhythm);
    layout->setSpacing(3 * rhythm);
    layout->addWidget(scrolled(top), 1);
    layout->addLayout(make_buttons());
    take_size(sizeHint());
}

void f_about::activated()
{
    ok_->setFocus();
}

void f_about::unloading()
{
    Unlock_menu();
}

QString system_information_tool()
{
    const QString tool = registry_value(u"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"_s, u"PATH"_s);
    if (!tool.isEmpty())
        return tool;
    const QString folder = registry_value(u"SOFTWARE\\Microsoft\\Shared Tools Location"_s, u"MSINFO"_s);
    const QString in_folder = folder + u"\\MSINFO32.EXE"_s;
    return !folder.isEmpty() && QFileInfo::exists(in_folder) ? in_folder : QString();
}

void show_system_information()
{
    const QString tool = system_information_tool();
    if (tool.isEmpty() || !QProcess::startDetached(tool, {}))
        show_information(u"System Information Is Unavailable At This Time"_s);
}

}  // namespace verdane
