// One term from the data file: a lexeme, classified, with the value of its number.
#pragma once

/// Reads the next term of the data file; unless it is an error, it is appended to PREFILE `file`.
void and_lecture_unite(int file);
