// Files of Windows.
#include <windows.h>
// After it, whose types they need.
#include <shellapi.h>
#include <winternl.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "file/system.h"

extern "C" NTSTATUS NTAPI RtlGetLastNtStatus();  // of the thread's last call that failed

namespace file {
namespace {

// Whoever opens a file otherwise keeps it from being renamed or removed.
constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr DWORD kNoFolder = 0, kAnyType = FILE_FLAG_BACKUP_SEMANTICS;
constexpr std::size_t kLongest = 248;  // characters of a path without a prefix, that of a folder included

HANDLE native(Handle handle) { return reinterpret_cast<HANDLE>(handle); }

std::error_code error_of(DWORD error) {
  constexpr DWORD kQuotaExceeded = 1295;
  static const struct {
    DWORD code;
    std::errc meaning;
  } kMeanings[] = {{ERROR_FILE_NOT_FOUND, std::errc::no_such_file_or_directory},
                   {ERROR_PATH_NOT_FOUND, std::errc::no_such_file_or_directory},
                   {ERROR_INVALID_DRIVE, std::errc::no_such_file_or_directory},
                   {ERROR_BAD_NETPATH, std::errc::no_such_file_or_directory},
                   {ERROR_BAD_NET_NAME, std::errc::no_such_file_or_directory},
                   {ERROR_INVALID_NAME, std::errc::no_such_file_or_directory},
                   {ERROR_BAD_PATHNAME, std::errc::no_such_file_or_directory},
                   {ERROR_DIRECTORY, std::errc::not_a_directory},
                   {ERROR_ACCESS_DENIED, std::errc::permission_denied},
                   {ERROR_NETWORK_ACCESS_DENIED, std::errc::permission_denied},
                   {ERROR_PRIVILEGE_NOT_HELD, std::errc::operation_not_permitted},
                   {ERROR_WRITE_PROTECT, std::errc::read_only_file_system},
                   {ERROR_SHARING_VIOLATION, std::errc::operation_would_block},
                   {ERROR_LOCK_VIOLATION, std::errc::operation_would_block},
                   {ERROR_USER_MAPPED_FILE, std::errc::operation_would_block},
                   {ERROR_DELETE_PENDING, std::errc::operation_would_block},
                   {ERROR_FILE_EXISTS, std::errc::file_exists},
                   {ERROR_ALREADY_EXISTS, std::errc::file_exists},
                   {ERROR_NOT_SAME_DEVICE, std::errc::cross_device_link},
                   {ERROR_DISK_FULL, std::errc::no_space_on_device},
                   {ERROR_HANDLE_DISK_FULL, std::errc::no_space_on_device},
                   {kQuotaExceeded, std::errc::no_space_on_device},
                   {ERROR_FILENAME_EXCED_RANGE, std::errc::filename_too_long},
                   {ERROR_BUFFER_OVERFLOW, std::errc::filename_too_long},
                   {ERROR_CANT_RESOLVE_FILENAME, std::errc::too_many_symbolic_link_levels},
                   {ERROR_TOO_MANY_OPEN_FILES, std::errc::too_many_files_open},
                   {ERROR_NOT_ENOUGH_MEMORY, std::errc::not_enough_memory},
                   {ERROR_OUTOFMEMORY, std::errc::not_enough_memory},
                   {ERROR_NO_SYSTEM_RESOURCES, std::errc::not_enough_memory},
                   {ERROR_COMMITMENT_LIMIT, std::errc::not_enough_memory},
                   {ERROR_INVALID_PARAMETER, std::errc::invalid_argument},
                   {ERROR_INVALID_FUNCTION, std::errc::not_supported},
                   {ERROR_NOT_SUPPORTED, std::errc::not_supported},
                   {ERROR_SEM_TIMEOUT, std::errc::timed_out},
                   {ERROR_NOT_READY, std::errc::no_such_device},
                   {ERROR_INVALID_HANDLE, std::errc::bad_file_descriptor},
                   {ERROR_CRC, std::errc::io_error},
                   {ERROR_IO_DEVICE, std::errc::io_error},
                   {ERROR_FILE_CORRUPT, std::errc::io_error},
                   {ERROR_DISK_CORRUPT, std::errc::io_error},
                   {ERROR_NETNAME_DELETED, std::errc::io_error},
                   {ERROR_UNEXP_NET_ERR, std::errc::io_error},
                   {ERROR_WRITE_FAULT, std::errc::io_error},
                   {ERROR_READ_FAULT, std::errc::io_error}};
  for (const auto& known : kMeanings)
    if (known.code == error) return make_error_code(known.meaning);
  return {static_cast<int>(error), std::system_category()};
}

// A name that is being removed is told apart from one that must not be touched.
std::error_code last_error() {
  constexpr NTSTATUS kDeletePending = static_cast<NTSTATUS>(0xC0000056);
  const DWORD error = ::GetLastError();
  if (error == ERROR_ACCESS_DENIED && ::RtlGetLastNtStatus() == kDeletePending)
    return make_error_code(std::errc::operation_would_block);
  return error_of(error);
}
std::error_code checked(BOOL result) { return result ? std::error_code() : last_error(); }

// Between the UTF-8 of a path inside the program, or another code page, and the system's wide characters.
std::wstring wide(std::string_view bytes, UINT code_page = CP_UTF8) {
  const int size = static_cast<int>(bytes.size());
  std::wstring text(bytes.size(), L'\0');  // no character takes less than a byte
  text.resize(static_cast<std::size_t>(::MultiByteToWideChar(code_page, 0, bytes.data(), size, text.data(), size)));
  return text;
}
std::string narrow(std::wstring_view text) {
  const int size = static_cast<int>(text.size());
  std::string bytes(text.size() * 3, '\0');
  bytes.resize(static_cast<std::size_t>(
      ::WideCharToMultiByte(CP_UTF8, 0, text.data(), size, bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr)));
  return bytes;
}

// The answer of a call that takes room for a text and gives its length, or the room that it needs; empty when it fails.
template <typename Call>
std::wstring answer(Call call) {
  std::wstring text(MAX_PATH, L'\0');
  DWORD length = call(text.data(), MAX_PATH);
  if (length >= text.size()) {
    text.resize(length);
    length = call(text.data(), length);
  }
  text.resize(std::min<std::size_t>(length, text.size()));
  return text;
}

std::wstring full(const std::wstring& path) {
  return answer([&](wchar_t* text, DWORD size) { return ::GetFullPathNameW(path.c_str(), size, text, nullptr); });
}

// A path that the system takes at any length.
std::wstring prefixed(const std::wstring& path) {
  const std::wstring whole = full(path);
  if (whole.size() < kLongest || whole.starts_with(LR"(\\?\)") || whole.starts_with(LR"(\\.\)")) return path;
  return whole.starts_with(LR"(\\)") ? LR"(\\?\UNC)" + whole.substr(1) : LR"(\\?\)" + whole;
}
std::wstring unprefixed(const std::wstring& path) {
  if (path.starts_with(LR"(\\?\UNC\)")) return L"\\" + path.substr(7);
  return path.starts_with(LR"(\\?\)") ? path.substr(4) : path;
}

// Such a name is a device in every folder, whatever follows a dot in it, and opening some does something to them.
bool is_device(const std::wstring& path) { return full(path).starts_with(LR"(\\.\)"); }

std::error_code open(const std::wstring& path, DWORD access, DWORD share, DWORD disposition, DWORD flags, Handle& handle,
                     SECURITY_ATTRIBUTES* security = nullptr) {
  if (is_device(path)) return make_error_code(std::errc::invalid_argument);
  const HANDLE opened = ::CreateFileW(prefixed(path).c_str(), access, share, security, disposition, flags, nullptr);
  if (opened == INVALID_HANDLE_VALUE) return last_error();
  handle = reinterpret_cast<Handle>(opened);
  return {};
}

// A link is what gives a file or folder another name; other marks of this kind (of files in a cloud, say) are none.
bool is_link(HANDLE file) {
  FILE_ATTRIBUTE_TAG_INFO info{};
  return ::GetFileInformationByHandleEx(file, FileAttributeTagInfo, &info, sizeof info) &&
         (info.FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 && IsReparseTagNameSurrogate(info.ReparseTag);
}

std::wstring final_path(HANDLE file) {
  return unprefixed(answer([&](wchar_t* text, DWORD size) { return ::GetFinalPathNameByHandleW(file, text, size, 0); }));
}

// The same for every spelling.
std::wstring folded(std::wstring name) {
  ::CharUpperBuffW(name.data(), static_cast<DWORD>(name.size()));
  return name;
}

std::chrono::nanoseconds since_1601(LARGE_INTEGER ticks) { return std::chrono::nanoseconds(100) * ticks.QuadPart; }

// Opens only what is a plain file.
std::error_code open_plain(const std::wstring& path, DWORD access, Handle& handle) {
  Handle opened = -1;
  auto error = open(path, access, kShared, OPEN_EXISTING, kNoFolder, opened);
  if (error) {
    const DWORD attributes = ::GetFileAttributesW(prefixed(path).c_str());
    const bool folder = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return folder ? make_error_code(std::errc::is_a_directory) : error;
  }
  if (::GetFileType(native(opened)) == FILE_TYPE_DISK) return handle = opened, std::error_code();
  ::CloseHandle(native(opened));
  return make_error_code(std::errc::invalid_argument);
}

// Access for this user alone, whatever the folder gives to others.
struct Private {
  Private() {
    HANDLE token = nullptr;
    if (!::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &token)) return;
    DWORD size = 0;
    ::GetTokenInformation(token, TokenUser, nullptr, 0, &size);
    user.resize(size);
    const bool known = ::GetTokenInformation(token, TokenUser, user.data(), size, &size);
    ::CloseHandle(token);
    if (!known) return;
    PSID const sid = reinterpret_cast<TOKEN_USER*>(user.data())->User.Sid;
    list.resize(sizeof(ACL) + sizeof(ACCESS_ALLOWED_ACE) + ::GetLengthSid(sid));
    auto* const acl = reinterpret_cast<ACL*>(list.data());
    if (::InitializeAcl(acl, static_cast<DWORD>(list.size()), ACL_REVISION) &&
        ::AddAccessAllowedAce(acl, ACL_REVISION, FILE_ALL_ACCESS, sid) &&
        ::InitializeSecurityDescriptor(&descriptor, SECURITY_DESCRIPTOR_REVISION) &&
        ::SetSecurityDescriptorDacl(&descriptor, TRUE, acl, FALSE) &&
        ::SetSecurityDescriptorControl(&descriptor, SE_DACL_PROTECTED, SE_DACL_PROTECTED))
      attributes.lpSecurityDescriptor = &descriptor;
  }
  Private(const Private&) = delete;
  Private& operator=(const Private&) = delete;

  std::vector<char> user, list;
  SECURITY_DESCRIPTOR descriptor{};
  SECURITY_ATTRIBUTES attributes{sizeof(SECURITY_ATTRIBUTES), nullptr, FALSE};
};

class Win32System final : public System {
 public:
  // A drive without a disk is an error of the call, not a box of the system's.
  Win32System() { ::SetErrorMode(SEM_FAILCRITICALERRORS); }

  std::error_code open_read(const std::string& path, Handle& handle) override {
    return open_plain(wide(path), GENERIC_READ, handle);
  }

  // While it is written nobody else removes it. Through a link that leads nowhere it would be made elsewhere.
  std::error_code create_new(const std::string& path, Access access, Handle& handle) override {
    const auto create = [&](DWORD rights, SECURITY_ATTRIBUTES* security) {
      return open(wide(path), GENERIC_WRITE | FILE_READ_ATTRIBUTES | READ_CONTROL | rights, FILE_SHARE_READ, CREATE_NEW,
                  FILE_FLAG_OPEN_REPARSE_POINT, handle, security);
    };
    if (access == Access::Shared) return create(0, nullptr);
    Private alone;
    if (alone.attributes.lpSecurityDescriptor == nullptr) return last_error();
    const auto error = create(WRITE_DAC, &alone.attributes);
    // A server's share may withhold the right to say who may what: then the folder says it.
    return error == std::errc::permission_denied ? create(0, nullptr) : error;
  }

  // By a file of its own beside it, which the system removes with the handle: one that is open cannot be renamed over. Only
  // a power cut leaves it behind, empty.
  std::error_code exclude_others(const std::string& path, Handle& handle) override {
    Status present;
    if (const auto error = status(path, Follow::Nothing, present)) return error;
    if (present.type == Type::Missing) return make_error_code(std::errc::no_such_file_or_directory);
    if (present.type == Type::Link) return make_error_code(std::errc::too_many_symbolic_link_levels);
    if (present.type != Type::Plain) return make_error_code(std::errc::invalid_argument);
    const std::wstring name = prefixed(full(wide(path)));
    // The one name of many; a folder that may not be listed does not tell it.
    const std::wstring one = answer([&](wchar_t* text, DWORD size) { return ::GetLongPathNameW(name.c_str(), text, size); });
    const std::wstring lock = (one.empty() ? name : one) + wide(kLock);
    constexpr DWORD kAccess = DELETE | FILE_READ_ATTRIBUTES, kNew = FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE;
    const auto error = open(lock, kAccess, 0, CREATE_NEW, kNew | FILE_FLAG_OPEN_REPARSE_POINT, handle);
    if (error != std::errc::file_exists) return error;
    OpenFile left(*this);
    const auto held = open(lock, kAccess, 0, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT, left.handle());
    if (held == std::errc::no_such_file_or_directory) return make_error_code(std::errc::operation_would_block);
    if (held) return held;
    LARGE_INTEGER size{};
    const bool ours = ::GetFileSizeEx(native(left.get()), &size) && size.QuadPart == 0 && !is_link(native(left.get()));
    if (!ours) return error;
    FILE_DISPOSITION_INFO removed{TRUE};  // with the handle
    if (!::SetFileInformationByHandle(native(left.get()), FileDispositionInfo, &removed, sizeof removed))
      return last_error();
    std::swap(handle, left.handle());
    return {};
  }

  std::error_code read(Handle handle, std::uint64_t offset, char* bytes, std::size_t size, std::size_t& got) override {
    OVERLAPPED at{};
    at.Offset = static_cast<DWORD>(offset);
    at.OffsetHigh = static_cast<DWORD>(offset >> 32);
    DWORD count = 0;
    if (!::ReadFile(native(handle), bytes, capped(size), &count, &at) && ::GetLastError() != ERROR_HANDLE_EOF)
      return last_error();
    got = count;
    return {};
  }

  std::error_code write(Handle handle, std::string_view bytes, std::size_t& put) override {
    DWORD count = 0;
    if (!::WriteFile(native(handle), bytes.data(), capped(bytes.size()), &count, nullptr)) return last_error();
    put = count;
    return {};
  }

  // The access list, word for word, and what hides a file. One that is encrypted for its owner must not become readable.
  std::error_code take_over(Handle handle, const std::string& path) override {
    OpenFile like(*this);
    constexpr DWORD kAccess = READ_CONTROL | FILE_READ_ATTRIBUTES;
    if (const auto error = open(wide(path), kAccess, kShared, OPEN_EXISTING, kNoFolder, like.handle())) return error;
    FILE_BASIC_INFO basic{}, own{};
    if (!::GetFileInformationByHandleEx(native(like.get()), FileBasicInfo, &basic, sizeof basic) ||
        !::GetFileInformationByHandleEx(native(handle), FileBasicInfo, &own, sizeof own))
      return last_error();
    if ((basic.FileAttributes & ~own.FileAttributes & FILE_ATTRIBUTE_ENCRYPTED) != 0)
      return make_error_code(std::errc::operation_not_permitted);

    // Where the file system holds no permissions, there is nothing to keep.
    if (const auto error = copy_list(native(handle), native(like.get())); error && error != std::errc::not_supported)
      return error;
    constexpr DWORD kHiding = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
    if ((basic.FileAttributes & kHiding) == 0) return {};
    FILE_BASIC_INFO hidden{};  // times of 0 stay
    hidden.FileAttributes = own.FileAttributes | (basic.FileAttributes & kHiding);
    return checked(::SetFileInformationByHandle(native(handle), FileBasicInfo, &hidden, sizeof hidden));
  }

  std::error_code flush(Handle handle) override { return checked(::FlushFileBuffers(native(handle))); }
  std::error_code close(Handle handle) override { return checked(::CloseHandle(native(handle))); }

  std::error_code status(const std::string& path, Follow follow, Status& status) override {
    status = {};
    OpenFile opened(*this);
    const std::wstring name = wide(path);
    if (is_device(name)) return status.type = Type::Other, std::error_code();
    const auto look = [&](DWORD flags) {
      opened.close();
      return open(name, FILE_READ_ATTRIBUTES, kShared, OPEN_EXISTING, kAnyType | flags, opened.handle());
    };
    auto error = look(FILE_FLAG_OPEN_REPARSE_POINT);
    if (!error) {
      if (is_link(native(opened.get())) && follow == Follow::Nothing) {
        error = this->status(opened.get(), status);
        status.type = Type::Link;
        return error;
      }
      error = look(0);
    }
    // A name that is being removed is as good as gone.
    if (error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory ||
        error == std::errc::operation_would_block)
      return {};
    if (error || (error = this->status(opened.get(), status)) || status.type != Type::Plain) return error;
    FILE_BASIC_INFO info{};
    if (!::GetFileInformationByHandleEx(native(opened.get()), FileBasicInfo, &info, sizeof info)) return last_error();
    const auto may = [&](const std::wstring& at, DWORD access) {
      OpenFile tried(*this);
      const auto refused = open(at, access, kShared, OPEN_EXISTING, kAnyType, tried.handle());
      return refused != std::errc::permission_denied && refused != std::errc::read_only_file_system;
    };
    status.writable = (info.FileAttributes & FILE_ATTRIBUTE_READONLY) == 0 && may(name, GENERIC_WRITE);
    const std::wstring whole = full(name);
    status.replaceable = may(name, DELETE) && may(whole.substr(0, whole.rfind(L'\\') + 1), FILE_ADD_FILE);
    return {};
  }

  std::error_code status(Handle handle, Status& status) override {
    status = {};
    if (::GetFileType(native(handle)) != FILE_TYPE_DISK) return status.type = Type::Other, std::error_code();
    BY_HANDLE_FILE_INFORMATION info{};
    FILE_BASIC_INFO times{};
    if (!::GetFileInformationByHandle(native(handle), &info) ||
        !::GetFileInformationByHandleEx(native(handle), FileBasicInfo, &times, sizeof times))
      return last_error();
    const auto whole = [](DWORD high, DWORD low) { return static_cast<std::uint64_t>(high) << 32 | low; };
    status.type = (info.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? Type::Folder : Type::Plain;
    status.size = whole(info.nFileSizeHigh, info.nFileSizeLow);
    status.links = info.nNumberOfLinks;
    status.identity = {info.dwVolumeSerialNumber, whole(info.nFileIndexHigh, info.nFileIndexLow)};
    // Some servers and file systems have no such number for a file: then its path tells it from another.
    if (status.identity[1] == 0 || status.identity[1] == ~std::uint64_t{0})
      status.identity[1] = std::hash<std::wstring>()(folded(final_path(native(handle))));
    status.changed = std::max(since_1601(times.ChangeTime), since_1601(times.LastWriteTime));
    return {};
  }

  // Who may not remove a file mostly may not even ask whose it is.
  std::string owner_of(const std::string&) override { return ""; }

  std::error_code without_links(const std::string& path, std::string& real) override {
    if (is_device(wide(path))) return real = narrow(full(wide(path))), std::error_code();
    OpenFile opened(*this);
    constexpr DWORD kItself = kAnyType | FILE_FLAG_OPEN_REPARSE_POINT;
    auto error = open(wide(path), FILE_READ_ATTRIBUTES, kShared, OPEN_EXISTING, kItself, opened.handle());
    if (error) return error;
    if (!is_link(native(opened.get()))) return real = narrow(full(wide(path))), std::error_code();
    opened.close();
    error = open(wide(path), FILE_READ_ATTRIBUTES, kShared, OPEN_EXISTING, kAnyType, opened.handle());
    if (error) return error;
    const std::wstring final = final_path(native(opened.get()));
    if (final.empty()) return last_error();
    return real = narrow(final), std::error_code();
  }

  std::error_code place_of(const std::string& path, std::string& place) override {
    const std::wstring name = full(wide(path));
    if (name.empty()) return last_error();
    return place = narrow(folded(name)), std::error_code();
  }

  // ReplaceFile would have a moment without the name, a copy one with half the content.
  std::error_code rename(const std::string& from, const std::string& to) override {
    constexpr DWORD kInOneStep = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    if (::MoveFileExW(prefixed(wide(from)).c_str(), prefixed(wide(to)).c_str(), kInOneStep)) return {};
    const auto error = last_error();
    if (error != std::errc::permission_denied) return error;
    // A target that another program has open, be it only to look at it, is refused with the same error as a folder that is
    // closed. Where the rights are there, it is that.
    Status present;
    const bool in_use = !status(to, Follow::Nothing, present) && present.writable && present.replaceable;
    return in_use ? make_error_code(std::errc::operation_would_block) : error;
  }

  std::error_code remove(const std::string& path) override { return checked(::DeleteFileW(prefixed(wide(path)).c_str())); }

  // A folder cannot be flushed here: the rename itself returns when the names are on the disk.
  std::error_code flush_folder_of(const std::string&) override { return {}; }

  std::error_code current_folder(std::string& folder) override {
    const std::wstring path = answer([](wchar_t* text, DWORD size) { return ::GetCurrentDirectoryW(size, text); });
    if (path.empty()) return last_error();
    return folder = narrow(path), std::error_code();
  }

  std::error_code change_folder(const std::string& folder) override {
    return checked(::SetCurrentDirectoryW(wide(folder).c_str()));
  }

  std::error_code change_drive(char letter) override { return change_folder({letter, ':'}); }

  std::string path_in_file(const std::string& bytes) override { return narrow(wide(bytes, CP_ACP)); }

  void pause(std::chrono::milliseconds time) override { ::Sleep(static_cast<DWORD>(time.count())); }

 private:
  static std::error_code read_list(HANDLE file, std::vector<char>& list) {
    DWORD size = 0;
    ::GetKernelObjectSecurity(file, DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    list.resize(size);
    return checked(::GetKernelObjectSecurity(file, DACL_SECURITY_INFORMATION, list.data(), size, &size));
  }
  static std::error_code copy_list(HANDLE to, HANDLE from) {
    std::vector<char> list, present;
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    DWORD revision = 0;
    if (const auto error = read_list(from, list)) return error;
    if (!read_list(to, present) && present == list) return {};
    if (!::GetSecurityDescriptorControl(list.data(), &control, &revision)) return last_error();
    // Entries that came from the folder stay known as such only where that is asked for.
    if ((control & SE_DACL_AUTO_INHERITED) != 0)
      ::SetSecurityDescriptorControl(list.data(), SE_DACL_AUTO_INHERIT_REQ, SE_DACL_AUTO_INHERIT_REQ);
    return checked(::SetKernelObjectSecurity(to, DACL_SECURITY_INFORMATION, list.data()));
  }
  static DWORD capped(std::size_t size) { return static_cast<DWORD>(std::min<std::size_t>(size, 1u << 30)); }
};

}  // namespace

System& system() {
  static Win32System win32;
  return win32;
}

// Those of the runtime are in the code page, which may lack letters of a name.
std::vector<std::string> arguments(int, char**) {
  static const UINT before = ::GetConsoleOutputCP();
  ::SetConsoleOutputCP(CP_UTF8);
  std::atexit([] { ::SetConsoleOutputCP(before); });
  int count = 0;
  wchar_t** const all = ::CommandLineToArgvW(::GetCommandLineW(), &count);
  std::vector<std::string> paths;
  for (int i = 1; i < count; ++i) {
    const std::wstring argument = all[i];
    WIN32_FIND_DATAW found;
    HANDLE search = INVALID_HANDLE_VALUE;  // of the files of a pattern, which no command line here expands
    if (argument.find_first_of(L"*?") != std::wstring::npos) search = ::FindFirstFileW(argument.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) {
      paths.push_back(narrow(argument));
      continue;
    }
    do paths.push_back(beside(narrow(argument), narrow(found.cFileName)));
    while (::FindNextFileW(search, &found));
    ::FindClose(search);
  }
  ::LocalFree(all);
  return paths;
}

std::string beside(const std::string& path, std::string_view name) {
  return path.substr(0, path.find_last_of("\\/:") + 1).append(name);
}

}  // namespace file
