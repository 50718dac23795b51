#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/Pixels.h"
#include "toolkit/Form.h"
#include "toolkit/MessageLoop.h"

namespace {

using testing_support::SolidPicture;
using toolkit::Form;
using toolkit::TwipsRect;
using Log = std::vector<std::string>;

constexpr COLORREF kMask = RGB(255, 0, 255);

class ControlsForm : public Form {
 public:
  ControlsForm() : Form("frmControls", 6000, 4500) {}
  toolkit::TextBox* text = nullptr;
  toolkit::ComboBox* combo = nullptr;
  toolkit::ListView* list = nullptr;
  toolkit::ImageList* images = nullptr;
  Log log;

 protected:
  void CreateElements() override {
    text = &AddTextBox("txtInfo", TwipsRect{150, 150, 3000, 1200}, 10,
                       toolkit::TextBox::Lines::kMultiple);
    combo = &AddComboBox("cboRecent", TwipsRect{150, 1500, 3000, 315}, 11, 5);
    list = &AddListView("lvwIcons", TwipsRect{3300, 150, 2500, 3000}, 12);
    images = &AddImageList("img32", 32, 32);
    text->onKeyPress = [this](char c) { log.push_back(std::string("key ") + c); };
    text->onChange = [this] { log.push_back("change " + text->Text()); };
    text->mouse.onMouseMove = [this](const toolkit::MouseEvent&) { log.push_back("text move"); };
    combo->onClick = [this] { log.push_back("choose " + combo->Text()); };
  }
};

class ControlsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    form_.Show();
    form_.log.clear();
  }
  void FillList(int images, int items) {
    form_.images->SetMaskColor(kMask);
    for (int i = 0; i < images; ++i) {
      form_.images->Add("c" + std::to_string(i), SolidPicture(32, 32, RGB(0, 0, 40 * i)));
    }
    form_.list->SetIcons(form_.images);
    for (int j = 1; j <= items; ++j) form_.list->AddItem("a" + std::to_string(j), "", j);
  }
  ControlsForm form_;
};

TEST_F(ControlsTest, TextBoxReportsTypingAndKeepsLineBreaks) {
  ::SendMessageA(form_.text->Hwnd(), WM_CHAR, 'x', 1);
  form_.text->SetText("one\r\ntwo");
  EXPECT_EQ(form_.text->Text(), "one\r\ntwo");
  ::SendMessageA(form_.text->Hwnd(), WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));
  EXPECT_EQ(form_.log, (Log{"key x", "change x", "text move"}));
}

TEST_F(ControlsTest, ComboBoxRaisesItsChooseEventAlsoWhenTheProgramChooses) {
  for (const char* line : {"c:\\a.ico", "", "c:\\b.dll"}) form_.combo->AddItem(line);
  EXPECT_EQ(form_.combo->ListCount(), 3);
  EXPECT_EQ(form_.combo->ListIndex(), -1);
  EXPECT_EQ(form_.combo->Text(), "");
  form_.combo->SetListIndex(2);
  form_.combo->SetListIndex(1);
  EXPECT_EQ(form_.log, (Log{"choose c:\\b.dll", "choose "}));
  form_.combo->Clear();
  EXPECT_EQ(form_.combo->ListCount(), 0);
}

TEST_F(ControlsTest, ListViewRefusesItemsWithoutImagesOrWithTakenKeys) {
  FillList(3, 3);
  EXPECT_THROW(form_.list->AddItem("a4", "", 4), toolkit::ElementError);
  EXPECT_THROW(form_.list->AddItem("a1", "", 1), toolkit::ElementError);
  EXPECT_EQ(form_.list->Count(), 3);
  EXPECT_EQ(form_.images->IndexOf("c2"), 3);
  EXPECT_THROW(form_.images->Add("c2", SolidPicture(32, 32, 0)), toolkit::ElementError);

  form_.list->Select(2);
  EXPECT_EQ(form_.list->SelectedIndex(), 2);
  form_.list->SetIcons(nullptr);
  EXPECT_EQ(::SendMessageA(form_.list->Hwnd(), LVM_GETIMAGELIST, LVSIL_NORMAL, 0), 0);
  form_.list->Clear();
  form_.images->Clear();
  EXPECT_EQ(form_.list->Count(), 0);
  EXPECT_EQ(form_.images->Count(), 0);
  EXPECT_EQ(form_.images->IndexOf("c0"), 0);
}

TEST_F(ControlsTest, ItemsAddedInABatchAreShownAndScrollTogether) {
  constexpr int kItems = 60;  // many more than the list shows at once
  form_.images->Reserve(kItems);
  FillList(kItems, 0);
  {
    toolkit::ListView::ItemBatch batch(*form_.list);
    for (int j = 1; j <= kItems; ++j) form_.list->AddItem("a" + std::to_string(j), "", j);
  }
  toolkit::DoEvents();
  EXPECT_EQ(form_.list->Count(), kItems);
  EXPECT_TRUE(form_.list->Visible());
  SCROLLINFO scroll{};
  scroll.cbSize = sizeof scroll;
  scroll.fMask = SIF_RANGE | SIF_PAGE;
  ASSERT_TRUE(::GetScrollInfo(form_.list->Hwnd(), SB_VERT, &scroll));
  EXPECT_GT(scroll.nMax - scroll.nMin + 1, static_cast<int>(scroll.nPage));
}

// A copy of a 32 x 32 picture as a 32-bit DIB section stored top-down
// (rows < 0) or bottom-up (rows > 0), as picture surfaces make them.
toolkit::Picture DibCopy(const toolkit::Picture& picture, int rows) {
  BITMAPINFO info{};
  info.bmiHeader = {sizeof(BITMAPINFOHEADER), 32, rows, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  HBITMAP copy = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  HDC source = ::CreateCompatibleDC(nullptr);
  HDC target = ::CreateCompatibleDC(nullptr);
  HGDIOBJ oldSource = ::SelectObject(source, picture.Handle());
  HGDIOBJ oldTarget = ::SelectObject(target, copy);
  ::BitBlt(target, 0, 0, 32, 32, source, 0, 0, SRCCOPY);
  ::SelectObject(source, oldSource);
  ::SelectObject(target, oldTarget);
  ::DeleteDC(source);
  ::DeleteDC(target);
  return toolkit::Picture::Adopt(toolkit::Picture::Kind::Bitmap, copy);
}

TEST_F(ControlsTest, TheMaskColourOfAnImageListIsTransparent) {
  // A blue square inside a frame of the mask colour, drawn over green.
  form_.images->SetMaskColor(kMask);
  toolkit::Picture masked = SolidPicture(32, 32, kMask);
  HDC memory = ::CreateCompatibleDC(nullptr);
  HGDIOBJ old = ::SelectObject(memory, masked.Handle());
  RECT upper{8, 4, 24, 12};
  HBRUSH blue = ::CreateSolidBrush(RGB(0, 0, 255));
  ::FillRect(memory, &upper, blue);
  ::SelectObject(memory, old);
  ::DeleteObject(blue);

  const toolkit::Picture kinds[] = {masked, DibCopy(masked, -32), DibCopy(masked, 32)};
  for (int kind = 0; kind < 3; ++kind) {
    form_.images->Add("c" + std::to_string(kind), kinds[kind]);
    toolkit::Picture target = SolidPicture(32, 32, RGB(0, 200, 0));
    old = ::SelectObject(memory, target.Handle());
    ::ImageList_Draw(form_.images->Handle(), kind, memory, 0, 0, ILD_TRANSPARENT);
    ::SelectObject(memory, old);
    EXPECT_EQ(testing_support::PicturePixel(target, 2, 2), RGB(0, 200, 0)) << "kind " << kind;
    EXPECT_EQ(testing_support::PicturePixel(target, 16, 24), RGB(0, 200, 0)) << "kind " << kind;
    EXPECT_EQ(testing_support::PicturePixel(target, 16, 8), RGB(0, 0, 255)) << "kind " << kind;
  }
  ::DeleteDC(memory);
}

TEST_F(ControlsTest, ToolTipsAreSetAndReplaced) {
  toolkit::ToolTips& tips = form_.Tips();
  tips.SetTip(form_.list->Hwnd(), "Icons of the file");
  tips.SetTip(form_.list->Hwnd(), "Click an icon");
  tips.SetTip(7, RECT{0, 0, 50, 20}, "Drag to move");
  EXPECT_EQ(tips.TipOf(form_.list->Hwnd()), "Click an icon");
  EXPECT_EQ(::SendMessageA(tips.Hwnd(), TTM_GETTOOLCOUNT, 0, 0), 2);
}

}  // namespace
