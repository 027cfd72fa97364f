#include "transfer/course_lines.h"

#include <QHash>
#include <QSet>

#include "base/text.h"
#include "records/course_keys.h"
#include "scoring/words.h"
#include "transfer/course_faults.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// The values of a line by the names of their columns, without blanks around them.
using named_values = QHash<QString, QString>;

entered_course::hole_texts texts_of_holes(const named_values& values, const QString& prefix)
{
    entered_course::hole_texts texts;
    int hole = 0;
    for (QString& text : texts)
        text = values.value(prefix + QString::number(++hole));
    return texts;
}

/// The digit of a tee by its colour in either language, in any case; -1 if there is no such tee.
int tee_of(const QString& word)
{
    const QString wanted = in_capitals(word);
    for (int tee = 0; const text_pair& colour : tee_words) {
        if (wanted == in_capitals(colour.french) || wanted == in_capitals(colour.english))
            return tee;
        ++tee;
    }
    return -1;
}

QString all_tees()
{
    QStringList words;
    for (const text_pair& colour : tee_words)
        words << colour.in(is_french);
    return words.join(u", "_s);
}

entered_course course_of(const named_values& values)
{
    entered_course course;
    course.name = values[u"name"_s];
    course.rating = values[u"rating"_s];
    course.slope = values[u"slope"_s];
    course.tee = tee_of(values[u"tee"_s]);
    if (course.tee >= 0)
        course.tee_text = tee_words.at(static_cast<std::size_t>(course.tee)).in(is_french);
    course.yards = texts_of_holes(values, u"yards_"_s);
    course.pars = texts_of_holes(values, u"par_"_s);
    course.stroke_indexes = texts_of_holes(values, u"hcp_"_s);
    return course;
}

/// Why the first line does not name every column once; empty if it does.
QString fault_of_heads(const QStringList& heads)
{
    for (const QString& column : course_columns()) {
        if (!heads.contains(column))
            return in_language(
                       u"la première ligne ne nomme pas la colonne %1 ; les noms sont séparés par des "
                       u"virgules",
                       u"the first line does not name the column %1; names are separated by commas")
                .arg(column);
    }
    for (const QString& head : heads) {
        if (!course_columns().contains(head))
            return in_language(u"la colonne %1 est inconnue", u"the column %1 is unknown").arg(head);
        if (heads.count(head) > 1)
            return in_language(u"la colonne %1 est nommée deux fois", u"the column %1 is named twice")
                .arg(head);
    }
    return {};
}

class course_reader {
public:
    course_reader(QString path, bad_lines& faults) : path_(std::move(path)), faults_(faults) {}

    std::vector<course_line> read(const std::vector<csv_record>& records)
    {
        if (!read_heads(records))
            return {};
        for (std::size_t record = 1; record < records.size(); ++record)
            read_course(records[record]);
        return courses_;
    }

private:
    bool read_heads(const std::vector<csv_record>& records)
    {
        if (!records.empty()) {
            for (const csv_value& value : records[0].values)
                heads_ << trimmed_blanks(value.text).toString();
        }
        const QString fault = fault_of_heads(heads_);
        if (!fault.isEmpty())
            add_fault(1, fault);
        return fault.isEmpty();
    }

    void read_course(const csv_record& record)
    {
        const auto values = static_cast<qsizetype>(record.values.size());
        if (values != heads_.size())
            return add_fault(record.line, in_language(u"%1 valeurs au lieu de %2", u"%1 values instead of %2")
                                              .arg(values)
                                              .arg(heads_.size()));
        named_values named;
        for (qsizetype column = 0; column < values; ++column)
            named[heads_[column]] =
                trimmed_blanks(record.values[static_cast<std::size_t>(column)].text).toString();
        const entered_course course = course_of(named);
        if (course.tee < 0)
            return add_fault(record.line, in_language(u"tee : %1 n'est pas l'une des couleurs %2",
                                                      u"tee: %1 is none of the colours %2")
                                              .arg(named[u"tee"_s], all_tees()));
        add(record.line, course);
    }

    void add(int line, const entered_course& course)
    {
        const QString key = name_with_tee(in_capitals(course.name), course.tee);
        const QString fault = fault_of(course);
        if (!fault.isEmpty())
            add_fault(line, fault);
        else if (keys_.contains(key))
            add_fault(line, in_language(u"ce terrain est déjà sur une ligne précédente",
                                        u"this course is on an earlier line, too"));
        else
            courses_.push_back({line, course});
        keys_ << key;
    }

    void add_fault(int line, const QString& reason) { faults_.push_back({path_, line, reason}); }

    QString path_;
    bad_lines& faults_;
    QStringList heads_;
    QSet<QString> keys_;
    std::vector<course_line> courses_;
};

}  // namespace

const QStringList& course_columns()
{
    static const QStringList columns = [] {
        QStringList names{u"name"_s, u"tee"_s, u"rating"_s, u"slope"_s};
        for (const QString& prefix : {u"yards_"_s, u"par_"_s, u"hcp_"_s}) {
            for (int hole = 1; hole <= hole_count; ++hole)
                names << prefix + QString::number(hole);
        }
        return names;
    }();
    return columns;
}

std::vector<course_line> read_courses(const QString& path, bad_lines& faults)
{
    const auto records = read_csv_file(path, faults);
    return records ? course_reader(path, faults).read(*records) : std::vector<course_line>();
}

}  // namespace verdane
