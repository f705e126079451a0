// What the tables of tests/disk do to a disk of Windows.
#include <windows.h>
// After it.
#include <gtest/gtest.h>
#include <sddl.h>

#include <map>
#include <string_view>

#include "disk/world.h"

namespace {

std::map<std::string, DWORD> refused;  // the error that a function gives

bool fails(const char* name) {
  const auto refusal = refused.find(name);
  if (refusal != refused.end()) ::SetLastError(refusal->second);
  return refusal != refused.end();
}

// A function of the system's, in whose place another one is put, in the table through which this program calls it: whether a
// flush reaches the disk cannot be seen otherwise, few disks fail as these do, and wine lacks a limit.
template <typename Function>
Function* exchanged(const char* name, Function* instead) {
  char* const program = reinterpret_cast<char*>(::GetModuleHandleW(nullptr));
  const auto* const dos = reinterpret_cast<IMAGE_DOS_HEADER*>(program);
  const auto* const headers = reinterpret_cast<IMAGE_NT_HEADERS*>(program + dos->e_lfanew);
  const auto& imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  auto* library = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(program + imports.VirtualAddress);
  for (; library->Name != 0; ++library) {
    auto* known = reinterpret_cast<IMAGE_THUNK_DATA*>(program + library->OriginalFirstThunk);
    auto* called = reinterpret_cast<IMAGE_THUNK_DATA*>(program + library->FirstThunk);
    for (; known->u1.AddressOfData != 0; ++known, ++called) {
      const auto* const import = reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(program + known->u1.AddressOfData);
      if (std::string_view(import->Name) != name) continue;
      DWORD before = 0;
      ::VirtualProtect(called, sizeof *called, PAGE_READWRITE, &before);
      return reinterpret_cast<Function*>(std::exchange(called->u1.Function, reinterpret_cast<ULONGLONG>(instead)));
    }
  }
  return nullptr;
}

decltype(&::CreateFileW) real_create;
decltype(&::DeleteFileW) real_remove;
decltype(&::FlushFileBuffers) real_flush;
decltype(&::MoveFileExW) real_move;
decltype(&::GetLongPathNameW) real_long_path;
decltype(&::GetKernelObjectSecurity) real_security;
decltype(&::GetFileInformationByHandle) real_information;

// Wine takes a path of any length.
bool fits(const wchar_t* path) {
  if (std::wstring_view(path).starts_with(LR"(\\?\)") || ::GetFullPathNameW(path, 0, nullptr, nullptr) <= MAX_PATH)
    return true;
  return ::SetLastError(ERROR_PATH_NOT_FOUND), false;
}

HANDLE WINAPI create(const wchar_t* path, DWORD access, DWORD share, SECURITY_ATTRIBUTES* security, DWORD how, DWORD flags,
                     HANDLE like) {
  // The right that is asked for, and refused to this user.
  const bool refuses = ((access & GENERIC_WRITE) != 0 && fails("GENERIC_WRITE")) ||
                       ((access & WRITE_DAC) != 0 && fails("WRITE_DAC")) || (access == DELETE && fails("DELETE")) ||
                       (access == FILE_ADD_FILE && fails("FILE_ADD_FILE")) ||
                       (access == FILE_READ_ATTRIBUTES && fails("FILE_READ_ATTRIBUTES"));
  return !refuses && fits(path) ? real_create(path, access, share, security, how, flags, like) : INVALID_HANDLE_VALUE;
}
BOOL WINAPI remove(const wchar_t* path) { return fits(path) && real_remove(path); }
BOOL WINAPI flush(HANDLE file) {
  disk::flushed += "file ";
  return !fails("FlushFileBuffers") && real_flush(file);
}
BOOL WINAPI move(const wchar_t* from, const wchar_t* to, DWORD how) {
  disk::flushed += how == (MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) ? "name " : "";
  // Wine renames from drive to drive where both lie on one file system of its host.
  const bool crosses = std::filesystem::absolute(from).root_name() != std::filesystem::absolute(to).root_name();
  if (crosses) ::SetLastError(ERROR_NOT_SAME_DEVICE);
  return !crosses && !fails("MoveFileExW") && fits(from) && fits(to) && real_move(from, to, how);
}
DWORD WINAPI long_path(const wchar_t* path, wchar_t* text, DWORD size) {
  return fails("GetLongPathNameW") || !fits(path) ? 0 : real_long_path(path, text, size);
}
BOOL WINAPI security(HANDLE file, SECURITY_INFORMATION what, void* list, DWORD size, DWORD* needed) {
  return !fails("GetKernelObjectSecurity") && real_security(file, what, list, size, needed);
}
BOOL WINAPI information(HANDLE file, BY_HANDLE_FILE_INFORMATION* info) {
  const BOOL done = real_information(file, info);
  if (refused.contains("FileIndex")) info->nFileIndexLow = info->nFileIndexHigh = refused["FileIndex"];
  return done;
}

bool exchange_all() {
  real_create = exchanged("CreateFileW", create);
  real_remove = exchanged("DeleteFileW", remove);
  real_flush = exchanged("FlushFileBuffers", flush);
  real_move = exchanged("MoveFileExW", move);
  real_long_path = exchanged("GetLongPathNameW", long_path);
  real_security = exchanged("GetKernelObjectSecurity", security);
  real_information = exchanged("GetFileInformationByHandle", information);
  return true;
}

}  // namespace

namespace disk {
namespace {

std::wstring wide(const std::string& name) { return native(name).wstring(); }
std::string made(BOOL done) { return done ? "" : "cannot be made"; }

// As another program opens it, which knows nothing of this one.
file::Handle opened(const std::string& name, const std::string& how) {
  constexpr DWORD kUsual = FILE_SHARE_READ | FILE_SHARE_WRITE;
  const DWORD share = how == "alone" ? 0 : how == "as-usual" ? kUsual : kUsual | FILE_SHARE_DELETE;
  const DWORD access = how == "to-look-at" ? FILE_READ_ATTRIBUTES : GENERIC_READ;
  return reinterpret_cast<file::Handle>(
      ::CreateFileW(wide(name).c_str(), access, share, nullptr, OPEN_EXISTING, 0, nullptr));
}

PROCESS_INFORMATION other{};  // a process that does nothing

// Makes what this process holds open that of another one alone.
std::string give_away(file::Handle& held) {
  wchar_t self[MAX_PATH];
  ::GetModuleFileNameW(nullptr, self, MAX_PATH);
  STARTUPINFOW start{};
  start.cb = sizeof start;
  EXPECT_TRUE(::CreateProcessW(self, nullptr, nullptr, nullptr, FALSE, CREATE_SUSPENDED, nullptr, nullptr, &start, &other));
  const BOOL done = ::DuplicateHandle(::GetCurrentProcess(), reinterpret_cast<HANDLE>(std::exchange(held, -1)),
                                      other.hProcess, nullptr, 0, FALSE, DUPLICATE_SAME_ACCESS | DUPLICATE_CLOSE_SOURCE);
  return made(done);
}

std::string end_other() {
  const BOOL done = ::TerminateProcess(other.hProcess, 1) && ::WaitForSingleObject(other.hProcess, 10'000) == WAIT_OBJECT_0;
  return ::CloseHandle(other.hThread), ::CloseHandle(other.hProcess), made(done);
}

std::string access_of(const std::string& name) {
  std::string list(4096, '\0');
  DWORD size = 0;
  EXPECT_TRUE(::GetFileSecurityW(wide(name).c_str(), DACL_SECURITY_INFORMATION, list.data(), 4096, &size));
  char* text = nullptr;
  ::ConvertSecurityDescriptorToStringSecurityDescriptorA(list.data(), SDDL_REVISION_1, DACL_SECURITY_INFORMATION, &text,
                                                         nullptr);
  return text != nullptr ? text : "";
}

std::string let_everyone(const std::string& name) {
  PSECURITY_DESCRIPTOR list = nullptr;
  ::ConvertStringSecurityDescriptorToSecurityDescriptorA("D:P(A;;FA;;;WD)", SDDL_REVISION_1, &list, nullptr);
  return made(::SetFileSecurityW(wide(name).c_str(), DACL_SECURITY_INFORMATION, list));
}

}  // namespace

Folder::Folder() {
  [[maybe_unused]] static const bool exchanged = exchange_all();
  static int number = 0;
  const auto name = "kelmar-" + std::to_string(::GetTickCount64()) + "-" + std::to_string(++number);
  const auto folder = std::filesystem::temp_directory_path() / name;
  EXPECT_TRUE(std::filesystem::create_directory(folder));
  std::filesystem::current_path(folder);
  path = folder.string();
}

Folder::~Folder() {
  std::filesystem::current_path(path);
  for (const auto& entry : std::filesystem::recursive_directory_iterator(native("."))) {
    if (entry.is_directory()) continue;
    const std::wstring name = entry.path().wstring();
    ::SetFileAttributesW(name.c_str(), FILE_ATTRIBUTE_NORMAL);
    // Nothing takes the place of a file that is open.
    const std::wstring empty = native("taking-its-place").wstring();
    ::CloseHandle(::CreateFileW(empty.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    EXPECT_TRUE(::MoveFileExW(empty.c_str(), name.c_str(), MOVEFILE_REPLACE_EXISTING)) << entry.path();
  }
  const auto all = native(".");
  std::filesystem::current_path(before_);
  std::filesystem::remove_all(all);
}

std::string worlds() { return "w"; }
std::filesystem::path native(const std::string& path) {
  return LR"(\\?\)" + std::filesystem::absolute(std::u8string(path.begin(), path.end())).make_preferred().wstring();
}
std::ptrdiff_t open_files() { return 0; }

std::optional<std::string> operate(const std::string& verb, const std::string& a, const std::string& b, file::Handle& held) {
  const auto [name, how] = split(b);
  if (verb == "hold") return made((held = opened(name, how)) != -1);
  if (verb == "give-away") return give_away(held);
  if (verb == "end-other") return end_other();
  if (verb == "let-everyone") return let_everyone(a);
  if (verb == "for-everyone") return access_of(a).find(";WD)") != std::string::npos ? "yes" : "no";
  if (verb == "same-access") return access_of(a) == access_of(b) ? "yes" : "no";
  if (verb == "mark") return made(::SetFileAttributesW(wide(a).c_str(), std::stoul(b, nullptr, 16)));
  if (verb == "marks") {
    constexpr DWORD kTold = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    return std::to_string(::GetFileAttributesW(wide(a).c_str()) & kTold);
  }
  if (verb == "needs-drive") return ::GetDriveTypeA((a + ":/").c_str()) != DRIVE_NO_ROOT_DIR ? "" : "skipped";
  if (verb == "far") return remove_all(native(a)), create_directory(native(a)) ? "" : "cannot be made";
  if (verb == "flushed") return std::exchange(flushed, "");
  return std::nullopt;
}

void refuse(const std::string& function, const std::string& error) { refused[function] = std::stoul(error); }
void refuse_nothing() { refused.clear(), flushed.clear(); }

}  // namespace disk
