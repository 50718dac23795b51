#include <gtest/gtest.h>

#include "frame/CResDll.h"
#include "frame/RunState.h"
#include "resource_ids.h"
#include "support/TestSupport.h"
#include "ui/ControlIds.h"
#include "ui/frmSplash.h"

namespace {

using testing_support::DistFolder;
using testing_support::WindowText;

class AboutWindowTest : public ::testing::Test {
 protected:
  void SetUp() override {
    frame::LanguageLibrary().DllName(DistFolder() + "LANG_ENG.DLL");
    frame::PictureLibrary().DllName(DistFolder() + "Resource.DLL");
  }
  void TearDown() override {
    ui::AboutWindow().Unload();
    frame::startingUp = false;
    frame::ReleaseLibraries();
  }
  HWND Element(int id) const { return ::GetDlgItem(ui::AboutWindow().Hwnd(), id); }
  static std::string Text(int id) { return frame::LanguageLibrary().LoadDllString(id); }
};

TEST_F(AboutWindowTest, AsSplashItShowsTheMessageAndHidesAndDisablesTheButtons) {
  frame::startingUp = true;
  ui::AboutWindow().Load();
  auto* message = dynamic_cast<toolkit::Label*>(ui::AboutWindow().Find("lblInfo"));
  ASSERT_NE(message, nullptr);
  EXPECT_TRUE(message->Visible());
  EXPECT_EQ(message->Caption(), Text(IDS_SPLASH_INFO));
  for (int id :
       {ui::ids::picActualizar, ui::ids::picWebPage, ui::ids::picAyuda, ui::ids::picAceptar}) {
    EXPECT_FALSE(::IsWindowVisible(Element(id))) << id;
    EXPECT_FALSE(::IsWindowEnabled(Element(id))) << id;
  }
}

TEST_F(AboutWindowTest, AsAboutWindowItShowsFourButtonsAndTheInformationText) {
  frame::startingUp = false;
  ui::AboutWindow().Show();
  EXPECT_FALSE(dynamic_cast<toolkit::Label*>(ui::AboutWindow().Find("lblInfo"))->Visible());
  for (int id :
       {ui::ids::picActualizar, ui::ids::picWebPage, ui::ids::picAyuda, ui::ids::picAceptar}) {
    EXPECT_TRUE(::IsWindowVisible(Element(id))) << id;
  }
  EXPECT_FALSE(::IsWindowVisible(Element(ui::ids::picConfig)));
  EXPECT_EQ(WindowText(Element(ui::ids::picAceptar)), Text(IDS_ABOUT_OK));

  const std::string crlf = "\r\n";
  EXPECT_EQ(WindowText(Element(ui::ids::txtInfo)),
            Text(IDS_PRODUCT_NAME) + " " + Text(IDS_ABOUT_VERSION) + crlf + crlf +
                Text(IDS_ABOUT_SUMMARY) + crlf + Text(IDS_COPYRIGHT) + crlf +
                Text(IDS_ABOUT_RIGHTS) + crlf + Text(IDS_ABOUT_WEB_ADDRESS) + crlf + crlf +
                Text(IDS_ABOUT_THANKS) + crlf + Text(IDS_ABOUT_CREDITS) + crlf +
                Text(IDS_ABOUT_CONTACT) + crlf);
}

}  // namespace
