#include "frame/CWaitCursor.h"

#include <limits>
#include <stdexcept>

namespace frame {

CWaitCursor::CWaitCursor() : saved_(toolkit::ProgramPointer()) {}

CWaitCursor::~CWaitCursor() {
  Restore();
}

void CWaitCursor::SetCursor(std::int32_t nPointer) {
  if (nPointer < std::numeric_limits<std::int16_t>::min() ||
      nPointer > std::numeric_limits<std::int16_t>::max()) {
    throw std::overflow_error("Overflow");
  }
  toolkit::SetProgramPointer(static_cast<std::int16_t>(nPointer));
}

// The saved value came from ProgramPointer, so it always fits.
void CWaitCursor::Restore() {
  toolkit::SetProgramPointer(static_cast<std::int16_t>(saved_));
}

}  // namespace frame
