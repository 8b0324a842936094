// What a process holds of Windows, counted, so that a test sees what is left behind.
#pragma once

#include <cstddef>
#include <ostream>

struct CHoldings {
  int windows;       // and menus
  int drawing;       // GDI objects: bitmaps, fonts, device contexts
  int handles;       // kernel handles: files, events, threads
  std::size_t heap;  // bytes in use in every heap
};

// Windows counts for us; where it answers 0, as Wine 8 does, every possible handle is tried.
CHoldings Holdings();

// Lets the system make more drawing contexts than dialogs ever need at once: it keeps those it has
// made, and how many that are depends on what happens to be painted at the same time.
void FillStockOfDrawingContexts();

// Fails the test unless a new object of each kind is counted: a count that sees nothing would let
// every leak pass.
void ExpectCountsSeeNewObjects();

std::ostream& operator<<(std::ostream& out, const CHoldings& holdings);
