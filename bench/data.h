// What the benchmarks measure on, and the baselines that they measure against.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace bench {

inline constexpr int kSpecies = 3999;
inline constexpr int kComponents = 400;

// The files that make_files makes.
inline constexpr const char* kDatabase = "bench.mdb";  // kSpecies
inline constexpr const char* kComponentDatabase = "comp.mdb";
inline constexpr const char* kMillion = "million.mdb";      // 1,000,000 species
inline constexpr const char* kFirst4000 = "first4000.mdb";  // the first 4000 of them

// Species with 2 to 6 components and constants of 2 to 4 decimals, from a fixed seed; ID numbers from 1500020 up, the order
// in which ID numbers are suggested for components 150 and 2, without a gap among the candidates.
std::string make_database(int species);
// The name and the ID number of species `i`, counted from 0.
std::string species_name(int i);
double species_id(int i);
// A component database; the components of the species lie all over it.
std::string make_components();

// The floor: a plain scan that finds where each field begins and ends, and does nothing with it. Gives the number of bytes
// in fields.
std::size_t scan_fields(std::string_view bytes);

// The names of a database as one would first write it: lines, and string streams over them.
std::vector<std::string> read_names_naively(const std::string& path);

}  // namespace bench
