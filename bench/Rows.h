// What is measured, one function for each row of the table. Each works in the thread's apartment.
#pragma once

#include <cstddef>

#include "bench/Measure.h"

namespace nv::bench {

// The object (Interface.cpp)
Comparison vtablePut();
Comparison vtableGet();
Comparison lateBoundPut();
Comparison lateBoundGet();
Comparison classCreation();
/// An object for one late-bound put, the only one of its DLL.
Comparison briefUse();
Comparison traceLine();

// The DLL (Library.cpp)
Comparison firstCreation();
Comparison libraryLoad();
/// Not seconds but bytes: of the stripped DLL, and the most that it may have. Fails when the DLL imports what the
/// system does not bring.
Comparison librarySize();

// The dialog on the screen (Dialog.cpp)
Comparison firstOpening();
Comparison nextOpening();
Comparison embeddedOpening();
/// The embedded dialog and its open country list.
Comparison countryList(std::size_t rows);
/// A letter typed into the open country list.
Comparison letterInOpenList();
Comparison keystroke();
Comparison acceptance();
/// Bytes of the process's heaps.
Comparison dialogMemory();
Comparison objectMemory();

// The rules alone (Rules.cpp)
Comparison mailCheck();
Comparison switchedOffTrace();
Comparison countryFile(std::size_t rows);
/// Per row: a file of 100,000 rows beside one of 10,000.
Comparison countryFileGrowth();

/// What only the first of a process can show.
struct Alone {
  const wchar_t* option;  // of a nvbench that does this and ends
  double (*measure)();    // in seconds
};
extern const Alone openDialog, openPlainDialog;      // Dialog.cpp
extern const Alone createByClass, loadLibraryAlone;  // Library.cpp
/// Measures it in a process of its own.
double elsewhere(const Alone& alone);

}  // namespace nv::bench
