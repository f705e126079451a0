// Proposes an ID number that no species of a database has.
#pragma once

#include <array>
#include <bitset>
#include <string>
#include <string_view>

#include "edit/display.h"

namespace edit {

// The two numbers from which an ID number is built.
struct IdBase {
  double first = 0, second = 0;
};

// Looks up the texts of the first two component rows in the component database (the surface sites too: only a component
// that bears such a name there is found). A number whose name is not found keeps its value. Throws file::Error.
void numgenerator2(file::System& system, const std::string& compdb, const std::string& comp1, const std::string& comp2,
                   IdBase& idcompno);

// Puts the site number of an isotherm model in the first place; `first_component` is the text of the first row.
IdBase with_site(IdBase idcompno, std::string_view isomodel, std::string_view first_component);

// Candidates come in this order: base number first * 10000 + second * 10 and the nine after it; the same with first and
// second exchanged; then every number from the exchanged base number + 11 upward. (That + 10 is left out.)
class FreeId {
 public:
  // Throws file::Refusal when the numbers are too large for whole ID numbers.
  explicit FreeId(IdBase base);
  double first_candidate() const { return base_; }
  // Tells of an ID number in use; at most kMaxRecords are told.
  void use(double id);
  // The first candidate that is not in use, whole numbers compared.
  double result() const;

 private:
  static constexpr int kBlock = 10;
  double base_, exchanged_, rest_;
  std::bitset<kBlock> base_used_, exchanged_used_;
  std::bitset<db::kMaxRecords + 1> rest_used_;  // one more than can be in use: one is always free
};

// The first candidate that no species of the open database has; reads it in one pass. Throws file::Error.
double first_free_id(file::System& system, const db::Database& open, FreeId candidates);

}  // namespace edit
