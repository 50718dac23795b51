// Hostile files fed to the routines that read them: a damaged or foreign
// Desktop.ini, ARA.INI, picture library or icon source. Every row must end
// within its limit, give its outcome, and leave every other file as it was.
#include <gtest/gtest.h>

#include <cstdio>
#include <functional>
#include <future>
#include <thread>

#include "core/FolderCustomisation.h"
#include "core/RecentIconFiles.h"
#include "platform/IconFile.h"
#include "platform/IniFile.h"
#include "platform/ResourceLibrary.h"
#include "support/TestSupport.h"

namespace {

constexpr int kIconSize = 32;  // the large icons at 96 dpi

using testing_support::ReadFile;
using testing_support::Snapshot;
using testing_support::TestFolder;
using testing_support::WriteFile;
using Make = std::function<void(const std::string& path)>;

constexpr auto kCaseLimit = std::chrono::seconds(10);

// Deterministic bytes with every value, NUL and line ends included.
std::string Garbage(std::size_t length) {
  std::string bytes(length, '\0');
  std::uint32_t state = 12345;
  for (char& byte : bytes) byte = static_cast<char>((state = state * 1103515245u + 12345u) >> 16);
  return bytes;
}

// The resource directory of a 64-bit library pointed past the end of its image.
std::string ResourceTablePastTheEnd(std::string image) {
  auto word = [&](std::size_t at) -> std::uint32_t& {
    return *reinterpret_cast<std::uint32_t*>(image.data() + at);
  };
  const std::size_t optional = word(0x3C) + 24;
  word(optional + 112 + 2 * 8) = word(optional + 56) + 0x10000;
  return image;
}

Make Bytes(std::string bytes) {
  return [=](const std::string& path) { WriteFile(path, bytes); };
}

void MakeFolder(const std::string& path) {
  ::CreateDirectoryA(path.c_str(), nullptr);
  WriteFile(path + "\\inside.txt", "kept");
}

std::string Shown(const std::string& text) {
  return text.size() > 20 ? std::to_string(text.size()) + " chars" : '"' + text + '"';
}

struct HostileCase {
  std::string name;
  std::string file;  // the hostile file, in the scene
  Make make;
  std::function<std::string(const std::string& folder, const std::string& file)> routine;
  std::string expected;
  bool fileMayChange;
};

// Reads the folder's settings, then applies icon 7 over them, as a run does.
HostileCase DesktopIni(std::string name, std::string bytes, std::string expected) {
  auto routine = [](const std::string& folder, const std::string& file) {
    core::FolderSettings read;
    core::ReadFolderSettings(folder, read);
    std::string outcome = std::to_string(read.confirmFileOp) + " " +
                          std::to_string(read.noSharing) + " " + Shown(read.iconFile) + " " +
                          std::to_string(read.iconIndex) + " " + Shown(read.infoTip);
    testing_support::RecordingNotifier shell;
    read.iconIndex = 7;
    core::ApplyFolderIcon(folder, read, false, platform::ResourceLibrary(), shell);
    return outcome + (platform::ReadIniValue(".ShellClassInfo", "IconIndex", file) == "7"
                          ? "; written"
                          : "; refused");
  };
  return {name, core::kSettingsFileName, Bytes(bytes), routine, expected, true};
}

// Loads the list, remembers a new file and loads again.
HostileCase RecentFile(std::string name, Make make, std::string expected, bool writable = true) {
  auto routine = [](const std::string&, const std::string& file) {
    core::RecentIconFiles recent(file);
    recent.Load();
    const std::string second = Shown(recent.List()[1]);
    recent.Remember("c:\\new.ico");
    recent.Load();
    return "entry 2 " + second + (recent.List()[0] == "c:\\new.ico" ? "; saved" : "; lost");
  };
  return {name, core::kRecentFileName, make, routine, expected, writable};
}

HostileCase IconSource(std::string name, std::string file, Make make, int count) {
  auto routine = [](const std::string&, const std::string& path) {
    const platform::IconFile icons(path);
    HICON first = icons.Extract(0, kIconSize), beyond = icons.Extract(65534, kIconSize);
    const std::string outcome = "count " + std::to_string(icons.Count()) +
                                (first ? "; first icon" : "") + (beyond ? "; beyond" : "");
    platform::ReleaseIcon(first);
    platform::ReleaseIcon(beyond);
    return outcome;
  };
  return {
      name, file, make, routine, "count " + std::to_string(count) + (count ? "; first icon" : ""),
      false};
}

std::vector<HostileCase> Cases() {
  const std::string ini = "[.ShellClassInfo]\r\n";
  const std::string library = ReadFile(TestFolder() + "ICONS120.DLL");
  const std::string icon = ReadFile(TestFolder() + "icons.ico");
  std::string many = icon;
  many[4] = many[5] = '\xFF';
  return {
      DesktopIni("Desktop.ini of binary garbage", Garbage(4096), "0 0 \"\" 0 \"\"; written"),
      DesktopIni("a line of 1 MB",
                 ini + "IconFile=C:\\a.ico\r\nInfoTip=" + std::string(1 << 20, 'x') +
                     "\r\nIconIndex=3\r\n",
                 "0 0 \"C:\\a.ico\" 3 29999 chars; written"),
      DesktopIni("duplicate sections and keys",
                 ini + "IconFile=first.ico\r\nIconIndex=1\r\nIconIndex=2\r\n" + ini +
                     "IconFile=second.ico\r\n",
                 "0 0 \"first.ico\" 1 \"\"; written"),
      DesktopIni("numbers that overflow or are words",
                 ini + "ConfirmFileOp=2147483648\r\nNoSharing=1x\r\nIconIndex=-2147483649\r\n",
                 "0 0 \"\" 0 \"\"; written"),
      {"a folder named Desktop.ini", core::kSettingsFileName, MakeFolder,
       [](const std::string& folder, const std::string&) {
         core::FolderSettings settings;
         core::ReadFolderSettings(folder, settings);
         testing_support::RecordingNotifier shell;
         core::ApplyFolderIcon(folder, settings, true, platform::ResourceLibrary(), shell);
         core::DeleteCustomisationFiles(folder);
         core::UnmarkFolder(folder, shell);
         return Shown(settings.iconFile) + "; " + std::to_string(shell.calls.size()) + " calls";
       },
       "\"\"; 7 calls", false},
      RecentFile("ARA.INI of garbage", Bytes(Garbage(3000)), "entry 2 \"\"; saved"),
      RecentFile("ARA.INI with an entry of 300 characters",
                 Bytes("[Recent]\r\nARA02=" + std::string(300, 'F') + "\r\n"),
                 "entry 2 300 chars; saved"),
      RecentFile("a folder named ARA.INI", MakeFolder, "entry 2 \"\"; lost", false),
      IconSource("icon library cut in half", "half.dll",
                 Bytes(library.substr(0, library.size() / 2)), 0),
      IconSource("resource table past the end", "past.dll", Bytes(ResourceTablePastTheEnd(library)),
                 0),
      IconSource(".ico claiming 65535 images", "many.ico", Bytes(many), 0),
      IconSource(".ico of zero bytes", "zero.ico", Bytes(""), 0),
      IconSource("a folder as icon file", "folder.ico", MakeFolder, 0),
  };
}

TEST(Hostile, EveryRowEndsInTimeWithItsOutcomeAndTouchesNothingElse) {
  for (const HostileCase& c : Cases()) {
    SCOPED_TRACE(c.name);
    testing_support::ScratchFolder scene;
    WriteFile(scene / "photo.jpg", Garbage(5000));
    WriteFile(scene / "beside.txt", "the user's");
    c.make(scene / c.file);
    auto before = Snapshot(scene.Path());
    // A hung routine cannot be stopped from outside: past the limit the
    // whole program ends, naming the row.
    std::packaged_task<std::string()> task([&] { return c.routine(scene.Path(), scene / c.file); });
    auto outcome = task.get_future();
    std::thread worker(std::move(task));
    if (outcome.wait_for(kCaseLimit) != std::future_status::ready) {
      std::fprintf(stderr, "HUNG: %s\n", c.name.c_str());
      std::_Exit(EXIT_FAILURE);
    }
    worker.join();
    EXPECT_EQ(outcome.get(), c.expected);
    auto after = Snapshot(scene.Path());
    if (c.fileMayChange) before.erase(scene / c.file), after.erase(scene / c.file);
    EXPECT_TRUE(before == after) << "files outside the row changed";
  }
}

}  // namespace
