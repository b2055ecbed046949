// Directed lists: nested loops that write terms.
//   < < < (10 * I + J) > I = 1 A 3 > J = 1 A 2 >
// One "<" more than there are variables, as many as there are ">". The pattern is written out once for each
// combination of values, the last variable running slowest; line ends in it stay, so that a loop can write
// whole commands.
#pragma once

/// Reads the whole construct behind its first "<": the pattern into PREFILE 1, the values of the variables
/// into PREFILE 2 and up, each with its ">". false after an error term in FILE 1.
bool and_acquisition_liste_dirigee();

/// Writes the terms of the construct that was read into FILE 1.
void and_evaluation_liste_dirigee();
