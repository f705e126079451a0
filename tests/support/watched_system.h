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

// clang-format off
enum class Call {
  OpenRead, CreateNew, ExcludeOthers, Read, Write, Flush, Close, StatusOfPath, StatusOfHandle, TakeOver, WithoutLinks, Rename,
  Remove, FlushFolder, CurrentFolder, ChangeFolder, ChangeDrive, kCount
};
// clang-format on

struct CallInfo {
  Call call;
  file::Handle handle = -1;
  std::string path{}, to{};  // of calls with paths
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

  // The call fails at its nth occurrence, and is not made.
  void fail(Call call, int nth, std::error_code error) {
    before = [=, made = 0](const CallInfo& info) mutable {
      return info.call == call && ++made == nth ? std::optional(Instead{error}) : std::nullopt;
    };
  }

  using Error = std::error_code;
  using Path = const std::string&;
  using Handle = file::Handle;
  Error open_read(Path path, Handle& handle) override {
    return make({Call::OpenRead, -1, path},
                [&](auto& info) { return opened(info, handle, inner_.open_read(path, handle)); });
  }
  Error create_new(Path path, file::Access access, Handle& handle) override {
    return make({Call::CreateNew, -1, path},
                [&](auto& info) { return opened(info, handle, inner_.create_new(path, access, handle)); });
  }
  Error exclude_others(Path path, Handle& handle) override {
    return make({Call::ExcludeOthers, -1, path},
                [&](auto& info) { return opened(info, handle, inner_.exclude_others(path, handle)); });
  }
  Error read(Handle handle, std::uint64_t offset, char* bytes, std::size_t size, std::size_t& got) override {
    return make({Call::Read, handle},
                [&](auto&) { return inner_.read(handle, offset, bytes, half_ ? (size + 1) / 2 : size, got); });
  }
  Error write(Handle handle, std::string_view bytes, std::size_t& put) override {
    return make({Call::Write, handle, "", "", bytes}, [&](auto& info) {
      if (half_) info.bytes = bytes.substr(0, bytes.size() / 2);
      return inner_.write(handle, info.bytes, put);
    });
  }
  Error take_over(Handle handle, Path path) override {
    return make({Call::TakeOver, handle, path}, [&](auto&) { return inner_.take_over(handle, path); });
  }
  Error flush(Handle handle) override {
    return make({Call::Flush, handle}, [&](auto&) { return inner_.flush(handle); });
  }
  Error close(Handle handle) override {
    const auto closed = inner_.close(handle);  // a failing close closes too
    return make({Call::Close, handle}, [&](auto&) { return closed; });
  }
  Error status(Path path, file::Follow follow, file::Status& status) override {
    return make({Call::StatusOfPath, -1, path}, [&](auto&) { return inner_.status(path, follow, status); });
  }
  Error status(Handle handle, file::Status& status) override {
    return make({Call::StatusOfHandle, handle}, [&](auto&) { return inner_.status(handle, status); });
  }
  std::string owner_of(Path path) override { return inner_.owner_of(path); }
  Error without_links(Path path, std::string& real) override {
    return make({Call::WithoutLinks, -1, path}, [&](auto&) { return inner_.without_links(path, real); });
  }
  Error rename(Path from, Path to) override {
    return make({Call::Rename, -1, from, to}, [&](auto&) { return inner_.rename(from, to); });
  }
  Error remove(Path path) override {
    return make({Call::Remove, -1, path}, [&](auto&) { return inner_.remove(path); });
  }
  Error flush_folder_of(Path path) override {
    return make({Call::FlushFolder, -1, path}, [&](auto&) { return inner_.flush_folder_of(path); });
  }
  Error current_folder(std::string& folder) override {
    return make({Call::CurrentFolder}, [&](auto&) { return inner_.current_folder(folder); });
  }
  Error change_folder(Path folder) override {
    return make({Call::ChangeFolder, -1, folder}, [&](auto&) { return inner_.change_folder(folder); });
  }
  Error change_drive(char letter) override {
    return make({Call::ChangeDrive}, [&](auto&) { return inner_.change_drive(letter); });
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
