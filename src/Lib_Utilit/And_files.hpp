// Queues of terms, below the reader and the data language. A queue is addressed by class and number:
//   class 1 "LISTE"    1 SORTIE (finished terms of the phrase), 2 VARIABLE, 3 OPERANDE
//   class 2 "PREFILE"  1 to 10: source terms as they were read
//   class 3 "FILE"     1 to 10: results of the data language, series still compressed
// Class 0 is the data file itself: reading from class 0, number k, appends the term to PREFILE k.
//
// The term taken becomes the current term of `and_global`; on an empty queue its type is fin_file.
#pragma once

#include <string_view>

/// Appends the current term. In LISTE 1 a number without text gets one first. A full queue makes the current
/// term one of type erreur_capacite, and counts as full from then on.
void and_ecriture(int classe, int file);

/// Appends the current term, an error, to FILE `file` and makes room for it if there is none: values at the
/// tail are lost for it, for who reads the queue must find it. An error that stands there already is enough.
void and_ecriture_erreur(int file);

/// Takes a term out: from the head (mode 1), where a series is given value by value, or from the tail (mode
/// -1), where entries are given as they stand.
void and_lecture(int classe, int file, int mode);

/// Reads without taking out. mode 1: places the reading at the first term; -1: at the last; above 1: at that
/// rank; 0: serves the term at the reading position and moves on, fin_file when there is none or no reading
/// is in progress. On class 0 every mode reads.
void and_consulter(int classe, int file, int mode);

/// The term consulted last will be served again by `and_consulter` with mode 0; on class 0, number 1, the
/// last term read, which leaves its PREFILE until then.
void and_reconsulter(int classe, int file);

/// Empties a queue.
void and_initialiser_structure(int classe, int file);

[[nodiscard]] int and_nb_termes(int classe, int file);
/// Rank of the next term to consult, from 1; -1: no reading in progress.
[[nodiscard]] int and_position_lecture(int classe, int file);

/// "LISTE", "PREFILE", "FILE".
[[nodiscard]] std::string_view and_nom_classe(int classe);
/// All characters of a queue: its terms, each behind one blank.
[[nodiscard]] std::string_view and_texte_file(int classe, int file);

/// Builds the table of the queues and their room, once; `and_vider_files` empties all but LISTE 2 (the
/// variables).
void and_construire_files();
void and_vider_files();

/// Gives a number without text its text: I11, G14.7 or D24.14 without blanks, at most three zeros at its end.
void and_formater_terme();

/// The current term as fin_file of this queue.
void and_terme_fin_file(int classe, int file);
