// Morvane on a display scaled to 150 %: Wine reads the prefix's LogPixels
// when a process starts, so the program started under the change sees 144 dpi.
#include <gtest/gtest.h>

#include "Harness.h"

namespace {

using namespace e2e;

constexpr DWORD kDpi = 144;
constexpr int kIcon = 48;     // the large icons at 144 dpi
constexpr int kRow = 7;       // icons in the list's first row
constexpr int kSpacing = 65;  // 43 px at 96 dpi
constexpr int kCell = 66;     // searched for each icon from its cell's corner
constexpr char kDesktop[] = "Control Panel\\Desktop";

// The scale while it lives; the tests' prefix has none of its own.
struct DisplayScale {
  explicit DisplayScale(DWORD dpi) {
    ::RegSetKeyValueA(HKEY_CURRENT_USER, kDesktop, "LogPixels", REG_DWORD, &dpi, sizeof dpi);
  }
  ~DisplayScale() { ::RegDeleteKeyValueA(HKEY_CURRENT_USER, kDesktop, "LogPixels"); }
};

TEST(Scale, At150PercentTheWindowGrowsAndItsListShowsEachIconWholeAt48Pixels) {
  MovePointer(nullptr, {0, 0});  // no icon under the pointer, none lit
  DisplayScale scale(kDpi);
  ProgramRun run;
  ASSERT_TRUE(run.Open(kRow));
  RECT client{};
  ::GetClientRect(run.main, &client);
  EXPECT_EQ(client.right, 866) << "8655 twips";
  // Each icon's opaque pixels: the same over black and over white. Its
  // half-clear edges blend in ways the test does not repeat.
  std::vector<std::vector<COLORREF>> opaque;
  for (int i = 0; i < kRow; ++i) {
    HICON icon = nullptr;
    UINT id = 0;
    ::PrivateExtractIconsA(run.File("iconos.dll").c_str(), i, kIcon, kIcon, &icon, &id, 1, 0);
    opaque.push_back(Pixels(kIcon, {}, icon, RGB(0, 0, 0)));
    const auto overWhite = Pixels(kIcon, {}, icon, RGB(255, 255, 255));
    for (int n = 0; n < kIcon * kIcon; ++n)
      if (opaque[i][n] != overWhite[n]) opaque[i][n] = CLR_INVALID;
    ::DestroyIcon(icon);
  }
  auto whole = [&](int i) {  // somewhere in its cell, every opaque pixel as drawn
    POINT corner{i * kSpacing, 0};
    ::ClientToScreen(run.Element(ids::kIconList), &corner);
    const auto cell = Pixels(kCell, corner);
    for (int dy = 0; dy + kIcon <= kCell; ++dy)
      for (int dx = 0, n = 0; dx + kIcon <= kCell; ++dx, n = 0) {
        while (n < kIcon * kIcon &&
               (opaque[i][n] == CLR_INVALID ||
                cell[(dy + n / kIcon) * kCell + dx + n % kIcon] == opaque[i][n]))
          ++n;
        if (n == kIcon * kIcon) return true;
      }
    return false;
  };
  int i = 0;  // the first icon not shown whole
  EXPECT_TRUE(WaitUntil(
      [&] {
        for (i = 0; i < kRow; ++i)
          if (!whole(i)) return false;
        return true;
      },
      10s))
      << "icon " << i + 1;
  EXPECT_TRUE(run.Close());
}

}  // namespace
