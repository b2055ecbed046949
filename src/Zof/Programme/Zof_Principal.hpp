// The main line: arguments, names, files, command loop, end of the run.
#pragma once

#include <span>
#include <string_view>

#include "Systeme.hpp"

/// Runs the program on this machine; the arguments are those behind the program's name. Gives the exit
/// status: 0 for a normal end, 1 for an error, whatever the way out (10 for a fault of the reader's queues).
int zof_executer(std::span<const std::string_view> arguments, socle::systeme& machine);
