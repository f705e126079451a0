// Does a person's part to a window of Windows, by its messages.
#include "win32/win32_player.h"

#include <objbase.h>

#include <algorithm>
#include <iostream>
#include <map>
#include <utility>

#include "ui/win32/dialogs.h"
#include "ui/win32/text.h"

namespace player {
namespace {

using ui::win32::from_bytes;
using ui::win32::text_of;
using ui::win32::to_bytes;

const ui::ControlDef& definition(int control) { return app::window_def().controls[static_cast<std::size_t>(control)]; }

void post(HWND to, UINT message, WPARAM w = 0, LPARAM l = 0) { ::PostMessageW(to, message, w, l); }

void mouse(HWND to, POINT at, UINT message, WPARAM buttons = 0) { post(to, message, buttons, MAKELPARAM(at.x, at.y)); }

RECT client(HWND window) {
  RECT inside{};
  ::GetClientRect(window, &inside);
  return inside;
}
RECT place(HWND window) {
  RECT where{};
  ::GetWindowRect(window, &where);
  return where;
}
POINT middle(const RECT& area) { return {(area.left + area.right) / 2, (area.top + area.bottom) / 2}; }

COMBOBOXINFO parts(HWND combo) {
  COMBOBOXINFO info{};
  info.cbSize = sizeof info;
  ::GetComboBoxInfo(combo, &info);
  return info;
}

// Of an entry of a list, which is scrolled to it.
POINT middle_of(HWND list, int entry) {
  RECT row{};
  const auto look = [&] {
    return ::SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(entry), reinterpret_cast<LPARAM>(&row));
  };
  if (look(); row.top < 0 || row.bottom > client(list).bottom)
    ::SendMessageW(list, LB_SETTOPINDEX, static_cast<WPARAM>(entry), 0);
  look();
  return {(client(list).right) / 2, (row.top + row.bottom) / 2};
}

std::string entry_of(HWND window, bool list, int entry) {
  const auto at = static_cast<WPARAM>(entry);
  std::wstring text(static_cast<std::size_t>(::SendMessageW(window, list ? LB_GETTEXTLEN : CB_GETLBTEXTLEN, at, 0)) + 1,
                    L'\0');
  ::SendMessageW(window, list ? LB_GETTEXT : CB_GETLBTEXT, at, reinterpret_cast<LPARAM>(text.data()));
  text.pop_back();
  return to_bytes(text);
}

// Tells of a balloon, which the system's own box would show or not.
LRESULT CALLBACK watch_balloons(HWND box, UINT message, WPARAM w, LPARAM l, UINT_PTR, DWORD_PTR balloon) {
  if (message != EM_SHOWBALLOONTIP) return ::DefSubclassProc(box, message, w, l);
  *reinterpret_cast<std::wstring*>(balloon) = reinterpret_cast<const EDITBALLOONTIP*>(l)->pszText;
  return TRUE;
}

// Real message boxes are answered by real keys and buttons.
std::string reply_to_box;

BOOL CALLBACK describe_part(HWND part, LPARAM told) {
  auto& [text, icon] = *reinterpret_cast<std::pair<std::wstring, std::string>*>(told);
  if ((::GetWindowLongW(part, GWL_STYLE) & SS_TYPEMASK) == SS_ICON)
    icon =
        ::SendMessageW(part, STM_GETICON, 0, 0) == reinterpret_cast<LRESULT>(::LoadIconW(nullptr, MAKEINTRESOURCEW(32513)))
            ? "critical"
            : "question";
  else if (::GetDlgCtrlID(part) > IDNO || ::GetDlgCtrlID(part) < 0)
    text += text_of(part);
  return TRUE;
}

// The box stands.
void CALLBACK answer(HWND, UINT, UINT_PTR timer, DWORD) {
  ::KillTimer(nullptr, timer);
  const HWND box = ::GetAncestor(::GetFocus(), GA_ROOT);
  std::pair<std::wstring, std::string> told;
  ::EnumChildWindows(box, describe_part, reinterpret_cast<LPARAM>(&told));
  describe_box(to_bytes(text_of(box)), to_bytes(told.first), told.second, ::GetDlgItem(box, IDYES) != nullptr);
  const RECT there = place(box);
  RECT screen{};
  ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
  if (there.right - there.left > screen.right || there.bottom - there.top > screen.bottom)
    std::cout << "too large for the screen\n";
  const std::string& how = reply_to_box;
  if (how == "close")
    ::PostMessageW(box, WM_SYSCOMMAND, SC_CLOSE, 0);
  else if (how == "Return" || how == "Escape")
    ::PostMessageW(::GetFocus(), WM_KEYDOWN, how == "Return" ? VK_RETURN : VK_ESCAPE, 1);
  else
    ::PostMessageW(::GetDlgItem(box, how == "Yes" ? IDYES : IDNO), BM_CLICK, 0, 0);
}

void play_box(HWND parent, bool asks, const std::string& text, const std::string& reply) {
  ui::win32::Win32Dialogs dialogs;
  dialogs.parent = parent;
  dialogs.push = [] { std::cout << "the window shows what stands\n"; };
  reply_to_box = reply;
  ::SetTimer(nullptr, 0, 0, answer);
  describe_answer(dialogs.message(text, "Kelmar", asks ? ui::Icon::Question : ui::Icon::Critical,
                                  asks ? ui::Buttons::YesNo : ui::Buttons::Ok));
}

}  // namespace

bool sit_down() {
  const std::wstring name = L"kelmar-" + std::to_wstring(::GetCurrentProcessId());
  const HDESK desktop = ::CreateDesktopW(name.c_str(), nullptr, nullptr, 0, GENERIC_ALL, nullptr);
  const bool seated = ::SetThreadDesktop(desktop) != 0;
  return ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE) == S_OK && seated;
}

HWND Win32Player::edit(int control) const {
  const ui::Kind kind = definition(control).kind;
  const HWND box = window.control(control);
  return kind == ui::Kind::ComboBox ? parts(box).hwndItem : kind == ui::Kind::TextBox ? box : nullptr;
}

void Win32Player::settle() {
  MSG message;
  while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
    if (message.message != WM_QUIT) window.handle(message);
}

void Win32Player::click(HWND target, POINT at) {
  mouse(target, at, WM_LBUTTONDOWN, MK_LBUTTON);
  mouse(target, at, WM_LBUTTONUP);
  if (!hasty_) settle();
}

void Win32Player::press_key(const std::string& key) {
  static const std::map<std::string, BYTE> kKeys{
      {"Return", VK_RETURN}, {"Tab", VK_TAB},     {"Down", VK_DOWN},   {"Up", VK_UP}, {"Left", VK_LEFT},    {"End", VK_END},
      {"Home", VK_HOME},     {"Space", VK_SPACE}, {"Shift", VK_SHIFT}, {"F2", VK_F2}, {"Escape", VK_ESCAPE}};
  BYTE down[256]{}, up[256]{};
  const std::size_t plus = key.find('+');
  if (plus != key.npos) down[key.starts_with("Ctrl") ? VK_CONTROL : key.starts_with("Alt") ? VK_MENU : VK_SHIFT] = 0x80;
  const std::string plain = plus != key.npos ? key.substr(plus + 1) : key;
  const auto named = kKeys.find(plain);
  const auto code = static_cast<WPARAM>(named != kKeys.end() ? named->second : plain.front());
  const bool alt = down[VK_MENU] != 0;
  ::SetKeyboardState(down);
  post(::GetFocus(), alt ? WM_SYSKEYDOWN : WM_KEYDOWN, code, alt ? 0x20000001 : 1);
  post(::GetFocus(), alt ? WM_SYSKEYUP : WM_KEYUP, code, static_cast<LPARAM>(alt ? 0xE0000001 : 0xC0000001));
  settle();
  ::SetKeyboardState(up);
}

void Win32Player::do_load() {
  Player::do_load();
  if (form.window().ended) return;
  window.show();
  ::SetForegroundWindow(window.handle());
}

void Win32Player::do_select(const Event& event) { click(list(), middle_of(list(), event.entry)); }

void Win32Player::do_pick(const Event& event) {
  const COMBOBOXINFO combo = parts(window.control(event.control));
  if (hasty_) return post(combo.hwndItem, WM_KEYDOWN, VK_DOWN, 1);
  click(combo.hwndCombo, middle(combo.rcButton));
  click(combo.hwndList, middle_of(combo.hwndList, event.entry));
}

void Win32Player::do_type(const Event& event) {
  const HWND box = edit(event.control);
  if (!hasty_) click(box, middle(client(box)));
  post(box, EM_SETSEL, 0, -1);
  post(box, WM_KEYDOWN, VK_DELETE, 1);
  for (const wchar_t character : from_bytes(event.text)) post(box, WM_CHAR, character, 1);
}

void Win32Player::do_click(const Event& event) {
  const HWND button = window.control(event.control);
  if (button != nullptr) return click(button, middle(client(button)));
  const HMENU menu = ::GetSubMenu(::GetMenu(window.handle()), 0);
  post(window.handle(), WM_COMMAND, ::GetMenuItemID(menu, event.control - app::mnuFileOpen));
}

void Win32Player::do_close() { post(window.handle(), WM_SYSCOMMAND, SC_CLOSE); }

bool Win32Player::do_other(const Deed& deed) {
  const auto& [verb, what, how, text, control] = deed;
  const HWND named = window.control(control);
  const auto at = [&](const std::string& entry) {
    return entry == "empty" ? POINT{client(list()).right / 2, client(list()).bottom - 3}
                            : middle_of(list(), std::stoi(entry));
  };
  if (verb == "focus") {
    ::SetFocus(named);
  } else if (verb == "key") {
    press_key(what);
  } else if (verb == "keys") {
    for (const wchar_t character : from_bytes(what)) post(::GetFocus(), WM_CHAR, character, 1);
  } else if (verb == "paste") {
    std::wstring balloon;
    ::SetWindowSubclass(::GetFocus(), watch_balloons, 0, reinterpret_cast<DWORD_PTR>(&balloon));
    // And not by the clipboard, of which there is one only for programs that run at the same time.
    ::SendMessageW(::GetFocus(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(ui::win32::from_path(what).c_str()));
    std::cout << "tooltip [" << to_bytes(balloon) << "]\n";
  } else if (verb == "mouse") {
    const bool right = how == "Right";
    const UINT press = right ? WM_RBUTTONDOWN : WM_LBUTTONDOWN, release = right ? WM_RBUTTONUP : WM_LBUTTONUP;
    const WPARAM keys = how == "Ctrl" ? MK_CONTROL : 0;
    const WPARAM buttons = keys | (right ? MK_RBUTTON : MK_LBUTTON);
    mouse(list(), at(what), press, buttons);
    mouse(list(), at(what), release, keys);
    if (how == "Double") {
      mouse(list(), at(what), WM_LBUTTONDBLCLK, buttons);
      mouse(list(), at(what), release);
    }
  } else if (verb == "drag") {
    mouse(list(), at(what), WM_LBUTTONDOWN, MK_LBUTTON);
    mouse(list(), at(how), WM_MOUSEMOVE, MK_LBUTTON);
    mouse(list(), at(how), WM_LBUTTONUP);
  } else if (verb == "wheel") {
    for (const HWND part : {edit(control), named}) post(part, WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA));
  } else if (verb == "cursor") {
    DWORD caret = 0;
    ::SendMessageW(edit(control), EM_GETSEL, 0, reinterpret_cast<LPARAM>(&caret));
    std::cout << "cursor " << caret << '\n';
  } else if (verb == "dictate") {
    ::SendMessageW(edit(control), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(from_bytes(how).c_str()));
  } else if (verb == "dialog") {
    play_box(window.handle(), what == "ask", text, how);
  } else if (verb == "current") {
    ::SendMessageW(list(), LB_SETCURSEL, static_cast<WPARAM>(std::stoi(what)), 0);
  } else if (verb == "press") {
    post(named, BM_CLICK);
  } else if (verb == "resize") {
    const RECT now = place(window.handle());
    ::SetWindowPos(window.handle(), nullptr, 0, 0, static_cast<int>((now.right - now.left) * std::stod(what)),
                   static_cast<int>((now.bottom - now.top) * std::stod(what)), SWP_NOZORDER | SWP_NOMOVE | SWP_NOACTIVATE);
  } else if (verb == "wait") {
    ::Sleep(static_cast<DWORD>(std::stoi(what)));
  } else if (verb == "scale") {
    std::cout << "scale " << ::GetDpiForWindow(window.handle()) << '\n';
  } else {
    return false;
  }
  return true;
}

int Win32Player::focused() {
  const HWND focus = ::GetFocus();
  for (int i = 0; i < app::kControls; ++i)
    if (focus != nullptr && (focus == window.control(i) || focus == edit(i))) return i;
  return -1;
}

bool Win32Player::is_cut(int control) {
  const ui::ControlDef& def = definition(control);
  const bool list = def.kind == ui::Kind::ListBox;
  if (def.kind != ui::Kind::Label && def.kind != ui::Kind::Button && !list) return false;
  const HWND label = window.control(control);
  if (def.path || !form.window()[control].shown) return false;
  std::wstring text = text_of(label);
  for (const std::string& entry : form.window()[control].entries) text += from_bytes(entry) + L'\n';
  const HDC dc = ::GetDC(label);
  ::SelectObject(dc, reinterpret_cast<HFONT>(::SendMessageW(label, WM_GETFONT, 0, 0)));
  const RECT inside = client(label);
  RECT needed = inside;
  ::DrawTextW(dc, text.c_str(), -1, &needed, DT_CALCRECT | DT_NOPREFIX | (def.wraps ? DT_WORDBREAK : DT_LEFT));
  ::ReleaseDC(label, dc);
  if (list) return needed.right > ::SendMessageW(label, LB_GETHORIZONTALEXTENT, 0, 0);  // it does not scroll so far
  constexpr int kEdges = 4;                                                             // of a button
  return needed.right + (def.kind == ui::Kind::Button ? kEdges : 0) > inside.right || needed.bottom > inside.bottom;
}

std::string Win32Player::differences() {
  std::string all;
  std::vector<std::pair<int, RECT>> seen;
  for (int i = 0; i < app::kControls; ++i) {
    const HWND control = window.control(i);
    const ui::ControlDef& def = definition(i);
    const ui::Control& value = form.window()[i];
    const bool shown = control != nullptr && (::GetWindowLongW(control, GWL_STYLE) & WS_VISIBLE) != 0;
    if (shown != value.shown && def.kind != ui::Kind::MenuItem) all += " " + def.name;
    if (!shown) continue;
    const bool list = def.kind == ui::Kind::ListBox, combo = def.kind == ui::Kind::ComboBox;
    const int count = list || combo ? static_cast<int>(::SendMessageW(control, list ? LB_GETCOUNT : CB_GETCOUNT, 0, 0)) : 0;
    std::vector<std::string>& entries = entries_[i];
    if (entries != value.entries || entries.size() != static_cast<std::size_t>(count)) {
      entries.clear();
      for (int j = 0; j < count; ++j) entries.push_back(entry_of(control, list, j));
    }
    std::wstring text = text_of(control);
    if (def.kind == ui::Kind::Button)
      for (std::size_t at = 0; (at = text.find(L"&&", at)) != text.npos; ++at) text.erase(at, 1);
    const bool open = combo && ::SendMessageW(control, CB_GETDROPPEDSTATE, 0, 0) != 0;  // and shows an entry
    if (entries != value.entries || (list && ::SendMessageW(control, LB_GETCURSEL, 0, 0) != value.selected) ||
        (!list && !open && text != (def.path ? ui::win32::from_path(value.text) : from_bytes(value.text))))
      all += " " + def.name;
    const RECT here = place(control);
    for (const auto& [other, there] : seen)
      if (RECT both; ::IntersectRect(&both, &here, &there)) all += " " + def.name + "/" + definition(other).name;
    seen.emplace_back(i, here);
  }
  return all;
}

}  // namespace player
