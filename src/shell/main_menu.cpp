#include "shell/main_menu.h"

#include "shell/main_commands.h"

namespace verdane {

namespace {

constexpr bool locked = true;
constexpr bool hidden = true;

top_menu file_menu()
{
    return {u"mfile",
            {u"&Fichier", u"&File"},
            {{u"mnSave", {u"&Enregistrer", u""}, command_save, !locked, hidden},
             {u"mClose", {u"&Fermer", u""}, command_close, !locked, hidden},
             {u"mEn", {u"English", u"English"}, command_english},
             {u"mfr", {u"Français", u"Français"}, command_french},
             {u"mQuit", {u"&Quitter", u"&Exit"}, command_quit, locked},
             {u"mcoh", {u"TEST", u"TEST"}, command_store_clean_up, !locked, hidden}}};
}

}  // namespace

const std::vector<top_menu>& main_menu()
{
    static const std::vector<top_menu> menu{
        file_menu(),
        {u"Rondes",
         {u"&Rondes", u"&Rounds"},
         {{u"mOpen", {u"&Nouvelle ronde", u"&New Round"}, command_new_round, locked},
          {u"mnOPenr", {u"&Gestion des rondes", u"&Round Management"}, command_round_list, locked}}},
        {u"mCourses",
         {u"&Terrains", u"&Golf Courses"},
         {{u"mManagF", {u"&Gestion des terrains", u"&Golf Course Management"}, command_course_list, locked},
          {u"mCarte", {u"&Carte de pointage", u"&Scorecard"}, command_scorecard, locked}},
         locked},
        {u"batons",
         {u"&Bâtons", u"&Golf Clubs"},
         {{u"mnBat", {u"&Mes bâtons", u"&My Golf Clubs"}, command_golf_bag, locked}}},
        {u"partenaires",
         {u"&Partenaires", u"&Partners"},
         {{u"mpartners", {u"&Gestion des partenaires", u"&Partner Management"}, command_partners, locked}}},
        {u"mnstat",
         {u"&Statistiques", u"&Statistics"},
         {{u"mnStabat", {u"Statistiques des &bâtons", u"Club Statistics"}, command_club_statistics},
          {u"mnStatcr", {u"Statistiques des coups &roulés", u"Putt Statistics"}, command_putt_statistics},
          {u"mnstatr", {u"Statistiques des r&ondes", u"Round Statistics"}, command_round_statistics},
          {u"mncouts", {u"Satistiques des coû&ts", u"Cost Statistics"}, command_cost_statistics}},
         locked},
        {u"maprop", {u"&A propos", u"&About"}, {}, locked, command_about},
    };
    return menu;
}

const std::vector<tool_button>& main_toolbar()
{
    static const std::vector<tool_button> toolbar{
        {u"B1", u"Ajouter une ronde", u"New Round", command_new_round, locked},
        {u"B2", u"Gestion des rondes", u"Round Management", command_round_list, locked},
        {u"B3", u"Gestion des terrain", u"Golf Course Management", command_course_list, locked},
        {u"B4", u"Enregistrer", u"Save", command_save},
        {u"B5", u"Fermer", u"Close", command_close},
        {u"B6", u"Mes partenaires", u"Partner Management", command_partners, locked},
        {u"B7", u"Gestion des battons", u"My Golf Clubs", command_golf_bag, locked},
        {u"B8", u"Carte de jeux", u"Scorecard", command_scorecard, locked},
    };
    return toolbar;
}

}  // namespace verdane
