// What the window does beyond single rules: stories on files in memory.
#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
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
  program.Click(cmdAddnew);
  program.Type(txtSpname, "New");
  program.Click(cmdSuggest);
  program.Type(txtID, "7");
  program.Type(txtlogk, "1");
  program.Type(txtCharge, "0");
  program.Save();
}

TEST(Controls, StandInTheTableUnderTheirNames) {
  const struct {
    int control;
    const char* name;
  } rows[] = {{Label1, "Label1"},
              {txtID, "txtID"},
              {lblMA, "lblMA"},
              {txtMBstoich(1), "txtMBstoich(1)"},
              {txtStoich(8), "txtStoich(8)"},
              {txtComp(3), "txtComp(3)"},
              {lblStoich(8), "lblStoich(8)"},
              {lblMBnote, "lblMBnote"},
              {Line1, "Line1"},
              {cmdSuggest, "cmdSuggest"},
              {Label8, "Label8"},
              {mnuFileExit, "mnuFileExit"}};
  const auto controls = window_def().controls;
  ASSERT_EQ(controls.size(), static_cast<std::size_t>(kControls));
  for (const auto& [control, name] : rows) EXPECT_EQ(controls[static_cast<std::size_t>(control)].name, name);
  // A person without a mouse, or without sight, reaches and finds every control that can be used.
  for (const auto& def : controls) {
    const bool box = def.kind == ui::Kind::TextBox || def.kind == ui::Kind::ListBox || def.kind == ui::Kind::ComboBox;
    EXPECT_EQ(def.tab >= 0, box || def.kind == ui::Kind::Button) << def.name;
    EXPECT_EQ(def.label >= 0, box) << def.name;
  }
}

TEST_F(Story, StartUpTakesTheHandOver) {
  Start("x.mdb", species("501", "CuX") + kTrailer);
  EXPECT_FALSE(system.has("sorptemp.dat"));
  EXPECT_TRUE(system.has("dabase.txt"));
  EXPECT_EQ(program.Text(lblNameDb), "x.mdb");
  EXPECT_EQ(program.Listed(), std::vector<std::string>{"CuX"});
  EXPECT_TRUE(program.told.empty());
}

TEST_F(Story, StartUpWithoutHandOverFiles) {
  program.form.load();
  EXPECT_TRUE(program.form.window().ended);
  EXPECT_EQ(program.form.window().status, 1);
  EXPECT_EQ(
      program.LastBox(),
      "[The editor cannot start in /kelmar: cannot open dabase.txt: No such file or directory. Start it from Kelmar, in "
      "Kelmar's folder.]");

  Program second(system);
  system.add("dabase.txt", "C:");
  second.form.load();
  EXPECT_FALSE(second.form.window().ended);
  EXPECT_TRUE(second.told.empty());
  second.form.window()[lstReactions].entries = {"CuX"};
  second.Select("CuX");
  EXPECT_EQ(second.LastBox(),
            "[The species cannot be shown: cannot open a file without a name: No such file or directory. Mend the file with a "
            "text editor, or open another one.]");
  EXPECT_TRUE(second.Shown(lblNameDb));
}

TEST_F(Story, StartUpInAFolderThatCannotBeUsed) {
  const struct {
    support::Call call;
    const char* message;
  } rows[] = {{support::Call::CurrentFolder, "[The editor cannot start: there is no current folder: Permission denied."},
              {support::Call::ChangeFolder,
               "[The editor cannot start in /kelmar: the folder cannot be entered: Permission denied."}};
  for (const auto& row : rows) {
    support::WatchedSystem watched(system);
    watched.before = [&row](const support::CallInfo& info) -> std::optional<support::Instead> {
      if (info.call != row.call) return std::nullopt;
      return support::Instead{make_error_code(std::errc::permission_denied)};
    };
    Program failing(watched);
    failing.form.load();
    EXPECT_EQ(failing.LastBox(), std::string(row.message) + " Start it from Kelmar, in Kelmar's folder.]");
    EXPECT_EQ(failing.form.window().status, 1);
  }
  system.add("dabase.txt", "");
  program.form.load();
  EXPECT_EQ(program.LastBox(),
            "[The editor cannot start in /kelmar: dabase.txt is empty. Start it from Kelmar, in Kelmar's folder.]");
}

TEST_F(Story, FileThatEndsInsideARecordIsNotRewritten) {
  const std::string content = species("501", "CuX") + "502,FeX,0";
  Start("x.mdb", content);
  program.Select("CuX");
  const std::string reason = "x.mdb, record 2 (FeX): the file ends inside the record.";
  program.Save();
  EXPECT_EQ(program.LastBox(), "[The database was not saved: " + reason + " Put that right and save again.]");
  program.Answer(ui::Answer::Yes);
  program.Click(cmdDelete);
  EXPECT_EQ(program.LastBox(), "[The species was not deleted: " + reason + " Put that right and try again.]");
  EXPECT_EQ(system.content("x.mdb"), content);
}

TEST_F(Story, ChangeOfASpecies) {
  Start("x.mdb", species("501", "CuX") + species("502", "FeX") + kTrailer + "more");
  program.Select("FeX");
  EXPECT_EQ(program.Text(txtComp(2)), "#9999");
  program.Type(txtlogk, "-12,78");
  program.Type(txtName, " Fe2X ");
  program.Save();
  EXPECT_EQ(system.content("x.mdb"),
            species("501", "CuX") + lines({"502,\"Fe2X\",0,-12.78,0,0,2,0,0,0,0,2", "1,231,-1,9999"}) + kTrailer);
  EXPECT_EQ(program.Listed(), (std::vector<std::string>{"CuX", "Fe2X"}));
  EXPECT_EQ(program.form.state().changedone, "N");
}

TEST_F(Story, NewSpeciesFromClickToFile) {
  Start("x.iso", "\"Freundlich\"\r\n" + kTrailer);
  program.Click(cmdAddnew);
  EXPECT_TRUE(program.Shown(lblMAnote));
  program.Type(cboComp, "Cu+2");
  program.Type(txtStoicn, ",5");
  program.Click(cmdNextcomp);
  EXPECT_EQ(program.Text(lblComp), "Component no.  2");
  program.Type(cboComp, "H+");
  program.Type(txtStoicn, "-1");
  program.Type(txtSpname, "New");
  program.Click(cmdSuggest);
  EXPECT_EQ(program.Text(txtID), " 13012310");
  EXPECT_EQ(program.Text(txtNocomp), " 2");
  program.Type(txtlogk, "3");
  program.Type(txtCharge, "1");
  program.Type(txtMBstoich(2), "0,25");
  program.Save();
  EXPECT_EQ(
      system.content("x.iso"),
      "\"Freundlich\"\r\n" + lines({"13012310,\"New\",0,3,0,0,1,0,0,0,0,102", ".5,231,-1,330", "1", ".25,330"}) + kTrailer);
  EXPECT_FALSE(program.Shown(txtSpname));
}

TEST_F(Story, PickedModelReachesTheFileWithTheNextSave) {
  Start("x.iso", "\"Langmuir\"\r\n" + species("501", "CuX") + kTrailer);
  program.person.pick(cboIsoterm, 4);
  EXPECT_EQ(program.Text(lblLogk), "log KT");
  program.Select("CuX");
  program.Save();
  EXPECT_TRUE(system.content("x.iso").starts_with("\"Temkin\"\r\n501,"));
}

TEST_F(Story, OpeningAnotherKindResetsWhatTheLastOneShowed) {
  system.add("y.mdb", species("1", "a") + kTrailer);
  Start("x.iso", "\"Freundlich\"\r\n" + kTrailer);
  program.Choose("y.mdb");
  program.Click(mnuFileOpen);
  EXPECT_EQ(program.Text(lblLogk), "log K");
  for (const int control : {lblMA, lblMB, lblMBnote, cboIsoterm, lblIsoterm}) EXPECT_FALSE(program.Shown(control));
  EXPECT_EQ(program.form.state().isoselect, "");
}

TEST_F(Story, SpeciesThatCannotBeReadLeavesAnEmptyDisplay) {
  Start("x.mdb", species("501", "CuX") + "502,FeX,0,abc,0,0,0,0,0,0,0,0\r\n" + kTrailer);
  program.Select("CuX");
  program.Select("FeX");
  EXPECT_EQ(
      program.LastBox(),
      "[The species cannot be shown: x.mdb, record 2 (FeX): the log K is \"abc\", not a number. Mend the file with a text "
      "editor, or open another one.]");
  for (const int box : {txtID, txtName, txtlogk, txtCharge, txtNocomp}) EXPECT_EQ(program.Text(box), "");
  EXPECT_FALSE(program.Shown(cmdDelete));
  EXPECT_FALSE(program.Shown(txtComp(1)));
}

TEST_F(Story, ComponentDatabaseThatCannotBeReadCostsNoNumber) {
  const std::string content = species("501", "CuX") + kTrailer;
  Start("x.mdb", content);
  program.Choose("nowhere.mdb");
  program.Click(cmdCompdb);
  program.Select("CuX");
  EXPECT_EQ(program.Text(txtComp(1)), "#231");
  EXPECT_EQ(
      program.LastBox(),
      "[The components are shown by number: cannot open nowhere.mdb: No such file or directory. Choose another component "
      "database, or mend this one.]");
  program.Save();
  EXPECT_EQ(program.LastBox(),
            "[The component numbers cannot be looked up: cannot open nowhere.mdb: No such file or directory. Nothing was "
            "saved. Choose another component database, or mend this one.]");
  EXPECT_EQ(system.content("x.mdb"), content);
  EXPECT_FALSE(system.has(db::kTemporaryFile));
  EXPECT_EQ(system.open_handles(), 0);
}

TEST_F(Story, NinthComponentIsRefusedAndNothingMoves) {
  Start("x.mdb", kTrailer);
  program.Click(cmdAddnew);
  for (int i = 1; i <= 8; ++i) program.Click(cmdNextcomp);
  program.Type(cboComp, "Cu+2");
  program.Type(txtStoicn, "1");
  program.Click(cmdNextcomp);
  program.Click(cmdSuggest);
  EXPECT_EQ(program.told.size(), 2u);
  EXPECT_EQ(program.LastBox(),
            "[A species has at most eight components. Save this one, or start again with \"Add new species\".]");
  EXPECT_EQ(program.form.state().compslot, 9);
  EXPECT_EQ(program.Text(cboComp), "Cu+2");
  EXPECT_TRUE(program.Listed().empty());
}

TEST_F(Story, NineComponentsAreShownInPartAndCopiedWhole) {
  const std::string nine =
      lines({"501,\"big\",0,0,0,0,0,0,0,0,0,9", "1,231,2,231,3,231,4,231,5,231,6,231,7,231,8,231,9,231"});
  Start("x.mdb", nine + species("502", "b") + kTrailer);
  program.Select("big");
  EXPECT_EQ(program.Text(txtNocomp), " 9");
  EXPECT_EQ(program.LastBox(),
            "[big has 9 components: the window holds eight, and the others stay in the database unseen. Change this species "
            "with a text editor.]");
  program.Save();
  EXPECT_EQ(system.content("x.mdb"), nine + species("502", "b") + kTrailer);
  program.Select("b");
  program.Answer(ui::Answer::Yes);
  program.Click(cmdDelete);
  EXPECT_EQ(system.content("x.mdb"), nine + kTrailer);
}

TEST_F(Story, NicaDonnanKeepsItsLeadingFieldBeforeAnySpeciesWasShown) {
  const std::string content = "\"NICA-Donnan\"\r\n" + species("501", "CuX") + kTrailer;
  Start("x.nic", content);
  add_species(program);
  EXPECT_EQ(system.content("x.nic"),
            "\"NICA-Donnan\"\r\n" + lines({"7,\"New\",0,1,0,0,0,0,0,0,0,0"}) + species("501", "CuX") + kTrailer);
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
        program.Click(cmdNewDb);
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
      program.Click(mnuFileOpen);
      program.Select("FeX");
      program.Type(txtlogk, "7");
      to_second();
      EXPECT_EQ(system.content(second), held.leading + changed + kTrailer);
      // From now on the second is open. The list may be wrong: the selection is made for the user.
      ui::Control& list = program.form.window()[lstReactions];
      const auto select = [&](const char* name) {
        list.entries = {name};
        list.selected = 0;
      };
      select("FeX");
      program.Type(txtlogk, "8");
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

TEST_F(Story, IsothermDatabaseUnderAnotherNameKeepsItsStoichiometries) {
  const std::string content =
      "\"Freundlich\"\r\n" + lines({"501,\"CuX\",0,1.5,0,0,2,0,0,0,0,101", "1,231", "1", ".5,231"}) + kTrailer;
  Start("x.iso", content);
  program.Select("CuX");
  program.Choose("y.nic");
  program.Click(cmdNewDb);
  program.Select("CuX");
  program.Save();
  EXPECT_EQ(system.content("y.nic"), content);
}

TEST_F(Story, SaveWithoutASelectionChangesNoSpecies) {
  const std::string nameless = lines({"502,\"\",0,2,0,0,2,0,0,0,0,0"});
  Start("x.iso", "\"Langmuir\"\r\n" + species("501", "CuX") + nameless + kTrailer);
  program.Select("CuX");
  program.person.pick(cboIsoterm, 4);
  program.Save();
  EXPECT_EQ(system.content("x.iso"), "\"Temkin\"\r\n" + species("501", "CuX") + nameless + kTrailer);
  program.Select("");
  program.Type(txtlogk, "7");
  program.Save();
  EXPECT_EQ(system.content("x.iso"),
            "\"Temkin\"\r\n" + species("501", "CuX") + lines({"502,\"\",0,7,0,0,2,0,0,0,0,0"}) + kTrailer);
}

TEST_F(Story, ComponentDatabaseIsNeverWritten) {
  const std::string content = species("501", "CuX") + kTrailer;
  Start("x.mdb", content);
  const auto refusal = [](const std::string& path) {
    return "[" + path + " is the component database, which is never changed. Choose another file for one of the two.]";
  };
  system.hard_link("other.mdb", "comp.mdb");
  system.link("link.mdb", "comp.mdb");
  for (const char* path : {"comp.mdb", "/kelmar/comp.mdb", "other.mdb", "link.mdb"}) {
    program.Select("CuX");
    program.Choose(path);
    program.Click(cmdNewDb);
    EXPECT_EQ(program.LastBox(), refusal(path));
    EXPECT_EQ(program.Text(lblNameDb), "x.mdb");
  }
  program.Choose("missing.mdb");
  program.Click(cmdCompdb);
  program.Choose("/kelmar/./missing.mdb");
  program.Click(cmdNewDb);
  EXPECT_EQ(program.LastBox(), refusal("/kelmar/./missing.mdb"));
  EXPECT_EQ(program.Text(lblNameDb), "x.mdb");
  program.Choose("x.mdb");
  program.Click(cmdCompdb);
  program.Save();
  EXPECT_EQ(program.LastBox(), refusal("x.mdb"));
  program.Answer(ui::Answer::Yes);
  program.Click(cmdDelete);
  EXPECT_EQ(program.LastBox(), refusal("x.mdb"));
  // Under the name of the temporary file too, which would be removed as a leftover.
  system.add("dbnamep.mdb", support::kComponents);
  program.Choose("dbnamep.mdb");
  program.Click(cmdCompdb);
  program.Save();
  EXPECT_EQ(program.LastBox(), refusal("dbnamep.mdb"));
  EXPECT_EQ(system.content("x.mdb"), content);
  for (const char* path : {"comp.mdb", "dbnamep.mdb"}) EXPECT_EQ(system.content(path), support::kComponents);
}

TEST_F(Story, WhatFollowsAnEmptyLineIsNotDropped) {
  const std::string content = species("501", "CuX") + "\r\n" + species("502", "FeX") + kTrailer;
  Start("x.mdb", content);
  EXPECT_EQ(program.Listed(), std::vector<std::string>{"CuX"});
  program.Select("CuX");
  const std::string refusal =
      "record 2: an empty line or field ends the list here, and what stands after it would be lost. Nothing was changed. "
      "Remove the empty line with a text editor.]";
  program.Save();
  EXPECT_EQ(program.LastBox(), "[x.mdb, " + refusal);
  program.Answer(ui::Answer::Yes);
  program.Click(cmdDelete);
  EXPECT_EQ(program.LastBox(), "[x.mdb, " + refusal);
  program.Choose("new.iso");
  program.Click(cmdNewDb);
  EXPECT_EQ(program.LastBox(), "[new.iso, " + refusal);
  EXPECT_EQ(system.content("x.mdb"), content);
  EXPECT_EQ(system.content("new.iso"), content);
}

// A component may bear a name that means a number without a name.
TEST_F(Story, MarkOfANumberAlwaysMeansTheNumber) {
  system.add("comp.mdb", lines({"77,\"#\",0,0,0,0", "78,\"#5\",0,0,0,0", "79,\"#x\",0,0,0,0"}));
  const std::string content = lines({"501,\"CuX\",0,1.5,0,0,2,0,0,0,0,5", "1,,2,5,3,77,4,78,5,79"}) + kTrailer;
  Start("x.mdb", content);
  program.Select("CuX");
  const char* const shown[] = {"#", "#5", "#77", "#78", "#x"};
  for (int i = 1; i <= 5; ++i) EXPECT_EQ(program.Text(txtComp(i)), shown[i - 1]);
  program.Save();
  EXPECT_EQ(system.content("x.mdb"), content);
  program.Click(cmdAddnew);
  EXPECT_EQ(program.form.window()[cboComp].entries, (std::vector<std::string>{"#77", "#78", "#x", "H2O"}));
}

TEST_F(Story, ValueThatIsNotShownMakesNoDisplayFail) {
  const std::string content =
      lines({"501,\"CuX\",0,1.5,0,0,2,0,0,0,0,102", "1,231,-1,", "1", "x,231"}) + species("502", "FeX") + kTrailer;
  Start("x.mdb", content);
  program.Select("CuX");
  EXPECT_TRUE(program.told.empty());
  EXPECT_EQ(program.Text(txtComp(2)), "#");
  program.Save();
  EXPECT_EQ(system.content("x.mdb"),
            lines({"501,\"CuX\",0,1.5,0,0,2,0,0,0,0,2", "1,231,-1,"}) + species("502", "FeX") + kTrailer);
}

TEST_F(Story, CriticalFValueThatIsTextIsRefusedAndTold) {
  const std::string content = "\"text\"\r\n\"label\",abc\r\n" + species("501", "CuX") + kTrailer;
  Start("x.bli", content);
  for (const int box : {txtlogk, txtID, txtCharge, txtNocomp}) program.Type(box, "1");
  program.form.window()[lstReactions].entries = {"CuX"};
  program.form.window()[lstReactions].selected = 0;
  program.Choose("new.bli");
  program.Click(cmdNewDb);
  EXPECT_EQ(program.LastBox(),
            "[new.bli, before the first record: the critical f value is \"abc\", not a number. Mend the file "
            "with a text editor.]");
  EXPECT_EQ(system.content("new.bli"), content);
}

TEST_F(Story, SavingToANewDatabase) {
  const std::string content = species("501", "CuX") + kTrailer;
  Start("x.mdb", content);
  program.Select("CuX");
  program.Type(txtlogk, "9");
  const std::string changed = lines({"501,\"CuX\",0,9,0,0,2,0,0,0,0,2", "1,231,-1,9999"}) + kTrailer;
  program.Choose("new.mdb");
  program.Click(cmdNewDb);
  EXPECT_EQ(system.content("x.mdb"), content);
  EXPECT_EQ(system.content("new.mdb"), changed);
  EXPECT_EQ(program.Text(lblNameDb), "new.mdb");
  // Onto the very file that is open nothing is copied, and it is saved.
  program.Select("CuX");
  program.Choose("/kelmar/new.mdb");
  program.Click(cmdNewDb);
  EXPECT_EQ(system.content("new.mdb"), changed);
  // A failure is silent, a refusal of ours is not. What then lies under the new name is not taken for the database.
  program.told.clear();
  program.Select("CuX");
  program.Choose("/nowhere/x.iso");
  program.Click(cmdNewDb);
  EXPECT_EQ(program.told.size(), 1u);
  EXPECT_EQ(program.form.state().open.path, "/nowhere/x.iso");
  system.add_folder("/nowhere");
  system.add("/nowhere/x.iso", "\"Langmuir\"\r\n" + content);
  const std::string another =
      " is another database of another kind: the one that was open could not be copied there. Open the one or the other "
      "with "
      "the File menu.]";
  program.Save();
  EXPECT_EQ(program.LastBox(), "[/nowhere/x.iso" + another);
  for (const std::string copy : {"copy.nic", "copy.mdb"}) {
    program.Choose(copy);
    program.Click(cmdNewDb);
    EXPECT_EQ(program.LastBox(), "[" + copy + another);
    EXPECT_EQ(system.content(copy), system.content("/nowhere/x.iso"));
  }
  system.add("locked.mdb", "old");
  system.at("locked.mdb").writable = false;
  program.Choose("new.mdb");
  program.Click(mnuFileOpen);
  program.Choose("locked.mdb");
  program.Click(cmdNewDb);
  EXPECT_EQ(program.LastBox(), "[locked.mdb is read-only. Make it writable or save to a new database.]");
  EXPECT_EQ(system.content("locked.mdb"), "old");
}

TEST_F(Story, FullDatabaseTakesNoFurtherSpecies) {
  std::string content;
  for (int i = 1; i <= 3999; ++i) content += lines({"1,\"a\",0,0,0,0,0,0,0,0,0,0"});
  Start("x.mdb", content + kTrailer);
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
  program.Click(mnuFileOpen);
  add_species(program);
  EXPECT_EQ(system.content("y.mdb"), lines({"7,\"New\",0,1,0,0,0,0,0,0,0,0"}) + but_one + kTrailer);
}

TEST_F(Story, DeletionOfASpecies) {
  Start("x.bli",
        "\"text\"\r\n\"label\",.5\r\n" + species("501", "CuX") + species("502", "CuX") + species("503", "b") + kTrailer);
  program.Select("CuX");
  program.Click(cmdDelete);  // answered No
  EXPECT_EQ(program.Listed().size(), 3u);
  program.Type(txtf50, " 0,5");
  program.Answer(ui::Answer::Yes);
  program.Click(cmdDelete);
  EXPECT_EQ(system.content("x.bli"), "\"text\"\r\n\"label\",0\r\n" + species("503", "b") + kTrailer);
  EXPECT_EQ(program.Listed(), (std::vector<std::string>{"CuX", "b"}));
  EXPECT_EQ(program.Text(txtNocomp), "0");
  EXPECT_TRUE(program.Shown(cmdDelete));
}

// Whatever happens to the window while the question stands, what it was asked about is deleted.
TEST_F(Story, DeletesWhatWasAskedAbout) {
  Start("x.mdb", species("501", "CuX") + species("502", "FeX") + kTrailer);
  program.Select("CuX");
  program.dialogs.told = [this](const std::string&) { program.form.window()[lstReactions].selected = 1; };
  program.Answer(ui::Answer::Yes);
  program.Click(cmdDelete);
  EXPECT_EQ(system.content("x.mdb"), species("502", "FeX") + kTrailer);
  EXPECT_EQ(program.Listed(), std::vector<std::string>{"FeX"});
}

TEST_F(Story, SuggestionThatFailsEndsAndIsTold) {
  system.add("comp.mdb", "1E12,huge,0,0,0,0\r\n");
  Start("x.mdb", kTrailer);
  program.Click(cmdAddnew);
  program.Type(cboComp, "huge");
  program.Type(txtStoicn, "1");
  program.Click(cmdSuggest);
  EXPECT_EQ(program.LastBox(), "[The component numbers are too large to build an ID number of. Type one.]");
  program.Choose("nowhere.mdb");
  program.Click(cmdCompdb);
  program.Click(cmdSuggest);
  EXPECT_FALSE(program.form.state().suggestrun);
  EXPECT_EQ(
      program.LastBox(),
      "[No ID number can be suggested: cannot open nowhere.mdb: No such file or directory. Type an ID number, or mend the "
      "file and try again.]");
}

}  // namespace
