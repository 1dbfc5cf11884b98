// Compares two folders of scenes: compare_pictures GOT WANT FAILURES [BUDGETS]. Prints one line a scene that

#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "compare/folders.h"

int main(int argc, char** argv) {
    const std::vector<std::string> args(argv + 1, argv + argc);
    if (args.size() != 3 && args.size() != 4) {
        std::cerr << "usage: compare_pictures GOT WANT FAILURES [BUDGETS]\n";
        return 2;
    }
    Budgets budgets;
    if (args.size() == 4) {
        std::ifstream in(args[3]);
        if (!in || !ReadBudgets(in, budgets)) {
            std::cerr << args[3] << ": not to be read\n";
            return 2;
        }
    }
    const FolderResult result = CompareFolders(args[0], args[1], args[2], std::cout);
    const bool bKept = KeepsBudgets(result, budgets, std::cout);
    std::cout << "scenes: " << result.Scenes() << " compared, " << result.Differing() << " differ, "
              << result.Pixels() << " pixels and " << result.Lines() << " lines in all\n";
    return bKept ? 0 : 1;
}
