#include "round/round_parameters.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>

#include "base/language.h"
#include "records/partner_columns.h"
#include "records/round_columns.h"
#include "records/round_rows.h"
#include "round/course_box.h"
#include "round/f_new_round.h"
#include "round/round_boxes.h"
#include "scoring/weather_words.h"
#include "store/close_if_open.h"
#include "store/DataEnvironment1.h"

namespace verdane {

namespace {

void add_partner(QListWidget& list, Recordset& partners)
{
    // A column without a value leaves the other one standing.
    auto* line = new QListWidgetItem(QString(partners.Fields(partner_columns::surname).text_or_empty() +
                                             u',' + partners.Fields(partner_columns::name).text_or_empty()),
                                     &list);
    const QString number = QString::number(plain(partners.Fields(partner_columns::code).int32_or_zero()));
    line->setData(Qt::UserRole, number);
    line->setSelected(Round_functions::partner_in_round(number) >= 1);
}

}  // namespace

void fill_silently(QComboBox& list, const QStringList& entries)
{
    const QSignalBlocker silence(&list);
    list.clear();
    list.addItems(entries);
    list.setCurrentIndex(-1);
}

void fill_courses(f_new_round& window)
{
    Recordset& courses = data_environment().rsvrd_fields;
    const QSignalBlocker silence(window.cmb_courses);
    window.cmb_courses->clear();
    for (courses.MoveFirst(); !courses.eof(); courses.MoveNext())
        window.cmb_courses->add_course(courses.Fields(round_columns::name).text_or_empty(),
                                       courses.Fields(round_columns::code).trimmed());
    window.cmb_courses->setCurrentIndex(-1);
}

void fill_conditions(f_new_round& window)
{
    QStringList weathers;
    for (const text_pair& weather : weather_words)
        weathers << weather.in(window.french());
    fill_silently(*window.conditions, weathers);
    window.conditions->setCurrentIndex(0);
}

void fill_partners(f_new_round& window)
{
    Recordset& partners = data_environment().rspartners;
    close_if_open(partners);
    partners.Open();
    if (partners.empty())
        return;
    for (partners.MoveFirst(); !partners.eof(); partners.MoveNext())
        add_partner(*window.pList, partners);
}

QStringList selected_partners(const f_new_round& window)
{
    QStringList numbers;
    for (int row = 0; row < window.pList->count(); ++row) {
        const QListWidgetItem* line = window.pList->item(row);
        if (line->isSelected())
            numbers << line->data(Qt::UserRole).toString();
    }
    return numbers;
}

void show_cost_total(f_new_round& window)
{
    window.text(round_box::costs).setText(QString::number(plain(Round_functions::cost_total())));
}

}  // namespace verdane
