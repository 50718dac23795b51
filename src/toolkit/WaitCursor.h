// Shows a busy pointer for as long as one object lives. Objects nest: each
// restores the program-wide pointer it found when it was created.
#pragma once

#include <cstdint>

#include "toolkit/MousePointer.h"

namespace toolkit {

class WaitCursor {
 public:
  WaitCursor();
  ~WaitCursor();
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;

  // Throws std::overflow_error, leaving the pointer unchanged, for a value
  // that is not a 16-bit pointer shape.
  void SetPointer(std::int32_t shape = kPointerHourglass);
  void Restore();

 private:
  std::int32_t saved_;
};

}  // namespace toolkit
