#include "compare/folders.h"

#include <cstdio>
#include <fstream>
#include <iomanip>
#include <set>
#include <sstream>
#include <vector>

#include "compare/picture_difference.h"

namespace fs = std::filesystem;

namespace {

std::set<fs::path> Files(const fs::path& folder) {
    std::set<fs::path> files;
    if (fs::is_directory(folder))
        for (const auto& entry : fs::recursive_directory_iterator(folder))
            if (entry.is_regular_file()) files.insert(entry.path().lexically_relative(folder));
    return files;
}

/// One scene in both folders.
class Pair {
public:
    Pair(const fs::path& got, const fs::path& want, const fs::path& failures, fs::path name)
        : m_got(got / name), m_want(want / name), m_failures(failures), m_name(std::move(name)) {}

    void Compare(KindResult& kind, std::ostream& report) {
        ++kind.nScenes;
        const bool bPicture = m_name.extension() == ".png";
        if (!fs::exists(m_got) || !fs::exists(m_want)) {
            Broken(kind, report, fs::exists(m_got) ? "missing where it is wanted from" : "missing");
        } else if (bPicture) {
            ComparePngs(kind, report);
        } else {
            CompareTexts(kind, report);
        }
    }

private:
    void Broken(KindResult& kind, std::ostream& report, const char* pszWhy) {
        kind.bBroken = true;
        ++kind.nDiffer;
        report << m_name.generic_string() << ": " << pszWhy << "\n";
    }

    void ComparePngs(KindResult& kind, std::ostream& report) {
        Picture got, want, diff;
        if (!ReadPng(m_got, got) || !ReadPng(m_want, want)) return Broken(kind, report, "no picture");
        const PictureDifference found = ComparePictures(got, want, &diff);
        if (!found.bSameSize) return Broken(kind, report, "another size");
        if (!found.Any()) return;
        ++kind.nDiffer;
        kind.cPixels += found.cPixels;
        kind.dMean = std::max(kind.dMean, found.dMean);
        report << m_name.generic_string() << ": " << found.cPixels << " of " << found.cDrawn
               << " pixels drawn differ, first at (" << found.x << "," << found.y << "): " << Hex(found.xGot)
               << " against " << Hex(found.xWant) << ", mean " << found.dMean << "\n";
        WritePng(Kept("diff"), diff);
        KeepBoth();
    }

    void CompareTexts(KindResult& kind, std::ostream& report) {
        const std::vector<std::string> got = Lines(m_got), want = Lines(m_want);
        std::size_t cDiffer = 0, nFirst = 0;
        for (std::size_t i = 0; i < std::max(got.size(), want.size()); ++i)
            if ((i >= got.size() || i >= want.size() || got[i] != want[i]) && cDiffer++ == 0) nFirst = i;
        if (cDiffer == 0) return;
        ++kind.nDiffer;
        kind.cLines += cDiffer;
        const auto line = [&](const std::vector<std::string>& lines) {
            return nFirst < lines.size() ? "\"" + lines[nFirst] + "\"" : std::string("the end");
        };
        report << m_name.generic_string() << ": " << cDiffer << " of " << want.size()
               << " lines differ, first line " << nFirst + 1 << ": " << line(got) << " against " << line(want)
               << "\n";
        KeepBoth();
    }

    static std::vector<std::string> Lines(const fs::path& file) {
        std::ifstream in(file, std::ios::binary);
        std::vector<std::string> lines;
        for (std::string strLine; std::getline(in, strLine);) lines.push_back(strLine);
        return lines;
    }

    static std::string Hex(std::uint32_t xRGB) {
        std::ostringstream out;
        out << std::hex << std::setfill('0') << std::setw(6) << xRGB;
        return out.str();
    }

    fs::path Kept(const char* pszWhich) {
        fs::path file = m_failures / m_name;
        fs::create_directories(file.parent_path());
        return file.replace_filename(m_name.stem().string() + "-" + pszWhich + m_name.extension().string());
    }
    /// Not every run-time library overwrites when it is told to.
    static void Keep(const fs::path& from, const fs::path& to) {
        fs::remove(to);
        fs::copy_file(from, to);
    }
    void KeepBoth() {
        Keep(m_got, Kept("got"));
        Keep(m_want, Kept("want"));
    }

    fs::path m_got, m_want, m_failures, m_name;
};

template <class Member>
auto Sum(const FolderResult& result, Member member) {
    std::decay_t<decltype(KindResult{}.*member)> sum = 0;
    for (const auto& [strKind, kind] : result.kinds) sum += kind.*member;
    return sum;
}

}  // namespace

int FolderResult::Scenes() const { return Sum(*this, &KindResult::nScenes); }
int FolderResult::Differing() const { return Sum(*this, &KindResult::nDiffer); }
std::size_t FolderResult::Pixels() const { return Sum(*this, &KindResult::cPixels); }
std::size_t FolderResult::Lines() const { return Sum(*this, &KindResult::cLines); }

FolderResult CompareFolders(const fs::path& got, const fs::path& want, const fs::path& failures,
                            std::ostream& report) {
    FolderResult result;
    std::set<fs::path> names = Files(want);
    names.merge(Files(got));
    for (const fs::path& name : names) {
        const fs::path kind = name.has_parent_path() ? name.parent_path() : name.stem();
        Pair(got, want, failures, name).Compare(result.kinds[kind.generic_string()], report);
    }
    return result;
}

bool KeepsBudgets(const FolderResult& result, const Budgets& budgets, std::ostream& report) {
    bool bKept = !result.kinds.empty();
    const auto fail = [&](const std::string& strKind, const auto&... text) {
        bKept = false;
        ((report << strKind << ": ") << ... << text) << "\n";
    };
    if (!bKept) report << "nothing to compare\n";
    for (const auto& [strKind, budget] : budgets)
        if (!result.kinds.contains(strKind)) fail(strKind, "a budget for nothing");
    for (const auto& [strKind, kind] : result.kinds) {
        const auto itBudget = budgets.find(strKind);
        const Budget budget = itBudget == budgets.end() ? Budget{} : itBudget->second;
        const auto cDiffer = static_cast<double>(kind.cPixels + kind.cLines);
        if (kind.bBroken) {
            fail(strKind, "not all there");
        } else if (budget.unit == Budget::kMean) {
            if (kind.dMean > budget.dAmount)
                fail(strKind, "mean difference ", kind.dMean, " over the budget ", budget.dAmount);
        } else if (cDiffer > budget.dAmount) {
            fail(strKind, cDiffer, " over the budget ", budget.dAmount);
        } else if (cDiffer < budget.dAmount) {
            fail(strKind, "the budget ", budget.dAmount, " can fall to ", cDiffer);
        }
    }
    return bKept;
}
