// What Windows is on its own: a program that shows one empty window, as large as that of the editor; with the libraries that
// the editor has, or without.
#include <windows.h>
// After it.
#include <commctrl.h>
#include <objbase.h>
#include <shlobj.h>

namespace {

LRESULT CALLBACK receive(HWND window, UINT message, WPARAM w, LPARAM l) {
  if (message == WM_DESTROY) ::PostQuitMessage(0);
  return ::DefWindowProcW(window, message, w, l);
}

}  // namespace

int main([[maybe_unused]] int count, char**) {
#ifdef KELMAR_SAME_LIBRARIES
  ::InitCommonControls();
  if (count > 1) {  // never: what is named here is loaded
    ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    ::SHCreateItemFromParsingName(L"", nullptr, IID_IUnknown, nullptr);
  }
#endif
  WNDCLASSEXW kind{};
  kind.cbSize = sizeof kind;
  kind.lpfnWndProc = receive;
  kind.hInstance = ::GetModuleHandleW(nullptr);
  kind.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
  kind.lpszClassName = L"EmptyWindow";
  ::RegisterClassExW(&kind);
  constexpr int kWidth = 650, kHeight = 620;
  const HWND window = ::CreateWindowExW(0, kind.lpszClassName, L"Empty", WS_OVERLAPPEDWINDOW, 100, 50, kWidth, kHeight,
                                        nullptr, nullptr, kind.hInstance, nullptr);
  ::ShowWindow(window, SW_SHOWNORMAL);
  ::UpdateWindow(window);
  for (MSG message; ::GetMessageW(&message, nullptr, 0, 0) > 0;) ::DispatchMessageW(&message);
}
