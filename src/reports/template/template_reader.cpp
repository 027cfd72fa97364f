#include "reports/template/template_reader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

#include "reports/template/head_settings.h"
#include "reports/template/page_limits.h"
#include "reports/template/template_head.h"
#include "reports/template/template_words.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// A template or a layout, split at the line `---`.
struct source_file {
    QString name;
    head_settings head;
    QString body;
    /// 0 without a body.
    int body_line = 0;
};

QString read_text(const QString& path, const template_place& named_at, const QString& kind)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        fail_template(named_at, u"cannot open %1: %2"_s.arg(path, file.errorString()));
    if (file.size() > most_template_bytes)
        fail_template({QFileInfo(path).fileName(), 1},
                      u"the %1 is longer than %2 bytes"_s.arg(kind).arg(most_template_bytes));
    QString text = QString::fromUtf8(file.readAll());
    return text.remove(u'\r');
}

/// The line between head and body. Blanks after the dashes are ignored, because they are invisible.
qsizetype position_of_rule(const QStringList& lines)
{
    for (qsizetype line = 0; line < lines.size(); ++line)
        if (lines[line].startsWith(u'-') && lines[line].trimmed() == u"---")
            return line;
    return -1;
}

bool names_layout(const QStringList& head)
{
    // The whole line is matched.
    static const QRegularExpression form(u"layout\\s*=.*"_s);
    return head.indexOf(form) >= 0;
}

/// `named_at` is where the file is named: the template itself, or its setting `layout`.
source_file read_source(const QString& path, const template_place& named_at, const QString& kind)
{
    source_file result;
    result.name = QFileInfo(path).fileName();
    const QStringList lines = read_text(path, named_at, kind).split(u'\n');
    const qsizetype rule = position_of_rule(lines);
    const QStringList head = rule < 0 ? lines : lines.first(rule);
    if (rule < 0 && !names_layout(head))
        fail_template({result.name, static_cast<int>(lines.size())},
                      u"no line --- between the head and the body"_s);
    result.head = split_head(result.name, head);
    if (rule >= 0) {
        result.body = lines.sliced(rule + 1).join(u'\n');
        result.body_line = static_cast<int>(rule) + 2;
    }
    return result;
}

const head_setting* layout_setting(const source_file& source)
{
    const auto& settings = source.head.settings;
    const auto found = std::find_if(settings.begin(), settings.end(),
                                    [](const head_setting& setting) { return setting.keyword == u"layout"; });
    return found == settings.end() ? nullptr : &*found;
}

/// Takes the settings and the body of the file with the page: a whole template, or a layout.
void take_page(template_file& target, head_role role, const source_file& source, template_words& words)
{
    read_settings(target, role, source.head.settings, words);
    complete_settings(target);
    target.body = words.in_html(source.body, {source.name, source.body_line});
    target.body_line = source.body_line;
}

source_file read_layout_of(const template_file& target, const source_file& its_template,
                           const QString& folder)
{
    if (its_template.body_line != 0)
        fail_template({its_template.name, its_template.body_line - 1},
                      u"a template with a layout has no body of its own"_s);
    source_file layout = read_source(QDir(folder).filePath(target.layout_name),
                                     layout_setting(its_template)->place, u"layout"_s);
    if (layout.head.words_line != 0)
        fail_template({layout.name, layout.head.words_line},
                      u"the words are in the template, not in its layout"_s);
    return layout;
}

}  // namespace

template_file read_template(const QString& path)
{
    const QFileInfo file(path);
    const source_file source = read_source(path, {file.fileName(), 1}, u"template"_s);
    template_words words(source.name, source.head.words);
    template_file result;
    result.file_name = source.name;
    result.layout_name = source.name;
    if (layout_setting(source) == nullptr) {
        take_page(result, head_role::whole_template, source, words);
    } else {
        read_settings(result, head_role::template_with_layout, source.head.settings, words);
        const source_file layout = read_layout_of(result, source, file.path());
        take_page(result, head_role::layout, layout, words);
    }
    words.check_all_used(result.layout_name);
    return result;
}

}  // namespace verdane
