// The data language: what stands between the terms of the data file and the finished terms of the commands.
#pragma once

/// Analyses the next syntactic unit of the data file and appends the result to FILE 1: a term, or a signed
/// number as one term, up to a delimiter, the end of the file or an error term. Faults become error terms.
void and_analyse_unite_syntaxique();

/// `and_message` as a term of type erreur_syntaxe in FILE `niveau`; with `and_autre_erreur` the current term,
/// itself an error, is appended first.
void and_traitement_erreur(int niveau, bool and_autre_erreur);
