#include "base/failure_words.h"

#include "base/source_failure_words.h"

namespace verdane {

namespace {

/// The failures of a store, whatever its engine is.
text_pair words_of_store(failure_kind kind)
{
    switch (kind) {
    case failure_kind::missing_table:
        return {u"Il manque une partie du journal (une table ou une colonne) ; le reste est intact. "
                u"Remettez en place une copie complète du fichier.",
                u"A part of the diary (a table or a column) is missing; the rest is intact. Put a "
                u"complete copy of the file back in place."};
    case failure_kind::store_locked:
        return {u"Le journal est utilisé par un autre programme. Fermez ce programme, puis "
                u"recommencez. Ce qui était enregistré est intact.",
                u"The diary is in use by another program. Close that program, then start again. What "
                u"was saved is intact."};
    case failure_kind::store_read_only:
        return {u"Verdane n'a pas le droit d'écrire dans le fichier du journal ou dans son dossier. "
                u"Rien n'a été modifié.",
                u"Verdane may not write to the diary's file or to its folder. Nothing was changed."};
    case failure_kind::store_damaged:
        return {u"Le fichier du journal est endommagé ou n'est pas un journal de Verdane. Il n'a pas "
                u"été modifié : remettez en place une copie de sauvegarde.",
                u"The diary's file is damaged or is not a Verdane diary. It was not changed: put a "
                u"backup copy back in place."};
    case failure_kind::store_full:
        return {u"Il n'y a plus de place sur le disque. Libérez de l'espace, puis recommencez. Ce qui "
                u"était enregistré est intact.",
                u"There is no room left on the disk. Free some space, then start again. What was "
                u"saved is intact."};
    case failure_kind::store_unreachable:
        return {u"Le fichier du journal ne peut pas être ouvert. Rien n'a été modifié.",
                u"The diary's file cannot be opened. Nothing was changed."};
    case failure_kind::store_other:
        return {u"Le journal a refusé une opération. Ce qui était enregistré est intact.",
                u"The diary refused an operation. What was saved is intact."};
    default:
        break;
    }
    return {u"Verdane ne peut pas continuer.", u"Verdane cannot go on."};
}

}  // namespace

text_pair failure_words(failure_kind kind)
{
    switch (kind) {
    case failure_kind::overflow:
        return {u"Un nombre est devenu trop grand pour Verdane. Ce qui était enregistré est intact.",
                u"A number has grown too large for Verdane. What was saved is intact."};
    case failure_kind::subscript:
        return {u"Une liste de Verdane est pleine : elle ne peut contenir plus de 366 rondes ni plus "
                u"de 51 terrains et départs. Ce qui était enregistré est intact.",
                u"One of Verdane's lists is full: it holds no more than 366 rounds and 51 courses and "
                u"tees. What was saved is intact."};
    case failure_kind::invalid_null:
        return {u"Il manque une valeur dans le journal. Ce qui était enregistré est intact.",
                u"A value is missing in the diary. What was saved is intact."};
    case failure_kind::bad_number:
        return {u"Un texte n'est pas un nombre là où il en faut un. Ce qui était enregistré est "
                u"intact.",
                u"A text is no number where a number is needed. What was saved is intact."};
    case failure_kind::misuse:
        return {u"Verdane n'a pas trouvé ce qu'il cherchait dans le journal. Ce qui était enregistré "
                u"est intact.",
                u"Verdane did not find what it looked for in the diary. What was saved is intact."};
    case failure_kind::missing_table:
    case failure_kind::store_locked:
    case failure_kind::store_read_only:
    case failure_kind::store_damaged:
    case failure_kind::store_full:
    case failure_kind::store_unreachable:
    case failure_kind::store_other:
        return words_of_store(kind);
    case failure_kind::source_unknown:
    case failure_kind::source_driver:
    case failure_kind::source_password:
    case failure_kind::source_database:
    case failure_kind::source_stopped:
    case failure_kind::source_silent:
    case failure_kind::source_engine:
    case failure_kind::source_case:
    case failure_kind::source_table:
    case failure_kind::source_column:
    case failure_kind::source_type:
    case failure_kind::source_storage:
    case failure_kind::source_read_only:
    case failure_kind::source_full:
    case failure_kind::source_value:
    case failure_kind::source_part:
    case failure_kind::source_lost:
        return source_failure_words(kind);
    case failure_kind::report_template:
        return {u"Le modèle du rapport manque ou contient une erreur. Vos données sont intactes.",
                u"The report's template is missing or contains an error. Your data are intact."};
    case failure_kind::report_output:
        return {u"Le rapport n'a pas pu être écrit ou imprimé. Vos données sont intactes.",
                u"The report could not be written or printed. Your data are intact."};
    }
    return {u"Verdane ne peut pas continuer.", u"Verdane cannot go on."};
}

}  // namespace verdane
