// The display scale as the system gives it to a window: dots per inch and
// the system sizes that follow from them. The per-window calls came with
// Windows 10 1607 and are looked up when used, so the program still runs
// where they are missing and then keeps to the system's one DPI.
#pragma once

#include <windows.h>

namespace platform {

// 96: what every pixel size of the program's design is drawn for.
inline constexpr int kDesignDpi = USER_DEFAULT_SCREEN_DPI;

// The DPI windows get until the system says which monitor they are on.
int SystemDpi();

// The DPI of the monitor `window` is on, as the system scales it for this
// per-monitor aware program; SystemDpi() for no window.
int WindowDpi(HWND window);

// GetSystemMetrics for `dpi`; without the per-DPI call, the system's answer
// scaled from its own DPI.
int SystemMetricForDpi(int metric, int dpi);

// The size of the shell's large icons at `dpi` (32 at 96, 48 at 144).
int LargeIconSize(int dpi);

// `pixels` drawn for 96 dpi, at `dpi`, rounded to the nearest pixel.
int ScalePixels(int pixels, int dpi);

}  // namespace platform
