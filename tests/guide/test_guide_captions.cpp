#include <QDir>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include "controls/shortcuts.h"
#include "scoring/putt_bands.h"
#include "scoring/words.h"
#include "tests/guide/guide_pages.h"
#include "tests/support/languages.h"
#include "tests/windows/window_captions.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// A caption as the guide quotes it: without mnemonic, marks at its end and double blanks.
QString quoted_form(QString caption)
{
    static const QRegularExpression end(u"\\s*:\\s*$"_s);
    return caption.remove(u'&').remove(end).simplified();
}

void add_captions_of_windows(QSet<QString>& captions, bool french)
{
    for (const captions_by_window* all :
         {&captions_of_reference(), &captions_of_round(), &captions_of_shell()}) {
        for (const QList<caption_row>& rows : *all) {
            for (const caption_row& row : rows) {
                for (const QString& part : (french ? row.french : row.english).split(u'|'))
                    captions << quoted_form(part);
            }
        }
    }
}

/// The words of the templates, "name = word".
void add_words_of_reports(QSet<QString>& captions, bool french)
{
    static const QRegularExpression word_line(u"^\\w+ = (.+)$"_s, QRegularExpression::MultilineOption);
    const QDir folder(QString::fromUtf8(VERDANE_TEMPLATES));
    for (const QString& name : folder.entryList({u"*.rpt"_s})) {
        if (name.endsWith(u"_en.rpt") == french)
            continue;
        for (const QRegularExpressionMatch& line : word_line.globalMatch(text_of_file(folder.filePath(name))))
            captions << quoted_form(line.captured(1).replace(u"<br>"_s, u" "_s));
    }
}

QSet<QString> captions_of_program(bool french)
{
    QSet<QString> captions;
    add_captions_of_windows(captions, french);
    add_words_of_reports(captions, french);
    for (const auto& word : kind_words)
        captions << word.in(french);
    captions << yes_word.in(french) << no_word.in(french);
    return captions;
}

std::vector<shortcut> every_shortcut()
{
    using namespace shortcut_table;
    return {open_guide,   list_of_shortcuts, cancel,        open_round,    open_course,   save_course,
            close_course, next_hole,         previous_hole, quick_page,    detailed_page, next_shot,
            remove_shot,  end_of_hole,       putt_report,   close_preview, print,         save_pdf,
            zoom_out,     zoom_in,           fit_width,     next_page,     previous_page};
}

}  // namespace

/// What the guide quotes is what the program shows.
class test_guide_captions : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void every_quoted_caption_is_one_of_the_program_data() { both_languages(); }
    void every_quoted_caption_is_one_of_the_program()
    {
        QFETCH(bool, french);
        const QSet<QString> known = captions_of_program(french);
        QVERIFY(known.size() > 200);
        QStringList unknown;
        int quoted = 0;
        for (const QString& name : page_names(french)) {
            for (const page_element& caption : read_page(french, name).with_class(u"caption"_s)) {
                ++quoted;
                if (!known.contains(caption.text))
                    unknown << name + u": "_s + caption.text;
            }
        }
        QVERIFY(quoted > 150);
        QCOMPARE(unknown.join(u'\n'), QString());
    }

    void the_page_on_keys_has_every_shortcut_data() { both_languages(); }
    void the_page_on_keys_has_every_shortcut()
    {
        QFETCH(bool, french);
        QStringList expected;
        for (const shortcut& key : every_shortcut())
            expected << key_text(key.keys, french) + u" | "_s + key.caption.in(french);
        QStringList seen;
        for (const QStringList& row : read_page(french, u"keyboard.html"_s).table(u"keys"_s)) {
            if (row.front() != (french ? u"Touche"_s : u"Key"_s))
                seen << row.join(u" | "_s);
        }
        expected.sort();
        seen.sort();
        QCOMPARE(seen.join(u'\n'), expected.join(u'\n'));
    }

    void every_quoted_file_of_a_report_exists_data() { both_languages(); }
    void every_quoted_file_of_a_report_exists()
    {
        QFETCH(bool, french);
        const QDir folder(QString::fromUtf8(VERDANE_TEMPLATES));
        QStringList quoted;
        for (const page_element& file : read_page(french, u"templates.html"_s).with_class(u"file"_s)) {
            QVERIFY2(folder.exists(file.text), qPrintable(file.text));
            quoted << file.text;
        }
        for (const QString& name : folder.entryList({u"*.layout"_s, french ? u"*[!n].rpt"_s : u"*_en.rpt"_s}))
            QVERIFY2(quoted.contains(name), qPrintable(name));
    }
};

QTEST_GUILESS_MAIN(test_guide_captions)
#include "test_guide_captions.moc"
