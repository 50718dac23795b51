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

int SystemIconIndex(const std::string& path) {
  SHFILEINFOA info{};
  ::SHGetFileInfoA(path.c_str(), 0, &info, sizeof info, SHGFI_SYSICONINDEX);
  return info.iIcon;
}

class ApplyFolderIconTest : public FolderFixture {
 protected:
  void SetUp() override {
    FolderFixture::SetUp();
    folder::FolderSettings = {0, 0, "C:\\icons\\set.dll", 2, "tip"};
  }
  // The three notifications both operations end with (after the file's, on apply).
  std::vector<ShellNotification> FolderNotifications() const {
    return {{SHCNE_ATTRIBUTES, kPathsHandled, folder_.Path(), ""},
            {SHCNE_UPDATEIMAGE, SHCNF_DWORD, std::to_string(SystemIconIndex(folder_.Path())), "0"},
            {SHCNE_ASSOCCHANGED, 0, "", ""}};
  }
  void ExpectOneQuestion(const DialogAnswerer& answerer, int promptId) const {
    auto seen = answerer.Seen();
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

TEST_F(ApplyFolderIconTest, YesToRemovalDeletesTheFilesAndResetsTheFolder) {
  folder::ApplyFolderIcon(false);
  ::SetFileAttributesA(SettingsFile().c_str(), kCustomisedFile | FILE_ATTRIBUTE_READONLY);
  WriteWholeFile(folder_ / "morvane.ico", "icon");
  WriteWholeFile(folder_ / "other.ico", "icon");
  DialogAnswerer user(IDYES);
  folder::RemoveFolderIcon();

  ExpectOneQuestion(user, IDS_REMOVE_PROMPT);
  EXPECT_FALSE(testing_support::PathExists(SettingsFile()));
  EXPECT_FALSE(testing_support::PathExists(folder_ / "morvane.ico"));
  EXPECT_TRUE(testing_support::PathExists(folder_ / "other.ico"));
  EXPECT_EQ(Attributes(folder_.Path()), DWORD{FILE_ATTRIBUTE_DIRECTORY});
  const auto calls = shell_.calls;
  EXPECT_EQ(std::vector(calls.end() - 3, calls.end()), FolderNotifications());
}

TEST_F(ApplyFolderIconTest, RemovalWithoutAFileStillResetsAndAnnounces) {
  ::SetFileAttributesA(folder_.Path().c_str(), FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_HIDDEN);
  DialogAnswerer user(IDYES);
  folder::RemoveFolderIcon();
  EXPECT_EQ(Attributes(folder_.Path()), DWORD{FILE_ATTRIBUTE_DIRECTORY});
  EXPECT_EQ(shell_.calls, FolderNotifications());
}

// A window of this process registered for the shell's notifications, which
// under Wine reach listeners of the sending process only.
class ShellListener {
 public:
  struct Heard {
    LONG event;
    std::string path;
  };
  ShellListener() {
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = ::GetModuleHandleA(nullptr);
    windowClass.lpszClassName = kClassName;
    ::RegisterClassA(&windowClass);
    window_ = ::CreateWindowExA(0, kClassName, "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                windowClass.hInstance, nullptr);
    SHChangeNotifyEntry everything{nullptr, TRUE};
    registration_ = ::SHChangeNotifyRegister(window_, SHCNRF_ShellLevel | SHCNRF_NewDelivery,
                                             SHCNE_ALLEVENTS, kHeardMessage, 1, &everything);
  }
  ~ShellListener() {
    ::SHChangeNotifyDeregister(registration_);
    ::DestroyWindow(window_);
  }
  bool Registered() const { return window_ && registration_; }
  static inline std::vector<Heard> heard;

 private:
  static constexpr char kClassName[] = "MorvaneShellListener";
  static constexpr UINT kHeardMessage = WM_APP + 1;

  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != kHeardMessage) return ::DefWindowProcA(window, message, wParam, lParam);
    PIDLIST_ABSOLUTE* items = nullptr;
    LONG event = 0;
    HANDLE lock = ::SHChangeNotification_Lock(reinterpret_cast<HANDLE>(wParam),
                                              static_cast<DWORD>(lParam), &items, &event);
    char path[MAX_PATH] = {};
    if (items && items[0]) ::SHGetPathFromIDListA(items[0], path);
    heard.push_back({event, path});
    ::SHChangeNotification_Unlock(lock);
    return 0;
  }
  HWND window_ = nullptr;
  ULONG registration_ = 0;
};

TEST_F(ApplyFolderIconTest, TheSystemNotifierReachesAListenerOfThisProcess) {
  folder::InstallShellNotifier(nullptr);  // the fixture's recorder steps aside
  ShellListener listener;
  ASSERT_TRUE(listener.Registered());
  ShellListener::heard.clear();
  folder::ApplyFolderIcon(false);
  toolkit::DoEvents();

  std::vector<std::string> attributesOf;
  bool associationsHeard = false;
  for (const auto& [event, path] : ShellListener::heard) {
    if (event == SHCNE_ATTRIBUTES) attributesOf.push_back(path);
    associationsHeard = associationsHeard || event == SHCNE_ASSOCCHANGED;
  }
  EXPECT_EQ(attributesOf, (std::vector<std::string>{SettingsFile(), folder_.Path()}));
  EXPECT_TRUE(associationsHeard);
}

}  // namespace
