// The one window of the program: all its state and the handlers of its controls. A handler moves values between the
// controls and the logic in edit/ and db/; it decides nothing about files or numbers.
// The names are those under which the program has always been documented: control, underscore, event.
#pragma once

#include <string>
#include <string_view>

#include "app/controls.h"
#include "edit/species_record.h"
#include "edit/suggestion.h"
#include "file/error.h"
#include "ui/dialogs.h"
#include "ui/window.h"

namespace app {

class frmMaindb final : public ui::Form {
 public:
  frmMaindb(ui::Dialogs& dialogs, file::System& system);

  // What the window holds beside its controls, for the life of the program.
  struct State {
    std::string compdb;         // path of the component database
    std::string dbname;         // path of the open species database
    bool blifile = false;       // it is a BLM parameter database
    bool cdbfile = false;       // it is a counterion selectivity database
    std::string isomodel;       // its isotherm model
    std::string isoselect;      // the model picked, or taken from the file
    bool mbfields = false;      // M.B. stoichiometries are in use
    std::string changedone;     // "Y" from writing a changed record until savedb acts on it, else "N"
    bool suggestrun = false;    // a suggestion is running: a selection shows nothing
    int compslot = 0;           // the row that the next component of a new species goes into
    edit::IdBase idcompno;      // the two numbers of the last suggestion
    std::string dialog_folder;  // where file dialogs begin
  };
  const State& state() const { return state_; }

  const ui::WindowDef& definition() const override { return window_def(); }
  ui::Window& window() override { return window_; }
  void load() override { Form_Load(); }
  void click(int control) override;

 private:
  // Start-up and the ways out (frmMaindb.cpp).
  void Form_Load();
  void take_hand_over(const std::string& folder, const std::string& drive);
  void Listfill();
  void mnuFileOpen_Click();
  void cmdCompdb_Click();
  void cboIsoterm_Click();
  void mnuFileExit_Click();
  void cmdQuit_Click();

  // One species (frmMaindb_species.cpp).
  void lstReactions_Click();
  void cmdAddnew_Click();
  void cmdNextcomp_Click();
  void cmdSuggest_Click();
  void Newspecdelete();

  // Changes of the file (frmMaindb_saving.cpp).
  void cmdSavedb_Click();
  void cmdNewDb_Click();
  void cmdDelete_Click();
  void savedb();
  void SpeciesChange(std::string& out);

  // Controls.
  const std::string& text(int control) const { return window_[control].text; }
  void set(int control, std::string text) { window_[control].text = std::move(text); }
  void show(std::initializer_list<int> controls) { set_shown(controls, true); }
  void hide(std::initializer_list<int> controls) { set_shown(controls, false); }
  void set_shown(std::initializer_list<int> controls, bool shown);
  void hide_rows();
  void empty_rows();
  void select_species(std::string_view text);
  void remove_selected_species();
  std::string selected_species() const;  // its text without blanks at the ends
  void show_kind_controls();
  void show_model(const std::string& model_in_file);
  void take_pending_component();
  bool refuse_ninth_component();
  void show_values(const edit::Shown& shown);
  edit::Entry entry() const;
  edit::Database database() const { return {state_.isomodel, state_.blifile, state_.cdbfile, state_.mbfields}; }

  // Messages.
  void refuse(std::string_view prompt, std::string_view title = "Kelmar error");
  bool confirm(std::string_view prompt, std::string_view title);

  ui::Dialogs& dialogs_;
  file::System& system_;
  ui::Window window_;
  State state_;
};

}  // namespace app
