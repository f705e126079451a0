// Any bytes as a species database of any kind: reading ends, and what is read and written unchanged reads the same again.
// What the checker says does not depend on the pieces in which the file is read. A byte 1 stretches the character after it
// to about the length at which a field is too long.
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "bytes_system.h"
#include "check/check.h"
#include "db/rewrite.h"

namespace {

// Every record written unchanged, and whether the list was read to its end.
std::string copy(std::string_view bytes, std::size_t piece, db::Leading leading, bool& whole) {
  fuzz::BytesSystem system(bytes, piece);
  std::string out;
  whole = false;
  try {
    db::SpeciesReader reader(system, "x.mdb");
    db::append_leading(out, reader.read_leading(leading));
    while (const db::Record* record = reader.next()) db::append_record(out, *record);
    whole = true;
  } catch (const file::Error&) {
  }
  return out;
}

// What the checker says, with the same bytes for the component database. How much of a field that is too long is told
// depends on the pieces.
std::string findings(std::string_view bytes, std::size_t piece, db::Leading leading) {
  constexpr const char* kNames[] = {"x.mdb", "x.iso", "x.bli"};
  const std::string name = kNames[static_cast<int>(leading)];
  fuzz::BytesSystem system(bytes, piece);
  const check::Components components(system, "comp.mdb");
  auto all = check::check_database(system, name, &components, true);
  std::erase_if(all, [](const check::Finding& finding) {
    return finding.reason.find("the editor reads no further") != std::string::npos;
  });
  return check::lines_of(system, name, std::move(all));
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
  const auto leading = static_cast<db::Leading>(data[0] % 4 % 3);
  const std::size_t piece = data[0] & 4 ? 7 : 65536;
  const std::string bytes = stretched({reinterpret_cast<const char*>(data) + 1, size - 1});
  bool whole = false, again_whole = false;
  const std::string once = copy(bytes, piece, leading, whole);
  fuzz::require(copy(bytes, 65536, leading, again_whole) == once && again_whole == whole);
  const std::string twice = copy(once, piece, leading, again_whole);
  if (whole) fuzz::require(twice == once && again_whole);
  fuzz::require(findings(bytes, piece, leading) == findings(bytes, 65536, leading));
  return 0;
}
