#include "toolkit/LoadedWindows.h"

#include <algorithm>

namespace toolkit {
namespace {
std::vector<LoadedWindow*> g_loaded;
}

void RegisterLoadedWindow(LoadedWindow* window) {
  if (window && !IsWindowLoaded(window)) g_loaded.push_back(window);
}

void UnregisterLoadedWindow(LoadedWindow* window) {
  g_loaded.erase(std::remove(g_loaded.begin(), g_loaded.end(), window), g_loaded.end());
}

std::vector<LoadedWindow*> LoadedWindows() {
  return g_loaded;
}

bool IsWindowLoaded(const LoadedWindow* window) {
  return std::find(g_loaded.begin(), g_loaded.end(), window) != g_loaded.end();
}

}  // namespace toolkit
