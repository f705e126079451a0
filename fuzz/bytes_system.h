// One file in memory under every name, read in pieces of a size of the fuzzer's choice: nothing else costs time.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <system_error>

#include "support/memory_system.h"

namespace fuzz {

class BytesSystem final : public support::MemorySystem {
 public:
  BytesSystem(std::string_view bytes, std::size_t piece) : bytes_(bytes), piece_(piece) {}

  std::error_code open_read(const std::string&, file::Handle& handle) override {
    handle = 0;
    return {};
  }
  std::error_code read(file::Handle, std::uint64_t offset, char* bytes, std::size_t size, std::size_t& got) override {
    got = bytes_.copy(bytes, std::min(size, piece_), std::min(static_cast<std::size_t>(offset), bytes_.size()));
    return {};
  }
  std::error_code close(file::Handle) override { return {}; }

 private:
  std::string_view bytes_;
  std::size_t piece_;
};

// Ends the run with a report when a property does not hold.
inline void require(bool holds) {
  if (!holds) __builtin_trap();
}

}  // namespace fuzz
