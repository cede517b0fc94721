#include "desktops/win32_input.h"

namespace rangewerks::tests {

namespace {

INPUT Key(WORD key, bool up) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
  input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
  return input;
}

INPUT Button(DWORD flag) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flag;
  return input;
}

}  // namespace

std::vector<INPUT> KeysTogether(std::initializer_list<WORD> keys) {
  std::vector<INPUT> input;
  for (const WORD key : keys) input.push_back(Key(key, false));
  for (auto key = std::rbegin(keys); key != std::rend(keys); ++key) {
    input.push_back(Key(*key, true));
  }
  return input;
}

std::vector<INPUT> Clicks(int times) {
  std::vector<INPUT> input;
  for (int i = 0; i < times; ++i) {
    input.push_back(Button(MOUSEEVENTF_LEFTDOWN));
    input.push_back(Button(MOUSEEVENTF_LEFTUP));
  }
  return input;
}

void Send(std::vector<INPUT> input) {
  SendInput(static_cast<UINT>(input.size()), input.data(), sizeof(INPUT));
}

void PointAt(HWND window, POINT point) {
  ClientToScreen(window, &point);
  SetCursorPos(point.x, point.y);
}

}  // namespace rangewerks::tests
