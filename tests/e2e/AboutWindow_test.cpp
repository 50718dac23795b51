// The about window opened from the main window's help link, and its buttons
// handing the maker's addresses to whatever opens web addresses: here a
// recorder registered for the scheme in the test prefix.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <regex>

#include "Harness.h"
#include "resource_ids.h"

namespace {

using namespace e2e;

constexpr POINT kHelpLink{543, 57};  // in the main window's client area

// The addresses recorded so far; a line still being written does not count.
std::vector<std::string> Requests(const std::string& log) {
  std::vector<std::string> lines;
  const std::string text = ReadFile(log);
  for (size_t at = 0, end; (end = text.find('\n', at)) != std::string::npos; at = end + 1)
    lines.push_back(text.substr(at, end - at));
  return lines;
}

TEST(AboutWindow, OpensFromTheHelpLinkItsButtonsAskForTheirPagesAndOkClosesIt) {
  constexpr char kHandler[] = "http\\shell\\open\\command";
  char old[1024] = {};
  DWORD size = sizeof old;
  ::RegGetValueA(HKEY_CLASSES_ROOT, kHandler, nullptr, RRF_RT_REG_SZ, nullptr, old, &size);
  const std::shared_ptr<void> restore(nullptr, [&](void*) {
    ::RegSetKeyValueA(HKEY_CLASSES_ROOT, kHandler, nullptr, REG_SZ, old, std::strlen(old) + 1);
  });
  const std::string recorder = "\"" + TestFolder() + "url_recorder.exe\" \"%1\"";
  ::RegSetKeyValueA(HKEY_CLASSES_ROOT, kHandler, nullptr, REG_SZ, recorder.c_str(),
                    recorder.size() + 1);
  ProgramRun run;
  const std::string log = run.Root() + "\\requests.txt";
  // Morvane, and through the shell the recorder, inherit it.
  ::SetEnvironmentVariableA("MORVANE_URL_LOG", log.c_str());
  ASSERT_TRUE(run.Open());
  Click(run.main, kHelpLink);
  HWND about = run.WaitForWindow("MorvaneForm", "frmSplash");
  ASSERT_NE(about, nullptr);
  HWND ok = ::GetDlgItem(about, ids::kOk);
  Click(ok, Centre(ok), true);  // only a left click closes: the presses below prove it open

  const std::regex address(
      "http://www\\.morvane\\.example/cgi-bin/morvane/redir\\.cgi\\?redir=([^&]*)&url=([0-9]+)"
      "&lang=" +
      LibraryString(run.File("LANG_ENG.DLL"), IDS_LANGUAGE_CODE));
  struct Press {
    int button;
    bool rightButton;
    const char* code;
  };
  std::vector<std::string> clients;
  for (const Press& press : {Press{ids::kUpdate, false, "1"}, Press{ids::kWebPage, false, "0"},
                             Press{ids::kHelp, false, "3"}, Press{ids::kWebPage, true, "0"}}) {
    SCOPED_TRACE(press.button);
    const size_t before = Requests(log).size();
    HWND face = ::GetDlgItem(about, press.button);
    Click(face, Centre(face), press.rightButton);
    // However late the recorder starts, its line comes within the limit.
    ASSERT_TRUE(WaitUntil([&] { return Requests(log).size() > before; }));
    std::smatch parts;
    const std::string request = Requests(log)[before];
    ASSERT_TRUE(std::regex_match(request, parts, address)) << request;
    EXPECT_EQ(parts[2], press.code);
    clients.push_back(parts[1]);
  }
  EXPECT_NE(clients[1], clients[3]) << "two presses, two client parameters";
  Click(ok, Centre(ok));
  EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(about) || !::IsWindowVisible(about); }));
  EXPECT_TRUE(run.Close()) << "the main window goes on";
}

bool Above(HWND upper, HWND lower) {  // in the z-order
  for (HWND below = ::GetWindow(upper, GW_HWNDNEXT); below; below = ::GetWindow(below, GW_HWNDNEXT))
    if (below == lower) return true;
  return false;
}

// A slow start-up (1234 icons to list) leaves time to look at the windows
// while the icons load.
TEST(Splash, StandsOverTheMainWindowButNotOverOtherPrograms) {
  ProgramRun run;
  ::CopyFileA((TestFolder() + "ICONS1234.DLL").c_str(), run.File("iconos.dll").c_str(), FALSE);
  run.Start(run.Target());
  HWND splash = nullptr, shadow = nullptr;
  ASSERT_TRUE(WaitUntil([&] {
    for (HWND window : run.Windows()) {
      const std::string title = Text(window);
      if (title == "frmSplash") splash = window;
      if (title == "frmShadow") shadow = window;
      if (title.rfind("Morvane - ", 0) == 0) run.main = window;
    }
    return splash && shadow && run.main;
  }));
  EXPECT_FALSE(::GetWindowLongPtrA(splash, GWL_EXSTYLE) & WS_EX_TOPMOST);
  // Looked at again and again while the icons load, without asking the busy
  // program anything. Only at the ends may the order differ: the main window
  // shows on top before the splash rises over it, and it becomes active just
  // before the splash closes.
  int front = 0, behind = 0, shadowBeneath = 0, shadowNot = 0;
  ASSERT_TRUE(WaitUntil([&] {
    const bool ordered = Above(splash, run.main), beneath = Above(run.main, shadow);
    if (!::IsWindowVisible(splash)) return true;
    if (::IsWindowVisible(run.main)) {
      ++(ordered ? front : behind);
      ++(beneath ? shadowBeneath : shadowNot);
    }
    return false;
  }));
  EXPECT_GT(front, 4 * behind) << "looks with the splash in front of the main window and not";
  EXPECT_GT(shadowBeneath, 4 * shadowNot) << "looks with the shadow beneath the main window and not";
  EXPECT_TRUE(WaitUntil([&] { return run.IconCount() == 1234 && !::IsWindow(splash); }));
  EXPECT_TRUE(run.Close());
}

}  // namespace
