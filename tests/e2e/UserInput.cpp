#include "UserInput.h"

#include <chrono>
#include <thread>

namespace e2e {
namespace {

using namespace std::chrono_literals;

// Time for the program to see the input and repaint.
constexpr auto kSettle = 300ms;

void SendKey(WORD virtualKey, WORD scan, DWORD flags) {
  INPUT key[2] = {};
  key[0].type = key[1].type = INPUT_KEYBOARD;
  key[0].ki.wVk = key[1].ki.wVk = virtualKey;
  key[0].ki.wScan = key[1].ki.wScan = scan;
  key[0].ki.dwFlags = flags;
  key[1].ki.dwFlags = flags | KEYEVENTF_KEYUP;
  ::SendInput(2, key, sizeof(INPUT));
}

}  // namespace

void PointAt(HWND window, POINT client) {
  ::ClientToScreen(window, &client);
  ::SetCursorPos(client.x, client.y);
  std::this_thread::sleep_for(100ms);
}

void ClickAt(HWND window, POINT client, Button button, int clicks) {
  PointAt(window, client);
  const bool left = button == Button::Left;
  for (int n = 0; n < clicks; ++n) {
    INPUT press[2] = {};
    press[0].type = press[1].type = INPUT_MOUSE;
    press[0].mi.dwFlags = left ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_RIGHTDOWN;
    press[1].mi.dwFlags = left ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_RIGHTUP;
    ::SendInput(2, press, sizeof(INPUT));
  }
  std::this_thread::sleep_for(kSettle);
}

void Drag(HWND window, POINT from, POINT by) {
  PointAt(window, from);
  POINT to{};
  ::GetCursorPos(&to);
  to.x += by.x;
  to.y += by.y;
  INPUT steps[3] = {};
  for (INPUT& step : steps) step.type = INPUT_MOUSE;
  steps[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
  // Absolute, so that the system's pointer acceleration does not apply.
  steps[1].mi.dx = ::MulDiv(to.x, 65535, ::GetSystemMetrics(SM_CXSCREEN) - 1);
  steps[1].mi.dy = ::MulDiv(to.y, 65535, ::GetSystemMetrics(SM_CYSCREEN) - 1);
  steps[1].mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
  steps[2].mi.dwFlags = MOUSEEVENTF_LEFTUP;
  for (INPUT& step : steps) {
    ::SendInput(1, &step, sizeof(INPUT));
    std::this_thread::sleep_for(150ms);
  }
  std::this_thread::sleep_for(kSettle);
}

void DoubleClickAt(HWND window, POINT client) {
  ClickAt(window, client, Button::Left, 2);
}

void Type(const std::string& text) {
  for (char c : text) SendKey(0, static_cast<unsigned char>(c), KEYEVENTF_UNICODE);
  std::this_thread::sleep_for(kSettle);
}

void PressKey(WORD virtualKey) {
  SendKey(virtualKey, 0, 0);
  std::this_thread::sleep_for(kSettle);
}

POINT Centre(HWND window) {
  RECT client{};
  ::GetClientRect(window, &client);
  return {client.right / 2, client.bottom / 2};
}

}  // namespace e2e
