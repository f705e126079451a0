// The stories in tests/stories: what a user does on the sample databases, and what the window shows and the files hold then.
// A line "> EVENT" is played (player/script.h); below it stands what it brings about. `state` tells what has changed in the
// window since the last one, or since the program began, "+" and "-" at the end tell lines of files that have come and gone.
// With KELMAR_RECORD set, the files are written anew: read every line of the difference before you commit it.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "player/player.h"
#include "support/memory_system.h"

namespace {

std::string read(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> lines_of(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

// The state by control or value; the entries of a list belong to it.
std::map<std::string, std::string> units_of(const std::string& state) {
  std::map<std::string, std::string> units;
  std::string name;
  for (const std::string& line : lines_of(state)) {
    if (line.front() != ' ') name = line.substr(0, line.find(' '));
    units[name] += line + "\n";
  }
  return units;
}

std::string changes(const std::map<std::string, std::string>& before, const std::map<std::string, std::string>& after) {
  std::string all;
  for (const auto& [path, content] : after) {
    if (const auto old = before.find(path); old != before.end() && old->second == content) continue;
    all += "file " + path.substr(path.rfind('/') + 1) + "\n";
    auto was = before.count(path) > 0 ? lines_of(before.at(path)) : std::vector<std::string>(), is = lines_of(content);
    std::sort(was.begin(), was.end());
    for (const std::string& line : is) {
      if (const auto at = std::lower_bound(was.begin(), was.end(), line); at != was.end() && *at == line) {
        was.erase(at);
        continue;
      }
      EXPECT_TRUE(line.ends_with("\r")) << line;
      all += "+ " + line.substr(0, line.size() - 1) + "\n";
    }
    for (const std::string& line : was) all += "- " + line.substr(0, line.find('\r')) + "\n";
  }
  for (const auto& [path, content] : before)
    if (after.count(path) == 0) all += "gone " + path.substr(path.rfind('/') + 1) + "\n";
  return all;
}

std::string played(const std::string& story) {
  support::MemorySystem system;
  for (const auto& entry : std::filesystem::directory_iterator(SAMPLES))
    system.add(entry.path().filename().string(), read(entry.path()));
  const auto before = system.all();
  std::string told;
  player::Player player(system, [&told](const std::string& line) { told += line + "\n"; });
  std::map<std::string, std::string> shown;
  for (const std::string& line : lines_of(story)) {
    if (line.starts_with('#')) told += line + "\n";
    if (!line.starts_with("> ")) continue;
    told += line + "\n";
    const auto event = player::parse_event(line.substr(2));
    if (!event) return told + "not understood\n";
    if (event->kind == player::Event::Kind::Load && shown.empty()) shown = units_of(player.state());
    player.play(*event);
    if (event->kind == player::Event::Kind::State) {
      const auto now = units_of(player.state());
      for (const auto& [name, unit] : now)
        if (shown[name] != unit) told += unit;
      shown = now;
    }
    if (player.window().ended) told += "ended\n";
  }
  return told + changes(before, system.all());
}

TEST(Stories, ComeOutAsRecorded) {
  int stories = 0;
  for (const auto& entry : std::filesystem::directory_iterator(STORIES)) {
    SCOPED_TRACE(entry.path().filename().string());
    const std::string recorded = read(entry.path()), told = played(recorded);
    if (std::getenv("KELMAR_RECORD") != nullptr) std::ofstream(entry.path(), std::ios::binary) << told;
    EXPECT_EQ(told, recorded);
    ++stories;
  }
  EXPECT_GT(stories, 0);
}

}  // namespace
