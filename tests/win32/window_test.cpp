// What users, screen readers and eyes meet in the window, beyond the stories.
#include <oleacc.h>

#include <map>
#include <memory>
#include <string>
#include <utility>

#include "support/seat.h"
#include "ui/backend.h"
#include "ui/win32/dialogs.h"
#include "ui/win32/text.h"
#include "win32/win32_player.h"

namespace {

const bool kSeated = player::sit_down();
using Win32Seat = support::Seat<player::Win32Player>;

// Is tried while somebody waits for events, here or in a dialog of the system's, until it has been done.
std::function<bool()> deed;
void meanwhile(std::function<bool()> what) {
  deed = std::move(what);
  ::SetTimer(nullptr, 0, 20, [](HWND, UINT, UINT_PTR timer, DWORD) {
    if (deed()) ::KillTimer(nullptr, timer);
  });
}
HWND topmost() { return ::GetAncestor(::GetFocus(), GA_ROOT); }

// Whatever comes up is closed.
TEST(Run, EndsWithTheFormAndItsStatus) {
  for (const bool starts : {true, false}) {
    support::MemorySystem system{{starts ? "dabase.txt" : "other.txt", "C"}};
    meanwhile([] { return topmost() != nullptr && ::PostMessageW(topmost(), WM_CLOSE, 0, 0); });
    char program[] = "kelmar-dbedit";
    EXPECT_EQ(ui::run(program, [&](ui::Dialogs& dialogs) { return std::make_unique<app::frmMaindb>(dialogs, system); }),
              starts ? 0 : 1);
  }
}

TEST(Win32, CutsNoTextAndKeepsEveryByte) {
  Win32Seat win;
  const HWND edit = win.edit(app::txtName);
  for (int byte = 0; byte < 256; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    win.set(app::txtName, text);
    EXPECT_EQ(ui::win32::text_of(edit), ui::win32::from_bytes(text)) << byte;
    // As one that the user types: a line end has no place in a box.
    ::SendMessageW(edit, EM_SETSEL, 1, 1);
    ::SendMessageW(edit, WM_CHAR, 'x', 1);
    EXPECT_EQ(win.text(app::txtName), byte == '\r' || byte == '\n' ? "x" : text + "x") << byte;
  }
  for (const int box : {app::txtName, app::cboIsoterm}) {
    win.set(box, std::string(100000, 'n'));
    win.check();
    ::SendMessageW(win.edit(box), WM_CHAR, 'x', 1);
    EXPECT_EQ(win.text(box).size(), 100001u);
  }
}

// Stands in for the system's service that names boxes, which wine does not have: it notes names and descriptions. Of its
// functions and those of its factory only these few are called.
struct Names {
  static inline std::map<std::pair<HWND, bool>, std::wstring> told;
  static HRESULT WINAPI create(void* self, IUnknown*, REFIID, void** object) { return *object = self, S_OK; }
  static HRESULT WINAPI find(void* self, REFIID, void** object) { return *object = self, S_OK; }
  static ULONG WINAPI count(void*) { return 1; }
  static HRESULT WINAPI set(void*, HWND box, DWORD object, DWORD, MSAAPROPID property, LPCWSTR text) {
    if (object == static_cast<DWORD>(OBJID_CLIENT)) told[{box, property == PROPID_ACC_NAME}] = text;
    return S_OK;
  }
  static HRESULT WINAPI clear(void*, HWND box, DWORD, DWORD, const MSAAPROPID* properties, int count) {
    for (int i = 0; i < count; ++i) told.erase({box, properties[i] == PROPID_ACC_NAME});
    return S_OK;
  }
  template <typename Function>
  static void* slot(Function* function) {
    return reinterpret_cast<void*>(function);
  }
  void* functions[18] = {slot(find), slot(count), slot(count), slot(create), nullptr,
                         nullptr,    nullptr,     slot(set),   nullptr,      slot(clear)};
  void** table = functions;
};

// By the caption of its label as it stands, and by what it holds.
TEST(Win32, NamesEveryBoxForAScreenReader) {
  Names names;
  DWORD registered = 0;
  ::CoRegisterClassObject(CLSID_AccPropServices, reinterpret_cast<IUnknown*>(&names.table), CLSCTX_INPROC_SERVER,
                          REGCLS_MULTIPLEUSE, &registered);
  Win32Seat win;
  meanwhile([] { return true; });
  win.window.take_message();  // before it, when nothing is in line
  win.play("select 0");
  win.play("click cmdAddnew");
  win.set(app::lblComp, "Component no. 7");
  for (int i = 0; i < app::kControls; ++i) {
    const ui::ControlDef& def = app::window_def().controls[static_cast<std::size_t>(i)];
    const HWND box = win.window.control(i);
    if (def.label < 0 || box == nullptr) continue;
    const std::wstring name = ui::win32::from_bytes(win.text(def.label));
    for (const HWND part : {box, win.edit(i) != nullptr ? win.edit(i) : box}) {
      EXPECT_EQ((Names::told[{part, true}]), name) << def.name;
      EXPECT_EQ((Names::told[{part, false}]), ui::win32::from_bytes(def.about)) << def.name;
    }
    // What whoever does not ask that service makes of the order of the controls.
    IAccessible* read = nullptr;
    ::AccessibleObjectFromWindow(box, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible, reinterpret_cast<void**>(&read));
    VARIANT itself{};
    itself.vt = VT_I4;
    BSTR text = nullptr;
    if (def.kind != ui::Kind::TextBox) continue;
    EXPECT_EQ(read->get_accName(itself, &text), S_OK);
    EXPECT_EQ(text, name) << def.name;
  }
  EXPECT_GT(Names::told.size(), 30u);
  win.play("close");
  EXPECT_EQ(Names::told.size(), 0u);
  ::CoRevokeClassObject(registered);
}

TEST(Win32, StaysAsItIsWhenItBecomesAnIconAndOnAFinerScreen) {
  Win32Seat win;
  const HWND window = win.window.handle();
  const auto place = [&] {
    RECT where{};
    ::GetWindowRect(window, &where);
    return where;
  };
  win.play_other("resize .6");
  win.play("type txtlogk 7");
  const RECT before = place();
  for (const WPARAM command : {SC_MINIMIZE, SC_RESTORE}) {
    ::PostMessageW(window, WM_SYSCOMMAND, command, 0);
    win.settle();
  }
  win.check();
  const RECT after = place();
  EXPECT_TRUE(::EqualRect(&before, &after));
  EXPECT_EQ(::GetFocus(), win.window.control(app::txtlogk));

  const RECT wanted{10, 10, 10 + (before.right - before.left) * 3 / 2, 10 + (before.bottom - before.top) * 3 / 2};
  ::SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&wanted));
  win.check();
  const RECT there = place();
  EXPECT_TRUE(::EqualRect(&wanted, &there));
}

// One that is cancelled gives nothing; the current folder stays.
TEST(Win32, HasTheSystemsFileDialogs) {
  wchar_t before[MAX_PATH], after[MAX_PATH];
  ::GetCurrentDirectoryW(MAX_PATH, before);
  const auto choose = [](ui::FileRequest::Form form, const char* extension, const char* typed) {
    meanwhile([typed] {
      constexpr int kName = 1152;
      const HWND dialog = topmost();
      if (::GetDlgItem(dialog, kName) == nullptr) return false;
      if (typed != nullptr) ::SetDlgItemTextA(dialog, kName, typed);
      return ::PostMessageW(dialog, WM_COMMAND, typed != nullptr ? IDOK : IDCANCEL, 0) != 0;
    });
    ui::win32::Win32Dialogs dialogs;
    return dialogs.choose_file({.form = form, .filter = "A (*.NIC)|*.NIC", .folder = "C:\\windows", .extension = extension})
        .value_or("nothing");
  };
  using Form = ui::FileRequest::Form;
  EXPECT_EQ(choose(Form::Open, "", nullptr), "nothing");
  EXPECT_EQ(choose(Form::Open, "", "win.ini"), "C:\\windows\\win.ini");
  EXPECT_EQ(choose(Form::Save, "NIC", nullptr), "nothing");
  EXPECT_EQ(choose(Form::Save, "NIC", "fresh"), "C:\\windows\\fresh.NIC");
  ::GetCurrentDirectoryW(MAX_PATH, after);
  EXPECT_STREQ(before, after);
}

}  // namespace
