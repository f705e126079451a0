// Any events on any files: the first byte chooses the kind of database; up to the first byte FF follow the events, one a
// byte (session.h), up to the next FF the species database, then the component database.
#include <algorithm>
#include <iostream>
#include <string>
#include <string_view>

#include "bytes_system.h"
#include "session.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  if (size == 0) return 0;
  static const char* const kNames[] = {"x.mdb", "x.cdb", "x.iso", "x.nic", "x.bli"};
  std::string_view rest(reinterpret_cast<const char*>(data) + 1, size - 1);
  const auto cut = [&rest] {
    const std::string_view part = rest.substr(0, rest.find('\xff'));
    rest.remove_prefix(std::min(rest.size(), part.size() + 1));
    return std::string(part);
  };
  const std::string events = cut(), database = cut(), components = cut();
  fuzz::Session session(kNames[data[0] % 5], database, components);
  for (const char event : events.substr(0, 100)) {
    const std::string fault = session.play(static_cast<unsigned char>(event));
    if (!fault.empty()) std::cerr << fault << '\n';
    fuzz::require(fault.empty());
  }
  return 0;
}
