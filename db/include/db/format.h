// The numbers and fixed texts of the file formats; doc/file-format.md tells the grammar and its reasons.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace db {

inline constexpr std::size_t kLongestField = 64 * 1024;  // bytes in the file, quotes and blanks included
inline constexpr std::size_t kLongestText = kLongestField - 2;
inline constexpr int kMaxRecords = 4000;  // read from a species database, the end marker counted as one
inline constexpr int kMaxSpecies = kMaxRecords - 1;
inline constexpr int kMaxPairs = 10;   // component pairs, and M.B. pairs, of a record that is read
inline constexpr int kShownPairs = 8;  // of a species that the editor shows or builds
inline constexpr int kMbBlock = 100;   // added to the number of components when an M.B. block follows

inline constexpr int kLookupRecords = 400;   // of the component database, read by a lookup
inline constexpr int kListingRecords = 500;  // of the component database, offered for a new species

inline constexpr std::string_view kLineEnd = "\r\n";
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";  // UTF-8; passed over at the start of a file
inline constexpr char kCtrlZ = 0x1A;  // alone in a field, what old text editors end a file with

// In Kelmar's folder: its drive and the path of a database, which it hands over, and the usual component database.
inline constexpr const char* kDriveFile = "dabase.txt";
inline constexpr const char* kPathFile = "sorptemp.dat";
inline constexpr const char* kComponentFile = "comp.mdb";

inline constexpr std::string_view kTrailerText = "For KELMAR";
inline constexpr std::string_view kTrailer =
    "0,\"\",0,0,0,0,0,0,0,0\r\n"
    "0,0\r\n"
    "0,\"For KELMAR\",0,0,0,0,0,0,0,0\r\n"
    "0,0\r\n"
    "0,\"\",0,0,0,0,0,0,0,0\r\n"
    "0,0\r\n";

// Of an isotherm database, in the order of the window's selector.
inline constexpr std::array<std::string_view, 7> kIsothermModels{
    "Linear Kd", "Freundlich", "Extended Freundlich", "Langmuir", "Temkin", "Langmuir-Freundlich", "NICA"};
inline constexpr std::string_view kNicaDonnan = "NICA-Donnan";

}  // namespace db
