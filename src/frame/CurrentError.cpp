#include "frame/CurrentError.h"

#include <utility>

namespace frame {
namespace {
// One user-interface thread, so one record.
RecordedError g_current;
}  // namespace

void RaiseError(long number, std::string description) {
  g_current.number = number;
  g_current.description = std::move(description);
}

void ClearError() {
  g_current = {};
}

const RecordedError& CurrentError() {
  return g_current;
}

}  // namespace frame
