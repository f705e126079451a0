// Passes every call on to another system, and tells of it before; what it is told back, the call gives in its place.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "file/system.h"

namespace support {

enum class Call {
  OpenRead,
  CreateNew,
  ExcludeOthers,
  Read,
  Write,
  Flush,
  Close,
  StatusOfPath,
  StatusOfHandle,
  TakeOver,
  WithoutLinks,
  Rename,
  Remove,
  FlushFolder,
  CurrentFolder,
  ChangeFolder,
  ChangeDrive,
  kCount
};

struct CallInfo {
  Call call;
  file::Handle handle = -1;
  std::string path, to;      // of calls with paths
  std::string_view bytes{};  // of Write
};

// What becomes of a call: nothing means that it is made; else an error in its place, or only half of what it transfers.
struct Instead {
  std::error_code error{};
  bool half = false;
};

// While a call of a watched system is made: what happens in it is no fault of the program.
inline int calls_in_progress = 0;

class WatchedSystem final : public file::System {
 public:
  explicit WatchedSystem(file::System& inner) : inner_(inner) {}

  std::function<std::optional<Instead>(const CallInfo&)> before = [](const CallInfo&) { return std::nullopt; };
  std::function<void(const CallInfo&)> after = [](const CallInfo&) {};  // of calls that succeeded

  std::error_code open_read(const std::string& path, file::Handle& handle) override {
    return make({Call::OpenRead, -1, path, ""},
                [&](CallInfo& info) { return opened(info, handle, inner_.open_read(path, handle)); });
  }
  std::error_code create_new(const std::string& path, file::Access access, file::Handle& handle) override {
    return make({Call::CreateNew, -1, path, ""},
                [&](CallInfo& info) { return opened(info, handle, inner_.create_new(path, access, handle)); });
  }
  std::error_code exclude_others(const std::string& path, file::Handle& handle) override {
    return make({Call::ExcludeOthers, -1, path, ""},
                [&](CallInfo& info) { return opened(info, handle, inner_.exclude_others(path, handle)); });
  }
  std::error_code read(file::Handle handle, std::uint64_t offset, char* bytes, std::size_t size, std::size_t& got) override {
    return make({Call::Read, handle, "", ""},
                [&](CallInfo&) { return inner_.read(handle, offset, bytes, half_ ? (size + 1) / 2 : size, got); });
  }
  std::error_code write(file::Handle handle, std::string_view bytes, std::size_t& put) override {
    return make({Call::Write, handle, "", "", bytes}, [&](CallInfo& info) {
      if (half_) info.bytes = bytes.substr(0, bytes.size() / 2);
      return inner_.write(handle, info.bytes, put);
    });
  }
  std::error_code take_over(file::Handle handle, const std::string& path) override {
    return make({Call::TakeOver, handle, path, ""}, [&](CallInfo&) { return inner_.take_over(handle, path); });
  }
  std::error_code flush(file::Handle handle) override {
    return make({Call::Flush, handle, "", ""}, [&](CallInfo&) { return inner_.flush(handle); });
  }
  std::error_code close(file::Handle handle) override {
    const auto closed = inner_.close(handle);  // a failing close closes too
    return make({Call::Close, handle, "", ""}, [&](CallInfo&) { return closed; });
  }
  std::error_code status(const std::string& path, file::Follow follow, file::Status& status) override {
    return make({Call::StatusOfPath, -1, path, ""}, [&](CallInfo&) { return inner_.status(path, follow, status); });
  }
  std::error_code status(file::Handle handle, file::Status& status) override {
    return make({Call::StatusOfHandle, handle, "", ""}, [&](CallInfo&) { return inner_.status(handle, status); });
  }
  std::string owner_of(const std::string& path) override { return inner_.owner_of(path); }
  std::error_code without_links(const std::string& path, std::string& real) override {
    return make({Call::WithoutLinks, -1, path, ""}, [&](CallInfo&) { return inner_.without_links(path, real); });
  }
  std::error_code rename(const std::string& from, const std::string& to) override {
    return make({Call::Rename, -1, from, to}, [&](CallInfo&) { return inner_.rename(from, to); });
  }
  std::error_code remove(const std::string& path) override {
    return make({Call::Remove, -1, path, ""}, [&](CallInfo&) { return inner_.remove(path); });
  }
  std::error_code flush_folder_of(const std::string& path) override {
    return make({Call::FlushFolder, -1, path, ""}, [&](CallInfo&) { return inner_.flush_folder_of(path); });
  }
  std::error_code current_folder(std::string& folder) override {
    return make({Call::CurrentFolder, -1, "", ""}, [&](CallInfo&) { return inner_.current_folder(folder); });
  }
  std::error_code change_folder(const std::string& folder) override {
    return make({Call::ChangeFolder, -1, folder, ""}, [&](CallInfo&) { return inner_.change_folder(folder); });
  }
  std::error_code change_drive(char letter) override {
    return make({Call::ChangeDrive, -1, "", ""}, [&](CallInfo&) { return inner_.change_drive(letter); });
  }
  void pause(std::chrono::milliseconds time) override { inner_.pause(time); }

 private:
  // The handle by reference: it is known only when the call was made.
  static std::error_code opened(CallInfo& info, const file::Handle& handle, std::error_code error) {
    info.handle = handle;
    return error;
  }

  template <typename Make>
  std::error_code make(CallInfo info, Make call) {
    struct InProgress {
      InProgress() { ++calls_in_progress; }
      ~InProgress() { --calls_in_progress; }
    } const in_progress;
    const auto instead = before(info);
    if (instead && !instead->half) return instead->error;
    half_ = instead.has_value();
    const std::error_code error = call(info);
    if (!error) after(info);
    return error;
  }

  file::System& inner_;
  bool half_ = false;
};

}  // namespace support
