// Stands in for the web browser: appends the address it was asked to open,
// as one line, to the file named by MORVANE_URL_LOG. One write of the whole
// line, so that a reader never sees half an address.
#include <windows.h>

#include <string>

int main(int argc, char** argv) {
  char log[MAX_PATH] = {};
  if (argc < 2 || ::GetEnvironmentVariableA("MORVANE_URL_LOG", log, MAX_PATH) == 0) return 1;
  HANDLE file = ::CreateFileA(log, FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                              OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return 1;
  const std::string line = std::string(argv[1]) + "\n";
  DWORD written = 0;
  const bool whole = ::WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written,
                                 nullptr) && written == line.size();
  ::CloseHandle(file);
  return whole ? 0 : 1;
}
