// Morvane on a display scaled to 150 %: Wine reads the prefix's LogPixels
// when a process starts, so the program started under the change sees 144 dpi.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <vector>

#include "Harness.h"

namespace {

using namespace e2e;

constexpr DWORD kDpi = 144;
constexpr int kIconSize = 48;  // the large icons at 144 dpi
constexpr int kRowIcons = 7;   // the first row of the list at 150 %
constexpr int kSpacing = 65;   // between icons: 43 px at 96 dpi
constexpr int kCells = 66;     // room searched for each icon from its cell's corner
constexpr char kDesktopKey[] = "Control Panel\\Desktop";

// The prefix's display scale for programs started while it lives; the value
// it had comes back at the end, so that other tests run at 96 dpi.
class DisplayScale {
 public:
  explicit DisplayScale(DWORD dpi) {
    ::RegCreateKeyExA(HKEY_CURRENT_USER, kDesktopKey, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key_,
                      nullptr);
    DWORD size = sizeof old_;
    had_ = ::RegQueryValueExA(key_, "LogPixels", nullptr, nullptr, reinterpret_cast<BYTE*>(&old_),
                              &size) == ERROR_SUCCESS;
    Set(dpi);
  }
  ~DisplayScale() {
    if (had_)
      Set(old_);
    else
      ::RegDeleteValueA(key_, "LogPixels");
    ::RegCloseKey(key_);
  }

 private:
  void Set(DWORD dpi) {
    ::RegSetValueExA(key_, "LogPixels", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&dpi),
                     sizeof dpi);
  }
  HKEY key_ = nullptr;
  DWORD old_ = 0;
  bool had_ = false;
};

// Pixels of a screen area, or of an icon drawn over `back`, row by row.
std::vector<COLORREF> Pixels(const RECT& screenArea, HICON icon, COLORREF back) {
  const int w = screenArea.right - screenArea.left, h = screenArea.bottom - screenArea.top;
  BITMAPINFO info{{sizeof(BITMAPINFOHEADER), w, -h, 1, 32, BI_RGB, 0, 0, 0, 0, 0}, {}};
  void* bits = nullptr;
  HDC screen = ::GetDC(nullptr), memory = ::CreateCompatibleDC(screen);
  HBITMAP bitmap = ::CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  HGDIOBJ old = ::SelectObject(memory, bitmap);
  if (icon) {
    ::SetDCBrushColor(memory, back);
    const RECT all{0, 0, w, h};
    ::FillRect(memory, &all, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
    ::DrawIconEx(memory, 0, 0, icon, 0, 0, 0, nullptr, DI_NORMAL);
  } else {
    ::BitBlt(memory, 0, 0, w, h, screen, screenArea.left, screenArea.top, SRCCOPY);
  }
  ::GdiFlush();
  const auto* first = static_cast<const COLORREF*>(bits);
  std::vector<COLORREF> pixels(first, first + w * h);
  for (COLORREF& pixel : pixels) pixel &= 0xffffff;  // without the alpha byte
  ::DeleteObject(::SelectObject(memory, old));
  ::DeleteDC(memory);
  ::ReleaseDC(nullptr, screen);
  return pixels;
}

// An icon drawn over black and over white: where both agree it is opaque,
// where both show the background it is clear. Its half-clear edge pixels
// blend in ways the test does not repeat, and are not compared.
struct IconLook {
  std::vector<COLORREF> overBlack, overWhite;
};

// Whether the cell shows all of the icon, each opaque pixel as it is and each
// clear one as the list's background `back`, anywhere in the cell.
bool ShowsWhole(const std::vector<COLORREF>& cell, const IconLook& icon, COLORREF back) {
  auto matches = [&](int at, int n) {
    const COLORREF black = icon.overBlack[n], white = icon.overWhite[n];
    if (black == white) return cell[at] == black;
    return black != 0 || white != 0xffffff || cell[at] == back;
  };
  for (int dy = 0; dy + kIconSize <= kCells; ++dy)
    for (int dx = 0; dx + kIconSize <= kCells; ++dx) {
      bool same = true;
      for (int n = 0; n < kIconSize * kIconSize && same; ++n)
        same = matches((dy + n / kIconSize) * kCells + dx + n % kIconSize, n);
      if (same) return true;
    }
  return false;
}

TEST(Scale, At150PercentTheWindowGrowsAndTheListShowsEachIconWholeAtItsOwn48Pixels) {
  MovePointer(nullptr, {0, 0});  // no icon under the pointer, none lit
  DisplayScale scale(kDpi);
  ProgramRun run;
  ASSERT_TRUE(run.Open(kRowIcons));
  RECT client{}, preview{};
  ::GetClientRect(run.main, &client);
  ::GetClientRect(run.Element(ids::kPreview), &preview);
  EXPECT_EQ(client.right, 866) << "8655 twips";
  EXPECT_EQ(preview.right, kIconSize);

  HWND list = run.Element(ids::kIconList);
  const COLORREF set = static_cast<COLORREF>(::SendMessageA(list, LVM_GETBKCOLOR, 0, 0));
  const COLORREF back = RGB(GetBValue(set), GetGValue(set), GetRValue(set));  // as a DIB holds it
  const std::string library = run.File("iconos.dll");
  std::vector<IconLook> looks;
  for (int position = 1; position <= kRowIcons; ++position) {
    HICON icon = nullptr;
    UINT id = 0;
    ::PrivateExtractIconsA(library.c_str(), position - 1, kIconSize, kIconSize, &icon, &id, 1, 0);
    const RECT square{0, 0, kIconSize, kIconSize};
    looks.push_back({Pixels(square, icon, RGB(0, 0, 0)), Pixels(square, icon, RGB(255, 255, 255))});
    ::DestroyIcon(icon);
  }
  int position = 0;  // the first icon not shown whole
  EXPECT_TRUE(WaitUntil(
      [&] {
        for (position = 1; position <= kRowIcons; ++position) {
          POINT corner{(position - 1) * kSpacing, 0};
          ::ClientToScreen(list, &corner);
          const RECT cell{corner.x, corner.y, corner.x + kCells, corner.y + kCells};
          if (!ShowsWhole(Pixels(cell, nullptr, 0), looks[position - 1], back)) return false;
        }
        return true;
      },
      10s))
      << "icon " << position;
  EXPECT_TRUE(run.Close());
}

}  // namespace
