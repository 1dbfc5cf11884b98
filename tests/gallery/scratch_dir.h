/// A folder of its own for the running test: tests run at the same time.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

inline std::filesystem::path ScratchDir() {
    const testing::TestInfo* const pTest = testing::UnitTest::GetInstance()->current_test_info();
    return std::filesystem::temp_directory_path() /
           ("tavlon_" + std::string(pTest->test_suite_name()) + "_" + pTest->name());
}
