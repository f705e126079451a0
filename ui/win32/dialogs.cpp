// Windows' message boxes and file dialogs.
#include "ui/win32/dialogs.h"

#include <shobjidl.h>

#include <vector>

#include "ui/win32/text.h"

namespace ui::win32 {
namespace {

// Of these dialogs, under which the system would remember a folder and a size.
constexpr GUID kDialogs{0x5d1f7a0e, 0x3c62, 0x4f4b, {0x9a, 0x51, 0x0e, 0x6b, 0x27, 0xc8, 0xd4, 0x13}};

// A reference to an object of the system's, given back at the end.
template <typename Interface>
class Reference {
 public:
  Reference() = default;
  ~Reference() {
    if (object_ != nullptr) object_->Release();
  }
  Reference(const Reference&) = delete;
  Reference& operator=(const Reference&) = delete;
  Interface* operator->() const { return object_; }
  Interface* get() const { return object_; }
  void** place() { return reinterpret_cast<void**>(&object_); }
  explicit operator bool() const { return object_ != nullptr; }

 private:
  Interface* object_ = nullptr;
};

// The system's question with Yes and No takes no Esc.
LRESULT CALLBACK answer_no_to_escape(int code, WPARAM given, LPARAM data) {
  const auto& message = *reinterpret_cast<const MSG*>(data);
  if (code == MSGF_DIALOGBOX && message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE) {
    const HWND box = ::GetAncestor(message.hwnd, GA_ROOT);
    if (const HWND no = ::GetDlgItem(box, IDNO); no != nullptr) return ::PostMessageW(no, BM_CLICK, 0, 0);
  }
  return ::CallNextHookEx(nullptr, code, given, data);
}

// Description and pattern of each type of file.
std::vector<std::wstring> parts_of(std::string_view filter) {
  std::vector<std::wstring> parts(1);
  for (const wchar_t c : from_bytes(filter)) c == L'|' ? static_cast<void>(parts.emplace_back()) : parts.back().push_back(c);
  return parts;
}

}  // namespace

Answer Win32Dialogs::message(std::string_view prompt, std::string_view title, Icon icon, Buttons buttons) {
  push();
  const bool asks = buttons == Buttons::YesNo;
  // Every question is about data that would be gone: No is the answer unless another is given.
  const UINT style = (icon == Icon::Critical ? MB_ICONERROR : MB_ICONQUESTION) | (asks ? MB_YESNO | MB_DEFBUTTON2 : MB_OK);
  const HHOOK hook =
      asks ? ::SetWindowsHookExW(WH_MSGFILTER, answer_no_to_escape, nullptr, ::GetCurrentThreadId()) : nullptr;
  const int answer = ::MessageBoxW(parent, from_path(prompt).c_str(), from_bytes(title).c_str(), style);
  if (hook != nullptr) ::UnhookWindowsHookEx(hook);
  return answer == IDYES ? Answer::Yes : asks ? Answer::No : Answer::Ok;
}

std::optional<std::string> Win32Dialogs::choose_file(const FileRequest& request) {
  push();
  const bool opens = request.form == FileRequest::Form::Open;
  Reference<IFileDialog> dialog;
  ::CoCreateInstance(opens ? CLSID_FileOpenDialog : CLSID_FileSaveDialog, nullptr, CLSCTX_INPROC_SERVER, IID_IFileDialog,
                     dialog.place());
  if (!dialog) return std::nullopt;
  dialog->SetClientGuid(kDialogs);
  dialog->ClearClientData();  // the program remembers nothing from run to run

  FILEOPENDIALOGOPTIONS options = 0;
  dialog->GetOptions(&options);
  options |= FOS_FORCEFILESYSTEM | FOS_NOCHANGEDIR | FOS_DONTADDTORECENT | FOS_NOTESTFILECREATE | FOS_PATHMUSTEXIST;
  if (opens) options |= FOS_FILEMUSTEXIST;
  // What will not be written may be read-only.
  if (request.extension.empty()) options &= ~static_cast<FILEOPENDIALOGOPTIONS>(FOS_OVERWRITEPROMPT | FOS_NOREADONLYRETURN);
  dialog->SetOptions(options);

  const std::vector<std::wstring> parts = parts_of(request.filter);
  std::vector<COMDLG_FILTERSPEC> types;
  for (std::size_t i = 0; i + 1 < parts.size(); i += 2) types.push_back({parts[i].c_str(), parts[i + 1].c_str()});
  dialog->SetFileTypes(static_cast<UINT>(types.size()), types.data());
  if (!request.extension.empty()) dialog->SetDefaultExtension(from_bytes(request.extension).c_str());
  Reference<IShellItem> folder;
  if (!request.folder.empty() &&
      ::SHCreateItemFromParsingName(from_path(request.folder).c_str(), nullptr, IID_IShellItem, folder.place()) == S_OK)
    dialog->SetFolder(folder.get());

  Reference<IShellItem> chosen;
  wchar_t* path = nullptr;
  if (dialog->Show(parent) == S_OK && dialog->GetResult(reinterpret_cast<IShellItem**>(chosen.place())) == S_OK)
    chosen->GetDisplayName(SIGDN_FILESYSPATH, &path);
  dialog->ClearClientData();
  if (path == nullptr) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(::WideCharToMultiByte(CP_UTF8, 0, path, -1, nullptr, 0, nullptr, nullptr)),
                    '\0');
  ::WideCharToMultiByte(CP_UTF8, 0, path, -1, bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
  ::CoTaskMemFree(path);
  bytes.pop_back();
  return bytes;
}

}  // namespace ui::win32
