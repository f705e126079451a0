// An account of a species database that is kept beside the program: a reader of its own, which shares no code with it.
#pragma once

#include <string>
#include <vector>

#include "db/database.h"

namespace fuzz {

struct Account {
  bool readable = false;             // the whole list, and nothing after it would be lost
  bool marker = false;               // the list is ended by a marker, not by the file
  std::vector<std::string> leading;  // texts
  // Its name as it stands, and its fields with their types: "n1.5" a number, "ttext" a text, "" an empty one.
  struct Record {
    std::string name;
    std::vector<std::string> fields;
    bool operator==(const Record& other) const { return fields == other.fields; }
  };
  std::vector<Record> records;
};

Account account_of(const std::string& content, db::Kind kind);

}  // namespace fuzz
