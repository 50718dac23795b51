// Stands in for the web browser in the tests: appends the address it was
// asked to open, one line each, to the file named by MORVANE_URL_LOG.
#include <windows.h>

#include <cstdio>

int main(int argc, char** argv) {
  char log[MAX_PATH] = {};
  if (argc < 2 || ::GetEnvironmentVariableA("MORVANE_URL_LOG", log, MAX_PATH) == 0) return 1;
  FILE* file = std::fopen(log, "ab");
  if (!file) return 1;
  std::fprintf(file, "%s\n", argv[1]);
  std::fclose(file);
  return 0;
}
