// Shows a busy pointer for as long as one object lives. Objects nest: each
// restores the program-wide pointer it found when it was created.
#pragma once

#include <cstdint>

#include "toolkit/MousePointer.h"

namespace frame {

class CWaitCursor {
 public:
  CWaitCursor();
  ~CWaitCursor();
  CWaitCursor(const CWaitCursor&) = delete;
  CWaitCursor& operator=(const CWaitCursor&) = delete;

  // Throws std::overflow_error, leaving the pointer unchanged, for a value
  // that is not a 16-bit pointer shape.
  void SetCursor(std::int32_t nPointer = toolkit::kPointerHourglass);
  void Restore();

 private:
  std::int32_t saved_;
};

}  // namespace frame
