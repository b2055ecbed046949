// The data language: what stands between the terms of the data file and the finished terms of the commands.
// Numbers may be written as expressions, variables, repetitions, series and nested loops; what comes out are
// plain terms in FILE 1. Every fault becomes an error term there, and the reader announces the first one.
#pragma once

/// Outcome of a part of the language: on a failure its error terms stand in the FILE.
enum class and_resultat : int { echec = 1, une_valeur = 2, plusieurs = 3 };

/// Analyses the next syntactic unit of the data file and appends the result to FILE 1: a list term, the
/// values of a directed list, nothing for an assignment, or a delimiter, the end of the file or an error
/// term.
void and_analyse_unite_syntaxique();

/// `and_message` as a term of type erreur_syntaxe in FILE `niveau`; with `and_autre_erreur` the current term,
/// itself an error, is appended first.
void and_traitement_erreur(int niveau, bool and_autre_erreur);

/// `and_message` as a term of type erreur_capacite with this code in FILE `niveau`; with `niveau` 0 the
/// current term becomes that error, and goes into no queue.
void and_traitement_depassement(int niveau, int code);

/// A FILE that is full in the middle of a list.
and_resultat and_depassement_liste(int niveau);
