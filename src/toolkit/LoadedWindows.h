// The program's collection of loaded windows, in the order they were loaded,
// so that the end of the program can unload whatever is still open.
#pragma once

#include <vector>

namespace toolkit {

class LoadedWindow {
 public:
  virtual ~LoadedWindow() = default;
  // Closes and destroys the window, running its own close handlers.
  virtual void Unload() = 0;
  // True while the window's own close is in progress.
  virtual bool Closing() const = 0;
};

void RegisterLoadedWindow(LoadedWindow* window);
void UnregisterLoadedWindow(LoadedWindow* window);
// A copy: unloading a window changes the collection.
std::vector<LoadedWindow*> LoadedWindows();
bool IsWindowLoaded(const LoadedWindow* window);

}  // namespace toolkit
