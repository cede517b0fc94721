// Keeps a picture of every form of the library, filled with sample data.
//
//   pictures_of_forms FOLDER     writes FOLDER\<form>.bmp
#include <windows.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <vector>

#include "desktops/win32/win32_desktop.h"
#include "windows_desktop/shown_forms.h"

namespace rangewerks::tests {
namespace {

/// Hands out messages until all has been painted.
void Settle() {
  const ULONGLONG end = GetTickCount64() + 400;
  while (GetTickCount64() < end) {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
    MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
  }
}

/// What a window shows with its frame, as rows of 32-bit pixels from the bottom.
bool WritePicture(HWND window, const std::filesystem::path& file) {
  RECT place{};
  GetWindowRect(window, &place);
  const LONG width = place.right - place.left;
  const LONG height = place.bottom - place.top;
  const HDC screen = GetDC(nullptr);
  const HDC copy = CreateCompatibleDC(screen);
  BITMAPINFO information{};
  information.bmiHeader = {.biSize = sizeof(BITMAPINFOHEADER),
                           .biWidth = width,
                           .biHeight = height,
                           .biPlanes = 1,
                           .biBitCount = 32,
                           .biCompression = BI_RGB,
                           .biSizeImage = 0,
                           .biXPelsPerMeter = 0,
                           .biYPelsPerMeter = 0,
                           .biClrUsed = 0,
                           .biClrImportant = 0};
  void* pixels = nullptr;
  const HBITMAP bitmap =
      CreateDIBSection(screen, &information, DIB_RGB_COLORS, &pixels, nullptr, 0);
  const HGDIOBJ before = SelectObject(copy, bitmap);
  const bool copied =
      BitBlt(copy, 0, 0, width, height, screen, place.left, place.top, SRCCOPY) != FALSE;
  GdiFlush();
  const auto size = static_cast<DWORD>(width * height * 4);
  BITMAPFILEHEADER header{};
  header.bfType = 0x4D42;
  header.bfOffBits = sizeof header + sizeof information.bmiHeader;
  header.bfSize = header.bfOffBits + size;
  std::ofstream stream(file, std::ios::binary);
  stream.write(reinterpret_cast<const char*>(&header), sizeof header);
  stream.write(reinterpret_cast<const char*>(&information.bmiHeader), sizeof information.bmiHeader);
  stream.write(static_cast<const char*>(pixels), static_cast<std::streamsize>(size));
  SelectObject(copy, before);
  DeleteObject(bitmap);
  DeleteDC(copy);
  ReleaseDC(nullptr, screen);
  return copied && stream.good();
}

bool KeepPictures(const std::filesystem::path& folder) {
  desktops::Win32Desktop desktop;
  bool kept = true;
  for (const ShownForm& one : ShownForms()) {
    const auto form = one.make(desktop);
    form->Show();
    form->SetFocus();
    Settle();
    kept = WritePicture(reinterpret_cast<HWND>(form->get_hWnd()), folder / (one.name + ".bmp")) &&
           kept;
    form->Unload();
    Settle();
  }
  return kept;
}

}  // namespace
}  // namespace rangewerks::tests

int main(int count, char** arguments) {
  if (count != 2) {
    std::cerr << "usage: pictures_of_forms FOLDER\n";
    return 2;
  }
  SetCursorPos(0, 0);
  return rangewerks::tests::KeepPictures(arguments[1]) ? 0 : 1;
}
