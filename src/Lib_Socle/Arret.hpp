// The end of a run, from wherever it comes.
#pragma once

namespace socle {

/// What unwinds a run that has ended, so that its files are flushed and a process of tests lives on.
/// Not an error: errors are flags and codes. Caught by the driver alone.
struct arret {
  int statut;
};

/// Ends the run with this exit status.
[[noreturn]] void arreter(int statut);

}  // namespace socle
