#pragma once

#include <QString>

#include "base/counts.h"
#include "controls/control_array.h"
#include "controls/Form.h"
#include "controls/TabStrip.h"
#include "reports/report_control.h"
#include "scoring/hole_arithmetic.h"

class QAction;
class QBoxLayout;
class QComboBox;
class QFrame;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace verdane {

class course_box;
class data_grid;
class temperature_box;

/// The window in which a round is created, reopened, entered and saved; in English `f_new_round_en`.
///
/// A round has no model of its own: while the window is open, its rows are the current rows of
/// `rsgames`, `rsgames2` and `rscost`, and the boxes are the working copy of the hole on screen. They
/// reach the rows when the hole is left or the round is saved.
///
/// Making the window loads it: `rsgames`, `rsgames2`, `rscost`, `rsvrd_fields` and `rsfield_info` are
/// open by then, with the round's rows as their current ones. Its end closes them. `Round_records.h`
/// says how it is opened on a new round and on a stored one. The logic stands in `f_new_round_func.h`,
/// that of the detailed page in `detailed_page.h`, `shot_entry.h` and `shot_menus.h`.
class f_new_round : public Form {
public:
    f_new_round();

    /// The key of the round; empty until the tee-off dialog has settled it.
    QString date_value;
    /// The tee-off dialog was left through its cancel button.
    bool get_date_canceled = false;
    /// No hole has been shown yet: showing the first one must not save.
    bool first_entry = true;
    /// List index (0 to 17) of the hole shown last; the hole to save when another is chosen.
    int16 last_hole = 0;
    /// There is something to save. True from the start, so that an untouched new round asks too.
    bool needSave = true;
    /// The window closes from the detailed page; from then on only the quick page can be reached. Never
    /// set back.
    bool closingoK = false;
    /// The hole that was summed up last has classified shots.
    bool isdetailed = false;
    /// The shot being entered is a putt.
    bool PUT_MODE = false;
    /// The tee-off dialog is up: its end, which activates the window again, must not bring it back.
    bool choosing_date = false;

    TabStrip* TabStrip1 = nullptr;
    TabStrip* TabStrip2 = nullptr;
    data_grid* details = nullptr;
    QPushButton* CommandSuiv = nullptr;
    QPushButton* CommandSup = nullptr;
    QPushButton* b_carte = nullptr;
    QPushButton* Command4 = nullptr;
    /// Prints the putts of the round.
    QPushButton* b_putts = nullptr;
    QPushButton* Command2 = nullptr;
    /// The entries of the menus of `details`: clubs, kinds, yes (0) and no (1), positions, penalties.
    control_array<QAction> ms1{u"ms1"};
    control_array<QAction> mshots{u"mshots"};
    control_array<QAction> mb{u"mb"};
    control_array<QAction> ma{u"ma"};
    control_array<QAction> mp{u"mp"};
    QComboBox* cmb_holes = nullptr;
    course_box* cmb_courses = nullptr;
    QComboBox* conditions = nullptr;
    QListWidget* pList = nullptr;
    temperature_box* UpDown1 = nullptr;
    QPushButton* b_getdat = nullptr;
    QWidget* Frame1 = nullptr;
    QWidget* Framedet = nullptr;
    QWidget* Frame7 = nullptr;
    QWidget* Frame8 = nullptr;
    /// What the frames of the pages stand in.
    QBoxLayout* pages = nullptr;
    QLabel* l_brut = nullptr;
    QLabel* l_hand = nullptr;
    QLabel* l_net = nullptr;
    QLabel* l_plus = nullptr;
    control_array<QLineEdit> text_vrd{u"text_vrd"};
    control_array<QLineEdit> text_p{u"text_p"};
    control_array<QLineEdit> text_s{u"text_s"};
    control_array<QLineEdit> text{u"text"};
    control_array<QLabel> Label{u"Label"};
    control_array<QPushButton> Command1{u"Command1"};
    control_array<QWidget> Frame5{u"Frame5"};

    /// The report on the putts of the round.
    report_control cr2{this};

    /// Number (1 to 18) of the hole that `cmb_holes` stands on.
    int16 hole_shown() const;

    /// Commits the shot that is being told.
    void saveShots();

    /// What the boxes of the quick page hold.
    hole_figures figures() const;

protected:
    void activated() override;
    void unloading() override;
    void close_requested() override;

private:
    void connect_events();
};

}  // namespace verdane
