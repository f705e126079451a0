// A person at a real window, whatever toolkit draws it; after each event the controls must show what the window's values
// hold, and no caption may be cut. Besides the events of every story (player.h) it plays what only real controls take, and
// tells where the focus has gone:
//
//   focus NAME | key KEY | keys TEXT | paste TEXT | cursor NAME | wheel NAME | resize FACTOR | dialog FORM REPLIES [TEXT]
//   mouse PLACE [Ctrl|Right|Double] | drag I I | dictate NAME TEXT | current I | press NAME | asked EVENT | haste | settle
//
// KEY as in Ctrl+A; both it and TEXT go to the focus. PLACE is an entry of the list, or "empty", below them. A "dialog" is a
// real message box that is to "tell" or "ask" the TEXT; the REPLIES, with bars between, are keys, buttons or "close".
// "dictate", "current" (the entry of the list; -1: none) and "press" come from a screen reader, and reach also what a
// message box shuts off. What is "asked" is played while the next box stands. In "haste" the events are put in line at once,
// on a disk that answers slowly, until they "settle".
#pragma once

#include <string>
#include <vector>

#include "player/player.h"
#include "support/watched_system.h"

namespace player {

struct Disk {
  support::WatchedSystem disk;
};

class WindowPlayer : private Disk, public Player {
 public:
  explicit WindowPlayer(file::System& system);

  bool play_other(const std::string& line) override;
  // Until nothing is in line any more.
  virtual void settle() = 0;
  // The controls that show something else than the values.
  virtual std::string differences() = 0;
  virtual bool is_cut(int control) = 0;  // a caption that has to be whole

 protected:
  struct Deed {
    std::string verb{}, what{}, how{}, text{};  // the words of a line, and what follows them
    int control = app::lstReactions;            // that is named
  };
  // False when it is none of these.
  virtual bool do_other(const Deed& deed) = 0;
  virtual int focused() = 0;  // the control in the focus; -1: none
  virtual bool is_open() = 0;
  void after() override;

  bool hasty_ = false;

 private:
  std::vector<std::string> asked_;
};

// Of a message box.
void describe_box(std::string_view title, std::string_view text, std::string_view icon, bool asks);
void describe_answer(ui::Answer answer);

}  // namespace player
