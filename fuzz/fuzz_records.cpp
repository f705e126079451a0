// Any bytes as a species database of any kind: reading ends, and what is read and written unchanged reads the same again.
// A byte 1 stretches the character after it to about the length at which a field is too long.
#include <cstddef>
#include <string>
#include <string_view>

#include "bytes_system.h"
#include "db/rewrite.h"

namespace {

// Every record written unchanged, and whether the list was read to its end.
std::string copy(std::string_view bytes, std::size_t piece, bool model, bool blm, bool& whole) {
  fuzz::BytesSystem system(bytes, piece);
  std::string out;
  whole = false;
  try {
    db::SpeciesReader reader(system, "x.mdb");
    db::append_leading(out, reader.read_leading({.model = model, .blm = blm}));
    while (const db::Record* record = reader.next()) db::append_record(out, *record);
    whole = true;
  } catch (const file::Error&) {
  }
  return out;
}

std::string stretched(std::string_view bytes) {
  std::string text;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '\1' && i + 2 < bytes.size() && text.size() < 400000) {
      text.append(db::kLongestField - 4 + static_cast<unsigned char>(bytes[i + 2]) % 8, bytes[i + 1]);
      i += 2;
    } else {
      text += bytes[i];
    }
  }
  return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  if (size == 0) return 0;
  const bool model = data[0] & 1, blm = data[0] & 2;
  const std::size_t piece = data[0] & 4 ? 7 : 65536;
  const std::string bytes = stretched({reinterpret_cast<const char*>(data) + 1, size - 1});
  bool whole = false, again_whole = false;
  const std::string once = copy(bytes, piece, model, blm, whole);
  fuzz::require(copy(bytes, 65536, model, blm, again_whole) == once && again_whole == whole);
  const std::string twice = copy(once, piece, model, blm, again_whole);
  if (whole) fuzz::require(twice == once && again_whole);
  return 0;
}
