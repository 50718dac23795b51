// Customises or restores one folder the way the program does, for checks
// made from Linux: CustomiseFolder.exe apply|remove FOLDER.
#include <windows.h>

#include <string>

#include "folder/ApplyFolderIcon.h"
#include "folder/FolderSettings.h"
#include "frame/CResDll.h"
#include "frame/RunState.h"
#include "support/DialogAnswerer.h"
#include "support/TestSupport.h"

int main(int argc, char** argv) {
  constexpr int kUsageError = 2;
  if (argc != 3) return kUsageError;
  const std::string action = argv[1];
  frame::LanguageLibrary().DllName(testing_support::DistFolder() + "LANG_ENG.DLL");
  frame::targetFolder = argv[2];
  folder::FolderSettings = {0, 0, "C:\\icons\\set.dll", 2, "tip"};
  if (action == "apply") {
    folder::ApplyFolderIcon(false);
  } else if (action == "remove") {
    testing_support::DialogAnswerer user(IDYES);
    folder::RemoveFolderIcon();
  } else {
    return kUsageError;
  }
  frame::ReleaseLibraries();
  return 0;
}
