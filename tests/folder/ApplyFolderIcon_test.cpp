#include "folder/ApplyFolderIcon.h"

#include <shellapi.h>
#include <shlobj.h>

#include "FolderFixture.h"
#include "resource_ids.h"
#include "support/DialogAnswerer.h"
#include "support/ShellNotifyRecorder.h"
#include "toolkit/MessageLoop.h"

namespace {

using testing_support::DialogAnswerer;
using testing_support::ReadWholeFile;
using testing_support::ShellNotification;
using testing_support::WriteWholeFile;

constexpr UINT kPathsHandled = SHCNF_PATHA | SHCNF_FLUSH;
// Wine reports every plain file as archived.
constexpr DWORD kCustomisedFile =
    FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE;
constexpr DWORD kCustomisedFolder = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_SYSTEM;

DWORD Attributes(const std::string& path) {
  return ::GetFileAttributesA(path.c_str());
}

class ApplyFolderIconTest : public FolderFixture {
 protected:
  void SetUp() override {
    FolderFixture::SetUp();
    folder::FolderSettings = {0, 0, "C:\\icons\\set.dll", 2, "tip"};
  }
  // The three notifications both operations end with (after the file's, on apply).
  std::vector<ShellNotification> FolderNotifications() const {
    SHFILEINFOA info{};
    ::SHGetFileInfoA(folder_.Path().c_str(), 0, &info, sizeof info, SHGFI_SYSICONINDEX);
    return {{SHCNE_ATTRIBUTES, kPathsHandled, folder_.Path(), ""},
            {SHCNE_UPDATEIMAGE, SHCNF_DWORD, std::to_string(info.iIcon), "0"},
            {SHCNE_ASSOCCHANGED, 0, "", ""}};
  }
  void ExpectOneQuestion(const DialogAnswerer& user, int promptId) const {
    auto seen = user.Seen();
    ASSERT_EQ(seen.size(), 1u);
    EXPECT_EQ(seen[0].text, Text(promptId));
    EXPECT_EQ(seen[0].title, Text(IDS_CONFIRM_TITLE));
    EXPECT_EQ(seen[0].buttons, (std::vector<int>{IDYES, IDNO}));
    EXPECT_EQ(seen[0].icon, ::LoadIconA(nullptr, IDI_QUESTION));
  }
  testing_support::ShellNotifyRecorder shell_;
};

TEST_F(ApplyFolderIconTest, YesWritesMarksAndAnnouncesTheFolder) {
  {
    DialogAnswerer user(IDYES);
    folder::ApplyFolderIcon(true);
    ExpectOneQuestion(user, IDS_APPLY_PROMPT);
  }
  EXPECT_NE(ReadWholeFile(SettingsFile()).find("IconFile=C:\\icons\\set.dll\r\nIconIndex=2\r\n"),
            std::string::npos);
  EXPECT_EQ(Attributes(SettingsFile()), kCustomisedFile);
  EXPECT_EQ(Attributes(folder_.Path()), kCustomisedFolder);

  auto expected = FolderNotifications();
  expected.insert(expected.begin(), {SHCNE_ATTRIBUTES, kPathsHandled, SettingsFile(), ""});
  EXPECT_EQ(shell_.calls, expected);
}

TEST_F(ApplyFolderIconTest, NoOrAnEmptyIconListChangesNothingAndSendsNothing) {
  const std::string bytes = "[.ShellClassInfo]\r\nIconFile=C:\\mine.ico\r\n";
  WriteWholeFile(SettingsFile(), bytes);
  ::SetFileAttributesA(SettingsFile().c_str(), FILE_ATTRIBUTE_READONLY);
  ::SetFileAttributesA(folder_.Path().c_str(), FILE_ATTRIBUTE_HIDDEN);
  const DWORD fileBefore = Attributes(SettingsFile()), folderBefore = Attributes(folder_.Path());
  {
    DialogAnswerer user(IDNO);
    folder::ApplyFolderIcon(true);
    ExpectOneQuestion(user, IDS_APPLY_PROMPT);
  }
  {
    DialogAnswerer user(IDNO);
    folder::RemoveFolderIcon();
    ExpectOneQuestion(user, IDS_REMOVE_PROMPT);
  }
  {
    DialogAnswerer user(IDYES);
    frame::iconListEmpty = true;
    folder::ApplyFolderIcon(true);
    folder::ApplyFolderIcon(false);
    EXPECT_TRUE(user.Seen().empty());
  }
  EXPECT_EQ(ReadWholeFile(SettingsFile()), bytes);
  EXPECT_EQ(Attributes(SettingsFile()), fileBefore);
  EXPECT_EQ(Attributes(folder_.Path()), folderBefore);
  EXPECT_TRUE(shell_.calls.empty());
}

TEST_F(ApplyFolderIconTest, TheFileTakesTheFoldersAttributesNotItsOwn) {
  WriteWholeFile(SettingsFile(), "[.ShellClassInfo]\r\n");
  ::SetFileAttributesA(SettingsFile().c_str(), FILE_ATTRIBUTE_READONLY);
  ::SetFileAttributesA(folder_.Path().c_str(), FILE_ATTRIBUTE_HIDDEN);
  folder::ApplyFolderIcon(false);
  EXPECT_EQ(Attributes(SettingsFile()), kCustomisedFile) << "read-only came from the file only";
  EXPECT_EQ(Attributes(folder_.Path()), kCustomisedFolder | FILE_ATTRIBUTE_HIDDEN);

  // Wine keeps no read-only bit on folders, so the carried word is shown here.
  EXPECT_EQ(folder::SettingsFileAttributes(FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY |
                                           FILE_ATTRIBUTE_ARCHIVE),
            DWORD{FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_HIDDEN |
                  FILE_ATTRIBUTE_SYSTEM});
}

TEST_F(ApplyFolderIconTest, YesToRemovalDeletesTheFilesAndResetsTheFolderWithOrWithoutThem) {
  ::SetFileAttributesA(folder_.Path().c_str(), FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_HIDDEN);
  DialogAnswerer user(IDYES);
  folder::RemoveFolderIcon();
  EXPECT_EQ(Attributes(folder_.Path()), DWORD{FILE_ATTRIBUTE_DIRECTORY});
  EXPECT_EQ(shell_.calls, FolderNotifications()) << "no file to delete, still announced";

  folder::ApplyFolderIcon(false);
  ::SetFileAttributesA(SettingsFile().c_str(), kCustomisedFile | FILE_ATTRIBUTE_READONLY);
  WriteWholeFile(folder_ / "morvane.ico", "icon");
  WriteWholeFile(folder_ / "other.ico", "icon");
  shell_.calls.clear();
  folder::RemoveFolderIcon();
  EXPECT_EQ(user.Seen().size(), 2u);
  EXPECT_FALSE(testing_support::PathExists(SettingsFile()));
  EXPECT_FALSE(testing_support::PathExists(folder_ / "morvane.ico"));
  EXPECT_TRUE(testing_support::PathExists(folder_ / "other.ico"));
  EXPECT_EQ(Attributes(folder_.Path()), DWORD{FILE_ATTRIBUTE_DIRECTORY});
  EXPECT_EQ(shell_.calls, FolderNotifications());
}

// Under Wine the shell's notifications reach listeners of the sending
// process only, so a message-only window of this process listens.
std::vector<std::pair<LONG, std::string>> heard;

LRESULT CALLBACK Listen(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_APP) return ::DefWindowProcA(window, message, wParam, lParam);
  PIDLIST_ABSOLUTE* items = nullptr;
  LONG event = 0;
  HANDLE lock = ::SHChangeNotification_Lock(reinterpret_cast<HANDLE>(wParam),
                                            static_cast<DWORD>(lParam), &items, &event);
  char path[MAX_PATH] = {};
  if (items && items[0]) ::SHGetPathFromIDListA(items[0], path);
  heard.emplace_back(event, path);
  ::SHChangeNotification_Unlock(lock);
  return 0;
}

TEST_F(ApplyFolderIconTest, TheSystemNotifierReachesAListenerOfThisProcess) {
  folder::InstallShellNotifier(nullptr);  // the fixture's recorder steps aside
  WNDCLASSA listenerClass{};
  listenerClass.lpfnWndProc = Listen;
  listenerClass.lpszClassName = "MorvaneShellListener";
  ::RegisterClassA(&listenerClass);
  HWND window = ::CreateWindowExA(0, listenerClass.lpszClassName, "", 0, 0, 0, 0, 0, HWND_MESSAGE,
                                  nullptr, nullptr, nullptr);
  SHChangeNotifyEntry everything{nullptr, TRUE};
  ULONG registration = ::SHChangeNotifyRegister(window, SHCNRF_ShellLevel | SHCNRF_NewDelivery,
                                                SHCNE_ALLEVENTS, WM_APP, 1, &everything);
  ASSERT_NE(registration, 0u);
  folder::ApplyFolderIcon(false);
  toolkit::DoEvents();
  ::SHChangeNotifyDeregister(registration);
  ::DestroyWindow(window);

  // Wine passes on no image notification (its items are numbers).
  EXPECT_EQ(heard, (std::vector<std::pair<LONG, std::string>>{{SHCNE_ATTRIBUTES, SettingsFile()},
                                                              {SHCNE_ATTRIBUTES, folder_.Path()},
                                                              {SHCNE_ASSOCCHANGED, ""}}));
}

}  // namespace
