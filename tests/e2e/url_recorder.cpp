// Stands in for the web browser: appends the address it was asked to open,
// as one line, to the file named by MORVANE_URL_LOG. A windows program, so
// that no console window opens under the pointer; one write of the whole
// line, so that a reader never sees half an address.
#include <windows.h>

#include <string>

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  char log[MAX_PATH] = {};
  if (__argc < 2 || !::GetEnvironmentVariableA("MORVANE_URL_LOG", log, MAX_PATH)) return 1;
  HANDLE file = ::CreateFileA(log, FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                              OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  const std::string line = std::string(__argv[1]) + "\n";
  DWORD written = 0;
  ::WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
  return ::CloseHandle(file) && written == line.size() ? 0 : 1;
}
