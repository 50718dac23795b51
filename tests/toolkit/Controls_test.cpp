#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/Pixels.h"
#include "toolkit/Form.h"

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

TEST_F(ControlsTest, TheMaskColourOfAnImageListIsTransparent) {
  // A blue square inside a frame of the mask colour, drawn over green.
  form_.images->SetMaskColor(kMask);
  toolkit::Picture picture = SolidPicture(32, 32, kMask);
  HDC memory = ::CreateCompatibleDC(nullptr);
  HGDIOBJ old = ::SelectObject(memory, picture.Handle());
  RECT inner{8, 8, 24, 24};
  ::SetDCBrushColor(memory, RGB(0, 0, 255));
  ::FillRect(memory, &inner, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
  ::SelectObject(memory, old);
  form_.images->Add("c0", picture);

  toolkit::Picture target = SolidPicture(32, 32, RGB(0, 200, 0));
  old = ::SelectObject(memory, target.Handle());
  ::ImageList_Draw(form_.images->Handle(), 0, memory, 0, 0, ILD_TRANSPARENT);
  ::SelectObject(memory, old);
  ::DeleteDC(memory);
  EXPECT_EQ(testing_support::PicturePixel(target, 2, 2), RGB(0, 200, 0));
  EXPECT_EQ(testing_support::PicturePixel(target, 16, 16), RGB(0, 0, 255));
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
