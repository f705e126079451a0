// A program on files in memory, and verbs for what a person does.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "player/player.h"
#include "support/memory_system.h"

namespace support {

// CR LF after each line.
inline std::string lines(std::initializer_list<std::string_view> all) {
  std::string text;
  for (const auto line : all) text.append(line).append("\r\n");
  return text;
}

inline const std::string kTrailer =
    lines({"0,\"\",0,0,0,0,0,0,0,0", "0,0", "0,\"For KELMAR\",0,0,0,0,0,0,0,0", "0,0", "0,\"\",0,0,0,0,0,0,0,0", "0,0"});
inline const std::string kComponents = lines({"2,\"H2O\",0,0,0,\"\"", "150,\"Ca+2\",2,0,0,\"\"", "231,\"Cu+2\",2,0,0,\"\"",
                                              "330,\"H+\",1,0,0,\"\"", "812,\"SOH\",0,0,0,\"\""});

// A player with verbs, so that a test reads as a story.
template <typename Player>
class WithVerbs : public Player {
 public:
  explicit WithVerbs(file::System& system) : Player(system) {
    dialogs.told = [this](const std::string& line) { told.push_back(line); };
  }

  void Select(std::string_view species) {
    const auto& entries = Listed();
    const auto at = std::find(entries.begin(), entries.end(), species);
    ASSERT_NE(at, entries.end()) << species << " is not listed";
    this->select(static_cast<int>(at - entries.begin()));
  }
  void Choose(std::string path) { dialogs.choices.push_back(std::move(path)); }
  void Answer(ui::Answer answer) { dialogs.answers.push_back(answer); }
  void Save() {
    Answer(ui::Answer::Yes);
    this->click(app::cmdSavedb);
  }
  const std::string& Text(int control) { return form.window()[control].text; }
  bool Shown(int control) { return form.window()[control].shown; }
  const std::vector<std::string>& Listed() { return form.window()[app::lstReactions].entries; }
  // The last message box, without the title of refusals.
  std::string LastBox() const {
    static const std::string kRefusal = "box [Kelmar error] critical OK ";
    const std::string last = told.empty() ? "" : told.back();
    return last.starts_with(kRefusal) ? last.substr(kRefusal.size()) : last;
  }

  using Player::dialogs;
  using Player::form;
  std::vector<std::string> told;  // every box and dialog
};
using Program = WithVerbs<player::Player>;

// The working folder with its hand-over files and one database, and the program started in it.
class Story : public testing::Test {
 protected:
  void Start(const std::string& database, std::string content) {
    system.add("dabase.txt", "C:\\Kelmar\r\n");
    system.add("sorptemp.dat", database + "\r\n");
    if (!system.has("comp.mdb")) system.add("comp.mdb", kComponents);
    system.add(database, std::move(content));
    program.form.load();
  }

  MemorySystem system;
  Program program{system};
};

}  // namespace support
