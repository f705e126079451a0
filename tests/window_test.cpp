// What the window does beyond single rules: stories on files in memory.
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <system_error>
#include <vector>

#include "db/rewrite.h"
#include "support/story.h"
#include "support/watched_system.h"

namespace {

using namespace app;
using support::kTrailer;
using support::lines;
using support::Program;
using support::Story;

std::string species(const std::string& id, const std::string& name) {
  return lines({id + ",\"" + name + "\",0,1.5,0,0,2,0,0,0,0,2", "1,231,-1,9999"});
}

// Without components, and with an ID number typed in place of the one suggested.
void add_species(Program& program) {
  program.click(cmdAddnew);
  program.type(txtSpname, "New");
  program.click(cmdSuggest);
  program.type(txtID, "7");
  program.type(txtlogk, "1");
  program.type(txtCharge, "0");
  program.Save();
}

TEST_F(Story, StartUpInAFolderThatCannotBeUsed) {
  const struct {
    support::Call call;
    int nth;
    std::string message;  // none: a window without a database, and the hand-over is there for the next start
  } rows[] = {{support::Call::CurrentFolder, 1, "The editor cannot start: there is no current folder"},
              {support::Call::ChangeFolder, 1, "The editor cannot start in /kelmar: the folder cannot be entered"},
              {support::Call::ChangeDrive, 1, ""},
              {support::Call::ChangeFolder, 2, ""}};
  system.add("dabase.txt", "C");
  system.add("sorptemp.dat", "x.mdb");
  for (const auto& row : rows) {
    support::WatchedSystem watched(system);
    watched.fail(row.call, row.nth, make_error_code(std::errc::permission_denied));
    Program failing(watched);
    failing.form.load();
    EXPECT_EQ(
        failing.LastBox(),
        row.message.empty() ? "" : "[" + row.message + ": Permission denied. Start it from Kelmar, in Kelmar's folder.]");
    EXPECT_EQ(failing.form.window().status, row.message.empty() ? 0 : 1);
    EXPECT_EQ(failing.form.state().open.path, "");
    EXPECT_TRUE(system.has("sorptemp.dat"));
  }
  const std::string development = R"(C:\Program\Microsoft Visual Studio\VB98)";
  system.add_folder(development);
  EXPECT_EQ(system.change_folder(development), std::error_code());
  Program elsewhere(system);
  elsewhere.form.load();
  EXPECT_EQ(
      elsewhere.LastBox(),
      R"([The editor cannot start in c:\Program Files\kelmar: the folder cannot be entered: No such file or directory.)"
      " Start it from Kelmar, in Kelmar's folder.]");
  EXPECT_EQ(system.change_folder("/kelmar"), std::error_code());
  system.add("dabase.txt", "");
  program.form.load();
  EXPECT_EQ(program.LastBox(),
            "[The editor cannot start in /kelmar: dabase.txt is empty. Start it from Kelmar, in Kelmar's folder.]");
}

// A file is written as what it holds, whatever its name says: each kind under a name of each kind.
TEST(Kinds, AreHeldUnderEveryName) {
  const struct {
    const char *name, *what;
    std::string leading;
  } kinds[] = {{"MDB", "a complexation / sorption database", ""},
               {"CDB", "a counterion selectivity database", ""},
               {"ISO", "an isotherm database", "\"Langmuir\"\r\n"},
               {"NIC", "a NICA-Donnan database", "\"NICA-Donnan\"\r\n"},
               {"BLI", "a BLM parameter database", "\"text\"\r\n\"label\",.5\r\n"}};
  const std::string old = species("501", "CuX") + species("502", "FeX"),
                    changed = species("501", "CuX") + lines({"502,\"FeX\",0,7,0,0,2,0,0,0,0,2", "1,231,-1,9999"});
  for (const auto& held : kinds) {
    for (const auto& named : kinds) {
      SCOPED_TRACE(std::string(held.name) + " as " + named.name);
      support::MemorySystem system;
      system.add("dabase.txt", "C");
      system.add("comp.mdb", support::kComponents);
      const std::string first = std::string("a.") + held.name, second = std::string("b.") + named.name;
      system.add("sorptemp.dat", first);
      system.add(first, held.leading + old + kTrailer);
      Program program(system);
      program.form.load();
      const auto to_second = [&] {
        program.Choose(second);
        program.click(cmdNewDb);
        const bool told = program.LastBox() == "[" + second + " holds " + held.what + ", but its name is that of " +
                                                   named.what +
                                                   ". The list and the boxes may therefore be wrong: give it a name that " +
                                                   "ends in ." + held.name + " and open it again.]";
        EXPECT_EQ(told, &held != &named) << program.LastBox();
        program.told.clear();
      };
      // A plain copy that stops at a message, and a change.
      to_second();
      EXPECT_EQ(system.content(second), system.content(first));
      program.Choose(first);
      program.click(mnuFileOpen);
      program.Select("FeX");
      program.type(txtlogk, "7");
      to_second();
      EXPECT_EQ(system.content(second), held.leading + changed + kTrailer);
      // From now on the second is open. The list may be wrong: the selection is made for the user.
      ui::Control& list = program.form.window()[lstReactions];
      const auto select = [&](const char* name) {
        list.entries = {name};
        list.selected = 0;
      };
      select("FeX");
      program.type(txtlogk, "8");
      program.Save();
      const std::string again = species("501", "CuX") + lines({"502,\"FeX\",0,8,0,0,2,0,0,0,0,2", "1,231,-1,9999"});
      EXPECT_EQ(system.content(second), held.leading + again + kTrailer);
      add_species(program);
      const std::string added = lines({"7,\"New\",0,1,0,0,0,0,0,0,0,0"});
      EXPECT_EQ(system.content(second), held.leading + added + again + kTrailer);
      select("CuX");
      program.Answer(ui::Answer::Yes);
      program.form.click(cmdDelete);
      EXPECT_EQ(system.content(second), held.leading + added + again.substr(again.find("502")) + kTrailer);
      EXPECT_EQ(system.content(first), held.leading + old + kTrailer);
    }
  }
}

TEST_F(Story, FullDatabaseTakesNoFurtherSpecies) {
  std::string content;
  for (int i = 1; i <= 3999; ++i) content += lines({"1,\"a\",0,0,0,0,0,0,0,0,0,0"});
  Start("x.mdb", content + kTrailer);
  EXPECT_EQ(program.form.state().dialog_folder, "/kelmar");
  add_species(program);
  EXPECT_EQ(program.LastBox(),
            "[x.mdb is full: a species database holds at most 3999 species. Delete one first, or add this one to another "
            "database.]");
  EXPECT_EQ(system.content("x.mdb"), content + kTrailer);
  EXPECT_TRUE(program.Shown(txtSpname));
  // One less leaves room for one.
  const std::string but_one = content.substr(content.size() / 3999);
  system.add("y.mdb", but_one + kTrailer);
  program.Choose("y.mdb");
  program.click(mnuFileOpen);
  add_species(program);
  EXPECT_EQ(system.content("y.mdb"), lines({"7,\"New\",0,1,0,0,0,0,0,0,0,0"}) + but_one + kTrailer);
}

// Where the copy fails another database may lie under the new name: it is never rewritten, nor a copy of it.
TEST_F(Story, DatabaseThatCouldNotBeCopiedIsLeftAlone) {
  support::WatchedSystem watched(system);
  Program failing(watched);
  Start("x.mdb", species("501", "CuX") + kTrailer);
  const std::string other = species("502", "FeX") + kTrailer;
  system.add("b.iso", other);
  system.add("sorptemp.dat", "x.mdb");
  failing.form.load();
  failing.Select("CuX");
  const std::error_code error = make_error_code(std::errc::io_error);
  // A copy that a power cut may take back is told as that.
  watched.fail(support::Call::FlushFolder, 1, error);
  failing.Choose("x.mdb.mdb");
  failing.click(cmdNewDb);
  EXPECT_TRUE(failing.LastBox().starts_with("[cannot write to the disk the folder of")) << failing.LastBox();
  failing.Select("CuX");
  watched.fail(support::Call::Rename, 1, error);
  failing.told.clear();
  failing.Choose("b.iso");
  failing.click(cmdNewDb);
  EXPECT_EQ(failing.told.size(), 1u) << "the dialog alone";
  watched.before = [](const support::CallInfo&) { return std::nullopt; };
  const std::string is_another =
      " is another database than the one that was open, which could not be copied there. Open "
      "the one or the other with the File menu.]";
  failing.Save();
  EXPECT_EQ(failing.LastBox(), "[b.iso" + is_another);
  system.remove("b.iso");
  failing.Save();
  EXPECT_EQ(failing.LastBox(),
            "[The database was not saved: cannot open b.iso: No such file or directory. Put that right and save again.]");
  system.add("b.iso", other);
  system.add("c.iso", "precious");
  failing.Choose("c.iso");
  failing.click(cmdNewDb);
  EXPECT_EQ(failing.LastBox(), "[b.iso" + is_another);
  EXPECT_EQ(system.content("b.iso") + system.content("c.iso"), other + "precious");
  failing.Choose("c.mdb");
  system.add("c.mdb", other);
  failing.click(mnuFileOpen);
  failing.Select("FeX");
  failing.type(txtName, std::string(65535, 'n'));
  failing.Save();
  EXPECT_EQ(failing.LastBox(), "[The species name is longer than 65534 characters. Shorten it.]");
  const std::string longest(65534, 'n');
  failing.type(txtName, longest);
  failing.Save();
  EXPECT_EQ(system.content("c.mdb"), lines({"502,\"" + longest + "\",0,1.5,0,0,2,0,0,0,0,2", "1,231,-1,9999"}) + kTrailer);
}

// What is read is what is locked, wherever a link leads meanwhile.
TEST_F(Story, ChangesTheDatabaseThatIsLocked) {
  support::WatchedSystem watched(system);
  Program waiting(watched);
  const std::string a = species("501", "CuX") + species("502", "FeX") + kTrailer, b = species("503", "CuX") + kTrailer;
  system.add("a.mdb", a);
  system.add("b.mdb", b);
  Start("y.mdb", "");
  system.link("x.mdb", "a.mdb");
  system.add("sorptemp.dat", "x.mdb");
  waiting.form.load();
  waiting.Select("CuX");
  waiting.type(txtlogk, "7");
  watched.after = [this](const support::CallInfo& info) {
    if (info.call == support::Call::CreateNew) system.link("x.mdb", "b.mdb");
    if (info.call == support::Call::Read) system.link("x.mdb", "a.mdb");
  };
  waiting.Save();
  EXPECT_EQ(system.content("a.mdb"),
            lines({"501,\"CuX\",0,7,0,0,2,0,0,0,0,2", "1,231,-1,9999"}) + species("502", "FeX") + kTrailer);
  EXPECT_EQ(system.content("b.mdb"), b);
}

// Whatever happens to the window while the question stands, what it was asked about is deleted.
TEST_F(Story, DeletesWhatWasAskedAbout) {
  Start("x.mdb", species("501", "CuX") + species("502", "FeX") + kTrailer);
  program.Select("CuX");
  program.dialogs.told = [this](const std::string&) { program.form.window()[lstReactions].selected = 1; };
  program.Answer(ui::Answer::Yes);
  program.click(cmdDelete);
  EXPECT_EQ(system.content("x.mdb"), species("502", "FeX") + kTrailer);
  EXPECT_EQ(program.Listed(), std::vector<std::string>{"FeX"});
}

}  // namespace
