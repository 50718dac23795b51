#pragma once

namespace integration {

// Asks Windows to restart the computer; a refusal is not reported.
void RestartWindows();

}  // namespace integration
