#include "frame/CWaitCursor.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using frame::CWaitCursor;
using toolkit::kPointerCross;
using toolkit::kPointerDefault;
using toolkit::kPointerHourglass;
using toolkit::ProgramPointer;

class CWaitCursorTest : public ::testing::Test {
 protected:
  void SetUp() override { toolkit::SetProgramPointer(kPointerDefault); }
  void TearDown() override { toolkit::SetProgramPointer(kPointerDefault); }
};

TEST_F(CWaitCursorTest, EachObjectRestoresWhatItFoundInReverseOrder) {
  toolkit::SetProgramPointer(kPointerCross);
  { CWaitCursor untouched; }
  EXPECT_EQ(ProgramPointer(), kPointerCross);
  toolkit::SetProgramPointer(kPointerDefault);

  CWaitCursor outer;
  outer.SetCursor(kPointerHourglass);
  EXPECT_EQ(::GetCursor(), ::LoadCursorA(nullptr, IDC_WAIT));
  {
    CWaitCursor inner;
    inner.SetCursor(kPointerCross);
    EXPECT_EQ(ProgramPointer(), kPointerCross);
  }
  EXPECT_EQ(ProgramPointer(), kPointerHourglass);
  outer.Restore();
  outer.Restore();
  EXPECT_EQ(ProgramPointer(), kPointerDefault);
}

TEST_F(CWaitCursorTest, AnErrorLeavesThePointerAsItWas) {
  CWaitCursor wait;
  wait.SetCursor(kPointerHourglass);
  EXPECT_THROW(wait.SetCursor(70000), std::overflow_error);
  EXPECT_THROW(wait.SetCursor(-32769), std::overflow_error);
  EXPECT_EQ(ProgramPointer(), kPointerHourglass);

  try {
    CWaitCursor leftEarly;
    leftEarly.SetCursor(kPointerCross);
    throw std::runtime_error("a step failed");
  } catch (const std::runtime_error&) {
  }
  EXPECT_EQ(ProgramPointer(), kPointerHourglass);
}

}  // namespace
