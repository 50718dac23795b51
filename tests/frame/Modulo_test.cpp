#include "frame/Modulo.h"

#include <gtest/gtest.h>

#include <memory>

#include "frame/RunState.h"
#include "support/TestSupport.h"

namespace {

using toolkit::Element;

// A window's elements without the window: fonts need no window to be made.
class ElementSet : public toolkit::ElementOwner {
 public:
  ElementSet() {
    for (const char* kind : {"Label", "TextBox", "PictureBox", "ComboBox"}) {
      owned_.push_back(std::make_unique<Element>(kind, kind));
    }
    owned_.push_back(
        std::make_unique<Element>("lvwIcons", "ListView", Element::FontSupport::kNoFont));
  }
  toolkit::ElementList Elements() const override {
    toolkit::ElementList list;
    for (const auto& e : owned_) list.push_back(e.get());
    return list;
  }
  Element& operator[](std::size_t i) const { return *owned_[i]; }

 private:
  std::vector<std::unique_ptr<Element>> owned_;
};

class ApplyInterfaceFontTest : public ::testing::Test {
 protected:
  void SetUp() override { frame::programFolder = folder_.Path() + "\\"; }
  void TearDown() override { frame::programFolder.clear(); }
  testing_support::ScratchFolder folder_;
};

TEST_F(ApplyInterfaceFontTest, GivesEachKindItsSizeAndWeightAndStepsOverFontlessOnes) {
  ElementSet window;
  frame::ApplyInterfaceFont(window);
  // Label, text box, picture box; other kinds keep their design size and weight.
  const struct {
    double size;
    bool bold;
  } expected[] = {{10, true}, {10, false}, {9, true}, {toolkit::kDesignFontPoints, false}};
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    EXPECT_EQ(window[i].FontName(), "Tahoma") << i;
    EXPECT_EQ(window[i].FontSize(), expected[i].size) << i;
    EXPECT_EQ(window[i].FontBold(), expected[i].bold) << i;
  }
  EXPECT_THROW(window[4].FontName(), toolkit::ElementError);
}

TEST_F(ApplyInterfaceFontTest, UsesTheConfiguredFaceOrFallsBackToTahoma) {
  const struct {
    std::string config, face;
  } cases[] = {
      {"Font=marlett", "marlett"},  // a face the system has, in another case
      {"Font=", "Tahoma"},
      {"Font=No Such Face 123", "Tahoma"},
      {"Font=" + std::string(300, 'F'), "Tahoma"},  // too long for the system
      {"LANGUAGE=LANG_ESP.DLL", "Tahoma"},
  };
  for (const auto& [config, face] : cases) {
    testing_support::WriteWholeFile(folder_ / "Config.ini", "[Config]\r\n" + config + "\r\n");
    ElementSet window;
    frame::ApplyInterfaceFont(window);
    EXPECT_EQ(window[0].FontName(), face) << config;
    EXPECT_EQ(window[1].FontSize(), 10) << config;
  }
}

}  // namespace
