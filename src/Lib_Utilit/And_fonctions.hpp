// Functions of expressions.
#pragma once

/// Calls the function whose name and arguments stand last in LISTE OPERANDE; its result replaces them. false,
/// with and_message, for an unknown name, arguments that it doesn't take, and a result that isn't finite or
/// doesn't fit its type.
bool and_action_fonction(int nb_arguments);

/// Point of a clothoid: `a` its parameter, `r` the radius where abscissae begin (its sign is that of the
/// turn), `s` the curvilinear abscissa; x along the tangent there, y to its left. By the series of the
/// Fresnel integrals, to 1E-6. `erreur`: `a` or |r| not above 1E-6, or more than ten terms.
void clotho(double a, double r, double s, double& x, double& y, bool& erreur);
