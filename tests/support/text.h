// The lines of databases (each ends in CR LF), and the characters of tables.
#pragma once

#include <string>
#include <string_view>

namespace support {

inline const std::string kTrailer =
    "0,\"\",0,0,0,0,0,0,0,0\r\n0,0\r\n0,\"For KELMAR\",0,0,0,0,0,0,0,0\r\n0,0\r\n0,\"\",0,0,0,0,0,0,0,0\r\n0,0\r\n";
inline const std::string kComponents =
    "2,\"H2O\",0,0,0,\"\"\r\n150,\"Ca+2\",2,0,0,\"\"\r\n231,\"Cu+2\",2,0,0,\"\"\r\n"
    "330,\"H+\",1,0,0,\"\"\r\n812,\"SOH\",0,0,0,\"\"\r\n";

// The text that a table writes with \r, \n, \t and \x1a for characters, {trailer} for the lines that end a database, {one}
// for a record, and {x*100} for a hundred x.
inline std::string plain(std::string_view text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::string_view rest = text.substr(i);
    if (rest.starts_with("\\x")) {
      result += static_cast<char>(std::stoi(std::string(rest.substr(2, 2)), nullptr, 16));
      i += 3;
    } else if (rest.starts_with("\\")) {
      result += rest[1] == 'r' ? '\r' : rest[1] == 'n' ? '\n' : '\t';
      ++i;
    } else if (rest.starts_with("{")) {
      std::size_t end = 0;
      for (int depth = 1; depth > 0;) depth += rest[++end] == '{' ? 1 : rest[end] == '}' ? -1 : 0;
      const std::string_view name = rest.substr(1, end - 1);
      const std::size_t star = name.rfind('*');
      const std::string once = star != name.npos   ? plain(name.substr(0, star))
                               : name == "trailer" ? kTrailer
                                                   : "1,\"a\",0,0,0,0,0,0,0,0,0,0\r\n";
      for (int n = star != name.npos ? std::stoi(std::string(name.substr(star + 1))) : 1; n > 0; --n) result += once;
      i += name.size() + 1;
    } else {
      result += text[i];
    }
  }
  return result;
}

}  // namespace support
