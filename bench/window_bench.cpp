// The shown list with 4000 names.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QListView>
#include <QStringListModel>
#include <string>
#include <vector>

#include "data.h"
#include "ui/qt/widgets.h"

namespace {

std::vector<std::string> names(int count) {
  std::vector<std::string> all;
  for (int i = 0; i < count; ++i) all.push_back(bench::species_name(i));
  return all;
}

// The toolkit begins and ends with each benchmark.
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

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
