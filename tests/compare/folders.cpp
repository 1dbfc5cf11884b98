#include "compare/folders.h"

#include <algorithm>
#include <fstream>
#include <iomanip>
#include <sstream>
#include <vector>

#include "compare/picture_difference.h"

namespace fs = std::filesystem;

namespace {

std::set<std::string> Files(const fs::path& folder) {
    std::set<std::string> files;
    if (fs::is_directory(folder))
        for (const auto& entry : fs::recursive_directory_iterator(folder))
            if (entry.is_regular_file())
                files.insert(entry.path().lexically_relative(folder).generic_string());
    return files;
}

/// One scene in both folders.
class Pair {
public:
    Pair(const fs::path& got, const fs::path& want, const fs::path& failures, const std::string& name)
        : m_got(got / name), m_want(want / name), m_failures(failures), m_name(name) {}

    SceneResult Compare(std::ostream& report) {
        if (!fs::exists(m_got) || !fs::exists(m_want))
            Break(report, fs::exists(m_got) ? "missing where it is wanted from" : "missing");
        else if (m_name.extension() == ".png")
            ComparePngs(report);
        else
            CompareTexts(report);
        if (m_result.Differs()) KeepBoth();
        return m_result;
    }

private:
    void Break(std::ostream& report, const char* pszWhy) {
        m_result.bBroken = true;
        report << m_name.generic_string() << ": " << pszWhy << "\n";
    }

    void ComparePngs(std::ostream& report) {
        Picture got, want, diff;
        if (!ReadPng(m_got, got) || !ReadPng(m_want, want)) return Break(report, "no picture");
        const PictureDifference found = ComparePictures(got, want, &diff);
        if (!found.bSameSize) return Break(report, "another size");
        if (!found.Any()) return;
        m_result.cPixels = found.cPixels;
        m_result.dMean = found.dMean;
        report << m_name.generic_string() << ": " << found.cPixels << " of " << found.cDrawn
               << " pixels drawn differ, first at (" << found.x << "," << found.y << "): " << Hex(found.xGot)
               << " against " << Hex(found.xWant) << ", mean " << found.dMean << "\n";
        WritePng(Kept("diff"), diff);
    }

    void CompareTexts(std::ostream& report) {
        const std::vector<std::string> got = Lines(m_got), want = Lines(m_want);
        if (want.empty()) return Break(report, "empty");
        std::size_t nFirst = 0;
        for (std::size_t i = 0; i < std::max(got.size(), want.size()); ++i)
            if ((i >= got.size() || i >= want.size() || got[i] != want[i]) && m_result.cLines++ == 0)
                nFirst = i;
        if (m_result.cLines == 0) return;
        const auto line = [&](const std::vector<std::string>& lines) {
            return nFirst < lines.size() ? "\"" + lines[nFirst] + "\"" : std::string("the end");
        };
        report << m_name.generic_string() << ": " << m_result.cLines << " of " << want.size()
               << " lines differ, first line " << nFirst + 1 << ": " << line(got) << " against " << line(want)
               << "\n";
    }

    /// Lines with their ends: a last one that lacks it differs from one that has it.
    static std::vector<std::string> Lines(const fs::path& file) {
        std::ifstream in(file, std::ios::binary);
        std::vector<std::string> lines;
        for (std::string strLine; std::getline(in, strLine);)
            lines.push_back(strLine + (in.eof() ? " (unended)" : ""));
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
        if (fs::exists(from)) fs::copy_file(from, to);
    }
    void KeepBoth() {
        Keep(m_got, Kept("got"));
        Keep(m_want, Kept("want"));
    }

    fs::path m_got, m_want, m_failures, m_name;
    SceneResult m_result;
};

template <class Member>
auto Sum(const FolderResult& result, Member member) {
    std::decay_t<decltype(SceneResult{}.*member)> sum = 0;
    for (const auto& [strScene, scene] : result.scenes) sum += scene.*member;
    return sum;
}

}  // namespace

int FolderResult::Differing() const {
    return static_cast<int>(
        std::ranges::count_if(scenes, [](const auto& scene) { return scene.second.Differs(); }));
}
std::size_t FolderResult::Pixels() const { return Sum(*this, &SceneResult::cPixels); }
std::size_t FolderResult::Lines() const { return Sum(*this, &SceneResult::cLines); }
double FolderResult::LargestMean() const {
    double dLargest = 0;
    for (const auto& [strScene, scene] : scenes) dLargest = std::max(dLargest, scene.dMean);
    return dLargest;
}

FolderResult CompareFolders(const fs::path& got, const fs::path& want, const fs::path& failures,
                            const std::set<std::string>& expected, std::ostream& report) {
    FolderResult result;
    std::set<std::string> names = expected;
    names.merge(Files(want));
    names.merge(Files(got));
    for (const std::string& name : names)
        result.scenes[fs::path(name).replace_extension().generic_string()] =
            Pair(got, want, failures, name).Compare(report);
    return result;
}

bool KeepsBudgets(const FolderResult& result, const Budgets& budgets, std::ostream& report) {
    bool bKept = !result.scenes.empty();
    if (!bKept) report << "nothing to compare\n";
    const auto fail = [&](const std::string& strScene, const auto&... text) {
        bKept = false;
        ((report << strScene << ": ") << ... << text) << "\n";
    };
    for (const auto& [strScene, budget] : budgets)
        if (!result.scenes.contains(strScene)) fail(strScene, "a budget for nothing");
    for (const auto& [strScene, scene] : result.scenes) {
        const auto itBudget = budgets.find(strScene);
        const std::size_t cAllowed = itBudget == budgets.end() ? 0 : itBudget->second.cAmount;
        const std::size_t cDiffer = scene.cPixels + scene.cLines;
        if (scene.bBroken)
            fail(strScene, "not all there");
        else if (cDiffer > cAllowed)
            fail(strScene, cDiffer, " over the budget ", cAllowed);
        else if (cDiffer < cAllowed)
            fail(strScene, "the budget ", cAllowed, " can fall to ", cDiffer);
    }
    return bKept;
}
