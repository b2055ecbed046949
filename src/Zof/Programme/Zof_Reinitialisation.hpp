// Fresh state of every module, at the start and at the end of a run.
#pragma once

void zof_reinitialiser();
