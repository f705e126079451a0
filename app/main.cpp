// kelmar-dbedit: the form in a window of the toolkit that is linked.
#include <memory>

#include "app/frmMaindb.h"
#include "ui/backend.h"

int main(int, char** argv) {
  return ui::run(argv[0], [](ui::Dialogs& dialogs) { return std::make_unique<app::frmMaindb>(dialogs, file::system()); });
}
