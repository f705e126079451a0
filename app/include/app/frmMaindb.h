// The one window of the program: all its state and the handlers of its controls. A handler moves values between the
// controls and the logic in edit/ and db/.
// The names are those under which the program has always been documented: control, underscore, event.
#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "app/controls.h"
#include "db/database.h"
#include "edit/display.h"
#include "edit/suggestion.h"
#include "file/input.h"
#include "ui/backend.h"
#include "ui/window.h"

namespace app {

// Started in one of the two folders of the development environment the editor works in Kelmar's installation folder
// instead; everywhere else in the folder it was started in.
std::string working_folder(std::string_view current_folder);

class frmMaindb final : public ui::Form {
 public:
  frmMaindb(ui::Dialogs& dialogs, file::System& system);

  // What the window holds beside its controls, for the life of the program. Documented names that have no variable of their
  // own: dbname, compdb, isomodel, isoselect, mbfields are in `open`, which tells blifile and cdbfile by its kind; compno,
  // stoich, mbstoich, mbcompno and compname live no longer than one event; numgenerator3 is a part of edit::species_record,
  // all rows in one pass.
  struct State {
    db::Database open;          // the species database
    std::string changedone;     // "N" once a save has begun: its "Y" between two records is seen by nobody
    bool suggestrun = false;    // a suggestion is running: a selection shows nothing
    int compslot = 0;           // the row that the next component of a new species goes into
    edit::IdBase idcompno;      // the two numbers of the last suggestion
    std::string dialog_folder;  // where file dialogs begin
  };
  const State& state() const { return state_; }

  const ui::WindowDef& definition() const override { return window_def(); }
  ui::Window& window() override { return window_; }
  void load() override { run(&frmMaindb::Form_Load); }
  void click(int control) override;

 private:
  void run(void (frmMaindb::*handler)());

  // Start-up and the ways out (frmMaindb.cpp).
  void Form_Load();
  std::string take_hand_over(const std::string& folder, const std::string& drive);
  void Listfill();
  void mnuFileOpen_Click();
  void cmdCompdb_Click();
  void cboIsoterm_Click();
  void mnuFileExit_Click() { window_.ended = true; }
  void cmdQuit_Click() { window_.ended = true; }

  // One species (frmMaindb_species.cpp).
  void lstReactions_Click();
  void cmdAddnew_Click();
  void cmdNextcomp_Click() {
    if (!refuse_ninth_component()) take_pending_component();
  }
  void cmdSuggest_Click();
  void numgenerator2();
  void Newspecdelete();
  void cmdSavedb_Click();
  void cmdNewDb_Click();
  void cmdDelete_Click();
  bool savedb();  // false when it stopped at one of its messages

  // Controls.
  const std::string& text(int control) const { return window_[control].text; }
  void set(int control, std::string text) { window_[control].text = std::move(text); }
  void show(std::initializer_list<int> controls) { set_shown(controls, true); }
  void hide(std::initializer_list<int> controls) { set_shown(controls, false); }
  void set_shown(std::initializer_list<int> controls, bool shown) {
    for (const int control : controls) window_[control].shown = shown;
  }
  void show_row(int i);
  void hide_rows();
  void empty_rows();
  void add_species(std::string name);
  void remove_species(int entry);
  std::optional<std::string> selected_species() const;  // its text without blanks at the ends
  void open_database(std::string path);
  void show_model();
  void take_pending_component();
  void suggest_id();
  bool refuse_ninth_component();
  void show_values(const edit::Shown& shown);
  edit::Entry SpeciesChange() const;

  // Messages.
  // Does it; what stopped it, to be shown: a refusal as it stands, a failure between these words.
  template <typename Action>
  static std::optional<std::string> message_of(Action action, std::string_view before, std::string_view after) {
    try {
      action();
    } catch (const file::Refusal& refusal) {
      return refusal.what();
    } catch (const file::Error& error) {
      return std::string(before).append(error.what()).append(after);
    }
    return std::nullopt;
  }
  void refuse(std::string_view prompt, std::string_view title = "Kelmar error") {
    dialogs_.message(prompt, title, ui::Icon::Critical, ui::Buttons::Ok);
  }
  bool confirm(std::string_view prompt, std::string_view title) {
    return dialogs_.message(prompt, title, ui::Icon::Question, ui::Buttons::YesNo) == ui::Answer::Yes;
  }

  ui::Dialogs& dialogs_;
  file::System& system_;
  ui::Window window_;
  State state_;
};

}  // namespace app
