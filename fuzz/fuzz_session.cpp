// A whole session on any bytes: load, show, change, save. The first byte chooses the kind of database, the second what is
// done; up to the first byte FF the rest is the species database, after it the component database. Whatever happens, the
// database is the old one or a whole new one, no file stays open, and no temporary file is left.
#include <cstddef>
#include <string>
#include <string_view>

#include "app/frmMaindb.h"
#include "bytes_system.h"
#include "db/rewrite.h"
#include "ui/memory/memory_window.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  if (size < 2) return 0;
  static const char* const kNames[] = {"x.mdb", "x.cdb", "x.iso", "x.nic", "x.bli"};
  const std::string name = kNames[data[0] % 5];
  const int action = data[1];
  const std::string_view rest(reinterpret_cast<const char*>(data) + 2, size - 2);
  const std::string_view database = rest.substr(0, rest.find('\xff'));
  const std::string_view components = database.size() < rest.size() ? rest.substr(database.size() + 1) : "";

  support::MemorySystem system;
  system.add("dabase.txt", "C");
  system.add("sorptemp.dat", name);
  system.add("comp.mdb", std::string(components));
  system.add(name, std::string(database));

  ui::memory::ScriptedDialogs dialogs;
  app::frmMaindb form(dialogs, system);
  ui::memory::Person person(form);
  using namespace app;
  form.load();
  for (int i = 0; i < 3; ++i) person.select(lstReactions, i);
  if (action & 1) person.type(txtlogk, "1,5");
  if (action & 2) person.pick(cboIsoterm, action % 7);
  if (action & 4) person.select(lstReactions, 1);
  if (action & 8) {
    person.click(cmdAddnew);
    person.pick(cboComp, 0);
    person.type(txtStoicn, "1");
    person.click(cmdNextcomp);
    person.type(txtSpname, "new");
    person.click(cmdSuggest);
    person.type(txtlogk, "1");
    person.type(txtCharge, "0");
  }
  const bool deletes = action & 16, to_new = action & 32;
  const std::size_t listed = form.window()[lstReactions].entries.size();
  dialogs.answers = {ui::Answer::Yes};
  dialogs.choices = {"new.mdb"};
  person.click(deletes ? cmdDelete : to_new ? cmdNewDb : cmdSavedb);

  fuzz::require(system.open_handles() == 0 && !system.has(db::kTemporaryFile) && !form.state().suggestrun);
  if (to_new && !deletes) fuzz::require(system.content(name) == database);
  if (!deletes && !to_new)
    fuzz::require(system.content(name) == database || form.window()[lstReactions].entries.size() + 1 >= listed);
  fuzz::require(form.state().changedone != "Y");
  return 0;
}
