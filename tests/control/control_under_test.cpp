#include "control/control_under_test.h"

#include <algorithm>
#include <filesystem>
#include <string>

#include "desktops/win32_input.h"
#include "desktops/win32_person.h"

namespace rangewerks::tests {

Look LookOf(IUnknown& control, int width, int height) {
  const auto view = com::Pointer(&control).TryQuery<IViewObject2>();
  EXPECT_TRUE(view);
  BITMAPINFO info{};
  info.bmiHeader = {sizeof(info.bmiHeader), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  HDC device = CreateCompatibleDC(nullptr);
  HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  HGDIOBJ before = SelectObject(device, bitmap);
  const RECTL place{0, 0, width, height};
  EXPECT_EQ(view->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, device, &place, nullptr,
                       nullptr, 0),
            S_OK);
  GdiFlush();
  const auto* pixels = static_cast<const std::uint32_t*>(bits);
  Look look{width, height, {pixels, pixels + width * height}};
  for (std::uint32_t& pixel : look.pixels) pixel &= 0xFFFFFFU;
  SelectObject(device, before);
  DeleteObject(bitmap);
  DeleteDC(device);
  return look;
}

HRESULT CanUnloadNow() {
  HMODULE module = GetModuleHandleW(L"Rangewerks.dll");
  if (module == nullptr) return S_OK;
  return reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(
      reinterpret_cast<void*>(GetProcAddress(module, "DllCanUnloadNow")))();
}

ControlTest::ControlTest() {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  const std::filesystem::path folder = RANGEWERKS_SAMPLE_PROGRAM;
  const std::wstring program = (folder / "posting.exe.manifest").wstring();
  const std::wstring assemblies = folder.wstring();
  ACTCTXW description{};
  description.cbSize = sizeof(description);
  description.lpSource = program.c_str();
  description.dwFlags = ACTCTX_FLAG_ASSEMBLY_DIRECTORY_VALID;
  description.lpAssemblyDirectory = assemblies.c_str();
  context_ = CreateActCtxW(&description);
  ActivateActCtx(context_, &cookie_);
  panel = New();
}

ControlTest::~ControlTest() {
  if (panel) {
    const auto object = panel.TryQuery<IOleObject>();
    object->Close(OLECLOSE_NOSAVE);
    object->SetClientSite(nullptr);
  }
  panel = {};
  DeactivateActCtx(0, cookie_);
  ReleaseActCtx(context_);
  CoUninitialize();
}

com::Pointer<_ctlColourPallet> ControlTest::New() {
  CLSID id{};
  com::Pointer<_ctlColourPallet> made;
  EXPECT_EQ(CLSIDFromProgID(L"Rangewerks.ctlColourPallet", &id), S_OK);
  EXPECT_EQ(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(_ctlColourPallet),
                             made.ReceiveAny()),
            S_OK);
  return made;
}

void ControlTest::Insert() { Ask<IOleObject>()->SetClientSite(&container.site); }

void ControlTest::Activate(LONG verb) {
  Insert();
  EXPECT_EQ(Ask<IOleObject>()->DoVerb(verb, nullptr, &container.site, 0, container.window,
                                      &container.place),
            S_OK);
}

HWND ControlTest::ControlWindow() const {
  HWND window = nullptr;
  Ask<IOleInPlaceObject>()->GetWindow(&window);
  return window;
}

std::vector<HWND> ControlTest::Fields(const wchar_t* className) const {
  struct Search {
    std::wstring className;
    std::vector<HWND> found;
  } search{className, {}};
  EnumChildWindows(
      ControlWindow(),
      [](HWND window, LPARAM parameter) -> BOOL {
        auto& sought = *reinterpret_cast<Search*>(parameter);
        const LONG style = GetWindowLongW(window, GWL_STYLE);
        if (sought.className == ClassOf(window) && (style & WS_TABSTOP) != 0)
          sought.found.push_back(window);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&search));
  std::ranges::sort(search.found, {}, [](HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return std::pair(place.top, place.left);
  });
  return search.found;
}

void ControlTest::Click(HWND window) const {
  RECT area{};
  GetClientRect(window, &area);
  PointAt(window, {area.right / 2, area.bottom / 2});
  Send(Clicks(1));
}

void ControlTest::TypeTab(bool shift) const {
  if (shift) {
    Send(KeysTogether({VK_SHIFT, VK_TAB}));
  } else {
    Send(KeysTogether({VK_TAB}));
  }
}

}  // namespace rangewerks::tests
