// The about window's buttons hand the maker's address to whatever the system
// opens web addresses with: here a recorder registered for the scheme in the
// test prefix.
#include <gtest/gtest.h>
#include <windows.h>

#include <regex>
#include <sstream>

#include "MorvaneWindow.h"
#include "UserInput.h"
#include "frame/CResDll.h"
#include "resource_ids.h"
#include "support/RegistryGuard.h"
#include "support/TestSupport.h"
#include "ui/ControlIds.h"

namespace {

using namespace e2e;

constexpr char kHandlerKey[] = "http\\shell\\open\\command";
constexpr POINT kHelpLink{543, 57};

class WebLinksTest : public MorvaneWindowTest {
 protected:
  void SetUp() override {
    const std::string command = "\"" + testing_support::TestFolder() + "url_recorder.exe\" \"%1\"";
    testing_support::StoreRegistryValue(HKEY_CLASSES_ROOT, kHandlerKey, "", REG_SZ,
                                        std::string(command.c_str(), command.size() + 1));
    // Morvane, and through the shell the recorder, inherit it.
    ::SetEnvironmentVariableA("MORVANE_URL_LOG", log_.c_str());
    MorvaneWindowTest::SetUp();
  }

  std::vector<std::string> Requests() const {
    std::vector<std::string> lines;
    std::istringstream text(testing_support::ReadWholeFile(log_));
    for (std::string line; std::getline(text, line);) lines.push_back(line);
    return lines;
  }
  // Presses one of the about window's buttons and waits for its request.
  std::string Press(HWND about, int button, Button which = Button::Left) {
    const size_t before = Requests().size();
    HWND face = ::GetDlgItem(about, button);
    ClickAt(face, Centre(face), which);
    if (!WaitUntil([&] { return Requests().size() > before; })) return "";
    return Requests().back();
  }

  testing_support::RegistryValueGuard handler_{HKEY_CLASSES_ROOT, kHandlerKey, ""};
  testing_support::ScratchFolder logFolder_;
  std::string log_ = logFolder_ / "requests.txt";
};

TEST_F(WebLinksTest, EachButtonAsksForItsPageInTheUsersLanguageWithAFreshClient) {
  ClickAt(main_, kHelpLink);
  HWND about = child_->WaitForWindow(kFormClass, kLimit, "frmSplash");
  ASSERT_NE(about, nullptr);

  frame::CResDll language;
  language.DllName(program_.File("LANG_ENG.DLL"));
  const std::regex address(
      "http://www\\.morvane\\.example/cgi-bin/morvane/"
      "redir\\.cgi\\?redir=([0-9a-f]{32})&url=([0-9]+)"
      "&lang=" +
      language.LoadDllString(IDS_LANGUAGE_CODE));
  struct Case {
    int button;
    Button which;
    std::string code;
  };
  std::vector<std::string> clients;
  for (const Case& press :
       {Case{ui::ids::picActualizar, Button::Left, "1"},
        Case{ui::ids::picWebPage, Button::Left, "0"}, Case{ui::ids::picAyuda, Button::Left, "3"},
        Case{ui::ids::picWebPage, Button::Right, "0"}}) {
    const std::string request = Press(about, press.button, press.which);
    std::smatch parts;
    ASSERT_TRUE(std::regex_match(request, parts, address)) << request;
    EXPECT_EQ(parts[2], press.code) << request;
    clients.push_back(parts[1]);
  }
  EXPECT_NE(clients[1], clients[3]) << "two presses, two client parameters";

  HWND ok = ::GetDlgItem(about, ui::ids::picAceptar);
  ClickAt(ok, Centre(ok), Button::Right);
  EXPECT_TRUE(::IsWindowVisible(about)) << "only a left click closes it";
  ClickAt(ok, Centre(ok));
  EXPECT_TRUE(WaitUntil([&] { return !::IsWindowVisible(about); }));
}

}  // namespace
