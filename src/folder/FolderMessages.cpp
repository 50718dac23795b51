#include "folder/FolderMessages.h"

#include <windows.h>

#include <string>

#include "frame/CResDll.h"
#include "resource_ids.h"

namespace folder {
namespace {

constexpr UINT kQuestionStyle = MB_YESNO | MB_ICONQUESTION;
constexpr UINT kWarningStyle = MB_OK | MB_ICONEXCLAMATION;

int ShowMessage(std::int32_t promptId, std::int32_t titleId, UINT style) {
  frame::CResDll& texts = frame::LanguageLibrary();
  const std::string prompt = texts.LoadDllString(promptId);
  const std::string title = texts.LoadDllString(titleId);
  return ::MessageBoxA(::GetActiveWindow(), prompt.c_str(), title.c_str(), style);
}

}  // namespace

bool ConfirmWithUser(std::int32_t promptId) {
  return ShowMessage(promptId, IDS_CONFIRM_TITLE, kQuestionStyle) == IDYES;
}

void WarnMissingIconFile() {
  ShowMessage(IDS_MISSING_FILE_PROMPT, IDS_MISSING_FILE_TITLE, kWarningStyle);
}

}  // namespace folder
