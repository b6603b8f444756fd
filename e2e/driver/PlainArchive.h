// What lies in the archives that the pack makes, read without any of its code.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace E2e {

struct Packed {
  std::string name;
  std::string bytes;
  bool operator==(const Packed&) const = default;
};

inline void PrintTo(const Packed& packed, std::ostream* out) {
  *out << packed.name << ", " << packed.bytes.size() << " bytes";
}

// What an archive of deflated files holds, in its order.
std::vector<Packed> Unpacked(const std::string& path);

// Keeps an archive, as NAME.zip, and what is to come out of it, as a folder NAME, for the programs
// of other makers, which scripts/check-archives.sh lets unpack it.
void LeaveForOtherPrograms(const std::string& archive, const std::vector<Packed>& files);

// A number of so many bytes, the low one first.
size_t NumberAt(const std::string& bytes, size_t place, int size);

}  // namespace E2e
