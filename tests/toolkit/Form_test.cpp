#include "toolkit/Form.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "toolkit/MessageLoop.h"
#include "toolkit/Screen.h"

namespace {

using toolkit::Form;
using toolkit::MouseEvent;
using toolkit::TwipsRect;
using Log = std::vector<std::string>;

constexpr int kTimerId = 1;

// Records its events; a test form with two labels of one pair.
class RecordingForm : public Form {
 public:
  RecordingForm() : Form("frmTest", 3000, 1500) {}
  Log log;
  std::int16_t refuse = 0;
  std::function<void()> onTick;

 protected:
  void CreateElements() override {
    log.push_back("create");
    for (int index : {0, 1}) {
      toolkit::Label& label = AddLabel("lblPair", index, TwipsRect{150, 150, 1500, 600});
      label.SetCaption("MMMM");
      label.SetFontSize(20);
      label.SetFontBold(true);
      label.SetForeColor(index == 0 ? RGB(255, 0, 0) : RGB(0, 255, 0));
      label.mouse.onMouseDown = [this, index](const MouseEvent&) { Add("label down", index); };
      label.mouse.onClick = [this, index] { Add("label click", index); };
      label.mouse.onDblClick = [this, index] { Add("label dblclick", index); };
    }
    if (onTick) AddTimer(kTimerId, 20, onTick);
  }
  void OnLoad() override { log.push_back(Visible() ? "load visible" : "load hidden"); }
  void OnQueryUnload(std::int16_t& cancel, toolkit::UnloadMode mode) override {
    log.push_back("query " + std::to_string(mode));
    cancel = refuse;
  }
  void OnUnload() override { log.push_back("unload"); }
  void OnMouseDown(const MouseEvent& e) override { Add("form down", e.button); }
  void OnMouseUp(const MouseEvent&) override { log.push_back("form up"); }
  void OnClick() override { log.push_back("form click"); }
  void OnDblClick() override { log.push_back("form dblclick"); }

 private:
  void Add(const std::string& what, int n) { log.push_back(what + " " + std::to_string(n)); }
};

LPARAM At(int x, int y) {
  return MAKELPARAM(x, y);
}

TEST(Form, LoadsHiddenThenUnloadsAfterAskingAndCanRefuse) {
  RecordingForm form;
  form.Load();
  EXPECT_TRUE(form.Loaded());
  EXPECT_TRUE(toolkit::IsWindowLoaded(&form));
  EXPECT_NE(form.Find("lblPair", 1), nullptr);

  form.refuse = 100;
  ::SendMessageA(form.Hwnd(), WM_CLOSE, 0, 0);
  EXPECT_TRUE(form.Loaded()) << "a refused close leaves the form loaded";

  form.refuse = 0;
  form.Unload();
  EXPECT_FALSE(form.Loaded());
  EXPECT_FALSE(toolkit::IsWindowLoaded(&form));
  EXPECT_EQ(form.Find("lblPair", 0), nullptr) << "elements go with the window";
  EXPECT_EQ(form.log, (Log{"create", "load hidden", "query 0", "query 1", "unload"}));

  form.Load();  // a form can be loaded again, afresh
  EXPECT_NE(form.Find("lblPair", 0), nullptr);
}

TEST(Form, PlacesItselfAndItsElementsInTwips) {
  RecordingForm form;
  form.Load();
  const int tppX = toolkit::Screen::TwipsPerPixelX(), tppY = toolkit::Screen::TwipsPerPixelY();
  form.Move(100 * tppX, 50 * tppY);
  RECT outer{};
  ::GetWindowRect(form.Hwnd(), &outer);
  EXPECT_EQ(outer.left, 100);
  EXPECT_EQ(outer.top, 50);
  EXPECT_EQ(outer.right - outer.left, toolkit::Screen::TwipsToPixelsX(3000));
  EXPECT_EQ(form.Left(), 100 * tppX);

  auto* label = dynamic_cast<toolkit::Label*>(form.Find("lblPair", 0));
  ASSERT_NE(label, nullptr);
  EXPECT_EQ(label->Bounds().left, toolkit::Screen::TwipsToPixelsX(150));
  EXPECT_EQ(form.ScaleX(2), 2 * tppX);
  form.SetScaleMode(toolkit::ScaleMode::kPixels);
  EXPECT_EQ(form.ScaleX(2), 2);
}

TEST(Form, DrawsTheSecondLabelOfAPairInFront) {
  RecordingForm form;
  form.Show();
  form.Move(0, 0);
  toolkit::DoEvents();
  ::UpdateWindow(form.Hwnd());
  HDC dc = ::GetDC(form.Hwnd());
  int red = 0, green = 0;
  for (int y = 10; y < 50; ++y) {
    for (int x = 10; x < 110; ++x) {
      COLORREF pixel = ::GetPixel(dc, x, y);
      red += pixel == RGB(255, 0, 0);
      green += pixel == RGB(0, 255, 0);
    }
  }
  ::ReleaseDC(form.Hwnd(), dc);
  EXPECT_GT(green, 50) << "the caption was drawn";
  EXPECT_EQ(red, 0) << "index 1 covers index 0 wherever both draw";
}

TEST(Form, RoutesMouseEventsToTheLabelInFrontOrToTheForm) {
  RecordingForm form;
  form.Load();
  form.log.clear();
  HWND window = form.Hwnd();
  ::SendMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON, At(20, 20));
  ::SendMessageA(window, WM_LBUTTONUP, 0, At(20, 20));
  ::SendMessageA(window, WM_LBUTTONDBLCLK, MK_LBUTTON, At(20, 20));
  ::SendMessageA(window, WM_RBUTTONDOWN, MK_RBUTTON, At(190, 90));
  ::SendMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON, At(190, 90));
  ::SendMessageA(window, WM_LBUTTONUP, 0, At(190, 90));
  ::SendMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON, At(190, 90));
  ::SendMessageA(window, WM_LBUTTONUP, 0, At(20, 20));  // released elsewhere: no click
  EXPECT_EQ(form.log, (Log{"label down 1", "label click 1", "label dblclick 1", "form down 2",
                           "form down 1", "form up", "form click", "form down 1"}));
}

TEST(Form, TimersTickWhileLoadedOnly) {
  RecordingForm form;
  int ticks = 0;
  form.onTick = [&ticks] { ++ticks; };
  form.Load();
  DWORD until = ::GetTickCount() + 300;
  while (::GetTickCount() < until) toolkit::DoEvents();
  EXPECT_GE(ticks, 3);
  form.Unload();
  int atUnload = ticks;
  until = ::GetTickCount() + 100;
  while (::GetTickCount() < until) toolkit::DoEvents();
  EXPECT_EQ(ticks, atUnload);
}

TEST(Form, AModalFormHoldsTheCallerAndDisablesTheOtherWindows) {
  RecordingForm owner;
  owner.Show();
  RecordingForm modal;
  bool ownerWasDisabled = false;
  int ticks = 0;
  modal.onTick = [&] {
    ownerWasDisabled = !::IsWindowEnabled(owner.Hwnd());
    if (++ticks == 3) modal.Hide();
  };
  modal.ShowModal();
  EXPECT_EQ(ticks, 3);
  EXPECT_TRUE(ownerWasDisabled);
  EXPECT_TRUE(::IsWindowEnabled(owner.Hwnd()));
}

}  // namespace
