// A program in a real window of the player's, with an isotherm database.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "app/controls.h"
#include "support/memory_system.h"
#include "support/text.h"

namespace support {

template <typename Window>
struct Seat : MemorySystem, Window {
  Seat()
      : MemorySystem{{"dabase.txt", "C"},
                     {"comp.mdb", kComponents},
                     {"sorptemp.dat", "x.iso"},
                     {"x.iso", "\"Freundlich\"\r\n1,\"CuX\",0,1,0,0,0,0,0,0,0,2\r\n1,812,1,231\r\n" + kTrailer}},
        Window(static_cast<MemorySystem&>(*this)) {
    this->play("load");
    check();
  }
  void check() {
    this->settle();
    EXPECT_EQ(this->differences(), "");
    for (int i = 0; i < app::kControls; ++i) EXPECT_FALSE(this->is_cut(i)) << i;
  }
  void set(int control, const std::string& text) {
    this->form.window()[control].text = text;
    this->window.push();
  }
};

}  // namespace support
