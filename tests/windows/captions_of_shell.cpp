#include "tests/windows/window_captions.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

/// The main window, the windows at the start, the selection, the scorecard and the preview.
const captions_by_window& captions_of_shell()
{
    static const captions_by_window all{
        {u"f_lang"_s,
         {
             {u"title"_s, u"Verdane International Inc."_s, u"Verdane International Inc."_s},
             {u"Command1_1"_s, u"Continuer en Français"_s, u"Continuer en Français"_s},
             {u"Command1_0"_s, u"Continue in English"_s, u"Continue in English"_s},
             {u"Command2"_s, u"Exit / Quitter"_s, u"Exit / Quitter"_s},
         }},
        {u"MainForm"_s,
         {
             {u"title"_s, u"Verdane pour PC version 1.4"_s, u"Verdane for PC version 1.4"_s},
             {u"mfile"_s, u"&Fichier"_s, u"&File"_s},
             {u"mnSave"_s, u"&Enregistrer"_s, u"&Enregistrer"_s},
             {u"mClose"_s, u"&Fermer"_s, u"&Fermer"_s},
             {u"mEn"_s, u"English"_s, u"English"_s},
             {u"mfr"_s, u"Français"_s, u"Français"_s},
             {u"mQuit"_s, u"&Quitter"_s, u"&Exit"_s},
             {u"mcoh"_s, u"TEST"_s, u"TEST"_s},
             {u"Rondes"_s, u"&Rondes"_s, u"&Rounds"_s},
             {u"mOpen"_s, u"&Nouvelle ronde"_s, u"&New Round"_s},
             {u"mnOPenr"_s, u"&Gestion des rondes"_s, u"&Round Management"_s},
             {u"mCourses"_s, u"&Terrains"_s, u"&Golf Courses"_s},
             {u"mManagF"_s, u"&Gestion des terrains"_s, u"&Golf Course Management"_s},
             {u"mCarte"_s, u"&Carte de pointage"_s, u"&Scorecard"_s},
             {u"batons"_s, u"&Bâtons"_s, u"&Golf Clubs"_s},
             {u"mnBat"_s, u"&Mes bâtons"_s, u"&My Golf Clubs"_s},
             {u"partenaires"_s, u"&Partenaires"_s, u"&Partners"_s},
             {u"mpartners"_s, u"&Gestion des partenaires"_s, u"&Partner Management"_s},
             {u"mnstat"_s, u"&Statistiques"_s, u"&Statistics"_s},
             {u"mnStabat"_s, u"Statistiques des &bâtons"_s, u"Club Statistics"_s},
             {u"mnStatcr"_s, u"Statistiques des coups &roulés"_s, u"Putt Statistics"_s},
             {u"mnstatr"_s, u"Statistiques des r&ondes"_s, u"Round Statistics"_s},
             {u"mncouts"_s, u"Satistiques des coû&ts"_s, u"Cost Statistics"_s},
             {u"maprop"_s, u"&A propos"_s, u"&About"_s},
         }},
        {u"f_about"_s,
         {
             {u"title"_s, u"À propos de VERDANE"_s, u"About VERDANE"_s},
             {u"lblTitle"_s, u"VERDANE pour PC"_s, u"VERDANE for PC"_s},
             {u"lblVersion"_s, u"Version 1.4"_s, u"Version 1.4"_s},
             {u"lblDescription"_s, u"Le journal et les statistiques de vos rondes de golf."_s,
              u"The diary and the statistics of your rounds of golf."_s},
             {u"lblDisclaimer"_s, u"Vos rondes restent dans ce journal : Verdane n'envoie rien ailleurs."_s,
              u"Your rounds stay in this diary: Verdane sends nothing elsewhere."_s},
             {u"lbl_store"_s, u"Journal :"_s, u"Diary:"_s},
             {u"Label1"_s, u"Verdane International Inc."_s, u"Verdane International Inc."_s},
             {u"cmdSysInfo"_s, u"&Infos système"_s, u"&Infos système"_s},
             {u"cmdOK"_s, u"OK"_s, u"OK"_s},
         }},
        {u"f_date_range"_s,
         {
             {u"Label1_0"_s, u"De..."_s, u"From..."_s},
             {u"Label1_1"_s, u"À..."_s, u"To..."_s},
             {u"Label1_2"_s, u"Terrain :"_s, u"Golf Course :"_s},
             {u"Label1_3"_s, u"Partenaire :"_s, u"Partners :"_s},
             {u"Label1_4"_s, u"Conditions atmosphériques :"_s, u"Weather Conditions :"_s},
             {u"Label1_5"_s, u"** Attention : Ces rondes ne sont pas complétées"_s,
              u"**Attention : these rounds have not been completed."_s},
             {u"Label1_6"_s, u"Nombre de parties jouées:"_s, u"Number of rounds :"_s},
             {u"Frame1"_s, u"Date / Heure / Terrain"_s, u"Date / Time / Course"_s},
             {u"Frame2"_s, u"Date / Heure / Terrain"_s, u"Date / Time / Course"_s},
             {u"Command1"_s, u"OK"_s, u"OK"_s},
             {u"Command2"_s, u"OK"_s, u"OK"_s},
             {u"Command3"_s, u"OK"_s, u"OK"_s},
             {u"OKButton"_s, u"OK"_s, u"OK"_s},
             {u"CancelButton"_s, u"Annuler"_s, u"Cancel"_s},
         }},
        {u"f_carte"_s,
         {
             {u"title"_s, u"Carte de pointage"_s, u"Scorecard"_s},
             {u"Label1"_s, u"Choisissez un terrain"_s, u"Select a golf course"_s},
             {u"Frame1"_s, u"Terrain / Terte"_s, u"Golf Course / Teeing Area"_s},
             {u"Command1_0"_s, u"OK"_s, u"OK"_s},
             {u"Command1_1"_s, u"Annuler"_s, u"Cancel"_s},
         }},
        {u"report_preview"_s,
         {
             {u"title"_s, u"Verdane International Inc."_s, u"Verdane International Inc."_s},
             {u"page_of_pages"_s, u"Page 1 de 1"_s, u"Page 1 of 1"_s},
             {u"print"_s, u"Imprimer…"_s, u"Print…"_s},
             {u"save_pdf"_s, u"Enregistrer en PDF…"_s, u"Save as PDF…"_s},
             {u"save_csv"_s, u"Chiffres (CSV)…"_s, u"Figures (CSV)…"_s},
             {u"save_picture"_s, u"Image…"_s, u"Picture…"_s},
             {u"zoom_out"_s, u"−"_s, u"−"_s},
             {u"zoom_in"_s, u"+"_s, u"+"_s},
             {u"fit_width"_s, u"Pleine largeur"_s, u"Fit width"_s},
             {u"previous_page"_s, u"◀"_s, u"◀"_s},
             {u"next_page"_s, u"▶"_s, u"▶"_s},
         }},
    };
    return all;
}

}  // namespace verdane::testing
