// Wall-clock timing for the benchmark: the performance counter in
// milliseconds, and the median that every figure of the report is.
#pragma once

#include <windows.h>

#include <algorithm>
#include <vector>

namespace bench {

inline double NowMs() {
  static const double ticksPerMs = [] {
    LARGE_INTEGER frequency;
    ::QueryPerformanceFrequency(&frequency);
    return static_cast<double>(frequency.QuadPart) / 1000.0;
  }();
  LARGE_INTEGER now;
  ::QueryPerformanceCounter(&now);
  return static_cast<double>(now.QuadPart) / ticksPerMs;
}

// Time of one call of `work`, in milliseconds.
template <typename Work>
double TimeMs(Work&& work) {
  const double start = NowMs();
  work();
  return NowMs() - start;
}

inline double Median(std::vector<double> samples) {
  if (samples.empty()) return 0;
  std::sort(samples.begin(), samples.end());
  const std::size_t middle = samples.size() / 2;
  return samples.size() % 2 ? samples[middle] : (samples[middle - 1] + samples[middle]) / 2;
}

}  // namespace bench
