// Operations of expressions, on the operands that wait in LISTE OPERANDE.
//
// The type of a result is the greater of the two types: integer, single, double, string. An integer meets a
// real as a single, whatever the real; the quotient of two integers is worked out in single precision and
// truncated. Integers wrap modulo 2^32 in + - * and **.
#pragma once

#include "And_global.hpp"

/// Carries out the operator on the two last operands, which its result replaces. false, with and_message, for
/// a string in any operation but string + string and string + integer, and where there is no finite result
/// that fits its type.
bool and_action_operation(int operateur);

/// A number in a greater type: an integer becomes a single first, a single a double.
void and_convertir(and_terme_t& nombre, type_terme type);

/// Whether a real fits the integers once it is truncated.
bool and_tient_dans_un_entier(double v);

/// x ** n modulo 2^32. For n < 0: 1 for x = 1, 1 or -1 for x = -1, 0 beyond; false for x = 0.
bool and_puissance_entiere(int x, int n, int& resultat);
