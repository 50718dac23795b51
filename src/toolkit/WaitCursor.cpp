#include "toolkit/WaitCursor.h"

#include <limits>
#include <stdexcept>

namespace toolkit {

WaitCursor::WaitCursor() : saved_(ProgramPointer()) {}

WaitCursor::~WaitCursor() {
  Restore();
}

void WaitCursor::SetPointer(std::int32_t shape) {
  if (shape < std::numeric_limits<std::int16_t>::min() ||
      shape > std::numeric_limits<std::int16_t>::max()) {
    throw std::overflow_error("Overflow");
  }
  SetProgramPointer(static_cast<std::int16_t>(shape));
}

// The saved value came from ProgramPointer, so it always fits.
void WaitCursor::Restore() {
  SetProgramPointer(static_cast<std::int16_t>(saved_));
}

}  // namespace toolkit
