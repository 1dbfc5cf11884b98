/// Checksums of the scenes, by kind and then by seed.
#pragma once

#include <istream>
#include <map>
#include <ostream>
#include <string>
#include <vector>

using Checksums = std::map<std::string, std::vector<std::string>>;

/// Reads lines `KIND SUM...`. False for a kind that stands twice or has no sums, and when there is no kind at
/// all.
bool ReadChecksums(std::istream& in, Checksums& sums);

/// Reports each scene that differs or is on one side only, and tells how many they are.
int CompareChecksums(const Checksums& got, const Checksums& want, std::ostream& report);
