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
  OpenRead, CreateNew, ExcludeOthers, Read, Write, Flush, Close, StatusOfPath, StatusOfHandle, TakeOver, WithoutLinks, PlaceOf,
  Rename, Remove, FlushFolder, CurrentFolder, ChangeFolder, ChangeDrive, kCount
};
inline constexpr std::string_view kCallNames[] = {
  "open_read", "create_new", "exclude_others", "read", "write", "flush", "close", "status", "status_of_handle", "take_over",
  "without_links", "place_of", "rename", "remove", "flush_folder_of", "current_folder", "change_folder", "change_drive"
};
// clang-format on
static_assert(std::size(kCallNames) == static_cast<std::size_t>(Call::kCount));

inline const file::Handle kNoHandle = -1;

struct CallInfo {
  Call call;
  std::string path{}, to{};                // of calls with paths
  const file::Handle& handle = kNoHandle;  // of a call that opens: as soon as it was made
  std::string_view bytes{};                // of Write
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
  std::function<void()> waiting = [] {};                                // what others do while the program waits

  using Error = std::error_code;
  using Path = const std::string&;
  using Handle = file::Handle;
  Error open_read(Path path, Handle& handle) override {
    return pass({Call::OpenRead, path, "", handle}, &System::open_read, path, handle);
  }
  Error create_new(Path path, file::Access access, Handle& handle) override {
    return pass({Call::CreateNew, path, "", handle}, &System::create_new, path, access, handle);
  }
  Error exclude_others(Path path, Handle& handle) override {
    return pass({Call::ExcludeOthers, path, "", handle}, &System::exclude_others, path, handle);
  }
  Error read(Handle handle, std::uint64_t offset, char* bytes, std::size_t size, std::size_t& got) override {
    return make({Call::Read, "", "", handle},
                [&](auto&) { return inner_.read(handle, offset, bytes, half_ ? (size + 1) / 2 : size, got); });
  }
  Error write(Handle handle, std::string_view bytes, std::size_t& put) override {
    return make({Call::Write, "", "", handle, bytes}, [&](auto& info) {
      if (half_) info.bytes = bytes.substr(0, bytes.size() / 2);
      return inner_.write(handle, info.bytes, put);
    });
  }
  Error take_over(Handle handle, Path path) override {
    return pass({Call::TakeOver, path, "", handle}, &System::take_over, handle, path);
  }
  Error flush(Handle handle) override { return pass({Call::Flush, "", "", handle}, &System::flush, handle); }
  Error close(Handle handle) override {
    const auto closed = inner_.close(handle);  // a failing close closes too
    return make({Call::Close, "", "", handle}, [&](auto&) { return closed; });
  }
  Error status(Path path, file::Follow follow, file::Status& status) override {
    return make({Call::StatusOfPath, path}, [&](auto&) { return inner_.status(path, follow, status); });
  }
  Error status(Handle handle, file::Status& status) override {
    return make({Call::StatusOfHandle, "", "", handle}, [&](auto&) { return inner_.status(handle, status); });
  }
  std::string owner_of(Path path) override { return inner_.owner_of(path); }
  Error without_links(Path path, std::string& real) override {
    return pass({Call::WithoutLinks, path}, &System::without_links, path, real);
  }
  Error place_of(Path path, std::string& place) override {
    return pass({Call::PlaceOf, path}, &System::place_of, path, place);
  }
  Error rename(Path from, Path to) override { return pass({Call::Rename, from, to}, &System::rename, from, to); }
  Error remove(Path path) override { return pass({Call::Remove, path}, &System::remove, path); }
  Error flush_folder_of(Path path) override { return pass({Call::FlushFolder, path}, &System::flush_folder_of, path); }
  Error current_folder(std::string& folder) override { return pass({Call::CurrentFolder}, &System::current_folder, folder); }
  Error change_folder(Path folder) override { return pass({Call::ChangeFolder, folder}, &System::change_folder, folder); }
  Error change_drive(char letter) override { return pass({Call::ChangeDrive}, &System::change_drive, letter); }
  std::string path_in_file(const std::string& bytes) override { return inner_.path_in_file(bytes); }
  void pause(std::chrono::milliseconds time) override { waiting(), inner_.pause(time); }

 private:
  template <typename... Parameters, typename... Arguments>
  Error pass(CallInfo info, Error (System::*call)(Parameters...), Arguments&&... arguments) {
    return make(info, [&](auto&) { return (inner_.*call)(arguments...); });
  }

  template <typename Make>
  Error make(CallInfo info, Make call) {
    struct InProgress {
      InProgress() { ++calls_in_progress; }
      ~InProgress() { --calls_in_progress; }
    } const in_progress;
    const auto instead = before(info);
    if (instead && !instead->half) return instead->error;
    half_ = instead.has_value();
    const Error error = call(info);
    if (!error) after(info);
    return error;
  }

  System& inner_;
  bool half_ = false;
};

}  // namespace support
