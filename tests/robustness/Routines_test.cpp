// Hostile files fed to the program's own routines in this process: each case
// must end within its limit, give its defined result, and leave every file
// it is not meant to change byte-for-byte as it was. One line per case goes
// to the output ("CASE | name | outcome | ms") for the robustness report.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdio>

#include "folder/ApplyFolderIcon.h"
#include "folder/FolderSettings.h"
#include "folder/RecentList.h"
#include "frame/CResDll.h"
#include "frame/RunState.h"
#include "frame/modFileExist.h"
#include "frame/modINI.h"
#include "icons/modExtractIcon.h"
#include "robustness/Hostile.h"
#include "support/DialogAnswerer.h"
#include "support/ShellNotifyRecorder.h"
#include "support/TestSupport.h"
#include "test_resource_ids.h"

namespace {

using namespace hostile;
using testing_support::ReadWholeFile;
using testing_support::TestFolder;
using testing_support::WriteWholeFile;

constexpr auto kCaseLimit = 10s;
constexpr DWORD kNoChange = 0;

// Where a case happens: a target folder with a file of the user's beside
// Desktop.ini, a neighbouring file, and a program folder for Config.ini and
// ARA.INI. Only the paths a case names may change.
class Scene : public ::testing::Test {
 protected:
  void SetUp() override {
    frame::LanguageLibrary().DllName(testing_support::DistFolder() + "LANG_ENG.DLL");
    frame::targetFolder = root_.MakeFolder("target");
    frame::programFolder = root_.MakeFolder("program") + "\\";
    frame::iconListEmpty = false;
    WriteWholeFile(root_ / "target\\photo.jpg", Garbage(5000));
    WriteWholeFile(root_ / "beside.txt", "a neighbour's file");
  }
  void TearDown() override {
    frame::ReleaseLibraries();
    frame::targetFolder.clear();
    frame::programFolder.clear();
  }

  // Runs one case and checks time and data; `mayChange` are scene paths.
  void RunCase(const std::string& name, const std::vector<std::string>& mayChange,
               const std::function<std::string()>& body) {
    SCOPED_TRACE(name);
    Snapshot before = TakeSnapshot(root_.Path());
    std::string outcome;
    const auto start = std::chrono::steady_clock::now();
    WithinLimit(name, kCaseLimit, [&] { outcome = body(); });
    const auto ms = std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now() - start);
    Snapshot after = TakeSnapshot(root_.Path());
    for (const std::string& path : mayChange) before.erase(path), after.erase(path);
    EXPECT_EQ(Differences(before, after), "") << "files outside the case changed";
    std::printf("CASE | %s | %s | %lld\n", name.c_str(), outcome.c_str(),
                static_cast<long long>(ms.count()));
  }

  std::string Program(const std::string& name) const { return frame::programFolder + name; }
  testing_support::ScratchFolder root_;
};

std::string Describe(const folder::FolderSettingsRecord& r) {
  return "read {" + std::to_string(r.confirmFileOp) + ", " + std::to_string(r.noSharing) + ", \"" +
         r.iconFile + "\", " + std::to_string(r.iconIndex) + ", tip of " +
         std::to_string(r.infoTip.size()) + " chars}";
}

struct SettingsCase {
  const char* name;
  std::string bytes;
  DWORD attributes;
  folder::FolderSettingsRecord expected;  // infoTip stands for its length only
  bool writable;                          // the apply's values land in the file
};

TEST_F(Scene, DesktopIniIsReadAndRewrittenWhateverItHolds) {
  const std::string ini = "[.ShellClassInfo]\r\n";
  const std::string x40000(40000, 'x');
  const SettingsCase cases[] = {
      {"Desktop.ini of binary garbage", Garbage(4096), kNoChange, {}, true},
      {"Desktop.ini with a 1 MB line",
       ini + "IconFile=C:\\a.ico\r\nInfoTip=" + std::string(1 << 20, 'x') + "\r\nIconIndex=3\r\n",
       kNoChange,
       {0, 0, "C:\\a.ico", 3, std::string(29999, 'x')},
       true},
      {"InfoTip of 29999 characters",
       ini + "InfoTip=" + x40000.substr(0, 29999) + "\r\n",
       kNoChange,
       {0, 0, "", 0, x40000.substr(0, 29999)},
       true},
      {"InfoTip of 30000 characters",
       ini + "InfoTip=" + x40000.substr(0, 30000) + "\r\n",
       kNoChange,
       {0, 0, "", 0, x40000.substr(0, 29999)},
       true},
      {"InfoTip of 40000 characters",
       ini + "InfoTip=" + x40000 + "\r\n",
       kNoChange,
       {0, 0, "", 0, x40000.substr(0, 29999)},
       true},
      {"duplicate sections and keys",
       ini + "IconFile=first.ico\r\nIconIndex=1\r\nIconIndex=2\r\n" + ini +
           "IconFile=second.ico\r\nInfoTip=tip\r\n",
       kNoChange,
       {0, 0, "first.ico", 1, ""},
       true},
      {"non-numeric numbers",
       ini + "ConfirmFileOp=yes\r\nNoSharing=1x\r\nIconIndex=abc\r\n",
       kNoChange,
       {},
       true},
      {"overflowing numbers",
       ini + "ConfirmFileOp=2147483648\r\nNoSharing=-2147483649\r\nIconIndex=99999999999\r\n",
       kNoChange,
       {},
       true},
      // Wine, run as root here, lets the write through; Windows refuses it.
      {"read-only, hidden and system Desktop.ini",
       ini + "IconFile=C:\\ro.ico\r\nIconIndex=2\r\n",
       FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM,
       {0, 0, "C:\\ro.ico", 2, ""},
       true},
      {"UTF-16 Desktop.ini with a byte-order mark, as Explorer writes it",
       Utf16WithMark(L"\r\n[.ShellClassInfo]\r\nIconResource=C:\\Windows\\system32\\imageres.dll,-3"
                     L"\r\nIconFile=C:\\Icons\\caf\u00e9.ico\r\nIconIndex=4\r\nInfoTip=Fotos del "
                     L"a\u00f1o\r\n"),
       kNoChange,
       {0, 0, "C:\\Icons\\caf\xE9.ico", 4, "Fotos del a\xF1o"},
       true},
  };
  testing_support::ShellNotifyRecorder shell;
  const std::string file = folder::SettingsFilePath();
  for (const SettingsCase& c : cases) {
    WriteWholeFile(file, c.bytes);
    if (c.attributes) ::SetFileAttributesA(file.c_str(), c.attributes);
    RunCase(c.name, {"target\\Desktop.ini"}, [&] {
      folder::FolderSettings = {};
      folder::settingsFileExisted = frame::FileExist(file);
      folder::ReadFolderSettings();
      const folder::FolderSettingsRecord& read = folder::FolderSettings;
      EXPECT_EQ(read.confirmFileOp, c.expected.confirmFileOp);
      EXPECT_EQ(read.noSharing, c.expected.noSharing);
      EXPECT_EQ(read.iconFile, c.expected.iconFile);
      EXPECT_EQ(read.iconIndex, c.expected.iconIndex);
      EXPECT_EQ(read.infoTip, c.expected.infoTip);
      std::string outcome = Describe(read);

      folder::FolderSettings.iconFile = "C:\\chosen.ico";
      folder::FolderSettings.iconIndex = 7;
      folder::ApplyFolderIcon(false);
      const bool landed = frame::ReadIniValue(".ShellClassInfo", "IconIndex", file) == "7";
      EXPECT_EQ(landed, c.writable);
      return outcome + (landed ? "; apply writes its values" : "; apply's write refused");
    });
    ::SetFileAttributesA(file.c_str(), FILE_ATTRIBUTE_NORMAL);
  }
}

TEST_F(Scene, ExplorerFileKeepsItsFormAndForeignKeys) {
  const std::string file = folder::SettingsFilePath();
  WriteWholeFile(file, Utf16WithMark(L"[.ShellClassInfo]\r\nIconResource=x.dll,-3\r\n"));
  folder::settingsFileExisted = true;
  testing_support::ShellNotifyRecorder shell;
  RunCase("UTF-16 Desktop.ini rewritten", {"target\\Desktop.ini"}, [&] {
    folder::FolderSettings = {0, 0, "C:\\y.ico", 1, "tip"};
    folder::ApplyFolderIcon(false);
    const std::string bytes = ReadWholeFile(file);
    EXPECT_EQ(bytes.substr(0, 2), "\xFF\xFE");
    EXPECT_EQ(frame::ReadIniValue(".ShellClassInfo", "IconResource", file), "x.dll,-3");
    EXPECT_EQ(frame::ReadIniValue(".ShellClassInfo", "IconFile", file), "C:\\y.ico");
    return "stays UTF-16 with its mark; foreign key kept; new values read back";
  });
}

// A folder named Desktop.ini is the user's: neither apply nor remove may
// empty or delete it.
TEST_F(Scene, AFolderNamedDesktopIniSurvivesApplyAndRemove) {
  const std::string file = folder::SettingsFilePath();
  ::CreateDirectoryA(file.c_str(), nullptr);
  WriteWholeFile(file + "\\inside.txt", "kept");
  testing_support::ShellNotifyRecorder shell;
  RunCase("a folder in place of Desktop.ini", {"target\\Desktop.ini\\"}, [&] {
    folder::FolderSettings = {};
    folder::settingsFileExisted = frame::FileExist(file);
    folder::ReadFolderSettings();
    EXPECT_EQ(Describe(folder::FolderSettings), Describe({}));
    folder::FolderSettings.iconFile = "C:\\chosen.ico";
    folder::ApplyFolderIcon(false);
    testing_support::DialogAnswerer user(IDYES);
    folder::RemoveFolderIcon();
    EXPECT_EQ(ReadWholeFile(file + "\\inside.txt"), "kept");
    return "reads nothing; apply and remove step over it; its contents kept";
  });
}

class NoBox : public folder::RecentBox, public folder::IconFileLoader {
  void Clear() override {}
  void AddItem(const std::string&) override {}
  void SetListIndex(int) override {}
  std::string Text() const override { return {}; }
  void CargarIconosdeArchivo() override {}
};

enum class Form { Bytes, Folder, Missing };
struct ProfileCase {
  const char* name;
  const char* file;  // in the program folder
  Form form;
  std::string bytes;
  std::string ara02;  // entry 2 of the recent list as read
};

TEST_F(Scene, SettingsAndRecentFilesReadAsEmptyWhenHostile) {
  const std::string longFont(300, 'F');
  const ProfileCase cases[] = {
      {"Config.ini of garbage", "Config.ini", Form::Bytes, Garbage(3000), ""},
      {"Config.ini without its keys", "Config.ini", Form::Bytes, "[Config]\r\nOther=1\r\n", ""},
      {"Config.ini missing", "Config.ini", Form::Missing, "", ""},
      {"a folder named Config.ini", "Config.ini", Form::Folder, "", ""},
      {"ARA.INI of garbage", "ARA.INI", Form::Bytes, Garbage(3000), ""},
      {"ARA.INI with ARA01 and ARA03 only", "ARA.INI", Form::Bytes,
       "[Recent]\r\nARA01=c:\\a.ico\r\nARA03=c:\\c.ico\r\n", ""},
      {"ARA.INI with a 300-character entry", "ARA.INI", Form::Bytes,
       "[Recent]\r\nARA02=" + longFont + "\r\n", longFont},
      {"ARA.INI missing", "ARA.INI", Form::Missing, "", ""},
      {"a folder named ARA.INI", "ARA.INI", Form::Folder, "", ""},
  };
  for (const ProfileCase& c : cases) {
    const std::string path = Program(c.file);
    testing_support::DeleteTree(path);
    if (c.form == Form::Bytes) WriteWholeFile(path, c.bytes);
    if (c.form == Form::Folder) ::CreateDirectoryA(path.c_str(), nullptr);
    const bool recent = std::string(c.file) == "ARA.INI";
    // The recent file is the program's to rewrite, unless it is a folder.
    std::vector<std::string> mayChange;
    if (!recent || c.form != Form::Folder) mayChange = {"program\\ARA.INI"};
    RunCase(c.name, mayChange, [&] {
      const std::string config = Program("Config.ini");
      EXPECT_EQ(frame::ReadIniValue("Config", "LANGUAGE", config), "");
      EXPECT_EQ(frame::ReadIniValue("Config", "Font", config), "");
      NoBox box;
      folder::RecentList list(box, box);
      list.LeerARA();
      EXPECT_EQ(list.List()[1], c.ara02);
      list.EscribirARA("c:\\new.ico");
      list.LeerARA();
      const bool saved = list.List()[0] == "c:\\new.ico";
      EXPECT_EQ(saved, !(recent && c.form == Form::Folder));
      return std::string("LANGUAGE and Font empty; recent entry 2 of ") +
             std::to_string(c.ara02.size()) + " chars; " +
             (saved ? "new entry saved" : "new entry not saved");
    });
  }
}

TEST_F(Scene, ResourceLibrariesGiveEmptyResultsWhenHostile) {
  const std::string testres = ReadWholeFile(TestFolder() + "TESTRES.DLL");
  const std::string resource = ReadWholeFile(testing_support::DistFolder() + "Resource.DLL");
  struct Row {
    const char* name;
    std::string bytes;
  };
  const Row broken[] = {
      {"Resource.DLL cut to its headers", Truncated(resource, 1024)},
      {"Resource.DLL cut in half", Truncated(resource, resource.size() / 2)},
      {"Resource.DLL of text", "MZ? not a library at all\r\n"},
      {"Resource.DLL of zero bytes", ""},
  };
  for (const Row& row : broken) {
    WriteWholeFile(Program("Resource.DLL"), row.bytes);
    RunCase(row.name, {}, [&] {
      frame::CResDll library;
      library.DllName(Program("Resource.DLL"));
      const bool loaded = !library.DllName().empty();
      EXPECT_EQ(library.LoadDllBitmap(2000).Handle(), nullptr);
      EXPECT_EQ(library.LoadDllData(6000), "");
      return loaded ? std::string("loads; lookups give nothing")
                    : std::string("does not load; name empty; lookups give nothing");
    });
  }

  WriteWholeFile(Program("TESTRES.DLL"), ZeroSizeBitmaps(testres));
  RunCase("strings missing, of 300 characters, and a bitmap of size 0", {}, [&] {
    frame::CResDll library;
    library.DllName(Program("TESTRES.DLL"));
    EXPECT_FALSE(library.DllName().empty());
    EXPECT_EQ(library.LoadDllString(TEST_STR_MISSING), "");
    std::string digits;
    for (int n = 0; n < 30; ++n) digits += "0123456789";
    EXPECT_EQ(library.LoadDllString(TEST_STR_300), digits.substr(0, 255));
    // The system answers an empty bitmap with its 1 x 1 stand-in.
    toolkit::Picture empty = library.LoadDllBitmap(TEST_BITMAP);
    BITMAP shape{};
    if (empty) ::GetObjectA(empty.Handle(), sizeof shape, &shape);
    EXPECT_LE(shape.bmWidth * shape.bmHeight, 1);
    return "missing string empty; 300 characters cut to 255; the empty bitmap gives a picture of " +
           std::to_string(shape.bmWidth) + " x " + std::to_string(shape.bmHeight);
  });
}

struct IconCase {
  const char* name;
  std::function<std::string(const std::string& root)> make;  // returns the path
  int count;
};

// A path of exactly `length` characters ending in a copy of icons.ico, made
// with the long-path form so that the system's own limits do not stop it.
std::string LongIconPath(const std::string& root, std::size_t length) {
  const std::string file = "\\i.ico";
  const std::string folder = root + "\\" + std::string(length - root.size() - 1 - file.size(), 'd');
  const std::wstring wideFolder(folder.begin(), folder.end());
  const std::wstring wideFile = wideFolder + L"\\i.ico";
  const std::string source = TestFolder() + "icons.ico";
  ::CreateDirectoryW((L"\\\\?\\" + wideFolder).c_str(), nullptr);
  ::CopyFileW(std::wstring(source.begin(), source.end()).c_str(), (L"\\\\?\\" + wideFile).c_str(),
              FALSE);
  return folder + file;
}

TEST_F(Scene, IconFilesThatAreBrokenGiveNoIcons) {
  const std::string library = ReadWholeFile(TestFolder() + "ICONS120.DLL");
  const std::string icon = ReadWholeFile(TestFolder() + "icons.ico");
  auto file = [](const std::string& name, const std::string& bytes) {
    return [=](const std::string& root) {
      WriteWholeFile(root + "\\" + name, bytes);
      return root + "\\" + name;
    };
  };
  const IconCase cases[] = {
      {"icon library cut to its headers", file("cut.dll", Truncated(library, 1024)), 0},
      {"icon library cut in half", file("half.dll", Truncated(library, library.size() / 2)), 0},
      {"resource table past the end", file("past.dll", ResourceTablePastTheEnd(library)), 0},
      {".ico claiming 65535 images", file("many.ico", IconClaiming65535(icon)), 0},
      {"icon file of zero bytes", file("zero.ico", ""), 0},
      {"a folder as icon file",
       [](const std::string& root) {
         ::CreateDirectoryA((root + "\\folder.ico").c_str(), nullptr);
         return root + "\\folder.ico";
       },
       0},
      {"icon path of 259 characters", [](const std::string& r) { return LongIconPath(r, 259); }, 1},
      {"icon path of 260 characters", [](const std::string& r) { return LongIconPath(r, 260); }, 0},
      {"icon path of 300 characters", [](const std::string& r) { return LongIconPath(r, 300); }, 0},
      {"icon path with ANSI letters",
       file("caf\xE9 \xF1"
            "and\xFA.ico",
            icon),
       1},
  };
  for (const IconCase& c : cases) {
    const std::string icons = root_.MakeFolder(std::string("icons-") + std::to_string(&c - cases));
    const std::string path = c.make(icons);
    RunCase(c.name, {}, [&] {
      const int count = icons::GetIconCount(path);
      EXPECT_EQ(count, c.count);
      HICON first = icons::ExtractLargeIcon(path, 0);
      HICON beyond = icons::ExtractLargeIcon(path, 65534);
      EXPECT_EQ(first != nullptr, c.count > 0);
      EXPECT_EQ(beyond, nullptr);
      icons::ReleaseIcon(first);
      icons::ReleaseIcon(beyond);
      return "count " + std::to_string(count) + (first ? "; first icon extracted" : "; no icon");
    });
    // Long paths are out of reach of the scratch folder's own clean-up.
    const std::wstring wide(path.begin(), path.end());
    ::DeleteFileW((L"\\\\?\\" + wide).c_str());
    ::RemoveDirectoryW((L"\\\\?\\" + wide.substr(0, wide.rfind(L'\\'))).c_str());
  }
}

}  // namespace
