// Plays events in any order, and compares the files with the account after each.
#include "session.h"

#include <algorithm>
#include <vector>

#include "db/field_reader.h"

namespace fuzz {

Session::Session(const std::string& name, const std::string& database, const std::string& components)
    : kind_(db::kind_of(name)) {
  system_.add("dabase.txt", "C");
  system_.add("sorptemp.dat", name);
  system_.add("comp.mdb", components);
  system_.add(name, database);
  program_.form.load();
}

std::string Session::play(unsigned char byte) {
  const int argument = byte / 16;
  switch (byte % 16) {
    case 0:
    case 1:
    case 2: program_.select(argument); break;
    case 3: program_.type(app::txtlogk, argument % 2 == 0 ? " -1,5" : "7"); break;
    case 4: program_.type(app::txtName, argument % 4 == 0 ? "" : "S" + std::to_string(argument)); break;
    case 5: program_.type(app::txtNocomp, std::to_string(argument % 10)); break;
    case 6: program_.type(app::txtf50, ".25"); break;
    case 7: program_.pick(app::cboIsoterm, argument % 8); break;
    case 8: program_.click(app::cmdAddnew); break;
    case 9: enter_new_species(byte); break;
    case 10:
    case 11:
    case 12: return save(false);
    case 13: return remove();
    case 14: return save(true);
    default: program_.type(app::txtID, std::to_string(argument * 1000)); break;
  }
  return "";
}

void Session::enter_new_species(unsigned char byte) {
  program_.click(app::cmdAddnew);
  program_.pick(app::cboComp, byte % 5);
  program_.type(app::txtStoicn, "1");
  program_.click(app::cmdNextcomp);
  program_.type(app::txtSpname, byte % 3 == 0 ? " New " : "a");
  program_.click(app::cmdSuggest);
  program_.type(app::txtlogk, "1");
  program_.type(app::txtCharge, "0");
}

std::string Session::save(bool to_new) {
  static const char* const kExtensions[] = {".mdb", ".iso", ".nic", ".bli", ".cdb"};
  const ui::Control& list = program_.reactions();
  const std::string selected(db::trimmed(list.selected_text()));
  const bool adds = !selected.empty() && selected == db::trimmed(program_.text(app::txtSpname));
  const std::string nobody = "\n", changed = list.selected < 0 || adds ? nobody : selected;
  const std::string from = program_.form.state().open.path, before = system_.content(from);
  if (to_new) {
    ++copies_;
    program_.play("choose copy" + std::to_string(copies_) + kExtensions[copies_ % 5]);
    program_.click(app::cmdNewDb);
    if (system_.content(from) != before) return "the old database was changed";
  } else {
    program_.play("answer Yes");
    program_.click(app::cmdSavedb);
  }
  return fault_in(program_.form.state().open.path, before, [&](const Records& old, Records now) {
    if (adds && !now.empty()) now.erase(now.begin());
    return old.size() == now.size() && std::equal(old.begin(), old.end(), now.begin(), [&](const auto& was, const auto& is) {
             return was == is || was.name == changed;
           });
  });
}

std::string Session::remove() {
  const ui::Control& list = program_.reactions();
  const std::string selected(db::trimmed(list.selected_text())), path = program_.form.state().open.path,
                                                                 before = system_.content(path);
  program_.play("answer Yes");
  program_.click(app::cmdDelete);
  program_.dialogs.answers.clear();
  return fault_in(path, before, [&](Records old, const Records& now) {
    std::erase_if(old, [&](const auto& record) { return record.name == selected; });
    return old == now;
  });
}

std::string Session::fault_in(const std::string& path, const std::string& before,
                              const std::function<bool(const Records& old, const Records& now)>& is_meant) {
  if (system_.open_handles() > 0) return "a file is open";
  for (const auto& [name, content] : system_.all())
    if (name.find("dbnamep") != name.npos) return "a temporary file is left";
  if (program_.form.state().changedone == "Y" || program_.form.state().suggestrun) return "a flag is left";
  const std::string after = system_.content(path);
  if (after == before) return "";
  const Account old = account_of(before, kind_), now = account_of(after, kind_);
  if (!old.readable) return "what cannot be read whole was rewritten";
  if (!now.readable || now.marker != old.marker || now.leading.size() != old.leading.size()) return "it reads otherwise";
  if (kind_ == db::Kind::Blm && (now.leading[0] != old.leading[0] || now.leading[1] != old.leading[1]))
    return "a leading text has changed";
  return is_meant(old.records, now.records) ? "" : "a record has changed that was not to change";
}

}  // namespace fuzz
