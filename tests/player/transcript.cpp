#include "player/transcript.h"

#include <string_view>

namespace player {
namespace {

std::string control_line(const ui::ControlDef& def, const ui::Control& control) {
  const bool list = def.kind == ui::Kind::ListBox;
  const bool has_entries = list || def.kind == ui::Kind::ComboBox;
  std::string line = def.name + (control.shown ? " shown [" : " hidden [");
  line.append(list ? control.selected_text() : std::string_view(control.text)).append("]");
  if (has_entries) line += " " + std::to_string(control.entries.size());
  line += "\n";
  for (const std::string& entry : control.entries) line += "  [" + entry + "]\n";
  return line;
}

}  // namespace

std::string state_block(const ui::Window& window, const app::frmMaindb::State& state) {
  std::string block = "state\n";
  const auto controls = app::window_def().controls;
  for (std::size_t i = 0; i < controls.size(); ++i)
    if (controls[i].kind != ui::Kind::Line && controls[i].kind != ui::Kind::MenuItem)
      block += control_line(controls[i], window.controls[i]);
  const auto text = [&block](const char* name, const std::string& value) {
    block.append(name).append(" [").append(value).append("]\n");
  };
  const auto flag = [&block](const char* name, bool value) { block.append(name).append(value ? " true\n" : " false\n"); };
  text("compdb", state.compdb);
  text("dbname", state.open.path);
  flag("blifile", state.open.blifile());
  flag("cdbfile", state.open.cdbfile());
  text("isomodel", state.open.isomodel);
  text("isoselect", state.isoselect);
  flag("mbfields", state.open.mbfields);
  text("changedone", state.changedone);
  flag("suggestrun", state.suggestrun);
  return block + "compslot " + std::to_string(state.compslot) + "\nend\n";
}

}  // namespace player
