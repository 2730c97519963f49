#ifndef DORVEX_TESTS_SUPPORT_SCRATCHFILES_H
#define DORVEX_TESTS_SUPPORT_SCRATCHFILES_H

#include <filesystem>
#include <map>
#include <string>

/// Relative name of each file below a directory, with its bytes.
using FileTree = std::map<std::string, std::string>;

/// A directory that is removed with everything below it at the end of its scope.
class CKTScratchDirectory {
public:
    /// Throws std::system_error when there is no room for one.
    CKTScratchDirectory();
    ~CKTScratchDirectory();
    CKTScratchDirectory(const CKTScratchDirectory&) = delete;
    CKTScratchDirectory& operator=(const CKTScratchDirectory&) = delete;

    [[nodiscard]] const std::filesystem::path& Path() const { return m_Path; }

private:
    std::filesystem::path m_Path;
};

/// A scratch directory that is the working directory as long as it lives.
class CKTWorkingDirectory {
public:
    CKTWorkingDirectory();
    ~CKTWorkingDirectory();
    CKTWorkingDirectory(const CKTWorkingDirectory&) = delete;
    CKTWorkingDirectory& operator=(const CKTWorkingDirectory&) = delete;

private:
    const CKTScratchDirectory m_Scratch;
    const std::filesystem::path m_Start = std::filesystem::current_path();
};

/// The bytes of a file. Throws std::runtime_error when it cannot be read.
std::string ReadFile(const std::filesystem::path& file);

/// Reads all files below a directory; a directory that does not exist has none. What is no regular
/// file has a note in parentheses for its bytes.
FileTree ReadTree(const std::filesystem::path& directory);

/// Makes `file` hold these bytes. Throws std::runtime_error when it cannot be written.
void WriteFile(const std::filesystem::path& file, const std::string& bytes);

#endif
