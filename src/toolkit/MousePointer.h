// The program-wide mouse pointer: while it is not kDefault it overrides the
// pointer of every window of the program (their WM_SETCURSOR handlers ask
// ApplyProgramPointer first).
#pragma once

#include <windows.h>

#include <cstdint>

namespace toolkit {

enum MousePointerShape : std::int16_t {
  kPointerDefault = 0,  // each window shows its own pointer
  kPointerArrow = 1,
  kPointerCross = 2,
  kPointerIBeam = 3,
  kPointerSizeAll = 5,
  kPointerSizeNESW = 6,
  kPointerSizeNS = 7,
  kPointerSizeNWSE = 8,
  kPointerSizeWE = 9,
  kPointerUpArrow = 10,
  kPointerHourglass = 11,
  kPointerNoDrop = 12,
  kPointerArrowHourglass = 13,
  kPointerArrowQuestion = 14,
  kPointerSizeAllArrows = 15,
};

std::int16_t ProgramPointer();
void SetProgramPointer(std::int16_t shape);

// For WM_SETCURSOR: shows the program-wide pointer and returns true when one
// is set; false lets the window choose its own.
bool ApplyProgramPointer();

}  // namespace toolkit
