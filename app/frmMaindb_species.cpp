#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "app/frmMaindb.h"
#include "db/field_reader.h"
#include "db/number.h"
#include "edit/models.h"

namespace app {
namespace {

std::string component_caption(const std::string& number) { return "Component no. " + number; }

}  // namespace

void frmMaindb::lstReactions_Click() {
  if (state_.suggestrun) return;
  hide_rows();
  hide({lblLk2, txtLk2});
  std::optional<edit::Shown> shown;
  const auto failure =
      message_of([&] { shown = edit::show_species(system_, state_.open, selected_species().value_or("")); },
                 "The species cannot be shown: ", " Mend the file with a text editor, or open another one.");
  if (shown) show_values(*shown);
  if (shown && shown->notice) refuse(*shown->notice);
  if (!failure) return;
  for (const int box : {txtID, txtName, txtlogk, txtLk2, txtdhr, txtKsel, txtCharge, txtNocomp}) set(box, "");
  hide({cmdDelete});
  refuse(*failure);
}

void frmMaindb::show_values(const edit::Shown& shown) {
  const edit::Entry& boxes = shown.boxes;
  if (boxes.lk2) {
    show({txtLk2, lblLk2});
    set(lblLk2, shown.lk2_caption);
    set(txtLk2, *boxes.lk2);
  }
  if (shown.ksel_is_m_ref) {
    show({txtKsel, lblKsel});
    set(lblKsel, "m-ref");
  }
  if (boxes.ksel) set(txtKsel, *boxes.ksel);
  set(txtlogk, boxes.logk);
  set(txtdhr, boxes.dhr);
  set(txtName, boxes.name);
  set(txtID, boxes.id);
  set(txtCharge, boxes.charge);
  set(txtNocomp, boxes.nocomp);
  int i = 0;
  for (const edit::Row& row : boxes.rows) {
    show_row(++i);
    if (state_.open.mbfields) set(txtMBstoich(i), row.mbstoich);
    set(txtStoich(i), row.stoich);
    set(txtComp(i), row.comp);
  }
  show({cmdDelete});
}

void frmMaindb::cmdAddnew_Click() {
  show({lblAddnew, lblComp, txtSpname, cboComp, lblSpname, cmdNextcomp, txtStoicn, cmdSuggest});
  hide({cmdDelete, lblLk2, txtLk2});
  if (state_.open.mbfields) show({lblMAnote});
  set(txtSpname, "");
  set(lblComp, component_caption("1"));
  edit::Choices choices = edit::component_choices(system_, state_.open);
  window_[cboComp].entries = std::move(choices.names);
  empty_rows();
  window_[lstReactions].selected = -1;
  for (const int box : {txtName, txtID, txtlogk, txtKsel, txtdhr, txtCharge}) set(box, "");
  set(txtNocomp, "0");
  state_.compslot = 1;
  if (choices.failure) refuse(*choices.failure);
}

void frmMaindb::cmdNextcomp_Click() {
  if (!refuse_ninth_component()) take_pending_component();
}

bool frmMaindb::refuse_ninth_component() {
  if (state_.compslot <= kRows) return false;
  refuse("A species has at most eight components. Save this one, or start again with \"Add new species\".");
  return true;
}

void frmMaindb::take_pending_component() {
  const int k = state_.compslot;
  show_row(k);
  set(txtComp(k), text(cboComp));
  set(txtStoich(k), text(txtStoicn));
  set(txtStoicn, "");
  set(cboComp, "");
  ++state_.compslot;
  set(lblComp, component_caption(db::numtext(state_.compslot)));
}

void frmMaindb::cmdSuggest_Click() {
  const bool pending = !text(cboComp).empty() && !text(txtStoicn).empty();
  if (pending && refuse_ninth_component()) return;
  state_.suggestrun = true;
  add_species(text(txtSpname));
  set(txtName, text(txtSpname));
  if (pending) take_pending_component();
  set(txtNocomp, db::numtext(state_.compslot - 1));

  const auto failure = message_of([this] { suggest_id(); },
                                  "No ID number can be suggested: ", " Type an ID number, or mend the file and try again.");
  state_.suggestrun = false;
  if (failure) refuse(*failure);
}

void frmMaindb::suggest_id() {
  numgenerator2();
  state_.idcompno = edit::with_site(state_.idcompno, state_.open.isomodel, text(txtComp(1)));
  if (edit::range_of(edit::first_candidate(state_.idcompno)) != edit::IdRange::None) {
    show({txtLk2, lblLk2});
    set(txtLk2, " 0");
    if (state_.open.isomodel == "NICA") {
      show({txtKsel});
      set(txtdhr, " 0");
      set(txtKsel, " 0");
    }
  }
  set(txtID, db::numtext(edit::free_id(system_, state_.open, state_.idcompno)));
}

void frmMaindb::numgenerator2() { edit::look_up(system_, state_.open, text(txtComp(1)), text(txtComp(2)), state_.idcompno); }

void frmMaindb::Newspecdelete() {
  set(txtSpname, "");
  hide({txtSpname, lblAddnew, txtStoicn, lblSpname, lblComp, cboComp, cmdNextcomp, cmdSuggest, lblMAnote});
}

void frmMaindb::show_row(int i) {
  show({lblStoich(i), txtComp(i), txtStoich(i)});
  if (state_.open.mbfields) show({txtMBstoich(i)});
}

void frmMaindb::hide_rows() {
  for (int i = 1; i <= kRows; ++i) hide({lblStoich(i), txtMBstoich(i), txtComp(i), txtStoich(i)});
}

void frmMaindb::empty_rows() {
  hide_rows();
  for (int i = 1; i <= kRows; ++i)
    for (const int box : {txtStoich(i), txtMBstoich(i), txtComp(i)}) set(box, "");
}

// Selects the first entry with its text; none for the empty text.
void frmMaindb::add_species(std::string name) {
  ui::Control& list = window_[lstReactions];
  list.entries.push_back(std::move(name));
  const auto first = std::ranges::find(list.entries, list.entries.back());
  list.selected = first->empty() ? -1 : static_cast<int>(first - list.entries.begin());
  lstReactions_Click();  // shows nothing while a suggestion runs
}

void frmMaindb::remove_species(int entry) {
  ui::Control& list = window_[lstReactions];
  list.entries.erase(list.entries.begin() + entry);
  list.selected = -1;
}

std::optional<std::string> frmMaindb::selected_species() const {
  const ui::Control& list = window_[lstReactions];
  return list.selected < 0 ? std::nullopt : std::optional<std::string>(db::trimmed(list.selected_text()));
}

}  // namespace app
