// A user who does anything in any order, and an account of the records kept beside: every record that no event was to change
// is still there with the same values, whatever the file was.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "account.h"
#include "player/player.h"
#include "support/memory_system.h"

namespace fuzz {

class Session {
 public:
  // Opens a database of that name and content with these components.
  Session(const std::string& name, const std::string& database, const std::string& components);
  // Does one thing, which the byte chooses. Returns what went wrong, or "".
  std::string play(unsigned char byte);

 private:
  std::string save(bool to_new);
  std::string remove();
  using Records = std::vector<Account::Record>;
  std::string fault_in(const std::string& path, const std::string& before,
                       const std::function<bool(const Records& old, const Records& now)>& is_meant);
  void enter_new_species(unsigned char byte);

  support::MemorySystem system_;
  player::Player program_{system_};
  db::Kind kind_;
  int copies_ = 0;
};

}  // namespace fuzz
