// What each toolkit's folder defines: the program links exactly one of them.
#pragma once

#include <functional>
#include <memory>

#include "ui/dialogs.h"
#include "ui/window.h"

namespace ui {

using MakeForm = std::function<std::unique_ptr<Form>(Dialogs&)>;

// Shows the form in a real window until it ends; gives the program's exit status. Where there is no display: a line on
// standard error and status 1. `program` is the name that it was started by.
int run(char* program, const MakeForm& make_form);

}  // namespace ui
