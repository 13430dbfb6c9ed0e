// What is measured, one function for each row of the table. Each works in the thread's apartment.
#pragma once

#include <cstddef>

#include "bench/Measure.h"

namespace nv::bench {

// The object (Interface.cpp)
Medians vtablePut();
Medians vtableGet();
Medians lateBoundPut();
Medians lateBoundGet();
Medians classCreation();
/// An object for one late-bound put, the only one of its DLL.
Medians briefUse();
Medians traceLine();
Medians switchedOffTrace();

// The DLL (Library.cpp)
Medians libraryLoad();
/// Not seconds but bytes: of the stripped DLL, and the most that it may have. Fails when the DLL imports what the
/// system does not bring.
Medians librarySize();

// The dialog on the screen (Dialog.cpp)
Medians firstOpening();
Medians nextOpening();
Medians embeddedOpening();
Medians keystroke();
Medians acceptance();
/// What a process of its own does for `firstOpening`: opens one side's dialog once.
/// @return how long that took, in microseconds.
int openOnce(bool bare);

// The rules alone (Rules.cpp)
Medians mailCheck();
Medians switchedOffTraceOfAcceptance();
Medians countryFile(std::size_t rows);
Medians countryFileBesideItsBytes();
/// Per row: a file of 100,000 rows beside one of 10,000.
Medians countryFileGrowth();

}  // namespace nv::bench
