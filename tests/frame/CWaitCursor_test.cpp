#include "frame/CWaitCursor.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using frame::CWaitCursor;
using toolkit::ProgramPointer;

constexpr std::int16_t kHourglass = toolkit::kPointerHourglass;
constexpr std::int16_t kCross = toolkit::kPointerCross;

class CWaitCursorTest : public ::testing::Test {
 protected:
  void SetUp() override { toolkit::SetProgramPointer(toolkit::kPointerDefault); }
  void TearDown() override { toolkit::SetProgramPointer(toolkit::kPointerDefault); }
};

TEST_F(CWaitCursorTest, ShowsTheHourglassForTheLifeOfTheObject) {
  {
    CWaitCursor wait;
    wait.SetCursor(kHourglass);
    EXPECT_EQ(ProgramPointer(), kHourglass);
    EXPECT_EQ(::GetCursor(), ::LoadCursorA(nullptr, IDC_WAIT));
  }
  EXPECT_EQ(ProgramPointer(), toolkit::kPointerDefault);
}

TEST_F(CWaitCursorTest, AnObjectThatNeverSetsThePointerLeavesItAsItWas) {
  toolkit::SetProgramPointer(kCross);
  { CWaitCursor wait; }
  EXPECT_EQ(ProgramPointer(), kCross);
}

TEST_F(CWaitCursorTest, NestedObjectsRestoreInReverseOrder) {
  CWaitCursor outer;
  outer.SetCursor(kHourglass);
  {
    CWaitCursor inner;
    inner.SetCursor(kCross);
    EXPECT_EQ(ProgramPointer(), kCross);
  }
  EXPECT_EQ(ProgramPointer(), kHourglass);
  outer.Restore();
  outer.Restore();
  EXPECT_EQ(ProgramPointer(), toolkit::kPointerDefault);
}

TEST_F(CWaitCursorTest, LeavingEarlyThroughAnErrorRestoresThePointer) {
  try {
    CWaitCursor wait;
    wait.SetCursor(kHourglass);
    throw std::runtime_error("a step failed");
  } catch (const std::runtime_error&) {
  }
  EXPECT_EQ(ProgramPointer(), toolkit::kPointerDefault);
}

TEST_F(CWaitCursorTest, AValueBeyondSixteenBitsOverflowsAndChangesNothing) {
  CWaitCursor wait;
  wait.SetCursor(kHourglass);
  EXPECT_THROW(wait.SetCursor(70000), std::overflow_error);
  EXPECT_THROW(wait.SetCursor(-32769), std::overflow_error);
  EXPECT_EQ(ProgramPointer(), kHourglass);
  EXPECT_NO_THROW(wait.SetCursor(32767));
  EXPECT_NO_THROW(wait.SetCursor(-32768));
}

}  // namespace
