// The window in Windows' own controls: shows what the form holds, and tells the form what a user does.
#include "ui/win32/main_window.h"

#include <initguid.h>
// After it: defines the system's identifiers that follow.
#include <oleacc.h>

#include <cmath>
#include <iterator>
#include <utility>

#include "ui/win32/text.h"

namespace ui::win32 {
namespace {

constexpr const wchar_t* kClass = L"KelmarDatabaseEditor";
constexpr const wchar_t* kFace = L"Microsoft Sans Serif";
constexpr DWORD kStyle = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
constexpr int kUsualDpi = USER_DEFAULT_SCREEN_DPI;
constexpr double kPointsPerInch = 72;
constexpr double kRoom = 1.02;    // for captions, which may grow a little more than their window
constexpr double kSmallest = .6;  // of the size at the start
constexpr int kFirstId = 100;     // of the controls: above those that the system knows
constexpr int kPickRows = 10;     // of an open combo box
constexpr int kTextMargin = 6;    // pixels beside the text of a box
constexpr int kTipWidth = 600;
constexpr std::size_t kLongestTip = 500;  // characters

int scaled(int value, double factor) { return static_cast<int>(std::ceil(value * factor)); }

COLORREF color_of(const Color& color) {
  return RGB(static_cast<BYTE>(color.red), static_cast<BYTE>(color.green), static_cast<BYTE>(color.blue));
}

HWND create_window(const WindowDef& def, HBRUSH background, WNDPROC procedure) {
  const HINSTANCE program = ::GetModuleHandleW(nullptr);
  WNDCLASSEXW kind{};
  kind.cbSize = sizeof kind;
  kind.lpfnWndProc = procedure;
  kind.hInstance = program;
  kind.hIcon = ::LoadIconW(program, MAKEINTRESOURCEW(1));
  kind.hCursor = ::LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));  // the arrow
  kind.hbrBackground = background;
  kind.lpszClassName = kClass;
  ::RegisterClassExW(&kind);
  return ::CreateWindowExW(WS_EX_CONTROLPARENT, kClass, from_bytes(def.caption).c_str(), kStyle, CW_USEDEFAULT,
                           CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, program, nullptr);
}

// Of the screen on which a window lies, without what the desktop keeps for itself.
RECT work_area(HWND window) {
  MONITORINFO info{};
  info.cbSize = sizeof info;
  ::GetMonitorInfoW(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &info);
  return info.rcWork;
}

// What is in the focus inside a combo box, and is asked for its text.
HWND edit_of(HWND combo) {
  COMBOBOXINFO info{};
  info.cbSize = sizeof info;
  return ::GetComboBoxInfo(combo, &info) ? info.hwndItem : nullptr;
}

// A combo box counts its open list in; closed it is as high as its text, and something around that.
void place_combo(HWND combo, const Place& place) {
  const int list = kPickRows * static_cast<int>(::SendMessageW(combo, CB_GETITEMHEIGHT, 0, 0));
  const auto closed_with = [&](int text) {
    ::SendMessageW(combo, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), std::max(1, text));
    ::SetWindowPos(combo, nullptr, place.left, place.top, place.width, place.height + list, SWP_NOZORDER | SWP_NOACTIVATE);
    RECT closed{};
    ::GetWindowRect(combo, &closed);
    return static_cast<int>(closed.bottom - closed.top);
  };
  closed_with(2 * place.height - closed_with(place.height));
}

// A text that the user has left for another control is seen from there.
void show_beginning(HWND edit) {
  ::SendMessageW(edit, EM_SETSEL, 0, 0);
  ::SendMessageW(edit, EM_SCROLLCARET, 0, 0);
}

// For as long as it lives, what to measure with a font.
struct Measure {
  explicit Measure(HFONT font) : before(::SelectObject(dc, font)) {}
  ~Measure() {
    ::SelectObject(dc, before);
    ::ReleaseDC(nullptr, dc);
  }
  Measure(const Measure&) = delete;
  Measure& operator=(const Measure&) = delete;

  int width(const std::wstring& text) const {
    SIZE size{};
    ::GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
    return size.cx;
  }
  int line() const {
    TEXTMETRICW metrics{};
    ::GetTextMetricsW(dc, &metrics);
    return metrics.tmHeight;
  }

  HDC dc = ::GetDC(nullptr);
  HGDIOBJ before;
};

}  // namespace

MainWindow::MainWindow(Form& form)
    : form_(form),
      background_(::CreateSolidBrush(color_of(form.definition().background))),
      window_(create_window(form.definition(), background_, window_procedure)),
      views_(form.definition().controls.size()) {
  build_menu();
  measure();
  const UINT dpi = ::GetDpiForWindow(window_);
  const double scale = 1. * dpi / kUsualDpi;
  const Size size = framed({scaled(layout_->start().width, scale), scaled(layout_->start().height, scale)}, dpi);
  const RECT work = work_area(window_);  // in the middle of which it stands
  ::SetWindowPos(window_, nullptr, std::max(work.left, (work.left + work.right - size.width) / 2),
                 std::max(work.top, (work.top + work.bottom - size.height) / 2), size.width, size.height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
  // One order is that of the focus and of what lies above what; and a label comes before its box, whose name it is to
  // whoever knows no better.
  std::map<int, int> by_tab;
  for (int i = 0; i < controls(); ++i)
    if (def(i).tab >= 0) by_tab[def(i).tab] = i;
  const auto append = [this](int control) {
    if (control >= 0 && std::ranges::count(order_, control) == 0) order_.push_back(control);
  };
  for (const auto& [tab, control] : by_tab) append(def(control).label), append(control);
  for (int i = 0; i < controls(); ++i)
    if (def(i).kind != Kind::MenuItem) append(i);
  ::SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

MainWindow::~MainWindow() {
  if (::IsWindow(window_)) {
    ::SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
    ::DestroyWindow(window_);
  }
  if (names_ != nullptr) names_->Release();
  for (const auto& [key, font] : fonts_) ::DeleteObject(font);
  ::UnregisterClassW(kClass, ::GetModuleHandleW(nullptr));
  ::DeleteObject(background_);
}

void MainWindow::build_menu() {
  menu_ = ::CreatePopupMenu();
  for (int i = 0; i < controls(); ++i)
    if (def(i).kind == Kind::MenuItem)
      ::AppendMenuW(menu_, MF_STRING, static_cast<UINT_PTR>(kFirstId + i), from_bytes(def(i).caption).c_str());
  const HMENU bar = ::CreateMenu();
  ::AppendMenuW(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(menu_), (L"&" + from_bytes(form_.definition().menu)).c_str());
  ::SetMenu(window_, bar);
}

void MainWindow::build(int control) {
  const ControlDef& def = this->def(control);
  constexpr DWORD kBox = WS_CHILD | WS_TABSTOP;
  const wchar_t* kind = L"STATIC";
  DWORD style = WS_CHILD | SS_NOPREFIX | SS_NOTIFY;  // so that there is a tooltip
  switch (def.kind) {
    case Kind::Label: style |= def.wraps ? SS_LEFT : SS_CENTERIMAGE | (def.path ? SS_PATHELLIPSIS : SS_ENDELLIPSIS); break;
    case Kind::Line: style = WS_CHILD | SS_BLACKRECT; break;
    case Kind::Button:
      kind = L"BUTTON";
      style = kBox | BS_PUSHBUTTON;
      break;
    case Kind::TextBox:
      kind = L"EDIT";
      style = kBox | WS_BORDER | ES_AUTOHSCROLL;
      break;
    case Kind::ListBox:
      kind = L"LISTBOX";
      style = kBox | WS_BORDER | WS_VSCROLL | WS_HSCROLL | LBS_NOINTEGRALHEIGHT;
      break;
    case Kind::ComboBox:
      kind = L"COMBOBOX";
      style = kBox | WS_VSCROLL | CBS_DROPDOWN | CBS_AUTOHSCROLL;
      break;
    case Kind::MenuItem: return;
  }
  View& shown = view(control);
  if (def.kind != Kind::ComboBox) shown.text = from_bytes(form_.window()[control].text);  // which is made without one
  HWND& built = shown.window;
  built = ::CreateWindowExW(0, kind, written(control, shown.text).c_str(), style, 0, 0, 0, 0, window_,
                            reinterpret_cast<HMENU>(static_cast<INT_PTR>(kFirstId + control)), ::GetModuleHandleW(nullptr),
                            nullptr);
  const auto place = std::ranges::find(order_, control);
  const auto is_built = [this](int other) { return view(other).window != nullptr; };
  if (std::any_of(place + 1, order_.end(), is_built)) {
    const auto before = std::find_if(std::reverse_iterator(place), order_.rend(), is_built);
    ::SetWindowPos(built, before != order_.rend() ? view(*before).window : HWND_TOP, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
  const auto self = reinterpret_cast<DWORD_PTR>(this);
  if (def.kind == Kind::TextBox) ::SendMessageW(built, EM_SETLIMITTEXT, 0, 0);
  if (def.kind == Kind::ComboBox) {
    ::SendMessageW(built, CB_LIMITTEXT, 0, 0);
    ::SendMessageW(built, CB_SETMINVISIBLE, kPickRows, 0);
    ::SetWindowSubclass(edit_of(built), control_procedure, static_cast<UINT_PTR>(control), self);
  }
  if (def.kind == Kind::ListBox || def.kind == Kind::ComboBox)
    ::SetWindowSubclass(built, control_procedure, static_cast<UINT_PTR>(control), self);
  if (tooltip_ != nullptr) add_tooltip(built);
}

// What nobody needs before the window is painted.
void MainWindow::describe() {
  ::CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices,
                     reinterpret_cast<void**>(&names_));
  name_boxes();
  tooltip_ = ::CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0, 0,
                               window_, nullptr, ::GetModuleHandleW(nullptr), nullptr);
  ::SendMessageW(tooltip_, TTM_SETMAXTIPWIDTH, 0, kTipWidth);
  for (const View& view : views_)
    if (view.window != nullptr) add_tooltip(view.window);
}

void MainWindow::add_tooltip(HWND control) {
  const HWND edit = edit_of(control);
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V1_SIZE;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = window_;
  tool.uId = reinterpret_cast<UINT_PTR>(edit != nullptr ? edit : control);
  tool.lpszText = LPSTR_TEXTCALLBACKW;
  ::SendMessageW(tooltip_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

// The text of a box or label of which not all is seen.
void MainWindow::show_tip(NMTTDISPINFOW& asked) {
  const auto owner = reinterpret_cast<HWND>(asked.hdr.idFrom);
  const int control = control_of(owner);
  tip_.clear();
  if (control < 0 || def(control).wraps || def(control).kind == Kind::ListBox) return;
  RECT inside{};
  ::GetClientRect(owner, &inside);
  const std::wstring text = text_of(owner);
  const auto font = reinterpret_cast<HFONT>(::SendMessageW(owner, WM_GETFONT, 0, 0));
  const int margin = def(control).kind == Kind::Label ? 0 : kTextMargin;
  if (Measure(font).width(text) > inside.right - margin) tip_ = text.substr(0, kLongestTip);
  asked.lpszText = tip_.data();
}

HFONT MainWindow::font_of(const Font& font, double pixels_per_point) {
  const double points = font.points > 0 ? font.points : form_.definition().points;
  const int height = std::max(1, static_cast<int>(points * pixels_per_point));
  HFONT& made = fonts_[{height, font.bold, font.italic}];
  if (made == nullptr)
    made = ::CreateFontW(-height, 0, 0, 0, font.bold ? FW_BOLD : FW_NORMAL, font.italic, FALSE, FALSE, DEFAULT_CHARSET,
                         OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, CLEARTYPE_QUALITY, DEFAULT_PITCH | FF_SWISS, kFace);
  return made;
}

// For the screen on which the window lies, in pixels of the usual one: the letters of small fonts are fitted to the pixels.
void MainWindow::measure() {
  const UINT dpi = ::GetDpiForWindow(window_);
  const double scale = 1. * dpi / kUsualDpi;
  const RECT work = work_area(window_);
  const Size frame = framed({}, dpi);
  const Size available{static_cast<int>((work.right - work.left - frame.width) / scale),
                       static_cast<int>((work.bottom - work.top - frame.height) / scale)};
  const auto font = [&](const Font& of) { return Measure(font_of(of, dpi / kPointsPerInch)); };
  layout_.emplace(
      form_.definition(),
      [&](const Font& of, std::string_view text) { return kRoom * font(of).width(from_bytes(text)) / scale; },
      font({}).line() / scale, available);
}

Size MainWindow::area() const {
  RECT inside{};
  ::GetClientRect(window_, &inside);
  return {inside.right, inside.bottom};
}

// The window around a client area.
Size MainWindow::framed(Size area, UINT dpi) const {
  RECT frame{0, 0, area.width, area.height};
  ::AdjustWindowRectExForDpi(&frame, kStyle, TRUE, WS_EX_CONTROLPARENT, dpi);
  return {frame.right - frame.left, frame.bottom - frame.top};
}

void MainWindow::show() {
  push();
  focus_ = control(*std::ranges::find_if(order_, [this](int i) { return def(i).tab >= 0; }));
  ::ShowWindow(window_, SW_SHOWNORMAL);
  ::UpdateWindow(window_);
}

void MainWindow::arrange() {
  const Size inside = area();
  if (inside.width <= 0 || inside.height <= 0) return;  // it is an icon now
  const double pixels_per_point = kUsualDpi / kPointsPerInch * layout_->font_factor(inside);
  const std::vector<Place> places = layout_->places(form_.window(), inside);
  for (int i = 0; i < controls(); ++i) {
    View& shown = view(i);
    if (shown.window == nullptr || !shown.shown) continue;
    const HFONT font = font_of(def(i).font, pixels_per_point);
    const Place& place = places[static_cast<std::size_t>(i)];
    const bool same = std::exchange(shown.font, font) == font;
    if (!same) ::SendMessageW(shown.window, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    if (!same && def(i).kind == Kind::ListBox) widen(i);
    if (std::exchange(shown.place, place) == place && same) continue;
    if (def(i).kind == Kind::ComboBox) {  // which takes the entry that begins like its text, and selects it
      const bool pushing = std::exchange(pushing_, true);
      const LRESULT selection = ::SendMessageW(shown.window, CB_GETEDITSEL, 0, 0);
      place_combo(shown.window, place);
      show_text(i, shown.text);
      ::SendMessageW(shown.window, CB_SETEDITSEL, 0, selection);
      pushing_ = pushing;
    } else {
      ::SetWindowPos(shown.window, nullptr, place.left, place.top, place.width, place.height,
                     SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);  // a label is painted anew as a whole
    }
  }
}

LRESULT CALLBACK MainWindow::window_procedure(HWND window, UINT message, WPARAM w, LPARAM l) {
  auto* const self = reinterpret_cast<MainWindow*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
  return self != nullptr ? self->receive(message, w, l) : ::DefWindowProcW(window, message, w, l);
}

LRESULT MainWindow::receive(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_COMMAND:
      if (const int control = LOWORD(w) - kFirstId; control >= 0 && control < controls()) notified(control, HIWORD(w));
      return 0;
    case WM_CTLCOLORSTATIC: {
      const auto dc = reinterpret_cast<HDC>(w);
      const int control = control_of(reinterpret_cast<HWND>(l));
      if (control >= 0) ::SetTextColor(dc, color_of(def(control).color));
      ::SetBkColor(dc, color_of(form_.definition().background));
      return reinterpret_cast<LRESULT>(background_);
    }
    case WM_CTLCOLORBTN: return reinterpret_cast<LRESULT>(background_);  // around its corners
    case WM_NOTIFY:
      if (reinterpret_cast<NMHDR*>(l)->code == TTN_GETDISPINFOW) show_tip(*reinterpret_cast<NMTTDISPINFOW*>(l));
      return 0;
    case WM_SIZE: arrange(); return 0;
    case WM_GETMINMAXINFO: {
      const UINT dpi = ::GetDpiForWindow(window_);
      const double scale = kSmallest * dpi / kUsualDpi;
      const Size least = framed({scaled(layout_->start().width, scale), scaled(layout_->start().height, scale)}, dpi);
      reinterpret_cast<MINMAXINFO*>(l)->ptMinTrackSize = {least.width, least.height};
      return 0;
    }
    case WM_GETDPISCALEDSIZE: {  // a screen of another scale: the same client area, scaled, in a frame of that screen
      const double scale = 1. * static_cast<double>(w) / ::GetDpiForWindow(window_);
      const Size inside = area(),
                 size = framed({scaled(inside.width, scale), scaled(inside.height, scale)}, static_cast<UINT>(w));
      *reinterpret_cast<SIZE*>(l) = {size.width, size.height};
      return TRUE;
    }
    case WM_DPICHANGED: {
      measure();
      const RECT& wanted = *reinterpret_cast<const RECT*>(l);
      ::SetWindowPos(window_, nullptr, wanted.left, wanted.top, wanted.right - wanted.left, wanted.bottom - wanted.top,
                     SWP_NOZORDER | SWP_NOACTIVATE);
      arrange();
      return 0;
    }
    case WM_ACTIVATE:
      if (LOWORD(w) != WA_INACTIVE && HIWORD(w) == 0) ::SetFocus(focus_);  // not while it is an icon
      return 0;
    case WM_SETFOCUS: ::SetFocus(focus_); return 0;  // it is no icon any more
    case WM_CLOSE:
      if (running_) return 0;
      form_.window().ended = true;
      ::DestroyWindow(window_);
      return 0;
    case WM_DESTROY:
      for (int i = 0; i < controls(); ++i)
        if (names_ != nullptr && !view(i).name.empty()) name(i, nullptr);
      ::PostQuitMessage(form_.window().status);
      return 0;
    default: return ::DefWindowProcW(window_, message, w, l);
  }
}

void MainWindow::notified(int control, UINT notice) {
  const HWND from = view(control).window;
  switch (def(control).kind) {
    case Kind::MenuItem: return run(control);
    case Kind::Button:
      if (notice == BN_CLICKED) run(control);
      return;
    case Kind::TextBox:
      if (notice == EN_CHANGE) typed(control);
      if (notice == EN_KILLFOCUS && control_of(::GetFocus()) >= 0) show_beginning(from);
      return;
    case Kind::ComboBox:
      if (notice == CBN_EDITCHANGE) typed(control);
      if (notice == CBN_KILLFOCUS && control_of(::GetFocus()) >= 0) show_beginning(edit_of(from));
      // What follows waits until the box is done with the message that brought it.
      if (notice == CBN_SELENDOK) picked_ = true;
      if (notice == CBN_SELENDOK || notice == CBN_CLOSEUP) closing_ = control;
      if (closing_ >= 0) ::PostMessageW(window_, WM_NULL, 0, 0);
      return;
    default: return;
  }
}

// A list chooses by its first button, keys and letters, each before the next event; a drag chooses nothing. A combo box does
// not turn with the wheel.
LRESULT CALLBACK MainWindow::control_procedure(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR id, DWORD_PTR self) {
  auto& main = *reinterpret_cast<MainWindow*>(self);
  const int control = static_cast<int>(id);
  if (message == WM_NCDESTROY) ::RemoveWindowSubclass(window, control_procedure, id);
  if (main.def(control).kind == Kind::ListBox) return main.receive_in_list(control, window, message, w, l);
  const bool open = ::SendMessageW(main.control(control), CB_GETDROPPEDSTATE, 0, 0) != 0;
  if (message == WM_MOUSEWHEEL && !open) return 0;
  if (message == WM_CHAR && (w == VK_RETURN || w == VK_ESCAPE) && !open) return 0;  // of the key that closed it: no sound
  return ::DefSubclassProc(window, message, w, l);
}

LRESULT MainWindow::receive_in_list(int control, HWND list, UINT message, WPARAM w, LPARAM l) {
  const auto selected = [list] { return static_cast<int>(::SendMessageW(list, LB_GETCURSEL, 0, 0)); };
  const auto select = [&](int entry) {
    if (entry >= 0) ::SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(entry), 0);
  };
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: {
      ::SetFocus(list);
      POINT at{LOWORD(l), HIWORD(l)};
      ::ClientToScreen(list, &at);
      select(::LBItemFromPt(list, at, FALSE));
      return 0;
    }
    case LB_SETCURSEL: {  // by the above, or by a screen reader, after which the list itself tells nothing
      const LRESULT result = ::DefSubclassProc(list, message, w, l);
      if (!pushing_) choose(control, selected());
      return result;
    }
    case WM_CHAR:
      if (w > VK_SPACE)
        select(letters_.find(form_.window()[control].entries, selected(), to_bytes(std::wstring(1, static_cast<wchar_t>(w))),
                             static_cast<std::uint64_t>(static_cast<DWORD>(::GetMessageTime()))));
      return 0;
    case WM_KEYDOWN: {
      const int before = selected();
      const bool empty = form_.window()[control].entries.empty();
      if (before < 0 && !empty && (w == VK_DOWN || w == VK_UP)) return select(0), 0;
      const LRESULT result = ::DefSubclassProc(list, message, w, l);
      if (selected() != before) select(selected());
      return result;
    }
    default: return ::DefSubclassProc(list, message, w, l);
  }
}

bool MainWindow::take_message() {
  MSG message;
  if (tooltip_ == nullptr && !::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE)) describe();
  if (::GetMessageW(&message, nullptr, 0, 0) <= 0) return false;
  handle(message);
  return true;
}

void MainWindow::handle(MSG& message) {
  if (!press(message)) {
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
  }
  settle_combo();
  if (const HWND focus = ::GetFocus(); control_of(focus) >= 0) focus_ = focus;
}

// Tab goes on, Shift with it back. Enter presses a button and shows a species again; it leaves a box as it is, and so does
// Esc.
bool MainWindow::press(const MSG& message) {
  const int control = control_of(message.hwnd);
  const WPARAM key = message.wParam;
  if (message.message == WM_CHAR && key == 0x7F)
    return true;  // Ctrl with the key that takes back, which a box would take in
  if (message.message != WM_KEYDOWN || (key != VK_TAB && key != VK_RETURN && key != VK_ESCAPE)) return false;
  if (key == VK_TAB) return move_focus(control, ::GetKeyState(VK_SHIFT) < 0), true;
  if (control < 0) return false;
  const HWND pressed = view(control).window;
  if (def(control).kind == Kind::ComboBox && ::SendMessageW(pressed, CB_GETDROPPEDSTATE, 0, 0) != 0) return false;
  if (key == VK_RETURN && def(control).kind == Kind::Button) run(control);
  if (key == VK_RETURN && def(control).kind == Kind::ListBox)
    choose(control, static_cast<int>(::SendMessageW(pressed, LB_GETCURSEL, 0, 0)));
  return true;
}

void MainWindow::move_focus(int from, bool back) {
  const HWND next = ::GetNextDlgTabItem(window_, from < 0 ? nullptr : view(from).window, back);
  const int control = control_of(next);
  ::SendMessageW(window_, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);  // keys are in use: it is to be seen
  ::SetFocus(next);
  if (control >= 0 && def(control).kind == Kind::TextBox) ::SendMessageW(next, EM_SETSEL, 0, -1);
}

int MainWindow::control_of(HWND window) const {
  for (int i = 0; i < controls(); ++i)
    if (window != nullptr && (window == control(i) || ::GetParent(window) == control(i)) && control(i) != nullptr) return i;
  return -1;
}

// Of an entry of the list, also of the one chosen before; the choice is never taken back.
void MainWindow::choose(int control, int entry) {
  if (entry < 0) return push();  // which shows it again
  if (!running_) form_.window()[control].selected = entry;
  run(control);
}

// A combo box was closed: by a pick, or its text becomes again what the user had typed.
void MainWindow::settle_combo() {
  const int control = std::exchange(closing_, -1);
  if (control < 0) return;
  Control& value = form_.window()[control];
  const auto entry = static_cast<std::size_t>(::SendMessageW(view(control).window, CB_GETCURSEL, 0, 0));
  const bool picked = std::exchange(picked_, false) && entry < value.entries.size();
  if (picked && !running_) value.text = value.entries[entry];
  show_text(control, from_bytes(value.text));
  if (picked) run(control);
}

// By whatever means, dictation among them.
void MainWindow::typed(int control) {
  if (pushing_) return;
  const HWND box = view(control).window;
  const HWND edit = def(control).kind == Kind::ComboBox ? edit_of(box) : box;
  const std::wstring text = text_of(box);
  std::string& value = form_.window()[control].text;
  value = to_bytes(text);
  const std::wstring kept = from_bytes(value);
  view(control).text = kept;
  if (kept == text) return;
  DWORD caret = 0;
  ::SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&caret), 0);
  const auto before = from_bytes(to_bytes(text.substr(0, caret))).size();
  show_text(control, kept);
  ::SendMessageW(edit, EM_SETSEL, before, static_cast<LPARAM>(before));
  EDITBALLOONTIP tip{};
  tip.cbStruct = sizeof tip;
  tip.pszTitle = L"";
  tip.pszText = L"A character was left out: the files hold only those of the code page Windows-1252.";
  ::SendMessageW(edit, EM_SHOWBALLOONTIP, 0, reinterpret_cast<LPARAM>(&tip));
}

void MainWindow::run(int control) {
  if (running_) return push();  // takes back what was done to the control
  running_ = true;
  form_.click(control);
  running_ = false;
  push();
  if (form_.window().ended) ::SendMessageW(window_, WM_CLOSE, 0, 0);
}

// What is hidden is built, or brought up to date, when it is shown.
void MainWindow::push() {
  pushing_ = true;
  std::vector<const View*> changed;
  for (const int i : order_) {
    const Control& now = form_.window()[i];
    View& shown = view(i);
    if (now.shown && shown.window == nullptr) build(i);
    if (now.shown != std::exchange(shown.shown, now.shown)) changed.push_back(&shown);
    if (!now.shown) continue;
    show_entries(i, now);
    if (const std::wstring text = def(i).path ? from_path(now.text) : from_bytes(now.text); text != shown.text)
      show_text(i, text);
  }
  if (!changed.empty()) arrange();               // what covers what
  const int focused = control_of(::GetFocus());  // before it is hidden, when the window may take the focus itself
  for (const View* shown : changed) ::ShowWindow(shown->window, shown->shown ? SW_SHOWNA : SW_HIDE);
  name_boxes();
  if (focused >= 0 && !view(focused).shown) move_focus(focused, false);
  pushing_ = false;
}

// As a button takes it, to which one & marks a letter.
std::wstring MainWindow::written(int control, std::wstring text) const {
  if (def(control).kind == Kind::Button)
    for (std::size_t at = 0; (at = text.find(L'&', at)) != text.npos; at += 2) text.insert(at, 1, L'&');
  return text;
}

void MainWindow::show_text(int control, const std::wstring& text) {
  const bool pushing = std::exchange(pushing_, true);
  View& shown = view(control);
  shown.text = text;
  if (def(control).kind == Kind::ComboBox) {
    const auto entry = std::ranges::find(shown.entries, form_.window()[control].text);
    const auto index = entry != shown.entries.end() ? entry - shown.entries.begin() : -1;
    ::SendMessageW(shown.window, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
  }
  ::SetWindowTextW(shown.window, written(control, text).c_str());
  pushing_ = pushing;
}

void MainWindow::show_entries(int control, const Control& now) {
  const Kind kind = def(control).kind;
  if (kind != Kind::ListBox && kind != Kind::ComboBox) return;
  const bool list = kind == Kind::ListBox;
  View& shown = view(control);
  if (now.entries != shown.entries) {
    shown.entries = now.entries;
    if (list) ::SendMessageW(shown.window, WM_SETREDRAW, FALSE, 0);
    ::SendMessageW(shown.window, list ? LB_RESETCONTENT : CB_RESETCONTENT, 0, 0);
    ::SendMessageW(shown.window, list ? LB_INITSTORAGE : CB_INITSTORAGE, now.entries.size(), 0);
    for (const std::string& entry : now.entries) {
      const std::wstring text = from_bytes(entry);
      ::SendMessageW(shown.window, list ? LB_ADDSTRING : CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
    }
    if (list) {
      widen(control);
      ::SendMessageW(shown.window, WM_SETREDRAW, TRUE, 0);
      ::InvalidateRect(shown.window, nullptr, TRUE);
    } else {
      show_text(control, shown.text);  // which went with the entries
    }
  }
  if (list && ::SendMessageW(shown.window, LB_GETCURSEL, 0, 0) != now.selected)
    ::SendMessageW(shown.window, LB_SETCURSEL, static_cast<WPARAM>(now.selected), 0);
}

// A list can be scrolled to the end of its widest entry.
void MainWindow::widen(int control) {
  const View& list = view(control);
  const Measure measure(list.font);
  int widest = 0;
  for (const std::string& entry : list.entries) widest = std::max(widest, measure.width(from_bytes(entry)));
  ::SendMessageW(list.window, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(widest + kTextMargin), 0);
}

// For screen readers: a box by the text of its label, which changes, and by what the box holds.
void MainWindow::name_boxes() {
  for (int i = 0; i < controls(); ++i) {
    if (def(i).label < 0 || view(i).window == nullptr || names_ == nullptr) continue;
    const std::wstring label = from_bytes(form_.window()[def(i).label].text);
    if (label == view(i).name) continue;
    view(i).name = label;
    name(i, label.c_str());
  }
}

// Null: no more.
void MainWindow::name(int control, const wchar_t* text) {
  static const MSAAPROPID kProperties[] = {PROPID_ACC_NAME, PROPID_ACC_DESCRIPTION};
  constexpr DWORD kClient = static_cast<DWORD>(OBJID_CLIENT);
  const HWND box = view(control).window;
  for (const HWND part : {box, edit_of(box)}) {
    if (part == nullptr) continue;
    if (text == nullptr) {
      names_->ClearHwndProps(part, kClient, CHILDID_SELF, kProperties, std::size(kProperties));
      continue;
    }
    names_->SetHwndPropStr(part, kClient, CHILDID_SELF, PROPID_ACC_NAME, text);
    names_->SetHwndPropStr(part, kClient, CHILDID_SELF, PROPID_ACC_DESCRIPTION, from_bytes(def(control).about).c_str());
  }
}

}  // namespace ui::win32
