// The questions and the warning of the folder routines: standard message
// boxes with language-library texts, owned by the active window.
#pragma once

#include <cstdint>

namespace folder {

// Yes/No with the question icon under the confirmation title; true only
// for Yes.
bool ConfirmWithUser(std::int32_t promptId);

// The missing icon file warning: OK with the exclamation icon.
void WarnMissingIconFile();

}  // namespace folder
