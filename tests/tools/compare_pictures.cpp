// Compares two folders of scenes: compare_pictures GOT WANT FAILURES [BUDGETS [EXPECTED]]. Prints a line a
// scene that differs, then the scenes that do not keep their budget, then the totals; fails when there is
// such a scene. EXPECTED names the scenes that have to be there, a line each.

#include <fstream>
#include <iostream>
#include <set>
#include <string>
#include <vector>

#include "compare/folders.h"

int main(int argc, char** argv) {
    const std::vector<std::string> args(argv + 1, argv + argc);
    if (args.size() < 3 || args.size() > 5) {
        std::cerr << "usage: compare_pictures GOT WANT FAILURES [BUDGETS [EXPECTED]]\n";
        return 2;
    }
    Budgets budgets;
    std::set<std::string> expected;
    if (args.size() > 3) {
        std::ifstream in(args[3]);
        if (!in || !ReadBudgets(in, budgets)) return std::cerr << args[3] << ": not to be read\n", 2;
    }
    if (args.size() > 4) {
        std::ifstream in(args[4]);
        for (std::string strName; std::getline(in, strName);) expected.insert(strName);
        if (expected.empty()) return std::cerr << args[4] << ": names nothing\n", 2;
    }
    const FolderResult result = CompareFolders(args[0], args[1], args[2], expected, std::cout);
    const bool bKept = KeepsBudgets(result, budgets, std::cout);
    std::cout << "scenes: " << result.scenes.size() << " compared, " << result.Differing() << " differ, "
              << result.Pixels() << " pixels and " << result.Lines()
              << " lines in all, largest mean difference " << result.LargestMean() << "\n";
    return bKept ? 0 : 1;
}
