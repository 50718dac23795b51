// The program's "current error": routines that step over failures record the
// last one here instead of stopping, and callers look at their results.
// Tests and diagnostics read it; nothing shows it to the user.
#pragma once

#include <string>

namespace frame {

struct RecordedError {
  long number = 0;  // 0 = no error
  std::string description;
};

void RaiseError(long number, std::string description);
void ClearError();
const RecordedError& CurrentError();

// Error numbers used by the program.
inline constexpr long kErrDllLoad = 48;
inline constexpr long kErrFileExists = 58;
inline constexpr long kErrResourceNotFound = 326;
inline constexpr long kErrInvalidPicture = 481;
inline constexpr long kErrResourceLoad = 31037;

}  // namespace frame
