// Echo of the data as they were understood, and the reader's own messages.
#pragma once

#include <string_view>

/// What takes a piece of an echo.
using and_routine_echo = void (*)(std::string_view);

/// Hands `lg` characters of a queue's text, from position `debut` on, to the routine in pieces of at most
/// `and_lg_envoi_echo` characters, cut at blanks. A final control code and the blank before it don't count.
void and_echo_chaine(and_routine_echo routine, int classe, int file, int debut, int lg);

/// One line of the listing.
void and_echo_donnees_analysees(std::string_view chaine);

/// One line of what led to an error, behind the heading that announces it the first time.
void and_echo_erreur(std::string_view chaine);

/// Source of the unit up to the error.
void and_echo_chaine_erronee();
/// The message of the error term.
void and_echo_message_erreur();
/// The term that an operation refused, and the operation's message.
void and_echo_terme_refuse();
void and_message_deterministe(std::string_view message);
/// The data end too early: the run stops with status 0.
void and_erreur_fin_fichier();
