// What a screen reader in another process learns of every element through
// its accessible object: a name from the texts the window shows, in the
// user's language, and a role. Wine's oleacc makes no standard objects, so
// the objects are asked for as a reader does, with WM_GETOBJECT.
#include <gtest/gtest.h>

#include "Harness.h"

#include <oleacc.h>

#include <algorithm>

#include "resource_ids.h"

namespace {

using namespace e2e;

struct Seen {
  std::string name;
  LONG role = 0;
  std::string shortcut;
};

VARIANT Self() {
  VARIANT self{};
  self.vt = VT_I4;
  self.lVal = CHILDID_SELF;
  return self;
}

// The caller releases it.
IAccessible* ObjectOf(HWND element) {
  const LRESULT answer = ::SendMessageW(element, WM_GETOBJECT, 0, OBJID_CLIENT);
  IAccessible* object = nullptr;
  if (answer > 0)
    ::ObjectFromLresult(answer, __uuidof(IAccessible), 0, reinterpret_cast<void**>(&object));
  return object;
}

Seen Ask(HWND element) {
  IAccessible* object = ObjectOf(element);
  if (!object) return {};
  VARIANT self = Self(), role{};
  BSTR name = nullptr, shortcut = nullptr;
  object->get_accName(self, &name);
  object->get_accRole(self, &role);
  object->get_accKeyboardShortcut(self, &shortcut);
  Seen seen{name ? Utf8(name) : "", role.lVal, shortcut ? Utf8(shortcut) : ""};
  ::SysFreeString(name);
  ::SysFreeString(shortcut);
  object->Release();
  return seen;
}

std::vector<std::pair<HWND, DWORD>> heard;

void CALLBACK Hear(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG child, DWORD, DWORD) {
  if (object == OBJID_CLIENT && child == CHILDID_SELF) heard.emplace_back(window, event);
}

TEST(ScreenReaders, EveryElementHasANameInTheUsersLanguageAndItsRole) {
  ::CoInitialize(nullptr);
  for (const std::string language : {"LANG_ENG.DLL", "LANG_ESP.DLL"}) {
    SCOPED_TRACE(language);
    ProgramRun run;
    WriteFile(run.File("Config.ini"), "[Config]\r\nLANGUAGE=" + language + "\r\n");
    ASSERT_TRUE(run.Open());
    auto text = [&](int id) { return LibraryString(run.File(language), id); };
    std::string defaultLabel = text(IDS_DEFAULT_ICON_LABEL);
    defaultLabel.replace(defaultLabel.find("\r\n"), 2, " ");
    PressKey(VK_F1);
    HWND main = run.main, about = run.WaitForWindow("MorvaneForm", "frmSplash");
    ASSERT_NE(about, nullptr);
    const struct {
      HWND window;
      int id;
      std::string name;
      LONG role;
      int key;
    } rows[] = {
        {main, 1101, text(IDS_CURRENT_ICON_LABEL) + " " + run.Target(), ROLE_SYSTEM_GRAPHIC, 0},
        {main, ids::kPreview, text(IDS_NEW_ICON_LABEL), ROLE_SYSTEM_GRAPHIC, 0},
        {main, ids::kDefaultFolderIcon, defaultLabel, ROLE_SYSTEM_GRAPHIC, 0},
        {main, ids::kInfoTip, text(IDS_INFOTIP_LABEL), ROLE_SYSTEM_TEXT, 0},
        {main, ids::kRecentFiles, text(IDS_RECENT_LABEL), ROLE_SYSTEM_COMBOBOX, 0},
        {main, ids::kIconList, text(IDS_ICON_LIST_NAME) + " iconos.dll", ROLE_SYSTEM_LIST, 0},
        {main, ids::kBrowse, text(IDS_BROWSE_BUTTON), ROLE_SYSTEM_PUSHBUTTON, IDS_BROWSE_KEY},
        {main, ids::kApply, text(IDS_APPLY_BUTTON), ROLE_SYSTEM_PUSHBUTTON, IDS_APPLY_KEY},
        {main, ids::kExit, text(IDS_EXIT_BUTTON), ROLE_SYSTEM_PUSHBUTTON, IDS_EXIT_KEY},
        {main, ids::kStatus, "", ROLE_SYSTEM_STATUSBAR, 0},  // named by its own text
        {about, 1201, text(IDS_PRODUCT_NAME) + " " + text(IDS_ABOUT_VERSION), ROLE_SYSTEM_TEXT, 0},
        {about, ids::kUpdate, text(IDS_ABOUT_UPDATE), ROLE_SYSTEM_PUSHBUTTON, 0},
        {about, ids::kWebPage, text(IDS_ABOUT_WEB_PAGE), ROLE_SYSTEM_PUSHBUTTON, 0},
        {about, ids::kHelp, text(IDS_HELP), ROLE_SYSTEM_PUSHBUTTON, 0},
        {about, ids::kOk, text(IDS_ABOUT_OK), ROLE_SYSTEM_PUSHBUTTON, 0}};
    for (const auto& row : rows) {
      HWND element = ::GetDlgItem(row.window, row.id);
      Seen seen = Ask(element);
      std::string name = row.name;
      // The strip's text changes the first time the pointer moves over the
      // window, which may be just as it is asked.
      if (name.empty()) {
        WaitUntil([&] { return (seen = Ask(element)).name == (name = Text(element)); });
        EXPECT_NE(name, "");
      }
      EXPECT_EQ(seen.name, name) << row.id;
      EXPECT_EQ(seen.role, row.role) << row.id;
      EXPECT_EQ(seen.shortcut, row.key ? "Alt+" + text(row.key) : "") << row.id;
    }
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(WaitUntil([&] { return !::IsWindowVisible(about); }));
    ASSERT_TRUE(WaitUntil([&] { return ::GetAncestor(FocusWindow(), GA_ROOT) == run.main; }));
    if (language == "LANG_ESP.DLL") {
      PressKey(text(IDS_EXIT_KEY)[0], VK_MENU);
    } else if (IAccessible* exit = ObjectOf(run.Element(ids::kExit))) {
      EXPECT_EQ(exit->accDoDefaultAction(Self()), S_OK);
      exit->Release();
    }
    EXPECT_TRUE(run.Ended()) << "the exit button's access key, or a press by automation";
  }
  ::CoUninitialize();
}

// Hooked as a screen reader hooks, from outside the program's process.
TEST(ScreenReaders, HearOfIconsLoadedAndOfTheStatusText) {
  ::CoInitialize(nullptr);
  ProgramRun run;
  WriteFile(run.File("ARA.INI"), "[Recent]\r\nARA01=" + TestFolder() + "ICONS2.DLL\r\n");
  ASSERT_TRUE(run.Open());
  HWINEVENTHOOK hook = ::SetWinEventHook(EVENT_OBJECT_STATECHANGE, EVENT_OBJECT_NAMECHANGE, nullptr,
                                         Hear, 0, 0, WINEVENT_OUTOFCONTEXT);
  heard.clear();
  ASSERT_TRUE(ChooseFirstRecentFile(run));
  HWND list = run.Element(ids::kIconList), status = run.Element(ids::kStatus);
  auto heardOf = [](HWND window, DWORD event) {
    return std::find(heard.begin(), heard.end(), std::pair(window, event)) != heard.end();
  };
  EXPECT_TRUE(WaitUntil([&] {
    for (MSG message; ::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);)
      ::DispatchMessageW(&message);
    return heardOf(list, EVENT_OBJECT_STATECHANGE) && heardOf(list, EVENT_OBJECT_NAMECHANGE) &&
           heardOf(status, EVENT_OBJECT_NAMECHANGE);
  }));
  ::UnhookWinEvent(hook);
  const std::string listName = LibraryString(run.File("LANG_ENG.DLL"), IDS_ICON_LIST_NAME);
  EXPECT_STRCASEEQ(Ask(list).name.c_str(), (listName + " ICONS2.DLL").c_str());
  EXPECT_EQ(Ask(status).name, Text(status));
  EXPECT_TRUE(run.Close());
  ::CoUninitialize();
}

}  // namespace
