#include "compare/checksums.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <sstream>

bool ReadChecksums(std::istream& in, Checksums& sums) {
    std::string strLine;
    while (std::getline(in, strLine)) {
        std::istringstream line(strLine);
        std::string strKind;
        line >> strKind;
        const std::vector<std::string> kind(std::istream_iterator<std::string>(line), {});
        if (kind.empty() || !sums.emplace(strKind, kind).second) return false;
    }
    return !sums.empty();
}

namespace {

int CompareKind(const std::string& strKind, const std::vector<std::string>& got,
                const std::vector<std::string>& want, std::ostream& report) {
    int nDiffer = 0;
    for (std::size_t i = 0; i < std::max(got.size(), want.size()); ++i) {
        const std::string strGot = i < got.size() ? got[i] : "none",
                          strWant = i < want.size() ? want[i] : "none";
        if (strGot == strWant) continue;
        report << strKind << " seed " << i + 1 << ": checksum " << strGot << ", not " << strWant << "\n";
        ++nDiffer;
    }
    return nDiffer;
}

const std::vector<std::string>& Of(const Checksums& sums, const std::string& strKind) {
    static const std::vector<std::string> none;
    const auto it = sums.find(strKind);
    return it == sums.end() ? none : it->second;
}

}  // namespace

int CompareChecksums(const Checksums& got, const Checksums& want, std::ostream& report) {
    std::set<std::string> kinds;
    for (const Checksums* pSums : {&got, &want})
        for (const auto& [strKind, sums] : *pSums) kinds.insert(strKind);
    int nDiffer = 0;
    for (const std::string& strKind : kinds)
        nDiffer += CompareKind(strKind, Of(got, strKind), Of(want, strKind), report);
    return nDiffer;
}
