#include "base/failure_words.h"

#include <array>

namespace verdane {

namespace {

struct failure_text {
    failure_kind kind;
    text_pair words;
};

/// A text for each kind, in the order of `failure_kind`.
constexpr std::array texts{
    failure_text{
        failure_kind::overflow,
        {u"Un nombre est devenu trop grand pour Verdane. Ce qui était enregistré est intact. Relancez "
         u"Verdane, puis corrigez le chiffre, ou choisissez moins de rondes pour le rapport.",
         u"A number has grown too large for Verdane. What was saved is intact. Start Verdane again, then "
         u"correct the figure, or choose fewer rounds for the report."}},
    failure_text{
        failure_kind::subscript,
        {u"Verdane a cherché dans une de ses listes une place qui n'existe pas. Ce qui était enregistré est "
         u"intact. Relancez Verdane ; si cela se répète, la commande verdane-store check examine le journal.",
         u"Verdane looked for a place that one of its lists does not have. What was saved is intact. Start "
         u"Verdane again; if it happens again, the command verdane-store check examines the diary."}},
    failure_text{failure_kind::invalid_null,
                 {u"Il manque une valeur dans le journal. Ce qui était enregistré est intact. La commande "
                  u"verdane-store check examine le journal et dit comment le réparer.",
                  u"A value is missing in the diary. What was saved is intact. The command verdane-store "
                  u"check examines the diary and says how to repair it."}},
    failure_text{failure_kind::bad_number,
                 {u"Un texte n'est pas un nombre là où il en faut un. Ce qui était enregistré est intact. La "
                  u"commande verdane-store check examine le journal et dit comment le réparer.",
                  u"A text is no number where a number is needed. What was saved is intact. The command "
                  u"verdane-store check examines the diary and says how to repair it."}},
    failure_text{failure_kind::misuse,
                 {u"Verdane n'a pas trouvé ce qu'il cherchait dans le journal. Ce qui était enregistré est "
                  u"intact. La commande verdane-store check examine le journal et dit comment le réparer.",
                  u"Verdane did not find what it looked for in the diary. What was saved is intact. The "
                  u"command verdane-store check examines the diary and says how to repair it."}},
    failure_text{failure_kind::missing_table,
                 {u"Il manque une partie du journal (une table ou une colonne) ; le reste est intact. "
                  u"Remettez en place une copie complète du fichier.",
                  u"A part of the diary (a table or a column) is missing; the rest is intact. Put a "
                  u"complete copy of the file back in place."}},
    failure_text{failure_kind::store_locked,
                 {u"Le journal est utilisé par un autre programme. Fermez ce programme, puis "
                  u"recommencez. Ce qui était enregistré est intact.",
                  u"The diary is in use by another program. Close that program, then start again. What "
                  u"was saved is intact."}},
    failure_text{
        failure_kind::store_read_only,
        {u"Verdane n'a pas le droit d'écrire dans le fichier du journal ou dans son dossier. Rien n'a été "
         u"modifié. Donnez à votre compte le droit d'écrire dans les deux, puis recommencez.",
         u"Verdane may not write to the diary's file or to its folder. Nothing was changed. Give your "
         u"account the right to write to both, then start again."}},
    failure_text{failure_kind::store_damaged,
                 {u"Le fichier du journal est endommagé ou n'est pas un journal de Verdane. Il n'a pas "
                  u"été modifié : remettez en place une copie de sauvegarde.",
                  u"The diary's file is damaged or is not a Verdane diary. It was not changed: put a "
                  u"backup copy back in place."}},
    failure_text{failure_kind::store_full,
                 {u"Il n'y a plus de place sur le disque. Libérez de l'espace, puis recommencez. Ce qui "
                  u"était enregistré est intact.",
                  u"There is no room left on the disk. Free some space, then start again. What was "
                  u"saved is intact."}},
    failure_text{failure_kind::store_unreachable,
                 {u"Le fichier du journal ne peut pas être ouvert. Rien n'a été modifié. Vérifiez que son "
                  u"disque est branché et que votre compte a le droit de lire le fichier, puis recommencez.",
                  u"The diary's file cannot be opened. Nothing was changed. Check that its disk is connected "
                  u"and that your account may read the file, then start again."}},
    failure_text{failure_kind::store_other,
                 {u"Le journal a refusé une opération. Ce qui était enregistré est intact. Recommencez ; si "
                  u"cela se répète, la commande verdane-store check examine le journal.",
                  u"The diary refused an operation. What was saved is intact. Start again; if it happens "
                  u"again, the command verdane-store check examines the diary."}},
    failure_text{failure_kind::source_unknown,
                 {u"La source de données ODBC de Verdane n'est pas enregistrée sur cet ordinateur. "
                  u"Enregistrez-la, puis recommencez. Rien n'a été modifié.",
                  u"Verdane's ODBC data source is not registered on this computer. Register it, then start "
                  u"again. Nothing was changed."}},
    failure_text{failure_kind::source_driver,
                 {u"Le pilote ODBC de la source de données manque ou ne peut pas être chargé. Installez-le "
                  u"ou corrigez l'enregistrement de la source, puis recommencez. Rien n'a été modifié.",
                  u"The ODBC driver of the data source is missing or cannot be loaded. Install it or correct "
                  u"the registration of the source, then start again. Nothing was changed."}},
    failure_text{failure_kind::source_password,
                 {u"Le serveur du journal refuse le compte ou le mot de passe de la source de données. "
                  u"Corrigez-les dans l'enregistrement de la source, puis recommencez. Rien n'a été modifié.",
                  u"The diary's server refuses the account or the password of the data source. Correct them "
                  u"in the registration of the source, then start again. Nothing was changed."}},
    failure_text{failure_kind::source_host,
                 {u"Le serveur du journal refuse les connexions de cet ordinateur. Donnez-lui l'accès sur le "
                  u"serveur, ou débloquez-le après des connexions manquées (FLUSH HOSTS), puis recommencez. "
                  u"Rien n'a été modifié.",
                  u"The diary's server refuses connections from this computer. Give it access on the server, "
                  u"or unblock it after failed connections (FLUSH HOSTS), then start again. Nothing was "
                  u"changed."}},
    failure_text{failure_kind::source_login,
                 {u"Le pilote ODBC et le serveur du journal n'ont pas de méthode commune pour chiffrer la "
                  u"connexion (TLS) ou pour vérifier le mot de passe. Réglez-la dans l'enregistrement de la "
                  u"source ou sur le serveur, ou mettez le pilote à jour, puis recommencez. Rien n'a été "
                  u"modifié.",
                  u"The ODBC driver and the diary's server have no method in common to encrypt the "
                  u"connection (TLS) or to check the password. Set it in the registration of the source or "
                  u"on the server, or update the driver, then start again. Nothing was changed."}},
    failure_text{failure_kind::source_busy,
                 {u"Le serveur du journal n'accepte pas d'autre connexion : le nombre permis pour le serveur "
                  u"ou pour le compte est atteint. Fermez d'autres programmes qui l'utilisent, attendez un "
                  u"moment ou augmentez ce nombre sur le serveur, puis recommencez. Rien n'a été modifié.",
                  u"The diary's server accepts no further connection: the number that is allowed for the "
                  u"server or for the account is reached. Close other programs that use it, wait a moment "
                  u"or raise the number on the server, then start again. Nothing was changed."}},
    failure_text{
        failure_kind::source_database,
        {u"La source de données ne désigne aucune base de données, ou une base que le compte ne peut "
         u"pas utiliser. Corrigez l'enregistrement de la source ou les droits du compte, puis "
         u"recommencez. Rien n'a été modifié.",
         u"The data source names no database, or one that the account cannot use. Correct the "
         u"registration of the source or the rights of the account, then start again. Nothing was "
         u"changed."}},
    failure_text{
        failure_kind::source_stopped,
        {u"Le serveur du journal ne fonctionne pas ou n'est pas joignable. Démarrez-le ou vérifiez le "
         u"réseau, puis recommencez. Rien n'a été modifié.",
         u"The diary's server is not running or cannot be reached. Start it or check the network, "
         u"then start again. Nothing was changed."}},
    failure_text{failure_kind::source_silent,
                 {u"Le serveur du journal ne répond pas. Attendez un moment ou redémarrez le serveur, puis "
                  u"recommencez. Rien n'a été modifié.",
                  u"The diary's server does not answer. Wait a moment or restart the server, then start "
                  u"again. Nothing was changed."}},
    failure_text{
        failure_kind::source_engine,
        {u"La source de données appartient à un moteur de base de données que Verdane ne connaît pas. "
         u"Utilisez MariaDB ou SQLite. Rien n'a été modifié.",
         u"The data source belongs to a database engine that Verdane does not support. Use MariaDB "
         u"or SQLite. Nothing was changed."}},
    failure_text{failure_kind::source_case,
                 {u"Le serveur du journal distingue les majuscules des minuscules dans les noms des tables. "
                  u"Réglez lower_case_table_names=1 sur le serveur, puis recommencez. Rien n'a été modifié.",
                  u"The diary's server distinguishes capital from small letters in the names of tables. Set "
                  u"lower_case_table_names=1 on the server, then start again. Nothing was changed."}},
    failure_text{failure_kind::source_table,
                 {u"Il manque des tables dans la source de données ; les autres sont intactes. Remettez en "
                  u"place une copie complète du journal, ou indiquez une base de données vide. Rien n'a été "
                  u"modifié.",
                  u"Tables are missing in the data source; the others are intact. Put a complete copy of the "
                  u"diary back in place, or name an empty database. Nothing was changed."}},
    failure_text{failure_kind::source_column,
                 {u"Une table de la source de données n'a pas les colonnes de Verdane : une colonne manque, "
                  u"porte un autre nom ou se trouve à une autre place. Corrigez la table, puis recommencez. "
                  u"Rien n'a été modifié.",
                  u"A table of the data source does not have Verdane's columns: a column is missing, has "
                  u"another name or is in another place. Correct the table, then start again. Nothing was "
                  u"changed."}},
    failure_text{
        failure_kind::source_type,
        {u"Une colonne de la source de données a un type qui ne convient pas aux valeurs de Verdane (un "
         u"texte, un nombre entier ou un nombre à virgule), ou exige une valeur que Verdane ne lui donne "
         u"pas (NOT NULL). Corrigez la table, puis recommencez. Rien n'a été modifié.",
         u"A column of the data source has a type that does not fit Verdane's values (a text, a whole "
         u"number or a number with decimals), or needs a value that Verdane does not give it (NOT NULL). "
         u"Correct the table, then start again. Nothing was changed."}},
    failure_text{failure_kind::source_storage,
                 {u"Des tables de la source de données ont un moteur de stockage sans transactions, comme "
                  u"MyISAM : un enregistrement interrompu y resterait incomplet. Convertissez-les en InnoDB, "
                  u"puis recommencez. Rien n'a été modifié.",
                  u"Tables of the data source have a storage engine without transactions, such as MyISAM: a "
                  u"save that is interrupted would stay incomplete there. Convert them to InnoDB, then start "
                  u"again. Nothing was changed."}},
    failure_text{
        failure_kind::source_read_only,
        {u"Le compte de la source de données n'a pas le droit d'écrire dans le journal. Donnez-lui ce "
         u"droit sur le serveur, puis recommencez. Ce qui était enregistré est intact.",
         u"The account of the data source may not write to the diary. Give it that right on the "
         u"server, then start again. What was saved is intact."}},
    failure_text{
        failure_kind::source_full,
        {u"Il n'y a plus de place sur le disque du serveur. Libérez de l'espace sur le serveur, puis "
         u"recommencez. Ce qui était enregistré est intact.",
         u"There is no room left on the server's disk. Free some space on the server, then start "
         u"again. What was saved is intact."}},
    failure_text{
        failure_kind::source_value,
        {u"Une valeur n'entre pas dans sa colonne de la source de données : un texte y est trop long ou a un "
         u"caractère que le jeu de caractères de la colonne ne contient pas, ou un nombre y est trop grand. "
         u"Elle n'a pas été enregistrée ; ce qui était enregistré avant est intact. Saisissez un texte plus "
         u"court ou sans ce caractère ou un nombre plus petit, ou changez la colonne sur le serveur.",
         u"A value does not fit into its column of the data source: a text is too long or has a character "
         u"that the character set of the column lacks, or a number is too large. It was not saved; what was "
         u"saved before is intact. Enter a shorter text or one without this character or a smaller number, "
         u"or change the column on the server."}},
    failure_text{
        failure_kind::source_part,
        {u"Il manque une table ou une colonne dans la source de données ; le reste est intact. "
         u"Remettez-la en place sur le serveur, ou restaurez une copie complète de la base de données.",
         u"A table or a column is missing in the data source; the rest is intact. Put it back in place "
         u"on the server, or restore a complete copy of the database."}},
    failure_text{
        failure_kind::source_lost,
        {u"La connexion avec le serveur du journal est perdue. Ce qui était enregistré avant est "
         u"intact ; le dernier enregistrement y est en entier ou pas du tout. Vérifiez le serveur et "
         u"le réseau, relancez Verdane et contrôlez le dernier trou.",
         u"The connection to the diary's server was lost. What was saved before is intact; the last "
         u"save is there as a whole or not at all. Check the server and the network, start Verdane "
         u"again and check the last hole."}},
    failure_text{failure_kind::report_template,
                 {u"Le modèle du rapport manque ou contient une erreur. Vos données sont intactes. Corrigez "
                  u"le fichier nommé ci-dessous, ou réinstallez Verdane.",
                  u"The report's template is missing or contains an error. Your data are intact. Correct the "
                  u"file named below, or install Verdane again."}},
    failure_text{
        failure_kind::report_output,
        {u"Le rapport n'a pas pu être écrit ou imprimé. Vos données sont intactes. Choisissez un autre "
         u"dossier ou une autre imprimante, ou libérez de l'espace sur le disque, puis recommencez.",
         u"The report could not be written or printed. Your data are intact. Choose another folder or "
         u"printer, or free some space on the disk, then start again."}},
};

constexpr bool every_kind_has_its_text()
{
    for (std::size_t place = 0; place < texts.size(); ++place) {
        if (texts[place].kind != static_cast<failure_kind>(place))
            return false;
    }
    return texts.back().kind == failure_kind::report_output;
}

static_assert(every_kind_has_its_text(), "report_output is the last kind");

}  // namespace

text_pair failure_words(failure_kind kind)
{
    return texts.at(static_cast<std::size_t>(kind)).words;
}

}  // namespace verdane
