// The virtual display's mouse and keyboard, as a user would use them on the
// windows of another process.
#pragma once

#include <windows.h>

#include <string>

namespace e2e {

enum class Button { Left, Right };

// Moves the pointer to a point of `window`'s client area and clicks there
// (twice for a double-click), then lets the program react.
void ClickAt(HWND window, POINT client, Button button = Button::Left, int clicks = 1);
void DoubleClickAt(HWND window, POINT client);
// Only moves the pointer there.
void PointAt(HWND window, POINT client);
// Presses the left button at a point of `window`, moves the pointer by
// `by` pixels and releases it there.
void Drag(HWND window, POINT from, POINT by);
void Type(const std::string& text);
void PressKey(WORD virtualKey);
POINT Centre(HWND window);

}  // namespace e2e
