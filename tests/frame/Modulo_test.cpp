#include "frame/Modulo.h"

#include <gtest/gtest.h>

#include <memory>

#include "frame/RunState.h"
#include "support/TestSupport.h"

namespace {

using testing_support::ScratchFolder;
using testing_support::WriteWholeFile;
using toolkit::Element;

// A window's elements without the window: fonts need no window to be made.
class ElementSet : public toolkit::ElementOwner {
 public:
  ElementSet() {
    Add("lblInfo", "Label");
    Add("txtInfo", "TextBox");
    Add("picStatus", "PictureBox");
    Add("cboRecent", "ComboBox");
    Add("lvwIcons", "ListView", Element::FontSupport::kNoFont);
  }
  toolkit::ElementList Elements() const override {
    toolkit::ElementList list;
    for (const auto& e : owned_) list.push_back(e.get());
    return list;
  }
  Element& operator[](std::size_t i) const { return *owned_[i]; }

 private:
  void Add(const char* name, const char* kind,
           Element::FontSupport font = Element::FontSupport::kHasFont) {
    owned_.push_back(std::make_unique<Element>(name, kind, font));
  }
  std::vector<std::unique_ptr<Element>> owned_;
};

class ApplyInterfaceFontTest : public ::testing::Test {
 protected:
  void SetUp() override {
    saved_ = frame::programFolder;
    frame::programFolder = folder_.Path() + "\\";
  }
  void TearDown() override { frame::programFolder = saved_; }
  void WriteConfig(const std::string& text) { WriteWholeFile(folder_ / "Config.ini", text); }

  ScratchFolder folder_;
  std::string saved_;
};

TEST_F(ApplyInterfaceFontTest, GivesEachKindItsSizeAndWeight) {
  ElementSet window;
  frame::ApplyInterfaceFont(window);

  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(window[i].FontName(), "Tahoma") << i;
  EXPECT_EQ(window[0].FontSize(), 10);
  EXPECT_TRUE(window[0].FontBold());
  EXPECT_EQ(window[1].FontSize(), 10);
  EXPECT_FALSE(window[1].FontBold());
  EXPECT_EQ(window[2].FontSize(), 9);
  EXPECT_TRUE(window[2].FontBold());
  // Other kinds keep their design size and weight.
  EXPECT_EQ(window[3].FontSize(), toolkit::kDesignFontPoints);
  EXPECT_FALSE(window[3].FontBold());
  EXPECT_THROW(window[4].FontName(), toolkit::ElementError);
}

TEST_F(ApplyInterfaceFontTest, UsesTheConfiguredFaceOrFallsBack) {
  // A face the system has, spelt in another case, is accepted.
  WriteConfig("[Config]\r\nFont=marlett\r\n");
  ElementSet configured;
  frame::ApplyInterfaceFont(configured);
  EXPECT_EQ(configured[0].FontName(), "marlett");

  for (const char* config : {"[Config]\r\nFont=\r\n", "[Config]\r\nFont=No Such Face 123\r\n",
                             "[Config]\r\nLANGUAGE=LANG_ESP.DLL\r\n"}) {
    WriteConfig(config);
    ElementSet window;
    frame::ApplyInterfaceFont(window);
    EXPECT_EQ(window[0].FontName(), "Tahoma") << config;
    EXPECT_EQ(window[0].FontSize(), 10) << config;
  }
}

TEST_F(ApplyInterfaceFontTest, AFaceNameTooLongForTheSystemFallsBack) {
  WriteConfig("[Config]\r\nFont=" + std::string(300, 'F') + "\r\n");
  ElementSet window;
  frame::ApplyInterfaceFont(window);
  EXPECT_EQ(window[1].FontName(), "Tahoma");
}

}  // namespace
