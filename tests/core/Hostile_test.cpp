// Hostile files fed to the routines that read them: a damaged or foreign
// Desktop.ini, ARA.INI, picture library or icon source. Every row must end
// within its limit, give its outcome, and leave every other file as it was.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <functional>
#include <future>
#include <map>
#include <thread>

#include "core/FolderCustomisation.h"
#include "core/RecentIconFiles.h"
#include "platform/IconFile.h"
#include "platform/IniFile.h"
#include "platform/ResourceLibrary.h"
#include "resource_ids.h"
#include "support/TestSupport.h"

namespace {

using testing_support::ReadWholeFile;
using testing_support::TestFolder;
using testing_support::WriteWholeFile;
using Snapshot = std::map<std::string, std::string>;

constexpr auto kCaseLimit = std::chrono::seconds(10);
constexpr int kChosenIndex = 7;

void Collect(const std::string& folder, const std::string& relative, Snapshot& into) {
  WIN32_FIND_DATAA entry;
  HANDLE search = ::FindFirstFileA((folder + "\\*").c_str(), &entry);
  if (search == INVALID_HANDLE_VALUE) return;
  do {
    const std::string name = entry.cFileName;
    if (name == "." || name == "..") continue;
    const std::string path = folder + "\\" + name;
    const bool isFolder = entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
    into[relative + name + (isFolder ? "\\" : "")] = isFolder ? "" : ReadWholeFile(path);
    if (isFolder) Collect(path, relative + name + "\\", into);
  } while (::FindNextFileA(search, &entry));
  ::FindClose(search);
}

// Deterministic bytes with every value, NUL and line ends included.
std::string Garbage(std::size_t length) {
  std::string bytes(length, '\0');
  std::uint32_t state = 12345;
  for (char& byte : bytes) byte = static_cast<char>((state = state * 1103515245u + 12345u) >> 16);
  return bytes;
}

std::uint32_t& Word(std::string& image, std::size_t offset) {
  return *reinterpret_cast<std::uint32_t*>(image.data() + offset);
}

// The resource directory of a 64-bit library pointed past the end of its image.
std::string ResourceTablePastTheEnd(std::string image) {
  const std::size_t optional = Word(image, 0x3C) + 24;
  Word(image, optional + 112 + 2 * 8) = Word(image, optional + 56) + 0x10000;
  return image;
}

std::string Utf16WithMark(const std::wstring& text) {
  std::string bytes = "\xFF\xFE";
  for (wchar_t unit : text) bytes += {static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)};
  return bytes;
}

struct Scene {
  testing_support::ScratchFolder root;
  std::string Target() const { return root / "target"; }
  std::string Program(const std::string& name) const { return root / ("program\\" + name); }
};

struct HostileCase {
  std::string name;
  std::function<void(const Scene&)> setup;
  std::function<std::string(const Scene&)> routine;
  std::string expected;
  std::vector<std::string> mayChange;  // relative to the scene
};

std::string Shown(const std::string& text) {
  return text.size() > 20 ? std::to_string(text.size()) + " chars" : '"' + text + '"';
}

// Reads the file, then applies icon 7 over it, as a run does.
HostileCase DesktopIni(std::string name, std::string bytes, DWORD attributes,
                       std::string expected) {
  return {name,
          [=](const Scene& s) {
            WriteWholeFile(core::SettingsFilePath(s.Target()), bytes);
            ::SetFileAttributesA(core::SettingsFilePath(s.Target()).c_str(), attributes);
          },
          [](const Scene& s) {
            core::FolderSettings read;
            core::ReadFolderSettings(s.Target(), read);
            const std::string file = core::SettingsFilePath(s.Target());
            std::string outcome = std::to_string(read.confirmFileOp) + " " +
                                  std::to_string(read.noSharing) + " " + Shown(read.iconFile) +
                                  " " + std::to_string(read.iconIndex) + " " + Shown(read.infoTip);
            platform::ResourceLibrary language;
            testing_support::RecordingNotifier shell;
            read.iconIndex = kChosenIndex;
            core::ApplyFolderIcon(s.Target(), read, false, language, shell);
            const bool landed = platform::ReadIniValue(".ShellClassInfo", "IconIndex", file) == "7";
            outcome += landed ? "; written" : "; refused";
            if (ReadWholeFile(file).rfind("\xFF\xFE", 0) == 0) outcome += "; still UTF-16";
            return outcome;
          },
          expected,
          {"target\\Desktop.ini"}};
}

// Loads the list, remembers a new file and loads again.
HostileCase RecentFile(std::string name, std::function<void(const std::string&)> make,
                       std::string expected, bool writable = true) {
  return {name,
          [=](const Scene& s) { make(s.Program(core::kRecentFileName)); },
          [](const Scene& s) {
            core::RecentIconFiles recent(s.Program(core::kRecentFileName));
            recent.Load();
            const std::string second = Shown(recent.List()[1]);
            recent.Remember("c:\\new.ico");
            recent.Load();
            return "entry 2 " + second + (recent.List()[0] == "c:\\new.ico" ? "; saved" : "; lost");
          },
          expected,
          writable ? std::vector<std::string>{"program\\ARA.INI"} : std::vector<std::string>{}};
}

HostileCase PictureLibrary(std::string name, std::string bytes, std::string expected) {
  return {name, [=](const Scene& s) { WriteWholeFile(s.Program("Resource.DLL"), bytes); },
          [](const Scene& s) {
            platform::ResourceLibrary library;
            library.Open(s.Program("Resource.DLL"));
            const bool nothing = !library.Bitmap(IDB_SKIN) && library.Data(IDR_FONT).empty();
            return std::string(library.Name().empty() ? "not loaded" : "loaded") +
                   (nothing ? "; nothing found" : "; found something");
          },
          expected, {}};
}

HostileCase IconSource(std::string name, std::string file,
                       std::function<void(const std::string&)> make, int count) {
  return {name, [=](const Scene& s) { make(s.Program(file)); },
          [=](const Scene& s) {
            const platform::IconFile icons(s.Program(file));
            HICON first = icons.ExtractLarge(0);
            HICON beyond = icons.ExtractLarge(65534);
            const std::string outcome = "count " + std::to_string(icons.Count()) +
                                        (first ? "; first icon" : "") + (beyond ? "; beyond" : "");
            platform::ReleaseIcon(first);
            platform::ReleaseIcon(beyond);
            return outcome;
          },
          "count " + std::to_string(count) + (count ? "; first icon" : ""), {}};
}

std::function<void(const std::string&)> Bytes(std::string bytes) {
  return [=](const std::string& path) { WriteWholeFile(path, bytes); };
}

void MakeFolder(const std::string& path) {
  ::CreateDirectoryA(path.c_str(), nullptr);
  WriteWholeFile(path + "\\inside.txt", "kept");
}

std::vector<HostileCase> Cases() {
  const std::string ini = "[.ShellClassInfo]\r\n";
  const std::string x40000(40000, 'x');
  const std::string library = ReadWholeFile(TestFolder() + "ICONS120.DLL");
  const std::string icon = ReadWholeFile(TestFolder() + "icons.ico");
  const std::string pictures = ReadWholeFile(testing_support::DistFolder() + "Resource.DLL");
  std::string many = icon;
  many[4] = many[5] = '\xFF';
  return {
      DesktopIni("Desktop.ini of binary garbage", Garbage(4096), 0, "0 0 \"\" 0 \"\"; written"),
      DesktopIni("a line of 1 MB",
                 ini + "IconFile=C:\\a.ico\r\nInfoTip=" + std::string(1 << 20, 'x') +
                     "\r\nIconIndex=3\r\n",
                 0, "0 0 \"C:\\a.ico\" 3 29999 chars; written"),
      DesktopIni("InfoTip of 40000 characters", ini + "InfoTip=" + x40000 + "\r\n", 0,
                 "0 0 \"\" 0 29999 chars; written"),
      DesktopIni("duplicate sections and keys",
                 ini + "IconFile=first.ico\r\nIconIndex=1\r\nIconIndex=2\r\n" + ini +
                     "IconFile=second.ico\r\n",
                 0, "0 0 \"first.ico\" 1 \"\"; written"),
      DesktopIni("numbers that overflow or are words",
                 ini + "ConfirmFileOp=2147483648\r\nNoSharing=1x\r\nIconIndex=-2147483649\r\n", 0,
                 "0 0 \"\" 0 \"\"; written"),
      // Wine, run as root here, lets the write through; Windows refuses it.
      DesktopIni("read-only, hidden and system Desktop.ini", ini + "IconIndex=2\r\n",
                 FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM,
                 "0 0 \"\" 2 \"\"; written"),
      DesktopIni("UTF-16 with a byte-order mark, as Explorer writes it",
                 Utf16WithMark(L"[.ShellClassInfo]\r\nIconResource=x.dll,-3\r\nIconFile=C:\\caf"
                               L"\u00e9.ico\r\nIconIndex=4\r\nInfoTip=a\u00f1o\r\n"),
                 0, "0 0 \"C:\\caf\xE9.ico\" 4 \"a\xF1o\"; written; still UTF-16"),
      {"a folder named Desktop.ini",
       [](const Scene& s) { MakeFolder(core::SettingsFilePath(s.Target())); },
       [](const Scene& s) {
         core::FolderSettings settings;
         core::ReadFolderSettings(s.Target(), settings);
         testing_support::RecordingNotifier shell;
         core::ApplyFolderIcon(s.Target(), settings, true, platform::ResourceLibrary(), shell);
         core::DeleteCustomisationFiles(s.Target());
         core::UnmarkFolder(s.Target(), shell);
         return Shown(settings.iconFile) + "; " + std::to_string(shell.calls.size()) + " calls";
       },
       "\"\"; 7 calls",
       {}},
      RecentFile("ARA.INI of garbage", Bytes(Garbage(3000)), "entry 2 \"\"; saved"),
      RecentFile("ARA.INI with an entry of 300 characters",
                 Bytes("[Recent]\r\nARA02=" + std::string(300, 'F') + "\r\n"),
                 "entry 2 300 chars; saved"),
      RecentFile("a folder named ARA.INI", MakeFolder, "entry 2 \"\"; lost", false),
      PictureLibrary("Resource.DLL cut to its headers", pictures.substr(0, 1024),
                     "not loaded; nothing found"),
      PictureLibrary("Resource.DLL cut in half", pictures.substr(0, pictures.size() / 2),
                     "not loaded; nothing found"),
      PictureLibrary("Resource.DLL of text", "MZ? not a library\r\n", "not loaded; nothing found"),
      PictureLibrary("Resource.DLL of zero bytes", "", "not loaded; nothing found"),
      IconSource("icon library cut to its headers", "cut.dll", Bytes(library.substr(0, 1024)), 0),
      IconSource("icon library cut in half", "half.dll",
                 Bytes(library.substr(0, library.size() / 2)), 0),
      IconSource("resource table past the end", "past.dll",
                 Bytes(ResourceTablePastTheEnd(library)), 0),
      IconSource(".ico claiming 65535 images", "many.ico", Bytes(many), 0),
      IconSource(".ico of zero bytes", "zero.ico", Bytes(""), 0),
      IconSource("a folder as icon file", "folder.ico", MakeFolder, 0),
      IconSource("ANSI letters in the name", "caf\xE9 \xF1.ico", Bytes(icon), 1),
  };
}

TEST(Hostile, EveryRowEndsInTimeWithItsOutcomeAndTouchesNothingElse) {
  for (const HostileCase& c : Cases()) {
    SCOPED_TRACE(c.name);
    Scene scene;
    ::CreateDirectoryA(scene.Target().c_str(), nullptr);
    ::CreateDirectoryA((scene.root / "program").c_str(), nullptr);
    WriteWholeFile(scene.Target() + "\\photo.jpg", Garbage(5000));
    c.setup(scene);
    Snapshot before, after;
    Collect(scene.root.Path(), "", before);
    // A hung routine cannot be stopped from outside: past the limit the
    // whole program ends, naming the row.
    std::packaged_task<std::string()> task([&] { return c.routine(scene); });
    auto outcome = task.get_future();
    std::thread worker(std::move(task));
    if (outcome.wait_for(kCaseLimit) != std::future_status::ready) {
      std::fprintf(stderr, "HUNG: %s\n", c.name.c_str());
      std::_Exit(EXIT_FAILURE);
    }
    worker.join();
    EXPECT_EQ(outcome.get(), c.expected);
    Collect(scene.root.Path(), "", after);
    for (const std::string& path : c.mayChange) before.erase(path), after.erase(path);
    EXPECT_EQ(before, after) << "files outside the row changed";
    for (const std::string& path : {core::SettingsFilePath(scene.Target()), scene.Target()}) {
      ::SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    }
  }
}

}  // namespace
