// One file in memory under every name, read in pieces of a size of the fuzzer's choice: nothing else costs time.
#pragma once

#include <cstring>
#include <string_view>

#include "support/memory_system.h"

namespace fuzz {

class BytesSystem final : public support::MemorySystem {
 public:
  BytesSystem(std::string_view bytes, std::size_t piece) : bytes_(bytes), piece_(piece) {}

  std::error_code open_read(const std::string&, file::Handle& handle) override {
    handle = 0;
    position_ = 0;
    return {};
  }
  std::error_code read(file::Handle, char* bytes, std::size_t size, std::size_t& got) override {
    got = bytes_.copy(bytes, std::min(size, piece_), position_);
    position_ += got;
    return {};
  }
  std::error_code close(file::Handle) override { return {}; }

 private:
  std::string_view bytes_;
  std::size_t piece_, position_ = 0;
};

// Ends the run with a report when a property does not hold.
inline void require(bool holds) {
  if (!holds) __builtin_trap();
}

}  // namespace fuzz
