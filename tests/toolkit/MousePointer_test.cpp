#include "toolkit/MousePointer.h"

#include <gtest/gtest.h>

namespace {

TEST(ProgramPointer, OverridesWindowPointersOnlyWhileSet) {
  toolkit::SetProgramPointer(toolkit::kPointerHourglass);
  EXPECT_TRUE(toolkit::ApplyProgramPointer());
  EXPECT_EQ(::GetCursor(), ::LoadCursorA(nullptr, IDC_WAIT));

  toolkit::SetProgramPointer(toolkit::kPointerIBeam);
  EXPECT_EQ(::GetCursor(), ::LoadCursorA(nullptr, IDC_IBEAM));

  toolkit::SetProgramPointer(toolkit::kPointerDefault);
  EXPECT_FALSE(toolkit::ApplyProgramPointer());
  EXPECT_NE(::GetCursor(), ::LoadCursorA(nullptr, IDC_WAIT));
}

}  // namespace
