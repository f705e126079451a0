// The rules of formats and numbers: the tables in tests/cases. A line "OPERATION ARGUMENT | ARGUMENT => RESULT" is one case;
// how it writes characters and long texts stands at support::plain().
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <optional>
#include <random>
#include <span>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "app/controls.h"
#include "app/frmMaindb.h"
#include "check/check.h"
#include "db/components.h"
#include "db/rewrite.h"
#include "edit/models.h"
#include "edit/saving.h"
#include "edit/suggestion.h"
#include "support/memory_system.h"
#include "support/text.h"
#include "text/code_page.h"
#include "ui/type_ahead.h"

namespace {

using Arguments = std::vector<std::string>;
using support::MemorySystem;
using support::plain;

// A database as it is when it has just been opened.
db::Database opened(const std::string& path) { return {.path = path, .compdb = "comp.mdb", .kind = db::kind_of(path)}; }

std::string number_or(const std::optional<double>& value, const char* none) {
  return value ? db::format_number(*value) : none;
}

// All fields, each in brackets, a quoted one with its quotes; of a long one the length.
std::string fields(const Arguments& arguments) {
  MemorySystem system{{"x", arguments[0]}};
  db::FieldReader reader(system, "x", "x");
  std::string all;
  for (db::Field field; reader.next(std::span(&field, 1));) {
    const std::string mark = field.quoted ? "\"" : "";
    all += "[" + mark + (field.text.size() > 100 ? std::to_string(field.text.size()) : std::string(field.text)) + mark + "]";
  }
  return all;
}

// Whether the checker says that the editor cannot save the database.
bool is_said_to_be_refused(MemorySystem& system, const std::string& path) {
  const auto findings = check::check_database(system, path, nullptr, false);
  return std::ranges::any_of(findings, [](const check::Finding& finding) {
    return finding.severity == check::Severity::Error && finding.reason.ends_with("no save is made");
  });
}

// What a rewrite makes of a database of that name, with a model of the window if one is given, or its message.
std::string rewrite(const Arguments& arguments) {
  const auto& [name, content] = std::tie(arguments[0], arguments[1]);
  MemorySystem system{{name, content}};
  try {
    const std::string model = arguments.size() > 2 ? arguments[2] : "";
    db::Rewrite rewrite(system, opened(name), model, .5);
    EXPECT_FALSE(rewrite.keep_until(std::nullopt));
    EXPECT_EQ(rewrite.commit(), std::nullopt);
  } catch (const file::Error&) {
    EXPECT_EQ(system.content(name), content);
    EXPECT_TRUE(is_said_to_be_refused(system, name));
    throw;
  }
  MemorySystem before{{name, content}};
  EXPECT_FALSE(is_said_to_be_refused(before, name));
  std::string once = system.content(name);
  EXPECT_TRUE(once == content || rewrite({name, once}) == once) << "not stable";
  return once;
}

// The numbers of 1 to 1400 that are offered, as ranges.
std::string offered(const Arguments& arguments) {
  const auto is = [&](int n) { return edit::is_offered(n, arguments[0], arguments[1] == "cdb"); };
  std::string ranges;
  for (int n = -1, from = 0; n <= 1400; ++n) {
    if (is(n) && from == 0) from = n;
    if (!is(n) || (n < 1400 && is(n + 1))) continue;
    ranges += (ranges.empty() ? "" : " ") + std::to_string(from) + (from == n ? "" : "-" + std::to_string(n));
    from = 0;
  }
  return ranges;
}

// The first free ID number for two components where these numbers are in use ("1500020*10": ten from there on).
std::string free_id(const Arguments& arguments) {
  std::istringstream components(arguments[0]), used(arguments[1]);
  edit::IdBase base;
  components >> base.first >> base.second;
  std::string species;
  for (std::string range; used >> range;)
    for (int i = 0, count = range.find('*') == range.npos ? 1 : std::stoi(range.substr(range.find('*') + 1)); i < count; ++i)
      species += db::format_number(std::stod(range) + i) + ",\"a\",0,0,0,0,0,0,0,0,0,0\r\n";
  MemorySystem system{{"x.mdb", species}};
  return db::format_number(edit::free_id(system, opened("x.mdb"), base));
}

std::string site(const Arguments& arguments) {
  const edit::IdBase base = edit::with_site({7, 8}, arguments[0], arguments[1]);
  return db::format_number(base.first) + " " + db::format_number(base.second);
}

// Lookups in a component database: by number (first argument), by name, by name as read.
std::string lookup(const Arguments& arguments) {
  MemorySystem system{{"c", arguments[1]}};
  const std::vector<double> numbers{db::parse_number(arguments[0]).value_or(0)};
  const auto by_number = db::component_names(system, "c", numbers);
  std::string result = by_number.names[0].value_or("none") + by_number.failure.value_or("");
  for (const auto match : {db::NameMatch::Trimmed, db::NameMatch::AsRead}) {
    try {
      const auto found = db::component_numbers(system, "c", {&arguments[2], 1}, match);
      result += ", " + (found.empty() ? "none" : number_or(found.begin()->second, "empty"));
    } catch (const file::Error& error) {
      result += std::string(", ") + error.what();
    }
  }
  return result;
}

// What is shown of a species ("x.iso | CONTENT | NAME"), by all its boxes, or the message.
std::string display(const Arguments& arguments) {
  MemorySystem system{{arguments[0], arguments[1]}, {"comp.mdb", support::kComponents}};
  db::Database open = opened(arguments[0]);
  open.mbfields = open.kind == db::Kind::Isotherm;
  const auto shown = edit::show_species(system, open, arguments[2]);
  if (!shown) return "none";
  const edit::Entry& boxes = shown->boxes;
  std::string all = "[" + boxes.id + "][" + boxes.name + "][" + boxes.logk + "][" + boxes.dhr + "][" + boxes.charge + "][" +
                    boxes.nocomp + "]";
  if (boxes.ksel) all += " ksel [" + *boxes.ksel + "]";
  if (boxes.lk2) all += " " + shown->lk2_caption + " [" + *boxes.lk2 + "]";
  if (shown->ksel_is_m_ref) all += " m-ref";
  for (const edit::Row& row : boxes.rows) all += " [" + row.stoich + "][" + row.comp + "][" + row.mbstoich + "]";
  return all + (shown->notice ? " " + *shown->notice : "");
}

// What the checker says of a database ("x.mdb | CONTENT | COMPONENTS"), with the charges if the name ends in "+".
std::string check_database(const Arguments& arguments) {
  const std::string name = arguments[0].substr(0, arguments[0].find('+'));
  MemorySystem system{{name, arguments[1]}, {"comp.mdb", arguments.size() > 2 ? arguments[2] : support::kComponents}};
  const check::Components components(system, "comp.mdb");
  auto findings = check::check_database(system, name, &components, name != arguments[0]);
  return (components.finding ? check::lines_of(system, "comp.mdb", {*components.finding}) : "") +
         check::lines_of(system, name, std::move(findings));
}

// Where letters lead ("F@100": at that time) in a list, from an entry.
std::string letters(const Arguments& arguments) {
  std::istringstream list(arguments[0]), typed(arguments[2]);
  const std::vector<std::string> entries{std::istream_iterator<std::string>(list), {}};
  ui::TypeAhead ahead;
  int current = std::stoi(arguments[1]);
  for (std::string letter; typed >> letter;)
    current = ahead.find(entries, current, letter.substr(0, 1), std::stoull(letter.substr(2)));
  return std::to_string(current);
}

std::string window(const Arguments&) {
  const ui::WindowDef& def = app::window_def();
  std::ostringstream text;
  text << def.program << " '" << def.caption << "' '" << def.menu << "' " << def.width << " " << def.height << ", row "
       << def.row << ", " << def.points << " points, colour " << def.background.red << " " << def.background.green << " "
       << def.background.blue;
  return text.str();
}

// A control of the window as it stands in its table.
std::string control(const Arguments& arguments) {
  constexpr const char* kKinds[] = {"label", "text box", "list box", "combo box", "button", "line", "menu item"};
  const auto controls = app::window_def().controls;
  const auto def = std::ranges::find(controls, arguments[0], &ui::ControlDef::name);
  if (def == controls.end()) return "none";
  std::ostringstream text;
  const auto place = [&](const char* what, const ui::Place& at) {
    if (at.width > 0) text << what << at.left << " " << at.top << " " << at.width << " " << at.height;
  };
  text << kKinds[static_cast<int>(def->kind)] << " '" << def->caption << "'" << (def->shown ? " shown" : " hidden");
  place(" at ", def->place);
  if (def->drawn != def->place) place(", drawn ", def->drawn);
  place(", else ", def->elsewhere);
  text << (def->wraps ? ", wraps" : "") << (def->font.bold ? ", bold" : "") << (def->font.italic ? ", italic" : "");
  if (def->font.points > 0) text << ", " << def->font.points << " points";
  if (def->color.red + def->color.green + def->color.blue > 0)
    text << ", colour " << def->color.red << " " << def->color.green << " " << def->color.blue;
  if (def->tab >= 0) text << ", tab " << def->tab;
  if (def->label >= 0) text << ", label " << controls[static_cast<std::size_t>(def->label)].name;
  return text.str() + (def->about.empty() ? "" : ", about '" + def->about + "'") + (def->path ? ", path" : "");
}

const std::map<std::string, std::function<std::string(const Arguments&)>> kOperations{
    {"fields", fields},
    {"choices",
     [](const Arguments& a) {
       MemorySystem system{{"c", a[0]}};
       const auto choices = edit::component_choices(system, {.path = "", .compdb = "c"});
       std::string all;
       for (const std::string& name : choices.names) all += "[" + name + "]";
       return all + (choices.failure ? " " + *choices.failure : "");
     }},
    {"rewrite", rewrite},
    {"check", check_database},
    {"display", display},
    {"number", [](const Arguments& a) { return number_or(db::parse_number(a[0]), "none"); }},
    {"formatted", [](const Arguments& a) { return std::string(db::is_formatted(a[0]) ? "yes" : "no"); }},
    {"shown", [](const Arguments& a) { return db::numtext(std::stod(a[0])); }},
    {"rule", [](const Arguments& a) { return db::format_number(edit::number_rule(a[0])); }},
    {"comma", [](const Arguments& a) { return db::format_number(edit::comma_number(a[0])); }},
    {"kind", [](const Arguments& a) { return std::string(db::name_of(db::kind_of(a[0])).extension); }},
    {"unicode",
     [](const Arguments& a) {
       std::ostringstream text;
       for (const char16_t c : text::path_to_unicode(a[0])) text << " " << std::hex << static_cast<unsigned>(c);
       return text.str();
     }},
    {"folder", [](const Arguments& a) { return app::working_folder(a[0]); }},
    {"misnamed",
     [](const Arguments& a) {
       db::Database open = opened(a[0]);
       open.path = a[1];
       return db::misnamed(open).value_or("");
     }},
    {"donnica", [](const Arguments& a) { return std::string(db::is_donnica(a[0]) ? "yes" : "no"); }},
    {"range", [](const Arguments& a) { return std::to_string(static_cast<int>(edit::range_of(std::stod(a[0])))); }},
    {"offered", offered},
    {"site", site},
    {"free", free_id},
    {"lookup", lookup},
    {"letters", letters},
    {"control", control},
    {"window", window},
    {"named", [](const Arguments& a) { return file::named(a[0]); }},
};

// The result of an operation, or the message of what it refuses.
std::string outcome(const std::string& operation, const Arguments& arguments) {
  try {
    return kOperations.at(operation)(arguments);
  } catch (const std::exception& error) {
    return error.what();
  }
}

TEST(Cases, ComeOutAsTabled) {
  int cases = 0;
  for (const auto& entry : std::filesystem::directory_iterator(CASES)) {
    std::ifstream file(entry.path());
    for (std::string line; std::getline(file, line);) {
      if (line.empty() || line.front() == '#') continue;
      SCOPED_TRACE(entry.path().filename().string() + ": " + line);
      const std::size_t blank = line.find(' '), arrow = line.find(" =>");
      ASSERT_NE(arrow, line.npos);
      Arguments arguments;
      std::string rest = line.substr(blank + 1, arrow - blank - 1);
      for (std::size_t bar; (bar = rest.find(" | ")) != rest.npos; rest = rest.substr(bar + 3))
        arguments.push_back(plain(rest.substr(0, bar)));
      arguments.push_back(plain(rest));
      EXPECT_EQ(outcome(line.substr(0, blank), arguments), plain(line.substr(std::min(arrow + 4, line.size()))));
      ++cases;
    }
  }
  EXPECT_GT(cases, 0);
}

// Wherever a block of the reader ends, the fields are the same.
TEST(Fields, DoNotDependOnWhereABlockEnds) {
  for (const std::string tail : {"\r\n\"a,b\" x,  7  ,y", "\r\r\n,  \"q\"\r\n"}) {
    const std::string alone = fields({tail});
    EXPECT_EQ(fields({std::string(57342, 'z') + "," + std::string(65536, 'x') + tail}), "[57342][65536]" + alone.substr(2))
        << "a field of the greatest length, across two blocks";
    for (std::size_t before = 64 * 1024 - 8; before < 64 * 1024 + 4; ++before) {
      std::string text;
      while (text.size() + 9 < before) text += "12345678,";
      text.append(before - text.size(), 'z');
      EXPECT_EQ(fields({text + tail}), fields({text}) + alone.substr(alone.starts_with("[]") ? 2 : 0)) << before;
    }
  }
}

// A field that is copied as it stands must be one that would be written just so.
TEST(Number, IsFormattedOnlyInTheFormWritten) {
  std::mt19937 random(1);
  for (int i = 0; i < 20000; ++i) {
    std::string text;
    for (int length = 1 + static_cast<int>(random() % 9); length > 0; --length) text += "0123456789.-E+"[random() % 14];
    EXPECT_TRUE(!db::is_formatted(text) || number_or(db::parse_number(text), "none") == text) << text;
  }
}

}  // namespace
