#ifndef DORVEX_TESTS_SUPPORT_CASEFILES_H
#define DORVEX_TESTS_SUPPORT_CASEFILES_H

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "ScratchFiles.h"

/// What a case folder holds.
struct Case {
    std::filesystem::path directory;
    std::string command;
    std::string locale;
    std::string output;
    std::string errors;
    int status = 0;
    FileTree given;
    FileTree written;
    std::set<std::string> gone;
    std::vector<std::string> tools;
    std::vector<std::string> copybooks;
};

/// Reads a case folder. Throws std::runtime_error for a folder without `cmd`, with an entry that
/// no case has, or with a `status` that is no number.
Case LoadCase(const std::filesystem::path& directory);

#endif
