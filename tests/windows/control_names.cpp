#include "tests/windows/control_names.h"

#include <QHash>

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

/// "NAME_FIRST..LAST" means the members of a control array.
const QHash<QString, QString>& controls_by_window()
{
    static const QHash<QString, QString> all{
        {u"f_lang"_s, u"Command1_0..1 Command2"_s},
        {u"MainForm"_s, u"B1 B2 B3 B4 B5 B6 B7 B8 Picture1 Picture2 Toolbar1"_s},
        {u"f_about"_s, u"Label1 Line1_0..1 cmdOK cmdSysInfo lblDescription lblDisclaimer lblTitle lblVersion "
                       "lbl_store store"_s},
        {u"f_c_list"_s, u"Command1_0..3 List1 lbl_list"_s},
        {u"f_courses"_s,
         u"TabStrip1 cmdan departure frm_1..3 lbl_address "
         "lbl_alle lbl_alle_caption lbl_departure lbl_hnd_2..3 lbl_hole_2..3 lbl_name "
         "lbl_normal_2..3 lbl_number_1..18 lbl_rating lbl_retour lbl_retour_caption lbl_slope "
         "lbl_total lbl_total_caption lbl_verge_2..3 smdsave text_0..5 txt_hnd_0..17 "
         "txt_normal_0..17 txt_verge_0..17"_s},
        {u"f_partners"_s, u"Del Frame1 add cmdAn cmdSave pgrid"_s},
        {u"f_sticks"_s,
         u"Actualiser Command1 Fer Fr1 Fr2 Frame1 Frame2 Label2 List1 List2 Text1_0..17 "
         "cmb_courses conditions enr head lbl_Text1_14..17 lbl_club_1..14 lbl_cmb_courses "
         "lbl_conditions lbl_from lbl_pList lbl_to lbl_unit_0..1 lbl_unread_0..1 pList sn_0..13"_s},
        {u"f_get_date"_s, u"Command1 OKbut Text1 Text2 Text3 round_date"_s},
        {u"f_games"_s, u"Command1_0..3 Frame1 Label1 List1"_s},
        {u"f_new_round"_s,
         u"Command1_2 Command1_4 Command2 Command4 CommandSuiv CommandSup Frame1 Frame5_0 "
         "Frame7 Frame8 Framedet Label_4 TabStrip1 TabStrip2 "
         "Text1 UpDown1 b_carte b_getdat b_putts cmb_courses cmb_holes conditions details "
         "l_brut l_hand l_net l_plus mAlle mSticks mon mpen mshot pList text_0..3 text_12..36 "
         "text_38..40 text_7 text_p_3..6 text_s_8..11 text_vrd_0..3"_s},
        {u"f_cost"_s, u"Label2 OKButton Text1 cost_0..11 lbl_cost_0..11 lbl_mark_0..11 lbl_mark_total "
                      "lbl_total"_s},
        {u"f_date_range"_s, u"CancelButton Command1 Command2 Command3 Frame1 Frame2 Label1_0..7 List1 List2 "
                            "OKButton Status cmb_courses conditions pList"_s},
        {u"f_carte"_s, u"Command1_0..1 Frame1 Label1 List1"_s},
        {u"report_preview"_s,
         u"fit_width next_page page_of_pages page_view previous_page print save_csv save_pdf "
         "save_picture zoom_in zoom_out zoom_percent"_s},
    };
    return all;
}

QStringList members(const QString& array)
{
    const QString name = array.section(u'_', 0, -2) + u'_';
    const QString range = array.section(u'_', -1);
    QStringList names;
    for (int index = range.section(u".."_s, 0, 0).toInt(); index <= range.section(u".."_s, 1).toInt();
         ++index)
        names << name + QString::number(index);
    return names;
}

}  // namespace

QStringList expected_controls(const QString& family)
{
    QStringList names;
    for (const QString& name : controls_by_window().value(family).split(u' '))
        names << (name.contains(u"..") ? members(name) : QStringList{name});
    names.sort();
    return names;
}

}  // namespace verdane::testing
