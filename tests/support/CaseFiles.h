#ifndef DORVEX_TESTS_SUPPORT_CASEFILES_H
#define DORVEX_TESTS_SUPPORT_CASEFILES_H

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace casetest {

// Relative name of each file below a directory, with its bytes.
using FileTree = std::map<std::string, std::string>;

// What a case folder holds.
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

// A directory that is removed with everything below it at the end of its scope.
class ScratchDirectory {
public:
    ScratchDirectory();
    ~ScratchDirectory();
    ScratchDirectory(const ScratchDirectory&) = delete;
    ScratchDirectory& operator=(const ScratchDirectory&) = delete;

    [[nodiscard]] const std::filesystem::path& Path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

// Reads a case folder. Throws std::runtime_error for a folder without `cmd`, with an entry that
// no case has, or with a `status` that is no number.
Case LoadCase(const std::filesystem::path& directory);

// Reads all files below a directory; a directory that does not exist has none.
FileTree ReadTree(const std::filesystem::path& directory);

void WriteFile(const std::filesystem::path& file, const std::string& bytes);

}  // namespace casetest

#endif
