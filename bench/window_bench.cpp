// The window with 3999 species: its list, its start, its memory.
#include <unistd.h>

#include <QApplication>
#include <QListView>
#include <QStringListModel>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "app/frmMaindb.h"
#include "data.h"
#include "db/format.h"
#include "table.h"
#include "ui/memory/scripted_dialogs.h"
#include "ui/qt/main_window.h"
#include "ui/qt/widgets.h"

namespace {

std::vector<std::string> names(int count) {
  std::vector<std::string> all;
  for (int i = 0; i < count; ++i) all.push_back(bench::species_name(i));
  return all;
}

// The toolkit begins and ends with each benchmark, and with each start of the program.
struct Toolkit {
  int argc = 1;
  char name[13] = "window_bench";
  char* argv[2] = {name, nullptr};
  QApplication application{argc, argv};
};

// Until the picture of it is done.
void paint(QWidget& widget) {
  widget.repaint();
  QApplication::processEvents();
}

void shown_list(benchmark::State& state) {
  const Toolkit toolkit;
  const auto entries = names(4000);
  ui::qt::EntryList list(nullptr);
  list.resize(220, 300);
  list.show();
  for (auto _ : state) {
    list.show_entries(entries);
    paint(list);
  }
}
BENCHMARK(shown_list);

void plain_list(benchmark::State& state) {
  const Toolkit toolkit;
  const auto entries = names(4000);
  QStringListModel model;
  QListView list;
  list.setUniformItemSizes(true);
  list.setModel(&model);
  list.resize(220, 300);
  list.show();
  for (auto _ : state) {
    QStringList texts;
    for (const std::string& entry : entries)
      texts += QString::fromLatin1(entry.data(), static_cast<qsizetype>(entry.size()));
    model.setStringList(texts);
    paint(list);
  }
}
BENCHMARK(plain_list);

// The hand-over names the database, or a file that is not there.
void start(benchmark::State& state, const char* database) {
  for (auto _ : state) {
    std::ofstream("sorptemp.dat") << database;
    const Toolkit toolkit;
    ui::memory::ScriptedDialogs dialogs;
    app::frmMaindb form(dialogs, file::system());
    ui::qt::MainWindow window(form);
    form.load();
    window.push();
    window.show();
    paint(window);
  }
}
void start_listed(benchmark::State& state) { start(state, "bench.mdb"); }
BENCHMARK(start_listed);
void start_empty(benchmark::State& state) { start(state, "nowhere.mdb"); }
BENCHMARK(start_empty);

// Resident memory in KiB of this process.
double resident() {
  std::ifstream statm("/proc/self/statm");
  double size = 0, pages = 0;
  statm >> size >> pages;
  return pages * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1024;
}

// A process of its own that shows an empty window, or the program with all its species, and prints its memory.
int print_memory(bool program) {
  const Toolkit toolkit;
  ui::memory::ScriptedDialogs dialogs;
  app::frmMaindb form(dialogs, file::system());
  QWidget empty;
  empty.resize(800, 680);
  std::unique_ptr<ui::qt::MainWindow> window;
  if (program) {
    std::ofstream("sorptemp.dat") << "bench.mdb";
    window = std::make_unique<ui::qt::MainWindow>(form);
    form.load();
    window->push();
  }
  QWidget& shown = program ? *window : empty;
  shown.show();
  paint(shown);
  std::printf("%.0f\n", resident());
  return 0;
}

double memory_of(const char* what) {
  FILE* output = popen((std::filesystem::read_symlink("/proc/self/exe").string() + " " + what).c_str(), "r");
  double kib = 0;
  if (output == nullptr || std::fscanf(output, "%lf", &kib) != 1) return 0;
  pclose(output);
  return kib;
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  if (argc == 2) return print_memory(std::string_view(argv[1]) == "program");

  const auto folder = std::filesystem::current_path() / "bench-files";
  std::filesystem::create_directory(folder);
  std::filesystem::current_path(folder);
  std::ofstream("bench.mdb", std::ios::binary) << bench::make_database(bench::kSpecies);
  std::ofstream("comp.mdb", std::ios::binary) << bench::make_components();
  std::ofstream("dabase.txt") << "C";

  bench::Medians medians;
  bench::run_benchmarks(medians, argv[0]);
  medians.note("memory_program", memory_of("program"));
  medians.note("memory_empty", memory_of("empty"));
  const bool met = medians.print({
      {"4000 names into the shown list, against a plain list model with equal row heights", "shown_list", "plain_list", 1.5},
      {"start of the program to the listed window, against no file and an empty list", "start_listed", "start_empty", 1.3},
      {"memory of the running program with 3999 species, against an empty window", "memory_program", "memory_empty", 1.45},
  });
  std::filesystem::current_path(folder.parent_path());
  std::filesystem::remove_all(folder);
  return met ? 0 : 1;
}
